// SPDX-License-Identifier: MIT
#include "widgets/Field.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>

#include "model/Bytes.h"
#include "model/library_texts.h"
#include "widgets/Colours.h"

namespace qvtdialog {

using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::value_text;

namespace {

QString object_name(const char* part, const Setting& setting) {
  return QString::fromLatin1(part) + QLatin1Char(':') + shown(setting.name);
}

QLineEdit* line_of(QWidget* editor) {
  if (auto* const box = qobject_cast<QComboBox*>(editor)) return box->lineEdit();
  return qobject_cast<QLineEdit*>(editor);
}

}  // namespace

Field::Field(const Setting& setting, QGridLayout& layout, int row)
    : QObject(layout.parentWidget()),
      m_setting(setting),
      m_layout(layout),
      m_row(row),
      m_label(new QLabel(layout.parentWidget())),
      m_unit(new QLabel(unit_of(setting), layout.parentWidget())),
      m_note(new QLabel(layout.parentWidget())) {
  m_label->setObjectName(object_name("label", setting));
  m_label->setToolTip(meaning_of(setting));
  m_unit->setObjectName(object_name("unit", setting));
  // The tab key goes in the order in which they are made.
  make_editor(Shape::text);
  m_default = new QToolButton(layout.parentWidget());
  m_default->setObjectName(object_name("default", setting));
  m_default->setAutoRaise(true);
  m_default->setProperty("setting", shown(setting.name));
  m_note->setObjectName(object_name("note", setting));
  m_note->setWordWrap(true);
  m_note->setTextFormat(Qt::PlainText);
  layout.addWidget(m_label, row, 0);
  layout.addWidget(m_unit, row, 2);
  layout.addWidget(m_default, row, 3);
  layout.addWidget(m_note, row + 1, 1, 1, 3);
  connect(m_default, &QToolButton::clicked, this, &Field::default_wanted);
  hide();
}

void Field::set_label(const QString& text) { m_label->setText(text); }

void Field::focus() {
  m_editor->setFocus(Qt::ShortcutFocusReason);
  if (QLineEdit* const line = line_of(m_editor)) line->selectAll();
}

// --- The editor ---

Field::Shape Field::shape_for(const FieldContent& content) const {
  if (content.state.choices.empty() || !content.state.changeable) return Shape::text;
  if (m_setting.kind == SettingKind::flag) return Shape::check;
  return m_setting.kind == SettingKind::word ? Shape::choice : Shape::choiceOrText;
}

void Field::make_editor(Shape shape) {
  QWidget* const page = m_layout.parentWidget();
  QWidget* const before = m_editor;
  if (shape == Shape::check) {
    auto* const check = new QCheckBox(page);
    connect(check, &QCheckBox::clicked, this,
            [this](bool on) { tell(on ? QStringLiteral("on") : QStringLiteral("off")); });
    m_editor = check;
  } else if (shape == Shape::text) {
    m_editor = new QLineEdit(page);
  } else {
    auto* const box = new QComboBox(page);
    box->setEditable(shape == Shape::choiceOrText);
    box->setInsertPolicy(QComboBox::NoInsert);
    if (box->isEditable()) box->setCompleter(nullptr);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(box, &QComboBox::activated, this, [this, box](int index) { tell(box->itemText(index)); });
    m_editor = box;
  }
  m_shape = shape;
  if (QLineEdit* const line = line_of(m_editor)) {
    connect(line, &QLineEdit::textEdited, this, [this](const QString& text) {
      m_isTyping = true;
      tell(text);
    });
    connect(line, &QLineEdit::editingFinished, this, &Field::finish);
    line->installEventFilter(this);
  }
  m_editor->installEventFilter(this);
  m_editor->setFocusPolicy(Qt::StrongFocus);
  m_editor->setObjectName(object_name("field", m_setting));
  m_editor->setProperty("setting", shown(m_setting.name));
  m_editor->setAccessibleName(label_of(m_setting));
  m_editor->setToolTip(meaning_of(m_setting));
  m_label->setBuddy(m_editor);
  if (before != nullptr) {
    const bool hadFocus = before->hasFocus();
    delete m_layout.replaceWidget(before, m_editor);
    // It may be the one whose signal has brought us here.
    before->disconnect(this);
    before->setObjectName({});
    before->hide();
    before->deleteLater();
    // The tab key reaches it where it reached the one before.
    QWidget::setTabOrder(before, m_editor);
    if (hadFocus) m_editor->setFocus();
  } else {
    m_layout.addWidget(m_editor, m_row, 1);
  }
}

// Undo and Redo are those of the dialog, not those of the line; the wheel scrolls the page. What is chosen one after
// the other, with the arrow keys say, is one change until the field is left.
bool Field::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    auto& key = static_cast<QKeyEvent&>(*event);
    if (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo)) {
      event->ignore();
      return true;
    }
  }
  if (event->type() == QEvent::Wheel && watched == m_editor) {
    event->ignore();
    return true;
  }
  const bool isLeft = event->type() == QEvent::FocusOut &&
                      static_cast<QFocusEvent&>(*event).reason() != Qt::PopupFocusReason &&
                      static_cast<QFocusEvent&>(*event).reason() != Qt::ActiveWindowFocusReason;
  if (isLeft && watched == m_editor) finish();
  return QObject::eventFilter(watched, event);
}

