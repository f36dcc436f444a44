// SPDX-License-Identifier: MIT
#include "widgets/FindingList.h"

#include <QAbstractListModel>
#include <QApplication>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QStringList>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "model/Bytes.h"
#include "model/library_texts.h"
#include "widgets/Colours.h"

namespace qvtdialog {

using SdkDebugDialog::Finding;
using SdkDebugDialog::Fix;
using SdkDebugDialog::Remark;
using SdkDebugDialog::Severity;

namespace {

// More are of no use to a person, and lists are laid out anew with every key that is typed.
constexpr std::size_t kMostFindings = 100;

QIcon icon_of(Severity severity) {
  constexpr QStyle::StandardPixmap kPixmaps[] = {QStyle::SP_MessageBoxCritical, QStyle::SP_MessageBoxWarning,
                                                 QStyle::SP_MessageBoxInformation};
  return QApplication::style()->standardIcon(kPixmaps[static_cast<std::size_t>(severity)]);
}

}  // namespace

class FindingModel : public QAbstractListModel {
  Q_DECLARE_TR_FUNCTIONS(qvtdialog::FindingModel)

 public:
  using QAbstractListModel::QAbstractListModel;

  void show(std::vector<Finding> findings) {
    beginResetModel();
    m_counts = {};
    for (const Finding& finding : findings) ++m_counts[static_cast<std::size_t>(finding.severity)];
    std::ranges::stable_sort(findings, {}, &Finding::severity);
    m_left_out = findings.size() - std::min(findings.size(), kMostFindings);
    findings.resize(findings.size() - m_left_out);
    m_findings = std::move(findings);
    m_rows.clear();
    for (const Finding& finding : m_findings) {
      m_rows.push_back({&finding, nullptr, nullptr});
      for (const Remark& remark : finding.remarks) m_rows.push_back({&finding, &remark, nullptr});
      for (const Fix& fix : finding.fixes) m_rows.push_back({&finding, nullptr, &fix});
    }
    endResetModel();
  }

  // One line of the list: a finding, or one of its remarks or fixes.
  struct Row {
    const Finding* finding;
    const Remark* remark;
    const Fix* fix;
  };
  // None for the last line, which tells how many are left out.
  std::optional<Row> row(const QModelIndex& index) const {
    const auto at = static_cast<std::size_t>(index.row());
    return at < m_rows.size() ? std::optional(m_rows[at]) : std::nullopt;
  }

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size()) + (m_left_out > 0 ? 1 : 0);
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const auto row_here = row(index);
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole || role == Qt::AccessibleTextRole) {
      return row_here ? text(*row_here) : tr("and %n more", nullptr, static_cast<int>(m_left_out));
    }
    if (!row_here) return {};
    const bool is_finding = row_here->fix == nullptr && row_here->remark == nullptr;
    if (role == Qt::DecorationRole) {
      // An empty icon of the same size keeps what belongs to a finding below its text.
      return is_finding ? icon_of(row_here->finding->severity) : m_no_icon;
    }
    if (role == Qt::ForegroundRole && row_here->fix != nullptr) return colour(Tone::accent, QApplication::palette());
    if (role == Qt::FontRole && row_here->fix != nullptr) {
      QFont font;
      font.setUnderline(true);
      return font;
    }
    return {};
  }

  // "2 errors, 1 warning"
  QString summary() const {
    const QString texts[] = {tr("%n error(s)", nullptr, m_counts[0]), tr("%n warning(s)", nullptr, m_counts[1]),
                             tr("%n note(s)", nullptr, m_counts[2])};
    QStringList parts;
    for (std::size_t severity = 0; severity < m_counts.size(); ++severity) {
      if (m_counts[severity] > 0) parts += texts[severity];
    }
    return parts.join(tr(", ", "between the parts of a list"));
  }

  void set_icon_size(int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    m_no_icon = QIcon(pixmap);
  }

 private:
  static QString text(const Row& row) {
    if (row.fix != nullptr) {
      const QString title = shown(row.fix->title);
      return row.fix->safe ? tr("Fix: %1").arg(title) : tr("Fix: %1 (a guess)").arg(title);
    }
    if (row.remark != nullptr) return tr("See: %1").arg(shown(row.remark->message));
    const Finding& finding = *row.finding;
    const QString message =
        tr("%1: %2", "severity, message").arg(severity_of(finding.severity), shown(finding.message));
    return finding.remedy.empty() ? message : tr("%1; %2", "message, remedy").arg(message, shown(finding.remedy));
  }

  std::vector<Finding> m_findings;
  std::vector<Row> m_rows;  // they point into m_findings
  std::array<int, 3> m_counts{};
  std::size_t m_left_out = 0;
  QIcon m_no_icon;
};

