// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/Configuration.h>

#include <QLabel>
#include <QObject>
#include <QString>
#include <QToolButton>
#include <optional>
#include <string>

class QGridLayout;

namespace qvtdialog {

// What a field shows.
struct FieldContent {
  SdkDebugDialog::SettingState state;
  std::optional<std::string> refused;  // what was typed and is not accepted
  QString error;                       // why not, and what is accepted
  QString warning;

  friend bool operator==(const FieldContent& a, const FieldContent& b) {
    return a.state.value == b.state.value && a.state.initial == b.state.initial && a.state.applies == b.state.applies &&
           a.state.changeable == b.state.changeable && a.state.whyNot == b.state.whyNot &&
           a.state.choices == b.state.choices && a.refused == b.refused && a.error == b.error && a.warning == b.warning;
  }
};

// A setting as a row of a form: label, a widget to enter the value, unit, a button with the default, and a line for
// what is wrong. What is typed stays as it is until the field is left; then it is shown as the library writes it.
class Field : public QObject {
  Q_OBJECT

 public:
  // Puts its widgets into two rows of the page's layout.
  Field(const SdkDebugDialog::Setting& setting, QGridLayout& layout, int row);

  const SdkDebugDialog::Setting& setting() const { return m_setting; }
  void show(const FieldContent& content);
  void hide();
  // In the colours of the palette as it is now.
  void set_note();
  bool is_shown() const { return m_isShown; }
  // The label with its key.
  void set_label(const QString& text);
  void focus();
  QWidget* editor() const { return m_editor; }

 signals:
  // While a person types, and when one of the choices is taken.
  void typed(const std::string& text);
  // The field was left, or Enter was pressed.
  void finished();
  void default_wanted();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum class Shape { none, check, choice, choiceOrText, text };
  Shape shape_for(const FieldContent& content) const;
  void make_editor(Shape shape);
  void set_editor_content();
  void tell(const QString& text);
  void finish();

  const SdkDebugDialog::Setting& m_setting;
  QGridLayout& m_layout;
  int m_row;
  QLabel* m_label;
  QWidget* m_editor = nullptr;
  QLabel* m_unit;
  QToolButton* m_default = nullptr;
  QLabel* m_note;
  Shape m_shape = Shape::none;
  bool m_isShown = false;
  bool m_isTyping = false;   // what is in the line is a person's, and stays
  bool m_isTelling = false;  // a change that comes now is the answer to what was typed
  std::optional<FieldContent> m_content;
};

}  // namespace qvtdialog
