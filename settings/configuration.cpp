// A configuration: the settings, the text that they were read from, and the file that the text stands in.

#include "SdkDebugDialog/Configuration.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "model/processor_kind.h"
#include "model/processor_list.h"
#include "options/option_file.h"
#include "platform/HHSMHwManager.h"
#include "settings/catalogue.h"
#include "settings/edit.h"
#include "settings/engine_text.h"
#include "settings/words.h"

namespace SdkDebugDialog {
namespace {

std::string quoted(std::string_view name) { return "'" + std::string(name) + "'"; }

Error no_such_setting(std::string_view name) {
  std::vector<std::string_view> names;
  for (const Setting& setting : settings()) names.push_back(setting.name);
  const std::string_view nearest = nearest_name(name, names);
  return {ErrorCode::noSuchSetting,
          "no setting is called " + quoted(name) + (nearest.empty() ? "" : " (did you mean " + quoted(nearest) + "?)"),
          {}};
}

std::string listed(const Edit& edit) {
  std::vector<std::string> parts;
  for (const Loss& loss : edit.losses) parts.push_back(loss.what);
  std::string text = parts.empty() ? "" : "storing it would lose " + joined(parts, ", ");
  if (!edit.notReadBack.empty()) text += (text.empty() ? "" : "; ") + edit.notReadBack;
  return text;
}

}  // namespace

// --- Design ---

struct Design::Content {
  std::vector<std::string> names;
  std::shared_ptr<HHSMHwManager> hardware;
  Engine engine;

  Content() = default;
  ~Content() {
    for (const ProcessorInfoImp* const record : engine.imp->processorList) delete record;
  }
  Content(const Content&) = delete;
  Content& operator=(const Content&) = delete;

  const std::vector<ProcessorInfoImp*>& records() const { return engine.imp->processorList; }
};

Design::Design(HHSMHwManager& hardware) : Design(std::shared_ptr<HHSMHwManager>(std::shared_ptr<void>(), &hardware)) {}

Design::Design(std::shared_ptr<HHSMHwManager> hardware) {
  auto content = std::make_shared<Content>();
  content->engine.GetProcessorList(hardware.get(), content->names);
  content->hardware = std::move(hardware);
  // The first look-up builds the index; later ones change nothing, so that threads can share the design.
  find_listed(*content->engine.imp, {});
  m_content = std::move(content);
}

const std::vector<std::string>& Design::names() const { return m_content->names; }

Processor Design::processor_of(const ProcessorInfoImp& record) const {
  Processor processor;
  processor.m_identity = record;
  processor.m_hardware = m_content->hardware;
  if (record.procFamily != kFamilyPowerPC) return processor;
  Engine engine;
  engine.imp->hwManager = processor.hardware();
  engine.imp->currentProcessor = &processor.m_identity;
  engine.imp->GetFPUType();
  return processor;
}

std::vector<Processor> Design::processors() const {
  std::vector<Processor> all;
  all.reserve(m_content->records().size());
  for (const ProcessorInfoImp* const record : m_content->records()) all.push_back(processor_of(*record));
  return all;
}

Expected<Processor> Design::find(std::string_view name) const {
  const ProcessorInfoImp* const found = find_listed(*m_content->engine.imp, std::string(name));
  if (found != nullptr) return processor_of(*found);
  std::vector<std::string_view> known;
  for (const ProcessorInfoImp* const record : m_content->records()) known.push_back(record->name);
  const std::string_view nearest = nearest_name(name, known);
  const bool isThere = std::ranges::find(names(), name) != names().end();
  std::string message = isThere ? "processor " + quoted(name) + " cannot be debugged: no debug module reaches it"
                                : "the design has no processor " + quoted(name);
  if (!nearest.empty()) message += " (did you mean " + quoted(nearest) + "?)";
  return Error{ErrorCode::noSuchProcessor, std::move(message), {}};
}

Expected<Processor> Design::identify(std::string_view command) const {
  const Reading reading = read_state({}, command, TextKind::command);
  if (!reading.understood) return not_understood(reading, command);
  const ProcessorInfoImp& told = reading.state.processor;
  if (is_bare_target(told.allowedConnections)) return Processor();
  const auto found = std::ranges::find_if(m_content->records(), [&](const ProcessorInfoImp* known) {
    return known->procFamily == told.procFamily && known->cpuNr == told.cpuNr;
  });
  return found != m_content->records().end() ? processor_of(**found) : Processor();
}

// --- Configuration ---

struct Configuration::Content {
  Processor processor;
  State defaults;
  State state;
  SettingSet toDefault;  // settings that were reset, whose words are not needed

