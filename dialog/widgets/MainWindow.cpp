// SPDX-License-Identifier: MIT
#include "widgets/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include "model/Bytes.h"
#include "model/library_texts.h"
#include "widgets/ApplyDialog.h"
#include "widgets/Colours.h"
#include "widgets/CommandView.h"
#include "widgets/CopyDialog.h"
#include "widgets/FindingList.h"
#include "widgets/HelpDialog.h"
#include "widgets/ProcessorList.h"
#include "widgets/SettingsForm.h"

namespace qvtdialog {

using SdkDebugDialog::annotate;
using SdkDebugDialog::diagnose;
using SdkDebugDialog::Finding;
using SdkDebugDialog::FindingKind;
using SdkDebugDialog::Fix;
using SdkDebugDialog::FixChoice;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingState;
using SdkDebugDialog::TextKind;
using SdkDebugDialog::with_fixes;

MainWindow::MainWindow(Session& session, const QString& design, QWidget* parent)
    : QMainWindow(parent), m_session(session), m_design(design), m_help(new HelpDialog(this)) {
  setObjectName(QStringLiteral("window"));
  make_actions();
  QWidget* const command = make_command_box();
  QWidget* const buttons = make_buttons();
  QWidget* const banner = make_banner();
  QStringList taken;
  for (const QAction* const menu : menuBar()->actions()) taken += menu->text();
  for (const QWidget* const part : {banner, command, buttons}) {
    for (const auto* const button : part->findChildren<QAbstractButton*>()) taken += button->text();
    for (const auto* const label : part->findChildren<QLabel*>()) taken += label->text();
  }
  Mnemonics keys(taken);
  m_list = new ProcessorList(m_session, keys, this);
  m_form = new SettingsForm(keys, this);

  auto* const parts = new QSplitter(Qt::Vertical, this);
  parts->setChildrenCollapsible(false);
  parts->addWidget(m_form);
  parts->addWidget(command);
  parts->setStretchFactor(0, 1);
  auto* const right = new QWidget(this);
  auto* const rightLayout = new QVBoxLayout(right);
  rightLayout->setContentsMargins({});
  rightLayout->addWidget(banner);
  rightLayout->addWidget(parts, 1);
  auto* const splitter = new QSplitter(Qt::Horizontal, this);
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(m_list);
  splitter->addWidget(right);
  splitter->setStretchFactor(1, 1);
  auto* const all = new QWidget(this);
  auto* const layout = new QVBoxLayout(all);
  layout->addWidget(splitter, 1);
  layout->addWidget(buttons);
  setCentralWidget(all);
  const int em = fontMetrics().horizontalAdvance(QLatin1Char('m'));
  resize(QSize(108 * em, 68 * em).boundedTo(screen()->availableSize()));

  connect(m_list, &ProcessorList::selected, this, &MainWindow::show_document);
  connect(&m_session, &Session::overviews_changed, this, &MainWindow::refresh_actions);
  refresh();
}

// The widgets are deleted here and not by QObject's destructor: their last signals must find a whole window.
MainWindow::~MainWindow() {
  if (m_document) m_document->disconnect(this);
  m_form->set_document(nullptr);
  delete takeCentralWidget();
}

// --- What it is made of ---

void MainWindow::make_actions() {
  m_undo = m_histories.createUndoAction(this, tr("&Undo"));
  m_redo = m_histories.createRedoAction(this, tr("&Redo"));
  m_undo->setShortcut(QKeySequence::Undo);
  m_redo->setShortcuts({QKeySequence(tr("Ctrl+Shift+Z")), QKeySequence(tr("Ctrl+Y"))});
  const auto make = [this](const QString& text, const QKeySequence& key, auto slot) {
    auto* const action = new QAction(text, this);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, slot);
    return action;
  };
  m_apply = make(tr("&Apply…"), QKeySequence::Save, [this] { apply(); });
  m_reset = make(tr("Reset to &defaults"), {}, [this] { reset(); });
  m_copy = make(tr("Cop&y to…"), {}, [this] { copy(); });
  m_cancel = make(tr("&Cancel"), Qt::Key_Escape, [this] { close(); });
  m_edit = make(tr("Edit the command as te&xt"), QKeySequence(tr("Ctrl+E")), [this](bool on) {
    edit_command(on);
    if (on) m_command->setFocus(Qt::ShortcutFocusReason);
  });
  m_edit->setCheckable(true);
  QMenu& file = *menuBar()->addMenu(tr("&File"));
  file.addActions({m_apply, m_cancel});
  QMenu& edit = *menuBar()->addMenu(tr("&Edit"));
  edit.addActions({m_undo, m_redo});
  edit.addSeparator();
  edit.addActions({m_reset, m_copy});
  edit.addSeparator();
  edit.addAction(m_edit);
  edit.addAction(make(tr("&Filter the processors"), QKeySequence::Find, [this] { m_list->focus_filter(); }));
  QMenu& help_menu = *menuBar()->addMenu(tr("&Help"));
  help_menu.addAction(make(tr("&What is this?"), QKeySequence::HelpContents, [this] { help(); }));
  help_menu.addAction(make(tr("&Keys"), {}, [this] { m_help->show_keys(); }));
  help_menu.addAction(make(tr("&About"), {}, [this] {
    QMessageBox::about(this, tr("About"),
                       tr("qvtdialog %1\nDebug configuration of the processors of FPGA-based designs, and the connect "
                          "commands of the QVT debugger.")
                           .arg(QApplication::applicationVersion()));
  }));
}

