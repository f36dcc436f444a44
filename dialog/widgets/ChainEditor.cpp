// SPDX-License-Identifier: MIT
#include "widgets/ChainEditor.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "model/Bytes.h"
#include "model/library_texts.h"
#include "widgets/ChainPicture.h"
#include "widgets/Colours.h"

namespace qvtdialog {

using SdkDebugDialog::find_setting;
using SdkDebugDialog::JtagOption;
using SdkDebugDialog::Setting;

namespace {

// A cell that is not left with Enter or Tab while its text is not accepted.
class CellDelegate : public QStyledItemDelegate {
  Q_DECLARE_TR_FUNCTIONS(ChainEditor)

 public:
  CellDelegate(ChainModel& model, QLabel& note, QObject* parent)
      : QStyledItemDelegate(parent), m_model(model), m_note(note) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                        const QModelIndex& index) const override {
    auto* const line = new QLineEdit(parent);
    line->setFrame(false);
    line->setAutoFillBackground(true);
    line->setObjectName(QStringLiteral("cell"));
    line->setAccessibleName(m_model.headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    connect(line, &QLineEdit::textEdited, this, [this, line, row = index.row(), column = index.column()] {
      const QString why = why_not(row, column, line->text());
      m_note.setText(why);
      m_note.setVisible(!why.isEmpty());
      QPalette ink;
      if (!why.isEmpty()) ink.setColor(QPalette::Text, colour(Tone::error, ink));
      line->setPalette(ink);
      line->setProperty("refused", !why.isEmpty());
    });
    return line;
  }

  // A cell can be left with a click while its text is not accepted: that is told.
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override {
    const QString text = qobject_cast<QLineEdit*>(editor)->text();
    const QString why = why_not(index.row(), index.column(), text);
    if (why.isEmpty()) return QStyledItemDelegate::setModelData(editor, model, index);
    m_note.setText(tr("'%1' was not taken: %2").arg(text, why));
    m_note.show();
  }

  bool eventFilter(QObject* editor, QEvent* event) override {
    // It stays open when something else gets the focus, so that nothing typed is lost.
    if (event->type() == QEvent::FocusOut && editor->property("refused").toBool()) return false;
    if (event->type() == QEvent::KeyPress && editor->property("refused").toBool()) {
      const int key = static_cast<QKeyEvent&>(*event).key();
      if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Backtab) return true;
    }
    return QStyledItemDelegate::eventFilter(editor, event);
  }

 private:
  QString why_not(int row, int column, const QString& text) const {
    if (row >= m_model.rowCount()) return {};
    const auto device = ChainModel::with_text(m_model.chain()[static_cast<std::size_t>(row)], column, text);
    return device ? QString() : shown(device.error().message);
  }

  ChainModel& m_model;
  QLabel& m_note;
};

bool are_counted(const Chain& chain) {
  for (std::size_t i = 0; i < chain.size(); ++i) {
    if (chain[i].devicenr != static_cast<int>(i) + 1) return false;
  }
  return true;
}

}  // namespace

ChainEditor::ChainEditor(const Setting& setting, QWidget* parent)
    : QWidget(parent),
      m_setting(setting),
      m_debugDevice(*find_setting("debug-device")),
      m_model(new ChainModel(this)),
      m_picture(new ChainPicture(this)),
      m_table(new QTableView(this)),
      m_note(new QLabel(this)) {
  setObjectName(QStringLiteral("chain"));
  setProperty("setting", shown(setting.name));
  m_table->setObjectName(QStringLiteral("chain-table"));
  m_table->setAccessibleName(tr("Devices of the JTAG chain"));
  m_table->setAccessibleDescription(
      tr("F2 or a double click changes a cell, Insert adds a device, Delete removes one"));
  m_table->setModel(m_model);
  m_table->setItemDelegate(new CellDelegate(*m_model, *m_note, this));
  m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_table->setSelectionMode(QAbstractItemView::SingleSelection);
  m_table->setTabKeyNavigation(false);
  m_table->verticalHeader()->hide();
  m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 3 / 2);
  m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  m_table->installEventFilter(this);
  m_note->setObjectName(QStringLiteral("note:devices"));
  m_note->setWordWrap(true);
  m_note->setTextFormat(Qt::PlainText);
  m_note->hide();

  auto* const buttons = new QHBoxLayout;
  m_add = add_button(QStringLiteral("device-add"), tr("Add device"), tr("Adds a device behind the selected one"),
                     &ChainEditor::add);
  m_remove = add_button(QStringLiteral("device-remove"), tr("Remove"), tr("Removes the selected device"),
                        &ChainEditor::remove);
  m_up = add_button(QStringLiteral("device-up"), tr("Up"), tr("Moves the selected device towards TDI"),
                    &ChainEditor::move_up);
  m_down = add_button(QStringLiteral("device-down"), tr("Down"), tr("Moves the selected device towards TDO"),
                      &ChainEditor::move_down);
  for (QPushButton* const button : {m_add, m_remove, m_up, m_down}) buttons->addWidget(button);
  buttons->addStretch();

  auto* const right = new QWidget(this);
  auto* const column = new QVBoxLayout(right);
  column->setContentsMargins({});
  column->addWidget(m_table, 1);
  column->addLayout(buttons);
  auto* const splitter = new QSplitter(Qt::Horizontal, this);
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(m_picture);
  splitter->addWidget(right);
  splitter->setSizes({5000, 4500});  // shares
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(splitter, 1);
  layout->addWidget(m_note);

  connect(m_model, &ChainModel::entered, this, [this](int row, const JtagOption& device) {
    Chain chain = m_model->chain();
    chain[static_cast<std::size_t>(row)] = device;
    assign(chain, static_cast<int>(m_document->configuration().record().debugDevice), label_of(m_setting));
  });
  connect(m_picture, &ChainPicture::selected, this, &ChainEditor::select);
  connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
    m_picture->set_selected(row());
    update_buttons();
  });
}