  TextKind kind = TextKind::optionFile;
  std::string text;  // as read
  State read;        // what it means

  std::string path;
  FileContent file;

  EditTask task() const { return {processor, text, kind, read, state, toDefault}; }
};

Configuration::Configuration(Processor processor) : m_content(std::make_unique<Content>()) {
  m_content->defaults = defaults_of(processor);
  m_content->state = m_content->defaults;
  m_content->read = m_content->defaults;
  m_content->processor = std::move(processor);
}

Configuration::Configuration(const Configuration& other) : m_content(std::make_unique<Content>(*other.m_content)) {}
Configuration::Configuration(Configuration&& other) noexcept = default;
Configuration& Configuration::operator=(const Configuration& other) {
  if (this != &other) *this = Configuration(other);
  return *this;
}
Configuration& Configuration::operator=(Configuration&& other) noexcept = default;
Configuration::~Configuration() = default;

namespace {

// Without a design the text alone tells what the processor is; this is kept by a reset.
State defaults_told_by(const State& state) {
  State defaults = defaults_of({});
  ProcessorInfoImp& processor = defaults.processor;
  const ProcessorInfoImp fresh = processor;
  processor = state.processor;
  processor.ProcessorInfoImpInit();
  processor.cpuNr = fresh.cpuNr;
  if (processor.procFamily == kFamilyPowerPC) processor.procVariant = kVariantOtherPowerPC;
  return defaults;
}

}  // namespace

Expected<Configuration> Configuration::read(Processor processor, std::string_view text, TextKind kind) {
  Reading reading = read_state(processor, text, kind);
  if (!reading.understood) return not_understood(reading, text);
  Configuration configuration(std::move(processor));
  Content& content = *configuration.m_content;
  content.kind = kind;
  content.text = text;
  content.state = reading.state;
  content.read = std::move(reading.state);
  if (!content.state.hasDesign) content.defaults = defaults_told_by(content.state);
  return configuration;
}

Expected<Configuration> Configuration::open(Processor processor, const std::string& path) {
  Expected<FileContent> file = content_of(path);
  if (!file) return file.error();
  Expected<Configuration> configuration = read(std::move(processor), file->bytes, TextKind::optionFile);
  if (!configuration) {
    Error error = configuration.error();
    error.message = path + ": " + error.message;
    return error;
  }
  configuration->m_content->path = path;
  configuration->m_content->file = std::move(*file);
  return configuration;
}

Expected<Configuration> Configuration::over(Processor processor, const std::string& path) {
  Expected<FileContent> file = content_of(path);
  if (!file) return file.error();
  Configuration configuration(std::move(processor));
  configuration.m_content->path = path;
  configuration.m_content->file = std::move(*file);
  return configuration;
}

namespace {

bool same_text(const Configuration& a, const Configuration& b) {
  const Expected<std::string> x = a.text();
  const Expected<std::string> y = b.text();
  return x && y && *x == *y;
}

}  // namespace

bool operator==(const Configuration& a, const Configuration& b) {
  const Configuration::Content& x = *a.m_content;
  const Configuration::Content& y = *b.m_content;
  return x.processor.hardware() == y.processor.hardware() && x.kind == y.kind && x.text == y.text &&
         differing(x.state, y.state).empty() && differing(x.read, y.read).empty() &&
         (x.toDefault == y.toDefault || same_text(a, b));
}

// --- Settings ---

SettingValue Configuration::value(const Setting& setting) const { return value_of(row_of(setting), m_content->state); }

namespace {

SettingState state_of(const SettingRow& row, const State& state, const State& defaults,
                      const Expected<SettingSet>& written) {
  SettingState found;
  found.value = value_of(row, state);
  found.initial = initial_of(row, state, defaults);
  found.whyNot = why_not(row, state);
  found.applies = found.whyNot.empty();
  const char* const fixed = row.traits.fixed != nullptr ? row.traits.fixed(state) : nullptr;
  if (found.applies && (row.setting->readOnly || fixed != nullptr)) {
    found.whyNot = fixed != nullptr ? fixed : "other settings tell it";
  }
  found.changeable = found.whyNot.empty();
  if (row.traits.choices != nullptr) {
    found.choices = row.traits.choices(row, state);
  } else if (row.setting->kind == SettingKind::flag) {
    found.choices = {"off", "on"};
  } else {
    for (const SettingWord& word : row.traits.words) found.choices.emplace_back(word.name);
  }
  // What it is can stay, even where it could not be chosen.
  const std::string now = value_text(*row.setting, found.value);
  const bool isWord = row.setting->kind == SettingKind::word;
  if (isWord && std::ranges::find(found.choices, now) == found.choices.end()) found.choices.push_back(now);
  found.freeText = found.choices.empty() || row.setting->kind == SettingKind::text;

  found.written = written && written->test(place_of(row));
  if (found.written) return found;
  if (!written) {
    found.whyNotWritten = written.error().message;
  } else if (found.value == found.initial) {
    found.whyNotWritten = "it has its default";
  } else {
    found.whyNotWritten = why_not_written(row, state);
  }
  return found;
}

}  // namespace

SettingState Configuration::state(const Setting& setting) const {
  const Content& c = *m_content;
  return state_of(row_of(setting), c.state, c.defaults, written_settings(c.state));
}

std::vector<SettingState> Configuration::states() const {
  const Content& c = *m_content;
  const Expected<SettingSet> written = written_settings(c.state);
  std::vector<SettingState> all;
  all.reserve(settings().size());
  for (const SettingRow& row : setting_rows()) {
    all.push_back(state_of(row, c.state, c.defaults, written));
  }
  return all;
}

Expected<std::vector<std::string>> Configuration::set(const Setting& setting, const SettingValue& value) {
  Content& c = *m_content;
  const SettingRow& row = row_of(setting);
  const std::string name(setting.name);
  const std::string doesNotApply = why_not(row, c.state);
  if (value == value_of(row, c.state) && (!row.traits.alsoWhenSame || !doesNotApply.empty())) {
    c.toDefault.reset(place_of(row));
    return std::vector<std::string>();
  }
  // A setting that does not apply can be changed where the text has it all the same.
  const SettingValue initial = initial_of(row, c.state, c.defaults);
  if (!doesNotApply.empty() && value_of(row, c.state) == initial) {
    return Error{ErrorCode::refused, name + " does not apply: " + doesNotApply, {}};
  }
  std::string invalid = why_invalid(row, c.state, value);
  if (value == SettingValue(std::string()) && value != initial) {
    invalid = "it cannot be empty; its default is " + value_text(setting, initial);
  }
  if (!invalid.empty()) return Error{ErrorCode::invalidValue, name + ": " + invalid, {}};
  std::string why = set_value(row, c.state, value);
  if (!why.empty()) return Error{ErrorCode::refused, name + ": " + why, {}};
  c.toDefault.reset(place_of(row));
  std::vector<std::string> warnings = warnings_of(row, c.state);
  if (!doesNotApply.empty()) warnings.push_back(name + " does not apply: " + doesNotApply);
  return warnings;
}

Expected<std::vector<std::string>> Configuration::set(std::string_view name, std::string_view text) {
  const Setting* const setting = find_setting(name);
  if (setting == nullptr) return no_such_setting(name);
  Expected<SettingValue> value = parse_value(*setting, text);
  if (!value) return value.error();
  return set(*setting, *value);
}

Expected<void> Configuration::reset(const Setting& setting) {
  Content& c = *m_content;
  const SettingRow& row = row_of(setting);
  const char* const why = row.traits.fixed != nullptr ? row.traits.fixed(c.state) : nullptr;
  if (setting.readOnly || why != nullptr) {
    return Error{ErrorCode::refused, std::string(setting.name) + ": it cannot be set", {}};
  }
  reset_value(row, c.state, c.defaults);
  c.toDefault.set(place_of(row));
  return {};
}

void Configuration::reset() {
  m_content->state = m_content->defaults;
  m_content->toDefault.set();
}

std::vector<std::string> Configuration::warnings(const Setting& setting) const {
  return warnings_of(row_of(setting), m_content->state);
}

std::vector<Loss> Configuration::copy_settings(const Configuration& from) {
  std::vector<Loss> left;
  const State& source = from.m_content->state;
  for (const SettingRow& row : setting_rows()) {
    const Setting& setting = *row.setting;
    if (setting.group == "identity" || setting.readOnly || !why_not(row, source).empty()) continue;
    const SettingValue value = value_of(row, source);
    if (value == value_of(row, m_content->state)) continue;
    if (value == initial_of(row, source, from.m_content->defaults)) {
      reset(setting);
      continue;
    }
    if (const auto done = set(setting, value); !done) {
      std::string why = done.error().message;
      const std::string name(setting.name);
      if (why.starts_with(name + ": ")) why.erase(0, name.size() + 2);
      left.push_back({&setting, name + " " + value_text(setting, value), std::move(why)});
    }
  }
  // What has changed along with another setting has been taken over as well.
  std::erase_if(left, [&](const Loss& loss) { return value(*loss.setting) == from.value(*loss.setting); });
  return left;
}

// --- Text ---

Expected<std::string> Configuration::command() const { return write_state(m_content->state, TextKind::command); }

Expected<Edit> Configuration::edited() const { return edit_text(m_content->task()); }

Expected<std::string> Configuration::text() const {
  Expected<Edit> edit = edited();
  if (!edit) return edit.error();
  return std::move(edit->text);
}

Expected<Edit> Configuration::for_file() const {
  const Content& c = *m_content;
  Expected<Edit> edit = edited();
  if (c.kind == TextKind::optionFile || !edit) return edit;
  if (c.kind == TextKind::cableText) {
    return Error{ErrorCode::cannotBeWritten, "a text of cable and chain alone is no connect command", {}};
  }
  const Reading asCommand = read_state(c.processor, edit->text, TextKind::command);
  const Reading asFile = read_state(c.processor, edit->text, TextKind::optionFile);
  if (!edit->notReadBack.empty() || (asFile.understood && option_line(edit->text).size() == edit->text.size() &&
                                     differing(asCommand.state, asFile.state).empty())) {
    return edit;
  }
  return write_anew({c.processor, edit->text, TextKind::command, c.read, c.state, {}, TextKind::optionFile});
}

Expected<Edit> Configuration::written_anew() const { return write_anew(m_content->task()); }

// --- The option file ---

const std::string& Configuration::path() const { return m_content->path; }

Expected<Edit> Configuration::store(OnLoss onLoss) { return store(m_content->path, onLoss); }

Expected<Edit> Configuration::store(const std::string& path, OnLoss onLoss) {
  const Expected<Edit> edit = for_file();
  return edit ? store(*edit, path, onLoss) : edit;
}

Expected<Edit> Configuration::store(const Edit& edit, const std::string& path, OnLoss onLoss) {
  Content& c = *m_content;
  if (!edit.is_safe() && onLoss == OnLoss::refuse) return Error{ErrorCode::wouldLose, listed(edit), {}};
  if (path.empty()) return Error{ErrorCode::file, "no file was read, and none is named to store in", {}};
  const bool isOwn = is_same_path(path, c.path);
  const bool overwrites = !isOwn && onLoss == OnLoss::goOn;
  const FileContent expected = isOwn ? c.file : FileContent();
  const Error changed = changed_meanwhile(path, isOwn);
  if (isOwn && edit.text == c.file.bytes) {
    const FileContent now = read_whole_file(path, kLargestFile);
    if (now.exists != expected.exists || now.bytes != expected.bytes) return changed;
    return edit;
  }
  const ReplaceResult replaced = replace_file_if_unchanged(path, expected, edit.text, overwrites);
  if (replaced.result == Replaced::changed) return changed;
  if (replaced.result == Replaced::failed) return Error{ErrorCode::file, path + ": " + replaced.error, {}};
  c.path = path;
  c.file = {.exists = true, .bytes = edit.text, .error = {}};
  c.kind = TextKind::optionFile;
  c.text = edit.text;
  Reading reading = read_state(c.processor, c.text, c.kind);
  c.read = reading.understood ? std::move(reading.state) : c.state;
  c.state = c.read;
  c.toDefault.reset();
  return edit;
}

// --- What the settings are kept in ---

const Processor& Configuration::processor() const { return m_content->processor; }
const ProcessorInfoImp& Configuration::record() const { return m_content->state.processor; }
const CableOption& Configuration::cable() const { return m_content->state.cable; }
const std::vector<JtagOption>& Configuration::chain() const { return m_content->state.chain; }
bool Configuration::cpu_jtag() const { return m_content->state.cpuJtag != 0; }

// --- Functions ---

std::vector<Difference> differences(const Configuration& before, const Configuration& after) {
  std::vector<Difference> found;
  for (const Setting& setting : settings()) {
    SettingValue a = before.value(setting);
    SettingValue b = after.value(setting);
    if (a != b) found.push_back({&setting, std::move(a), std::move(b)});
  }
  return found;
}

Expected<Edit> edit(const Processor& processor, std::string_view text, TextKind kind,
                    const std::vector<Change>& changes) {
  std::string from(text);
  Expected<Configuration> configuration = Configuration::read(processor, from, kind);
  const auto offPins = [](const Change& change) {
    if (change.setting != "cpu-jtag") return false;
    const auto value = parse_value(*find_setting(change.setting), change.value);
    return change.toDefault || (value && *value == SettingValue(false));
  };
  const bool pinsRemoved = !configuration && std::ranges::any_of(changes, offPins);
  if (pinsRemoved) {
    from = without_own_pins(text, kind);
    configuration = Configuration::read(processor, from, kind);
  }
  if (!configuration) return configuration.error();
  // In the order of the catalogue, so that a setting comes before those that depend on it.
  std::vector<std::pair<const Setting*, const Change*>> ordered;
  for (const Change& change : changes) {
    const Setting* const setting = find_setting(change.setting);
    if (setting == nullptr) return no_such_setting(change.setting);
    ordered.emplace_back(setting, &change);
  }
  std::ranges::stable_sort(ordered, {}, [](const auto& item) { return item.first; });
  std::vector<SettingValue> meant;
  for (const auto& [setting, change] : ordered) {
    if (change->toDefault) {
      if (const auto done = configuration->reset(*setting); !done) return done.error();
    } else if (const auto done = configuration->set(setting->name, change->value); !done) {
      return done.error();
    }
    meant.push_back(configuration->value(*setting));
  }
  for (std::size_t i = 0; i < ordered.size(); ++i) {
    const Setting& setting = *ordered[i].first;
    const SettingValue now = configuration->value(setting);
    if (now == meant[i]) continue;
    return Error{ErrorCode::refused,
                 std::string(setting.name) + ": another change sets it to " + quoted(value_text(setting, now)),
                 {}};
  }
  Expected<Edit> edited = configuration->edited();
  if (edited && pinsRemoved) {
    const Setting& pins = *find_setting("cpu-jtag");
    edited->differences.insert(edited->differences.begin(), Difference{&pins, true, false});
  }
  return edited;
}

}  // namespace SdkDebugDialog