FindingList::FindingList(QWidget* parent)
    : QWidget(parent),
      m_model(new FindingModel(this)),
      m_summary(new QLabel(this)),
      m_fix_all(new QPushButton(tr("Fix all that is &safe"), this)),
      m_list(new QListView(this)) {
  setObjectName(QStringLiteral("finding-box"));
  m_fix_all->setObjectName(QStringLiteral("fix-all"));
  m_fix_all->setToolTip(tr("Applies every fix that keeps the meaning of the text"));
  m_fix_all->setAccessibleDescription(m_fix_all->toolTip());
  m_fix_all->setAutoDefault(false);
  m_list->setObjectName(QStringLiteral("findings"));
  m_list->setAccessibleName(tr("Findings"));
  m_list->setAccessibleDescription(tr("What is wrong with the text, and its fixes"));
  m_list->setModel(m_model);
  m_list->setWordWrap(true);
  m_list->setResizeMode(QListView::Adjust);
  m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_list->setMouseTracking(true);
  m_list->installEventFilter(this);
  m_summary->setBuddy(m_list);

  auto* const head = new QHBoxLayout;
  head->addWidget(m_summary, 1);
  head->addWidget(m_fix_all);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(head);
  layout->addWidget(m_list);

  connect(m_fix_all, &QPushButton::clicked, this, &FindingList::all_fixes_wanted);
  connect(m_list, &QListView::clicked, this, &FindingList::choose);
  connect(m_list, &QListView::entered, this, [this](const QModelIndex& index) {
    const bool is_link = m_model->row(index).has_value();
    m_list->viewport()->setCursor(is_link ? Qt::PointingHandCursor : Qt::ArrowCursor);
  });
  take_font();
  hide();
}

void FindingList::show_findings(const std::vector<Finding>& findings) {
  const int row = m_list->currentIndex().row();
  m_model->show(findings);
  if (row >= 0) m_list->setCurrentIndex(m_model->index(std::min(row, m_model->rowCount() - 1)));
  m_summary->setText(m_model->summary());
  m_fix_all->setEnabled(std::ranges::any_of(
      findings, [](const Finding& finding) { return std::ranges::any_of(finding.fixes, &Fix::safe); }));
  setVisible(!findings.empty());
}

void FindingList::choose(const QModelIndex& index) {
  const auto row = m_model->row(index);
  if (!row) return;
  // What it points to can be gone when the signal has been handled.
  if (row->fix != nullptr) {
    emit fix_wanted(Fix(*row->fix));
  } else if (row->remark != nullptr && row->remark->end > 0) {
    emit place_wanted(row->remark->begin, row->remark->end);
  } else {
    emit place_wanted(row->finding->begin, row->finding->end);
  }
}

bool FindingList::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) {
    return QWidget::eventFilter(watched, event);
  }
  const int key = static_cast<QKeyEvent*>(event)->key();
  const auto row = m_model->row(m_list->currentIndex());
  const bool is_help = key == Qt::Key_F1;
  if (!row || !m_list->currentIndex().isValid() || (!is_help && key != Qt::Key_Return && key != Qt::Key_Enter)) {
    return QWidget::eventFilter(watched, event);
  }
  event->accept();
  if (event->type() == QEvent::ShortcutOverride) return true;
  if (is_help) {
    emit help_wanted(row->finding->kind);
  } else {
    choose(m_list->currentIndex());
  }
  return true;
}

void FindingList::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) take_font();
}

void FindingList::take_font() {
  const int size = m_list->fontMetrics().height();
  m_list->setIconSize({size, size});
  m_model->set_icon_size(size);
  // Room for two findings, each with a fix.
  m_list->setMinimumHeight(m_list->fontMetrics().lineSpacing() * 5 + 2 * m_list->frameWidth());
}

}  // namespace qvtdialog