QPushButton* ChainEditor::add_button(const QString& name, const QString& text, const QString& tip,
                                     void (ChainEditor::*action)()) {
  auto* const button = new QPushButton(text, this);
  button->setObjectName(name);
  button->setToolTip(tip);
  button->setAccessibleDescription(tip);
  connect(button, &QPushButton::clicked, this, action);
  return button;
}

void ChainEditor::set_document(Document* document) { m_document = document; }

void ChainEditor::refresh() {
  if (!m_document) return;
  const auto& configuration = m_document->configuration();
  const int debugDevice = configuration.record().debugDevice;
  m_model->set_chain(configuration.chain(), debugDevice);
  m_picture->show_chain(configuration.chain(), debugDevice, shown(m_document->processor().name()));
  QStringList warnings;
  for (const std::string& warning : configuration.warnings(m_setting)) warnings += shown(warning);
  set_ink(*m_note, Tone::error);
  m_note->setText(warnings.join(QLatin1Char('\n')));
  m_note->setVisible(!warnings.isEmpty());
  update_buttons();
}

void ChainEditor::focus() { m_table->setFocus(Qt::ShortcutFocusReason); }

int ChainEditor::row() const {
  const QModelIndex current = m_table->currentIndex();
  return current.isValid() && current.row() < m_model->rowCount() ? current.row() : -1;
}

void ChainEditor::select(int row) {
  m_table->setCurrentIndex(m_model->index(row, std::max(0, m_table->currentIndex().column())));
  m_picture->set_selected(row);
  update_buttons();
}

void ChainEditor::update_buttons() {
  const int at = row();
  m_remove->setEnabled(at >= 0);
  m_up->setEnabled(at > 0);
  m_down->setEnabled(at >= 0 && at + 1 < m_model->rowCount());
}

// --- Changes ---

void ChainEditor::assign(const Chain& chain, int debugDevice, const QString& title) {
  if (!m_document) return;
  const auto assigned = m_document->assign({{&m_setting, chain}, {&m_debugDevice, std::int64_t{debugDevice}}}, title);
  if (assigned) return;
  m_note->setText(shown(assigned.error().message));
  m_note->show();
}

// The new device gets the number of its place if the devices are counted, and the next free number otherwise.
void ChainEditor::add() {
  if (!m_document) return;
  Chain chain = m_model->chain();
  const int at = row() < 0 ? static_cast<int>(chain.size()) : row() + 1;
  const bool counted = are_counted(chain);
  JtagOption device;
  int number = at + 1;
  if (!counted) {
    const auto last = std::max_element(
        chain.begin(), chain.end(), [](const JtagOption& a, const JtagOption& b) { return a.devicenr < b.devicenr; });
    number = last->devicenr + 1;
  }
  if (chain.size() >= 127 || number > 127) {
    m_note->setText(tr("A device number is at most 127."));
    m_note->show();
    return;
  }
  device.devicenr = static_cast<std::int8_t>(number);
  int debugDevice = m_document->configuration().record().debugDevice;
  if (counted) {
    for (auto later = chain.begin() + at; later != chain.end(); ++later) ++later->devicenr;
    if (debugDevice > at && debugDevice <= static_cast<int>(chain.size())) ++debugDevice;
  }
  chain.insert(chain.begin() + at, device);
  assign(chain, debugDevice, tr("a device added"));
  select(at);
}

void ChainEditor::remove() {
  const int at = row();
  if (!m_document || at < 0) return;
  Chain chain = m_model->chain();
  const bool counted = are_counted(chain);
  int debugDevice = m_document->configuration().record().debugDevice;
  if (counted) {
    for (auto later = chain.begin() + at; later != chain.end(); ++later) --later->devicenr;
    if (debugDevice > at + 1 && debugDevice <= static_cast<int>(chain.size())) --debugDevice;
  }
  chain.erase(chain.begin() + at);
  assign(chain, debugDevice, tr("a device removed"));
  if (!chain.empty()) select(std::min(at, static_cast<int>(chain.size()) - 1));
}

// Numbers stay with the places, and the debug device stays the same device.
void ChainEditor::move(int by) {
  const int at = row();
  const int to = at + by;
  if (!m_document || at < 0 || to < 0 || to >= m_model->rowCount()) return;
  Chain chain = m_model->chain();
  JtagOption& device = chain[static_cast<std::size_t>(at)];
  JtagOption& other = chain[static_cast<std::size_t>(to)];
  int debugDevice = m_document->configuration().record().debugDevice;
  if (debugDevice == device.devicenr) {
    debugDevice = other.devicenr;
  } else if (debugDevice == other.devicenr) {
    debugDevice = device.devicenr;
  }
  std::swap(device.devicenr, other.devicenr);
  std::swap(device, other);
  assign(chain, debugDevice, tr("a device moved"));
  select(to);
}

bool ChainEditor::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_table && event->type() == QEvent::KeyPress) {
    const auto& pressed = static_cast<const QKeyEvent&>(*event);
    const bool alt = pressed.modifiers().testFlag(Qt::AltModifier);
    const std::pair<bool, void (ChainEditor::*)()> actions[] = {
        {pressed.key() == Qt::Key_Insert, &ChainEditor::add},
        {pressed.key() == Qt::Key_Delete, &ChainEditor::remove},
        {alt && pressed.key() == Qt::Key_Up, &ChainEditor::move_up},
        {alt && pressed.key() == Qt::Key_Down, &ChainEditor::move_down},
    };
    for (const auto& [isMeant, action] : actions) {
      if (!isMeant) continue;
      (this->*action)();
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace qvtdialog