QWidget* MainWindow::make_banner() {
  m_banner = new QFrame(this);
  m_banner->setObjectName(QStringLiteral("banner"));
  m_banner->setFrameShape(QFrame::StyledPanel);
  m_banner->setAutoFillBackground(true);
  m_message = new QLabel(m_banner);
  m_message->setObjectName(QStringLiteral("message"));
  m_message->setWordWrap(true);
  m_message->setTextFormat(Qt::PlainText);
  m_take = new QPushButton(tr("&Load the file"), m_banner);
  m_take->setObjectName(QStringLiteral("take-theirs"));
  m_take->setAccessibleDescription(tr("What is in the file takes the place of what is here; Undo goes back"));
  m_keep = new QPushButton(tr("&Keep what is here"), m_banner);
  m_keep->setObjectName(QStringLiteral("keep-mine"));
  m_keep->setAccessibleDescription(tr("Apply will replace what is in the file now"));
  auto* const layout = new QHBoxLayout(m_banner);
  layout->addWidget(m_message, 1);
  layout->addWidget(m_take);
  layout->addWidget(m_keep);
  connect(m_take, &QPushButton::clicked, this, [this] { m_document->take_theirs(); });
  connect(m_keep, &QPushButton::clicked, this, [this] { m_document->keep_mine(); });
  return m_banner;
}

QWidget* MainWindow::make_command_box() {
  auto* const box = new QWidget(this);
  m_command = new CommandView(box);
  m_command->setObjectName(QStringLiteral("command"));
  m_editBox = new QCheckBox(tr("Edit as te&xt"), box);
  m_editBox->setObjectName(QStringLiteral("edit-command"));
  m_commandNote = new QLabel(box);
  m_commandNote->setObjectName(QStringLiteral("command-note"));
  m_commandNote->setWordWrap(true);
  m_commandNote->setTextFormat(Qt::PlainText);
  m_findingList = new FindingList(box);
  auto* const label = new QLabel(tr("C&onnect command"), box);
  label->setBuddy(m_command);
  auto* const heading = new QHBoxLayout;
  heading->addWidget(label, 1);
  heading->addWidget(m_editBox);
  auto* const layout = new QVBoxLayout(box);
  layout->setContentsMargins({});
  layout->addLayout(heading);
  layout->addWidget(m_command, 1);
  layout->addWidget(m_commandNote);
  layout->addWidget(m_findingList, 2);

  connect(m_editBox, &QCheckBox::clicked, m_edit, &QAction::trigger);
  connect(m_command, &CommandView::setting_wanted, this, [this](const Setting* setting) { go_to(*setting); });
  connect(m_command, &CommandView::help_wanted, this, [this](const Setting* setting) { help_on(*setting); });
  connect(m_command, &CommandView::caret_described, this, &MainWindow::tell);
  connect(m_command, &CommandView::text_typed, this, [this](const std::string& bytes) {
    if (!m_document) return;
    m_isTyping = true;
    m_document->type_content(bytes);
    m_isTyping = false;
  });
  connect(m_findingList, &FindingList::fix_wanted, this, [this](const Fix& wanted) {
    Finding finding;
    finding.kind = SdkDebugDialog::finding_kinds().data();
    finding.fixes = {wanted};
    fix({finding}, FixChoice::allFirst);
  });
  connect(m_findingList, &FindingList::all_fixes_wanted, this, [this] { fix(m_findings, FixChoice::safe); });
  connect(m_findingList, &FindingList::place_wanted, m_command, &CommandView::go_to);
  connect(m_findingList, &FindingList::help_wanted, this,
          [this](const FindingKind* kind) { m_help->show_kind(*kind); });
  return box;
}

QPushButton* MainWindow::button_of(QAction* action, const QString& name) {
  // Its key is that of the action: the letters are left for the fields.
  const auto text = [action] { return action->text().remove(QLatin1Char('&')); };
  auto* const button = new QPushButton(this);
  button->setObjectName(name);
  button->setAutoDefault(false);
  const auto follow = [action, button, text] {
    button->setText(text());
    button->setEnabled(action->isEnabled());
    button->setToolTip(action->toolTip());
  };
  follow();
  connect(button, &QPushButton::clicked, action, &QAction::trigger);
  connect(action, &QAction::changed, button, follow);
  return button;
}

