// SPDX-License-Identifier: MIT
#include "model/Document.h"

#include <SdkDebugDialog/OptionFile.h>

#include <QUndoCommand>
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "model/Bytes.h"
#include "model/library_texts.h"

namespace qvtdialog {

using SdkDebugDialog::annotate;
using SdkDebugDialog::Annotation;
using SdkDebugDialog::Configuration;
using SdkDebugDialog::differences;
using SdkDebugDialog::Edit;
using SdkDebugDialog::Error;
using SdkDebugDialog::ErrorCode;
using SdkDebugDialog::Expected;
using SdkDebugDialog::Loss;
using SdkDebugDialog::OnLoss;
using SdkDebugDialog::option_line;
using SdkDebugDialog::Processor;
using SdkDebugDialog::read_option_file;
using SdkDebugDialog::replace_option_file;
using SdkDebugDialog::Role;
using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingState;
using SdkDebugDialog::TextKind;

// --- Steps ---

class Document::Step : public QUndoCommand {
 public:
  // Steps with the same number other than 0 are joined.
  Step(Document& document, Draft after, const QString& title, int typing)
      : QUndoCommand(title),
        m_document(document),
        m_before(document.m_draft),
        m_after(std::move(after)),
        m_typing(typing) {}

  void redo() override { m_document.show(m_after); }
  void undo() override { m_document.show(m_before); }
  int id() const override { return m_typing != 0 ? 1 : -1; }

  bool mergeWith(const QUndoCommand* later) override {
    const auto& next = static_cast<const Step&>(*later);
    if (next.m_typing != m_typing) return false;
    m_after = next.m_after;
    setObsolete(m_after == m_before);
    return true;
  }

