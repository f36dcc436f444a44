// SPDX-License-Identifier: MIT
#include "widgets/ApplyDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "model/Bytes.h"
#include "model/library_texts.h"
#include "widgets/Colours.h"

namespace qvtdialog {

using SdkDebugDialog::Difference;
using SdkDebugDialog::Loss;
using SdkDebugDialog::OnLoss;

namespace {

// The heights of the rows, so that every text can be read at the present widths of the columns.
class WrappingDelegate : public QStyledItemDelegate {
 public:
  explicit WrappingDelegate(QTreeView& view) : QStyledItemDelegate(&view), m_view(view) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    if (!index.parent().isValid()) return QStyledItemDelegate::sizeHint(option, index);
    QStyleOptionViewItem narrow = option;
    const int indentation = index.column() == 0 ? 2 * m_view.indentation() : 0;
    narrow.rect = QRect(0, 0, m_view.columnWidth(index.column()) - indentation, 1);
    return QStyledItemDelegate::sizeHint(narrow, index);
  }

 private:
  QTreeView& m_view;
};

void add_row(QTreeWidgetItem& parent, const QStringList& texts, const QColor& ink = {}) {
  parent.addChild(new QTreeWidgetItem(texts));
  QTreeWidgetItem* const item = parent.child(parent.childCount() - 1);
  for (int column = 0; column < texts.size(); ++column) {
    item->setToolTip(column, texts[column]);
    item->setTextAlignment(column, Qt::AlignTop | Qt::AlignLeft);
    if (ink.isValid()) item->setForeground(column, ink);
  }
}

QString line_of(const std::string& content) {
  QString text = shortened(content);
  // A line does not end between the dash and the name of an option.
  text.replace(QLatin1Char('-'), QStringLiteral("-\u2060"));
  return text.replace(QLatin1Char('\n'), QStringLiteral(" ⏎ "));
}

}  // namespace

ApplyDialog::ApplyDialog(std::vector<Document*> documents, QWidget* parent)
    : QDialog(parent),
      m_documents(std::move(documents)),
      m_tree(new QTreeWidget(this)),
      m_goOn(new QCheckBox(tr("Store it &although something is lost"), this)),
      m_failure(new QLabel(this)) {
  setObjectName(QStringLiteral("apply"));
  setWindowTitle(tr("Apply"));
  setSizeGripEnabled(true);
  auto* const label = new QLabel(tr("&What is stored:"), this);
  label->setBuddy(m_tree);
  m_tree->setObjectName(QStringLiteral("apply-tree"));
  m_tree->setAccessibleName(tr("What is stored"));
  m_tree->setAccessibleDescription(tr("The processors, below each what changes and what is lost"));
  m_tree->setHeaderLabels({tr("Setting"), tr("Before"), tr("After")});
  m_tree->setWordWrap(true);
  m_tree->setItemDelegate(new WrappingDelegate(*m_tree));
  connect(m_tree->header(), &QHeaderView::sectionResized, m_tree, &QTreeWidget::doItemsLayout);
  for (Document* const document : m_documents) add_document(*document);
  m_tree->expandAll();
  const int em = fontMetrics().horizontalAdvance(QLatin1Char('m'));
  m_tree->setColumnWidth(0, 20 * em);
  m_tree->setColumnWidth(1, 32 * em);
  if (m_tree->topLevelItemCount() > 0) m_tree->setCurrentItem(m_tree->topLevelItem(0));
  m_goOn->setObjectName(QStringLiteral("apply-go-on"));
  m_failure->setObjectName(QStringLiteral("apply-failure"));
  m_failure->setWordWrap(true);
  m_failure->setTextFormat(Qt::PlainText);
  set_ink(*m_failure, Tone::error);
  m_failure->hide();

  auto* const buttons = new QDialogButtonBox(this);
  m_store = buttons->addButton(tr("&Store"), QDialogButtonBox::AcceptRole);
  m_store->setObjectName(QStringLiteral("apply-store"));
  QPushButton* const cancel = buttons->addButton(QDialogButtonBox::Cancel);
  cancel->setObjectName(QStringLiteral("apply-cancel"));
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(label);
  layout->addWidget(m_tree, 1);
  layout->addWidget(m_goOn);
  layout->addWidget(m_failure);
  layout->addWidget(buttons);
  resize(84 * em, 40 * em);

  connect(m_store, &QPushButton::clicked, this, &ApplyDialog::store);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(m_tree, &QTreeWidget::itemChanged, this, &ApplyDialog::update_buttons);
  connect(m_goOn, &QCheckBox::toggled, this, &ApplyDialog::update_buttons);
  update_buttons();
}

QTreeWidgetItem* ApplyDialog::add_document(Document& document) {
  auto* const item = new QTreeWidgetItem(
      m_tree, {shown(document.processor().name()) + QStringLiteral(" – ") + shown(document.path())});
  item->setFirstColumnSpanned(true);
  QFont bold = font();
  bold.setBold(true);
  item->setFont(0, bold);
  const QColor wrong = colour(Tone::error, palette());
  const QString why = document.why_not_stored();
  const auto plan = document.plan();
  if (!why.isEmpty() || !plan) {
    item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
    add_row(*item, {tr("cannot be stored"), {}, why.isEmpty() ? shown(plan.error().message) : why}, wrong);
    return item;
  }
  item->setCheckState(0, Qt::Checked);
  item->setData(0, Qt::UserRole, plan->is_safe());
  for (const Difference& difference : plan->differences) {
    add_row(*item, {label_of(*difference.setting), value_of(*difference.setting, difference.before),
                    value_of(*difference.setting, difference.after)});
  }
  for (const Loss& loss : plan->losses) add_row(*item, {tr("lost"), shown(loss.what), translated(loss.why)}, wrong);
  if (!plan->notReadBack.empty()) add_row(*item, {tr("not read back"), {}, shown(plan->notReadBack)}, wrong);
  const bool hasFile = document.stored().has_value();
  add_row(*item, {tr("the file"), hasFile ? line_of(plan->before) : tr("no file"), line_of(plan->after)});
  return item;
}

bool ApplyDialog::loses() const {
  for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
    const QTreeWidgetItem& item = *m_tree->topLevelItem(i);
    if (item.checkState(0) == Qt::Checked && !item.data(0, Qt::UserRole).toBool()) return true;
  }
  return false;
}

void ApplyDialog::update_buttons() {
  bool any = false;
  for (int i = 0; i < m_tree->topLevelItemCount(); ++i) any |= m_tree->topLevelItem(i)->checkState(0) == Qt::Checked;
  m_goOn->setVisible(loses());
  m_store->setEnabled(any && (!loses() || m_goOn->isChecked()));
}

// One that fails stays, with the reason; the others are stored.
void ApplyDialog::store() {
  QStringList failures;
  for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
    QTreeWidgetItem& item = *m_tree->topLevelItem(i);
    if (item.checkState(0) != Qt::Checked) continue;
    Document& document = *m_documents[static_cast<std::size_t>(i)];
    const auto stored = document.store(m_goOn->isChecked() ? OnLoss::goOn : OnLoss::refuse);
    item.setCheckState(0, Qt::Unchecked);
    if (stored) {
      item.setDisabled(true);
      add_row(item, {tr("stored"), {}, {}});
    } else {
      failures += shown(document.processor().name()) + QStringLiteral(": ") + shown(stored.error().message);
    }
  }
  if (failures.isEmpty()) return accept();
  m_failure->setText(tr("Not stored: %1").arg(failures.join(QLatin1Char('\n'))));
  m_failure->show();
}

}  // namespace qvtdialog