QWidget* MainWindow::make_buttons() {
  auto* const row = new QWidget(this);
  auto* const layout = new QHBoxLayout(row);
  layout->setContentsMargins({});
  layout->addWidget(button_of(m_undo, QStringLiteral("undo")));
  layout->addWidget(button_of(m_redo, QStringLiteral("redo")));
  layout->addWidget(button_of(m_reset, QStringLiteral("reset")));
  layout->addWidget(button_of(m_copy, QStringLiteral("copy-to")));
  layout->addStretch();
  layout->addWidget(button_of(m_apply, QStringLiteral("apply-changes")));
  layout->addWidget(button_of(m_cancel, QStringLiteral("cancel")));
  return row;
}

// --- What it shows ---

void MainWindow::select(const std::string& processor) {
  if (const auto place = m_session.place_of(processor)) m_list->select(*place);
}

void MainWindow::select_first() {
  for (std::size_t place = 0; place < m_session.names().size(); ++place) {
    if (m_session.is_debuggable(place)) return m_list->select(place);
  }
}

void MainWindow::show_document(const std::string& processor) {
  Document* const document = m_session.document(processor);
  if (document == m_document) return;
  if (m_document && !finish_typing()) return select(m_document->processor().name());
  if (m_document) {
    m_document->end_typing();
    m_document->disconnect(this);
  }
  m_document = document;
  if (document != nullptr) {
    m_histories.addStack(&document->history());
    m_histories.setActiveStack(&document->history());
    connect(document, &Document::reloaded, this, &MainWindow::show_whole_document);
    document->look_at_file();
  }
  // The form listens first: the rest is shown when its fields are right.
  m_form->set_document(document);
  if (document != nullptr) connect(document, &Document::changed, this, &MainWindow::refresh);
  show_whole_document();
}

// As it is when it is opened or read again.
void MainWindow::show_whole_document() {
  const bool isReadable = m_document && m_document->unreadable().isEmpty();
  edit_command(isReadable && !m_document->is_understood());
  // Settings of before say nothing of a file that is not understood: its text has all the room.
  m_form->setVisible(!m_document || m_form->isEnabled());
  refresh();
}

void MainWindow::refresh() {
  if (m_form->isEnabled()) m_form->show();
  refresh_command();
  refresh_banner();
  refresh_actions();
}

void MainWindow::refresh_command() {
  if (!m_document) return;
  const bool isReadable = m_document->unreadable().isEmpty();
  if (!isReadable) edit_command(false);
  const auto content = m_document->command_text();
  const std::string text = content && isReadable ? *content : std::string();
  const bool isOther = m_shown != m_document;
  m_shown = m_document;
  const auto& processor = m_document->processor();
  m_findings = isReadable ? diagnose(text, TextKind::optionFile, processor) : std::vector<Finding>();
  const std::string before = m_content;
  const bool isNews = text != before;
  m_content = text;
  m_command->show_text(text, annotate(text, TextKind::optionFile, processor), m_findings);
  if (isNews && !isOther && !m_isTyping) m_command->mark_changes(before);
  m_findingList->show_findings(m_findings);
  m_commandNote->setText(content ? QString() : shown(content.error().message));
  m_commandNote->setVisible(!content);
  set_ink(*m_commandNote, Tone::error);
}

void MainWindow::refresh_banner() {
  if (!m_document) {
    m_banner->hide();
    return;
  }
  const auto& conflict = m_document->conflict();
  QString text;
  Tone tone = Tone::warning;
  if (!m_document->unreadable().isEmpty()) {
    tone = Tone::error;
    text = tr("The option file cannot be read: %1").arg(m_document->unreadable());
  } else if (conflict && !conflict->content) {
    text = tr("Another program has removed the option file.");
  } else if (conflict) {
    text = tr("Another program has changed the option file. It now holds:\n%1").arg(shortened(*conflict->content));
  } else if (!m_document->is_understood()) {
    text = m_document->has_changes()
               ? tr("The command is not understood. The settings are shown again when it is.")
               : tr("The option file is not understood. Correct its text below, or reset it to the defaults.");
  } else if (m_document->was_reloaded()) {
    text = tr("The file was changed by another program, and read again. Undo brings back what was here.");
    tone = Tone::note;
  }
  QPalette colours = palette();
  colours.setColor(QPalette::Window, background(tone, colours));
  m_banner->setPalette(colours);
  m_message->setText(text);
  m_banner->setVisible(!text.isEmpty());
  m_banner->setAccessibleName(text);
  m_take->setVisible(conflict.has_value());
  m_keep->setVisible(conflict.has_value());
}

