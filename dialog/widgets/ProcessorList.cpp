// SPDX-License-Identifier: MIT
#include "widgets/ProcessorList.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>

#include "model/Bytes.h"
#include "widgets/ProcessorModel.h"

namespace qvtdialog {

namespace {

// Rows with some room between them.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, option.fontMetrics.height() / 3);
  }
};

// The width of a column with room for some texts.
int width_of(const QWidget& view, const QStringList& texts) {
  int width = 0;
  for (const QString& text : texts) width = std::max(width, view.fontMetrics().horizontalAdvance(text));
  return width + view.fontMetrics().horizontalAdvance(QLatin1Char('m')) * 3 / 2;
}

}  // namespace

ProcessorList::ProcessorList(Session& session, Mnemonics& keys, QWidget* parent)
    : QWidget(parent),
      m_session(session),
      m_model(new ProcessorModel(session, this)),
      m_filter(new QLineEdit(this)),
      m_view(new QTreeView(this)) {
  m_filter->setObjectName(QStringLiteral("filter"));
  m_filter->setPlaceholderText(tr("Filter by name"));
  m_filter->setClearButtonEnabled(true);
  m_filter->setAccessibleName(tr("Filter of the processors"));
  m_view->setObjectName(QStringLiteral("processors"));
  m_view->setAccessibleName(tr("Processors of the design"));
  m_view->setAccessibleDescription(tr("What they are, and what is known about their option files"));
  m_view->setModel(m_model);
  m_view->setRootIsDecorated(false);
  m_view->setUniformRowHeights(true);
  m_view->setAllColumnsShowFocus(true);
  m_view->setItemDelegate(new RowDelegate(this));
  m_view->header()->setStretchLastSection(true);
  set_column_widths();

  auto* const label = new QLabel(keys.with_key(tr("Processors")), this);
  label->setBuddy(m_view);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(label);
  layout->addWidget(m_filter);
  layout->addWidget(m_view, 1);

  connect(m_filter, &QLineEdit::textChanged, this, &ProcessorList::set_filter);
  connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& index) {
    if (m_isFiltering || !index.isValid()) return;
    m_selected = m_model->place_of(index.row());
    emit selected(m_session.names()[*m_selected]);
  });
}

// Names have the room that the first ones need. What stands beside them takes a look at the option file, so that common
// texts decide there.
void ProcessorList::set_column_widths() {
  constexpr std::size_t kNames = 1000;
  QStringList names = ProcessorModel::common_texts(ProcessorModel::name);
  for (std::size_t i = 0; i < std::min(kNames, m_session.names().size()); ++i) names += shown(m_session.names()[i]);
  const int em = fontMetrics().horizontalAdvance(QLatin1Char('m'));
  const int name = std::min(width_of(*m_view, names), 24 * em);
  const int kind = width_of(*m_view, ProcessorModel::common_texts(ProcessorModel::kind));
  const int file = width_of(*m_view, ProcessorModel::common_texts(ProcessorModel::file));
  m_view->setColumnWidth(ProcessorModel::name, name);
  m_view->setColumnWidth(ProcessorModel::kind, kind);
  m_width = name + kind + file + 2 * m_view->frameWidth() + m_view->verticalScrollBar()->sizeHint().width();
}

QSize ProcessorList::sizeHint() const { return {m_width, QWidget::sizeHint().height()}; }

// A filter selects nothing: a processor that it leaves out stays the one that is edited.
void ProcessorList::set_filter(const QString& text) {
  m_isFiltering = true;
  m_model->set_filter(text);
  const auto row = m_selected ? m_model->row_of(*m_selected) : std::nullopt;
  const QModelIndex current = row ? m_model->index(*row, 0) : QModelIndex();
  m_view->setCurrentIndex(current);
  if (current.isValid()) m_view->scrollTo(current);
  m_isFiltering = false;
}

void ProcessorList::select(std::size_t place) {
  if (!m_model->row_of(place)) m_filter->clear();
  const QModelIndex index = m_model->index(m_model->row_of(place).value(), 0);
  m_view->setCurrentIndex(index);
  m_view->scrollTo(index);
}

void ProcessorList::focus_filter() {
  m_filter->setFocus(Qt::ShortcutFocusReason);
  m_filter->selectAll();
}

}  // namespace qvtdialog