// --- Its content ---

void Field::show(const FieldContent& content) {
  const bool isNews = !m_isShown || !m_content || !(*m_content == content);
  m_content = content;
  // Undo, or a change from elsewhere, puts an end to typing.
  if (isNews && !m_isTelling) m_isTyping = false;
  if (!m_isShown) {
    m_isShown = true;
    for (QWidget* const widget : {static_cast<QWidget*>(m_label), m_editor, static_cast<QWidget*>(m_default)}) {
      widget->show();
    }
    // Frequencies and sizes are shown with their units: 12 MHz, 64 KB.
    m_unit->setVisible(m_setting.kind == SettingKind::number && !m_unit->text().isEmpty());
  }
  if (!isNews) return;
  if (!m_isTyping && m_shape != shape_for(content)) {
    make_editor(shape_for(content));
    m_editor->show();
  }
  set_editor_content();
  const QString initial = value_of(m_setting, content.state.initial);
  m_default->setText(tr("Default: %1").arg(initial));
  m_default->setToolTip(tr("Back to the default: %1").arg(initial));
  m_default->setAccessibleName(tr("%1: back to the default, %2").arg(label_of(m_setting), initial));
  m_default->setEnabled(content.state.changeable &&
                        (content.refused.has_value() || content.state.value != content.state.initial));
  m_default->setVisible(content.state.changeable);
  set_note();
}

void Field::hide() {
  m_isShown = false;
  m_isTyping = false;
  for (QWidget* const widget : {static_cast<QWidget*>(m_label), m_editor, static_cast<QWidget*>(m_unit),
                                static_cast<QWidget*>(m_default), static_cast<QWidget*>(m_note)}) {
    widget->hide();
  }
}

void Field::set_editor_content() {
  const auto& state = m_content->state;
  if (auto* const check = qobject_cast<QCheckBox*>(m_editor)) {
    const bool on = std::holds_alternative<bool>(state.value) && std::get<bool>(state.value);
    check->setChecked(on);
    check->setText(on ? tr("on") : tr("off"));
    return;
  }
  const bool isFlag = m_setting.kind == SettingKind::flag;  // one that cannot be changed: it is shown as a text
  const QString text = isFlag ? value_of(m_setting, state.value)
                              : shown(m_content->refused.value_or(value_text(m_setting, state.value)));
  if (auto* const box = qobject_cast<QComboBox*>(m_editor)) {
    const QSignalBlocker blocked(box);
    const QString typedText = box->isEditable() ? box->currentText() : QString();
    const int place = m_isTyping ? box->lineEdit()->cursorPosition() : 0;
    box->clear();
    for (const std::string& choice : state.choices) box->addItem(shown(choice));
    box->setCurrentIndex(box->findText(text));
    if (box->isEditable()) {
      box->setEditText(m_isTyping ? typedText : text);
      if (m_isTyping) box->lineEdit()->setCursorPosition(place);
    }
    return;
  }
  auto* const line = qobject_cast<QLineEdit*>(m_editor);
  line->setReadOnly(!state.changeable);
  if (!m_isTyping && line->text() != text) line->setText(text);
}

void Field::set_note() {
  const auto& content = *m_content;
  QString text = content.error;
  Tone tone = Tone::error;
  if (text.isEmpty()) {
    text = content.warning;
    tone = Tone::warning;
  }
  if (text.isEmpty() && !content.state.changeable) {
    text = translated(content.state.whyNot);
    tone = Tone::quiet;
  }
  m_note->setText(text);
  m_note->setVisible(!text.isEmpty() && m_isShown);
  set_ink(*m_note, tone);
  // The text itself is marked too.
  QPalette ink;
  if (!content.error.isEmpty()) ink.setColor(QPalette::Text, colour(Tone::error, ink));
  // What cannot be changed does not look as if it could.
  if (!content.state.changeable) ink.setColor(QPalette::Base, ink.color(QPalette::Window));
  m_editor->setPalette(ink);
  m_editor->setAccessibleDescription(text.isEmpty() ? meaning_of(m_setting)
                                                    : text + QStringLiteral(". ") + meaning_of(m_setting));
}

void Field::tell(const QString& text) {
  m_isTelling = true;
  emit typed(bytes_of(text));
  m_isTelling = false;
}

void Field::finish() {
  const bool typedBefore = m_isTyping;
  m_isTyping = false;
  emit finished();
  if (!m_content || !typedBefore) return;
  if (m_shape != shape_for(*m_content)) make_editor(shape_for(*m_content));
  set_editor_content();
}

}  // namespace qvtdialog
