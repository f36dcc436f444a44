// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/Annotation.h>
#include <SdkDebugDialog/Diagnosis.h>

#include <QPlainTextEdit>
#include <QString>
#include <cstddef>
#include <string>
#include <vector>

#include "model/Bytes.h"

namespace qvtdialog {

class CommandHighlighter;

// The content of an option file: its words coloured by role, findings underlined, the words that the last change of a
// setting brought with a background. One line feed at the end of the file is kept and not shown.
//
// Only shown, a click on a word asks for its setting, and so does Enter. While it is edited, these are Ctrl+click and
// Ctrl+Enter. It keeps no history: Undo and Redo are those of the window.
class CommandView : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit CommandView(QWidget* parent = nullptr);

  // For a text that is there already only the colours change. Otherwise the caret stays where it is in the text. Marks
  // of changes go when the text changes. The places are those of diagnose() and annotate() for these bytes.
  void show_text(const std::string& bytes, const std::vector<SdkDebugDialog::Annotation>& annotations,
                 const std::vector<SdkDebugDialog::Finding>& findings);
  // Marks the words that another text, the one before the last change, does not have.
  void mark_changes(const std::string& before);

  void set_editing(bool editing);
  bool is_editing() const { return !isReadOnly(); }

  // The text with what a person has typed.
  const std::string& bytes() const { return m_bytes; }
  // Selects a place of the text, scrolls to it, and gets the focus.
  void go_to(std::size_t begin, std::size_t end);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void setting_wanted(const SdkDebugDialog::Setting* setting);
  // F1.
  void help_wanted(const SdkDebugDialog::Setting* setting);
  void text_typed(const std::string& bytes);
  // What is at the caret, as the tooltip tells it; empty if there is nothing to tell. For a status bar.
  void caret_described(const QString& description);

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void take_typed_text();
  void describe_caret();
  void replace_text(const QString& text);
  void colour_text();
  void use_fixed_font();
  int height_of_lines(int count) const;

  // Of the character at a point or an index; the setting of a word also directly behind it, where the caret can be.
  qsizetype index_at(const QPoint& point) const;
  const SdkDebugDialog::Annotation* word_at(qsizetype index) const;
  const SdkDebugDialog::Setting* setting_at(qsizetype index) const;
  const SdkDebugDialog::Setting* setting_at_caret() const;
  QStringList descriptions_at(qsizetype index) const;
  QString value_beside(const SdkDebugDialog::Annotation& word) const;

  CommandHighlighter* m_highlighter;
  std::string m_bytes;
  bool m_line_feed_at_end = false;  // it is in m_bytes, and not shown
  ShownText m_shown;
  std::vector<SdkDebugDialog::Annotation> m_annotations;
  std::vector<bool> m_changed;  // of each annotation
  std::vector<SdkDebugDialog::Finding> m_findings;
  bool m_replacing = false;
};

}  // namespace qvtdialog
