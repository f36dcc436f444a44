// SPDX-License-Identifier: MIT
#include "widgets/CopyDialog.h"

#include <QAbstractListModel>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>
#include <set>

#include "model/Bytes.h"
#include "model/library_texts.h"

namespace qvtdialog {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Loss;

// The processors that can be debugged, but for one, with a box to check each.
class CopyTargets : public QAbstractListModel {
 public:
  CopyTargets(Session& session, const std::string& without, QObject* parent)
      : QAbstractListModel(parent), m_session(session) {
    for (std::size_t i = 0; i < session.names().size(); ++i) {
      if (session.is_debuggable(i) && session.names()[i] != without) m_places.push_back(i);
    }
  }

  // In the order of the design.
  const std::set<std::size_t>& checked() const { return m_checked; }

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(m_places.size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    const std::size_t place = m_places[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole) return shown(m_session.names()[place]);
    if (role == Qt::ToolTipRole) return m_session.overview(place).kind;
    if (role == Qt::CheckStateRole) return m_checked.count(place) != 0 ? Qt::Checked : Qt::Unchecked;
    return {};
  }
  bool setData(const QModelIndex& index, const QVariant& value, int role) override {
    if (role != Qt::CheckStateRole) return false;
    const std::size_t place = m_places[static_cast<std::size_t>(index.row())];
    if (value.toInt() == Qt::Checked) {
      m_checked.insert(place);
    } else {
      m_checked.erase(place);
    }
    emit dataChanged(index, index, {Qt::CheckStateRole});
    return true;
  }
  Qt::ItemFlags flags(const QModelIndex& index) const override {
    return QAbstractListModel::flags(index) | Qt::ItemIsUserCheckable;
  }

 private:
  Session& m_session;
  std::vector<std::size_t> m_places;
  std::set<std::size_t> m_checked;
};

CopyDialog::CopyDialog(Session& session, Document& from, QWidget* parent)
    : QDialog(parent),
      m_session(session),
      m_from(from),
      m_targets(new CopyTargets(session, from.processor().name(), this)),
      m_filter(new QLineEdit(this)),
      m_view(new QListView(this)),
      m_preview(new QPlainTextEdit(this)) {
  setObjectName(QStringLiteral("copy"));
  setWindowTitle(tr("Copy the settings of %1").arg(shown(from.processor().name())));
  setSizeGripEnabled(true);
  auto* const filtered = new QSortFilterProxyModel(this);
  filtered->setSourceModel(m_targets);
  filtered->setDynamicSortFilter(false);
  m_filter->setObjectName(QStringLiteral("copy-filter"));
  m_filter->setPlaceholderText(tr("Filter by name"));
  m_filter->setAccessibleName(tr("Filter of the processors"));
  m_filter->setClearButtonEnabled(true);
  m_view->setObjectName(QStringLiteral("copy-targets"));
  m_view->setAccessibleName(tr("Processors to copy to"));
  m_view->setAccessibleDescription(tr("The space bar checks a processor"));
  m_view->setUniformItemSizes(true);
  m_view->setModel(filtered);
  m_preview->setObjectName(QStringLiteral("copy-preview"));
  m_preview->setAccessibleName(tr("What is not copied"));
  m_preview->setReadOnly(true);
  m_preview->setTabChangesFocus(true);
  auto* const to = new QLabel(tr("&To these processors:"), this);
  to->setBuddy(m_view);
  auto* const what = new QLabel(tr("&What is not copied:"), this);
  what->setBuddy(m_preview);
  auto* const buttons = new QDialogButtonBox(this);
  m_copy = buttons->addButton(tr("&Copy"), QDialogButtonBox::AcceptRole);
  m_copy->setObjectName(QStringLiteral("copy-copy"));
  buttons->addButton(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("copy-cancel"));
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(to);
  layout->addWidget(m_filter);
  layout->addWidget(m_view, 2);
  layout->addWidget(what);
  layout->addWidget(m_preview, 1);
  layout->addWidget(buttons);
  const int em = fontMetrics().horizontalAdvance(QLatin1Char('m'));
  resize(40 * em, 30 * em);
  connect(m_filter, &QLineEdit::textChanged, filtered, &QSortFilterProxyModel::setFilterFixedString);
  connect(m_targets, &QAbstractItemModel::dataChanged, this, &CopyDialog::preview);
  connect(&m_session, &Session::overview_changed, this, &CopyDialog::preview);
  connect(m_copy, &QPushButton::clicked, this, &CopyDialog::copy);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  preview();
}

void CopyDialog::preview() {
  QStringList lines;
  const bool isUnderstood = m_from.is_understood() && m_from.unreadable().isEmpty();
  if (!isUnderstood)
    lines += tr("The option file of %1 cannot be read any more.").arg(shown(m_from.processor().name()));
  for (const auto& [setting, text] : m_from.draft().refused) {
    lines += tr("%1: '%2' is not accepted, and not copied").arg(label_of(*setting), shown(text));
  }
  for (const std::size_t place : m_targets->checked()) {
    const Document& target = *m_session.document(m_session.names()[place]);
    const QString name = shown(m_session.names()[place]);
    if (!target.unreadable().isEmpty()) {
      lines += name + QStringLiteral(": ") + target.unreadable();
      continue;
    }
    if (!target.is_understood()) {
      lines += tr("%1: its command is not understood, and stays as it is").arg(name);
      continue;
    }
    Configuration tried = target.configuration();
    for (const Loss& loss : tried.copy_settings(m_from.configuration())) {
      lines += name + QStringLiteral(": ") + shown(loss.what) + QStringLiteral(" (") + translated(loss.why) +
               QStringLiteral(")");
    }
  }
  if (lines.isEmpty()) lines += m_targets->checked().empty() ? QString() : tr("Everything is copied.");
  m_preview->setPlainText(lines.join(QLatin1Char('\n')));
  m_copy->setEnabled(isUnderstood && !m_targets->checked().empty());
}

void CopyDialog::copy() {
  for (const std::size_t place : m_targets->checked()) {
    Document& target = *m_session.document(m_session.names()[place]);
    if (target.is_understood() && target.unreadable().isEmpty()) target.copy_from(m_from.configuration());
  }
  accept();
}

}  // namespace qvtdialog
