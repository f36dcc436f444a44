// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QUndoGroup>
#include <memory>
#include <string>

#include "model/Session.h"

class QCheckBox;
class QFrame;
class QLabel;
class QPushButton;

namespace qvtdialog {

class CommandView;
class FindingList;
class HelpDialog;
class ProcessorList;
class SettingsForm;

// The window: processors on the left, the settings of the selected one on the right, its connect command below.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // The name of the design is for the title.
  MainWindow(Session& session, const QString& design, QWidget* parent = nullptr);
  ~MainWindow() override;

  void select(const std::string& processor);
  // The first processor that can be debugged, if there is one.
  void select_first();
  Document* document() const { return m_document; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void make_actions();
  QWidget* make_banner();
  QWidget* make_command_box();
  QWidget* make_buttons();
  QPushButton* button_of(QAction* action, const QString& name);

  void show_document(const std::string& processor);
  void show_whole_document();
  void refresh();
  void refresh_command();
  void refresh_banner();
  void refresh_actions();

  // False if what is typed just now is not accepted.
  bool finish_typing();
  void apply();
  void copy();
  void reset();
  void edit_command(bool editing);
  void fix(const std::vector<SdkDebugDialog::Finding>& findings, SdkDebugDialog::FixChoice choice);
  void go_to(const SdkDebugDialog::Setting& setting);
  void help();
  void help_on(const SdkDebugDialog::Setting& setting);
  void tell(const QString& text);

  Session& m_session;
  QString m_design;
  QPointer<Document> m_document;
  QUndoGroup m_histories;
  QPointer<Document> m_shown;  // whose content the command view shows
  std::string m_content;
  bool m_isTyping = false;
  std::vector<SdkDebugDialog::Finding> m_findings;

  QAction* m_undo;
  QAction* m_redo;
  QAction* m_apply;
  QAction* m_reset;
  QAction* m_copy;
  QAction* m_edit;
  QAction* m_cancel;
  ProcessorList* m_list;
  QFrame* m_banner;
  QLabel* m_message;
  QPushButton* m_take;
  QPushButton* m_keep;
  SettingsForm* m_form;
  CommandView* m_command;
  QLabel* m_commandNote;
  QCheckBox* m_editBox;
  FindingList* m_findingList;
  HelpDialog* m_help;
};

}  // namespace qvtdialog
