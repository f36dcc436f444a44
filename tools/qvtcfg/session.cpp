#include "session.h"

#include <filesystem>
#include <stdexcept>

#include "SdkDebugDialog/Result.h"
#include "failure.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Engine;
using SdkDebugDialog::EngineImp;
using SdkDebugDialog::ProcessorInfo;

constexpr const char* kDefaultDesign = "design.json";

std::optional<DesignFile> load_design(const Arguments& arguments, Need need) {
  const std::string path = arguments.design.value_or(kDefaultDesign);
  const bool missing = !std::filesystem::exists(std::filesystem::symlink_status(path));
  if (missing && need == Need::kDesignIfAny && !arguments.design) return std::nullopt;
  try {
    return DesignFile::load(path);
  } catch (const DesignFileError& error) {
    throw Failure(kFile, arguments.seen_from_outside(error.what()) + "; --design FILE names another design");
  }
}

std::string error_text(Engine& engine) {
  std::string text;
  engine.GetErrorStr(text);
  return one_line(text);
}

// The engine does not delete its records.
void release_chain(EngineImp& state) {
  for (const auto* device : state.jtagChain) delete device;
  state.jtagChain.clear();
}

void release_records(EngineImp& state) {
  release_chain(state);
  for (const auto* record : state.processorList) delete record;
  state.processorList.clear();
  state.currentProcessor = nullptr;
}

// Runs one of the engine's readers and converts its errors to Failure.
template <typename Read>
void understand(Engine& engine, const std::string& source, const std::string& advice, Read read) {
  int status = SdkDebugDialog::kOk;
  try {
    status = read();
  } catch (const std::out_of_range&) {
    throw Failure(kNotUnderstood, source + ": " + kLoneDash + advice);
  }
  if (status == SdkDebugDialog::kNotListed)
    throw Failure(kRefused, error_text(engine) + "; 'qvtcfg processors' lists the processors");
  if (status != SdkDebugDialog::kNotUnderstood) return;
  const std::string text = error_text(engine);
  throw Failure(kNotUnderstood,
                source + ": " + (text.empty() ? "the connect command is not understood" : text) + advice);
}

}  // namespace

Session::Session(const Arguments& arguments, Need need)
    : m_arguments(arguments), m_design(load_design(arguments, need)) {
  name_processor(arguments.processor.value_or(""));
  if (m_design) m_engine.GetProcessorList(&*m_design, m_processors);
}

Session::~Session() { release_records(*m_engine.imp); }

void Session::name_processor(const std::string& name) {
  m_processor = name;
  m_path = option_file_path(name);
  m_shown_path = m_arguments.seen_from_outside(m_path);
}

const OptionFile& Session::read_option_file(Purpose purpose) {
  const std::string advice = "; correct the file, or replace it with 'qvtcfg read " + m_processor + " TEXT --write'";
  // The path is built from the name, so only names of listed processors are used.
  if (m_engine.GetProcessorNr(m_processor) >= 0) inspect_option_file(purpose, advice);
  ProcessorInfo info;
  understand(m_engine, m_shown_path, advice, [&] { return m_engine.SetProcessor(m_processor, info); });
  return m_file;
}

void Session::inspect_option_file(Purpose purpose, const std::string& advice) {
  m_file = look_at_option_file(m_path, m_shown_path);
  require_text({m_file.command, m_shown_path}, advice);
  if (!m_file.is_longer) return;
  const std::string what = m_shown_path + ": the command is longer than " + std::to_string(kLongestCommand) +
                           " characters, and the rest is not read";
  if (purpose == Purpose::kChange) {
    throw Failure(kNotUnderstood,
                  what + "; to keep all of it, give the whole command to 'qvtcfg read " + m_processor + " - --write'");
  }
  complain("warning: " + what);
}

void Session::read_command(const GivenText& command) {
  require_text(command);
  release_chain(*m_engine.imp);
  ProcessorInfo info;
  understand(m_engine, command.source, "; 'qvtcfg command " + m_processor + "' prints one that is understood",
             [&] { return m_engine.ParseProcessorInfo(m_processor, info, command.text); });
}

void Session::identify(const GivenText& command) {
  require_text(command);
  understand(m_engine, command.source, "; 'qvtcfg command PROC' prints one that is understood", [&] {
    m_identified.reset(m_engine.imp->GetProcessorInfo(command.text));
    return m_identified != nullptr ? SdkDebugDialog::kOk : SdkDebugDialog::kNotUnderstood;
  });
  name_processor(m_identified->name);
}

std::string Session::command() {
  std::string text;
  if (m_engine.GenerateCmdString(text) == SdkDebugDialog::kOk) return text;
  throw Failure(kRefused, m_processor + ": " + error_text(m_engine) +
                              "; no connect command can be written for these settings: change the connection or the "
                              "cable");
}

void Session::write_option_file() {
  const std::string text = command();
  if (m_engine.Generate() == SdkDebugDialog::kFileNotWritten) {
    throw Failure(kFile, m_shown_path + ": " + error_text(m_engine) + "; " + why_not_written(m_path, m_shown_path));
  }
  warn_unless_readable(text);
}

// The library can write commands that it cannot read itself; the debugger can.
void Session::warn_unless_readable(const std::string& command) {
  const std::string consequence = "; the debugger accepts it, but qvtcfg cannot read this file";
  if (command.size() > kLongestCommand) {
    complain("warning: " + m_shown_path + ": the command has " + std::to_string(command.size()) + " characters, and " +
             std::to_string(kLongestCommand) + " are read back");
    return;
  }
  Engine reader;
  reader.GetProcessorList(&*m_design);
  try {
    ProcessorInfo info;
    understand(reader, m_shown_path, consequence,
               [&] { return reader.ParseProcessorInfo(m_processor, info, command); });
  } catch (const Failure& failure) {
    complain(std::string("warning: ") + failure.what());
  }
  release_records(*reader.imp);
}

}  // namespace qvtcfg