 private:
  Document& m_document;
  Draft m_before;
  Draft m_after;
  int m_typing;
};

void Document::tell_changed() {
  m_hasChanges.reset();
  emit changed();
}

void Document::show(const Draft& draft) {
  m_draft = draft;
  m_wasReloaded = false;
  tell_changed();
}

void Document::push(Draft next, const QString& title, const void* typed) {
  if (typed == nullptr || m_typed != typed) {
    m_base = m_draft;
    m_typed = typed;
    ++m_typing;
  }
  if (next == m_draft || !m_unreadable.isEmpty()) return;
  m_history.push(new Step(*this, std::move(next), title, typed != nullptr ? m_typing : 0));
}

// --- The present state ---

Document::Document(Processor processor, std::string path, QObject* parent)
    : QObject(parent),
      m_path(std::move(path)),
      m_draft{.configuration = Configuration(std::move(processor)), .read = {}, .text = {}, .refused = {}},
      m_base(m_draft) {
  const auto file = read_option_file(m_path);
  if (file) {
    m_stored = *file;
  } else {
    m_unreadable = shown(file.error().message);
  }
  m_draft = draft_of(m_stored);
  // An undone step is not to be joined with what is typed next.
  connect(&m_history, &QUndoStack::indexChanged, this, [this] {
    if (m_history.canRedo()) end_typing();
  });
}

Draft Document::draft_of(const std::optional<std::string>& content) const {
  auto read = Configuration::read(processor(), content.value_or(""), TextKind::optionFile);
  if (read) return {.configuration = std::move(*read), .read = content.value_or(""), .text = {}, .refused = {}};
  return {.configuration = m_draft.configuration, .read = m_draft.read, .text = content, .refused = {}};
}

Expected<std::string> Document::content() const {
  if (m_draft.text) return *m_draft.text;
  const Expected<Edit> edit = m_draft.configuration.for_file();
  if (!edit) return edit.error();
  return edit->text;
}

Expected<std::string> Document::command_text() const {
  Expected<std::string> text = content();
  if (!m_draft.text && text && option_line(*text).empty()) return m_draft.configuration.command();
  return text;
}

bool Document::has_changes() const {
  if (!m_hasChanges) m_hasChanges = differs_from_file();
  return *m_hasChanges;
}

bool Document::differs_from_file() const {
  if (!m_draft.refused.empty()) return true;
  const Draft stored = draft_of(m_stored);
  if (!m_stored) return !(m_draft == stored);
  const Expected<std::string> now = content();
  if (!now || *now != *m_stored) return true;
  // A setting that no text tells in this state is a change too: it would be lost.
  return !m_draft.text && !stored.text && !differences(stored.configuration, m_draft.configuration).empty();
}

namespace {

// An option is about the settings of the words behind it.
bool is_idle(const Annotation& word, const Annotation* next) {
  const bool isFrame = word.role == Role::head || word.role == Role::target || word.role == Role::connection;
  if (word.setting != nullptr || isFrame) return false;
  return word.role != Role::option || next == nullptr || next->role == Role::option || next->setting == nullptr;
}

// Words in the order of their bytes: those that set nothing, such as "-quiet" or what stands in further lines, or all.
std::vector<std::string> words_of(std::string_view content, const Processor& processor, bool all) {
  std::vector<std::string> words;
  const std::vector<Annotation> annotated = annotate(content, TextKind::optionFile, processor);
  for (const Annotation& word : annotated) {
    if (!all && !is_idle(word, &word == &annotated.back() ? nullptr : &word + 1)) continue;
    words.emplace_back(content.substr(word.begin, word.end - word.begin));
  }
  std::sort(words.begin(), words.end());
  return words;
}

std::vector<std::string> difference_of(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  std::vector<std::string> only;
  std::set_difference(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(only));
  return only;
}

}  // namespace

Expected<Document::Plan> Document::plan() const {
  const Expected<Edit> edit = m_draft.configuration.for_file();
  if (!edit) return edit.error();
  Plan plan{m_stored.value_or(""), edit->text, {}, edit->losses, edit->notReadBack};
  const Draft stored = draft_of(m_stored);
  if (!stored.text) plan.differences = differences(stored.configuration, m_draft.configuration);
  // What the edit tells counts from the text that it was made in, which is not always that of the file: a person may
  // have typed another one, or gone back beyond what was stored last.
  if (plan.before == m_draft.read) return plan;
  const bool all = stored.text.has_value();
  const auto before = words_of(plan.before, processor(), all);
  const auto after = words_of(plan.after, processor(), all);
  const auto gone = difference_of(before, after);
  // Where a person has corrected a text that is not understood, a word takes the place of another one.
  const bool isCorrected = all && plan.after == m_draft.read;
  if (isCorrected && gone.size() <= difference_of(after, before).size()) return plan;
  for (const std::string& word : gone) {
    plan.losses.push_back({nullptr, word, bytes_of(tr("the new text does not have it"))});
  }
  return plan;
}

QString Document::why_not_stored() const {
  if (!m_unreadable.isEmpty()) return m_unreadable;
  if (m_draft.text && has_changes()) return tr("The command is not understood. Correct it first.");
  if (!m_draft.refused.empty()) {
    return tr("The value in the field '%1' is not accepted. Correct it first.")
        .arg(label_of(*m_draft.refused.begin()->first));
  }
  if (const Expected<std::string> now = content(); !now) return shown(now.error().message);
  if (m_conflict) return tr("The file was changed by another program. Choose first what is to be kept.");
  return {};
}

// --- Changes ---

namespace {

// Fields that have gone take with them what was typed into them.
void forget_gone_fields(Draft& draft) {
  std::erase_if(draft.refused, [&](const auto& item) {
    const SettingState state = draft.configuration.state(*item.first);
    return !state.applies || !state.changeable;
  });
}

}  // namespace

void Document::type(const Setting& setting, const std::string& text) {
  Draft next = typing_base(&setting);
  next.refused.erase(&setting);
  if (!next.configuration.set(setting.name, text)) next.refused[&setting] = text;
  forget_gone_fields(next);
  push(std::move(next), label_of(setting), &setting);
}

void Document::type_content(const std::string& content) {
  Draft next = draft_of(content);
  // The reader takes a text without a command for the defaults. Somebody who has deleted it all is about to type
  // another.
  if (option_line(content).empty()) next.text = content;
  if (next.text) {
    next.configuration = typing_base(this).configuration;
    next.read = typing_base(this).read;
  }
  push(std::move(next), tr("the command"), this);
}

void Document::replace_content(const std::string& content, const QString& title) { push(draft_of(content), title); }

Expected<void> Document::assign(const std::vector<Assignment>& assignments, const QString& title) {
  Draft next = m_draft;
  for (const auto& [setting, value] : assignments) {
    next.refused.erase(setting);
    if (const auto set = next.configuration.set(*setting, value); !set) return set.error();
  }
  forget_gone_fields(next);
  push(std::move(next), title);
  return {};
}

void Document::reset(const Setting& setting) {
  Draft next = m_draft;
  next.refused.erase(&setting);
  if (!next.configuration.reset(setting)) return;
  forget_gone_fields(next);
  push(std::move(next), tr("%1 back to its default").arg(label_of(setting)));
}

void Document::reset_all() {
  Draft next = m_draft;
  next.text.reset();
  next.refused.clear();
  next.configuration.reset();
  push(std::move(next), tr("all settings back to their defaults"));
}

std::vector<Loss> Document::copy_from(const Configuration& from) {
  Draft next = m_draft;
  next.text.reset();
  next.refused.clear();
  std::vector<Loss> left = next.configuration.copy_settings(from);
  push(std::move(next), tr("the settings of %1").arg(shown(from.processor().name())));
  return left;
}

// --- The option file ---

void Document::look_at_file() {
  const auto file = read_option_file(m_path);
  const QString unreadable = file ? QString() : shown(file.error().message);
  if (unreadable != m_unreadable) {
    m_unreadable = unreadable;
    tell_changed();
  }
  if (!file) return;
  if (*file == m_stored) {
    if (!m_conflict) return;
    m_conflict.reset();
    tell_changed();
    return;
  }
  const bool isNews = !m_conflict || m_conflict->content != *file;
  if (!isNews) return;
  m_conflict = Conflict{*file};
  if (!has_changes()) {
    take_theirs();
    m_wasReloaded = true;
    emit reloaded();
  } else {
    tell_changed();
  }
}

void Document::take_theirs() {
  if (!m_conflict) return;
  m_stored = m_conflict->content;
  m_conflict.reset();
  push(draft_of(m_stored), tr("the file as another program changed it"));
  tell_changed();
}

void Document::keep_mine() {
  if (!m_conflict) return;
  m_stored = m_conflict->content;
  m_conflict.reset();
  tell_changed();
}

Expected<void> Document::store(OnLoss onLoss) {
  look_at_file();
  if (const QString why = why_not_stored(); !why.isEmpty()) {
    return Error{m_conflict ? ErrorCode::changedMeanwhile : ErrorCode::refused, bytes_of(why), {}};
  }
  if (!has_changes()) return {};
  const Expected<Plan> planned = plan();
  if (!planned) return planned.error();
  if (!planned->is_safe() && onLoss == OnLoss::refuse) {
    return Error{ErrorCode::wouldLose, bytes_of(tr("Storing would lose a part of the file.")), {}};
  }
  // If it cannot be made, the error of storing says so.
  std::error_code ignored;
  std::filesystem::create_directory(std::filesystem::path(m_path).parent_path(), ignored);
  const auto replaced = replace_option_file(m_path, m_stored, planned->after);
  if (!replaced) {
    look_at_file();
    return replaced.error();
  }
  m_stored = planned->after;
  m_wasReloaded = false;
  // What is changed next is changed in the text that is stored now.
  if (Draft read = draft_of(m_stored); !read.text) m_draft = std::move(read);
  end_typing();
  tell_changed();
  return {};
}

}  // namespace qvtdialog