void MainWindow::refresh_actions() {
  const bool hasDocument = m_document && m_document->unreadable().isEmpty();
  const bool hasChanges = !m_session.with_changes().empty();
  m_apply->setEnabled(hasChanges);
  m_reset->setEnabled(hasDocument);
  m_copy->setEnabled(hasDocument && m_document->is_understood());
  m_edit->setEnabled(hasDocument);
  m_editBox->setEnabled(hasDocument);
  const QString name =
      m_document ? shown(m_document->processor().name()) + QStringLiteral("[*] – ") : QStringLiteral("[*]");
  setWindowTitle(name + m_design + QStringLiteral(" – qvtdialog"));
  setWindowModified(hasChanges);
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  // Some file systems tell nothing of changes.
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) m_session.look_at_files();
  if (event->type() == QEvent::PaletteChange) {
    m_form->set_colours();
    refresh();
  }
}

void MainWindow::tell(const QString& text) { statusBar()->showMessage(text); }

// --- What a person asks for ---

void MainWindow::edit_command(bool editing) {
  m_edit->setChecked(editing);
  m_editBox->setChecked(editing);
  m_command->set_editing(editing);
  if (m_document) m_document->end_typing();
}

void MainWindow::fix(const std::vector<Finding>& findings, FixChoice choice) {
  if (m_document) m_document->replace_content(with_fixes(m_content, findings, choice), tr("what was found"));
}

void MainWindow::go_to(const Setting& setting) {
  if (m_form->go_to(setting)) return;
  if (m_document && m_document->is_understood()) {
    const SettingState state = m_document->configuration().state(setting);
    tell(tr("%1 does not apply: %2").arg(label_of(setting), translated(state.whyNot)));
  }
}

// What is typed just now belongs to what is stored.
bool MainWindow::finish_typing() {
  for (QLineEdit* const cell : m_form->findChildren<QLineEdit*>(QStringLiteral("cell"))) {
    if (!cell->property("refused").toBool()) continue;
    tell(tr("The value in the field '%1' is not accepted. Correct it first.").arg(cell->accessibleName()));
    cell->setFocus(Qt::OtherFocusReason);
    return false;
  }
  QWidget* const focused = QApplication::focusWidget();
  if (focused != nullptr && m_form->isAncestorOf(focused)) focused->clearFocus();
  return true;
}

void MainWindow::apply() {
  if (!finish_typing()) return;
  m_session.look_at_files();
  const auto documents = m_session.with_changes();
  if (documents.empty()) return;
  ApplyDialog dialog(documents, this);
  if (dialog.exec() == QDialog::Accepted) tell(tr("Stored."));
}

void MainWindow::copy() {
  if (!m_document || !finish_typing()) return;
  CopyDialog dialog(m_session, *m_document, this);
  dialog.exec();
}

void MainWindow::reset() {
  if (m_document) m_document->reset_all();
}

void MainWindow::help() {
  if (const Setting* const setting = m_form->current()) {
    help_on(*setting);
  } else {
    m_help->show_keys();
  }
}

void MainWindow::help_on(const Setting& setting) {
  if (m_document && m_document->is_understood()) {
    const SettingState state = m_document->configuration().state(setting);
    m_help->show_setting(setting, &state);
  } else {
    m_help->show_setting(setting, nullptr);
  }
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (!finish_typing()) return event->ignore();
  while (true) {
    const auto documents = m_session.with_changes();
    if (documents.empty()) break;
    QStringList names;
    for (const Document* const document : documents) names += shown(document->processor().name());
    QMessageBox question(QMessageBox::Question, tr("Cancel"),
                         tr("There are changes that are not stored: %1").arg(names.join(QStringLiteral(", "))),
                         QMessageBox::NoButton, this);
    question.setObjectName(QStringLiteral("cancel-question"));
    QPushButton* const store = question.addButton(tr("&Apply…"), QMessageBox::ActionRole);
    QPushButton* const discard = question.addButton(tr("&Discard the changes"), QMessageBox::DestructiveRole);
    QPushButton* const back = question.addButton(tr("&Go on editing"), QMessageBox::RejectRole);
    store->setObjectName(QStringLiteral("cancel-apply"));
    discard->setObjectName(QStringLiteral("cancel-discard"));
    back->setObjectName(QStringLiteral("cancel-back"));
    question.setDefaultButton(back);
    question.setEscapeButton(back);
    question.exec();
    if (question.clickedButton() == discard) break;
    if (question.clickedButton() != store) return event->ignore();
    apply();
    if (m_session.with_changes().size() == documents.size()) return event->ignore();
  }
  event->accept();
}

}  // namespace qvtdialog
