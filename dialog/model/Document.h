// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/Configuration.h>
#include <SdkDebugDialog/Diagnosis.h>

#include <QObject>
#include <QString>
#include <QUndoStack>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "model/Draft.h"

namespace qvtdialog {

// The settings of one processor while they are edited: the present draft, its history, and what the option file holds.
//
//   document.type(*find_setting("frequency"), "12M");
//   if (document.why_not_stored().isEmpty()) document.store();
//   document.history().undo();
//
// Every change is a step of the history. Storing is none: Undo goes back beyond it, and what it leads to can be stored.
class Document : public QObject {
  Q_OBJECT

 public:
  // Reads the option file, which may be missing.
  Document(SdkDebugDialog::Processor processor, std::string path, QObject* parent = nullptr);

  const SdkDebugDialog::Processor& processor() const { return m_draft.configuration.processor(); }
  const std::string& path() const { return m_path; }

  // --- The present state ---

  const Draft& draft() const { return m_draft; }
  const SdkDebugDialog::Configuration& configuration() const { return m_draft.configuration; }
  // False: the text is refused by the reader, and there are no settings to show.
  bool is_understood() const { return !m_draft.text; }
  // What the file would hold. ErrorCode::cannotBeWritten.
  SdkDebugDialog::Expected<std::string> content() const;
  // The same for people to read and change: while there is no file, the command for the defaults.
  SdkDebugDialog::Expected<std::string> command_text() const;
  // Whether the file would get another content.
  bool has_changes() const;
  // What storing would change, and lose, of what the file holds.
  struct Plan {
    std::string before;  // empty if there is no file
    std::string after;
    std::vector<SdkDebugDialog::Difference> differences;  // none if the file is not understood
    std::vector<SdkDebugDialog::Loss> losses;
    std::string notReadBack;  // why the new content is refused or read differently; empty if it is read back

    bool is_safe() const { return losses.empty() && notReadBack.empty(); }
  };
  SdkDebugDialog::Expected<Plan> plan() const;

  // Why the state cannot be stored, in a sentence; empty if it can, or if there is nothing to store.
  QString why_not_stored() const;

  // --- Changes ---

  // What a person has typed into a field so far. Until end_typing, the step is the same, and each text counts from the
  // state before it. A text that is not accepted is kept beside the settings.
  void type(const SdkDebugDialog::Setting& setting, const std::string& text);
  // The same for the content of the file.
  void type_content(const std::string& content);
  // What is typed next is a step of its own.
  void end_typing() { m_typed = nullptr; }

  struct Assignment {
    const SdkDebugDialog::Setting* setting;
    SdkDebugDialog::SettingValue value;
  };
  // One step; refused as a whole with the error of the first that is not accepted.
  SdkDebugDialog::Expected<void> assign(const std::vector<Assignment>& assignments, const QString& title);
  // Back to the default; refused() texts of the setting go.
  void reset(const SdkDebugDialog::Setting& setting);
  void reset_all();
  // The settings of another processor; returns what was not taken.
  std::vector<SdkDebugDialog::Loss> copy_from(const SdkDebugDialog::Configuration& from);
  void replace_content(const std::string& content, const QString& title);

  QUndoStack& history() { return m_history; }

  // --- The option file ---

  // What the file held when it was last read or stored; none: there was no file.
  const std::optional<std::string>& stored() const { return m_stored; }
  // Why the file cannot be read; empty if it can, or is missing. Nothing can be changed or stored then.
  const QString& unreadable() const { return m_unreadable; }

  // What somebody else has made of the file, while there are changes here: they are not stored before a person has
  // chosen one of the two.
  struct Conflict {
    std::optional<std::string> content;  // none: the file is gone
  };
  const std::optional<Conflict>& conflict() const { return m_conflict; }

  // Whether the file was changed by another program and read again, and nothing was done here since.
  bool was_reloaded() const { return m_wasReloaded; }

  // Looks at the file again. Without changes here, its new content is taken over as a step; otherwise there is a
  // conflict.
  void look_at_file();
  // Ends the conflict: what is in the file now, as a step; or what is here, to be stored over it.
  void take_theirs();
  void keep_mine();

  // Stores what the plan tells; its folder is made. ErrorCode::wouldLose, changedMeanwhile, cannotBeWritten, file,
  // refused for what why_not_stored tells.
  SdkDebugDialog::Expected<void> store(SdkDebugDialog::OnLoss onLoss = SdkDebugDialog::OnLoss::refuse);

 signals:
  // The draft, or what is known about the file.
  void changed();
  // The file was changed by another program and read again.
  void reloaded();

 private:
  class Step;

  Draft draft_of(const std::optional<std::string>& content) const;
  bool differs_from_file() const;
  void tell_changed();
  void show(const Draft& draft);
  // A new step; with typed, it joins the one before if that was typed into the same thing.
  void push(Draft next, const QString& title, const void* typed = nullptr);
  // The state that a text typed into something counts from.
  const Draft& typing_base(const void* typed) const { return m_typed == typed ? m_base : m_draft; }

  std::string m_path;
  std::optional<std::string> m_stored;
  QString m_unreadable;
  std::optional<Conflict> m_conflict;
  bool m_wasReloaded = false;

  Draft m_draft;
  mutable std::optional<bool> m_hasChanges;  // none: not looked up since the last change
  QUndoStack m_history;
  const void* m_typed = nullptr;  // a setting, or the document for its content
  Draft m_base;
  int m_typing = 0;  // counts what was typed, so that steps are joined that belong together
};

}  // namespace qvtdialog
