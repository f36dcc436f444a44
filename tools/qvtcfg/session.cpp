#include "session.h"

#include <stdexcept>

#include "failure.h"
#include "text.h"

namespace qvtcfg {
namespace {

using SdkDebugDialog::Engine;
using SdkDebugDialog::EngineImp;
using SdkDebugDialog::ProcessorInfo;

// What Engine's operations answer where this program tells it from success.
enum Status { kNotListed = 2, kBadCommand = 3, kBadFile = 4 };

DesignFile load_design(const Arguments& arguments) {
  try {
    return DesignFile::load(arguments.design);
  } catch (const DesignFileError& error) {
    throw Failure(kFile, arguments.seen_from_outside(error.what()) + "; --design FILE names another design");
  }
}

std::string error_text(Engine& engine) {
  std::string text;
  engine.GetErrorStr(text);
  return one_line(text);
}

// The engine leaves its records to whoever holds them.
void release_records(EngineImp& state) {
  for (const auto* record : state.processorList) delete record;
  for (const auto* device : state.jtagChain) delete device;
  state.processorList.clear();
  state.jtagChain.clear();
  state.currentProcessor = nullptr;
}

void require_text(const std::string& text, const std::string& source, const std::string& advice) {
  const auto at = first_non_text(text);
  if (!at) return;
  throw Failure(kNotUnderstood, source + ": the byte " + visible(text.substr(*at, 1)) + " at column " +
                                    std::to_string(*at + 1) + " is no text" + advice);
}

// Runs one of the engine's readers and explains what goes wrong.
template <typename Read>
void understand(Engine& engine, const std::string& source, const std::string& advice, Read read) {
  int status = 0;
  try {
    status = read();
  } catch (const std::out_of_range&) {
    throw Failure(kNotUnderstood, source + ": a lone '-' stands where an option or a value belongs" + advice);
  }
  if (status == kNotListed) throw Failure(kRefused, error_text(engine) + "; 'qvtcfg processors' lists the processors");
  if (status != kBadCommand) return;
  const std::string text = error_text(engine);
  throw Failure(kNotUnderstood,
                source + ": " + (text.empty() ? "the connect command is not understood" : text) + advice);
}

}  // namespace

Session::Session(const Arguments& arguments)
    : m_arguments(arguments),
      m_design(load_design(arguments)),
      m_path(option_file_path(arguments.processor)),
      m_shown_path(arguments.seen_from_outside(m_path)) {
  m_engine.GetProcessorList(&m_design, m_processors);
}

Session::~Session() { release_records(*m_engine.imp); }

const OptionFile& Session::read_option_file(Purpose purpose) {
  const std::string& name = m_arguments.processor;
  const std::string advice = "; correct the file, or replace it with 'qvtcfg read " + name + " TEXT --write'";
  // Only the names of listed processors are part of a file's name.
  if (m_engine.imp->FindProcessor(name) != nullptr) inspect_option_file(purpose, advice);
  ProcessorInfo info;
  understand(m_engine, m_shown_path, advice, [&] { return m_engine.SetProcessor(name, info); });
  return m_file;
}

void Session::inspect_option_file(Purpose purpose, const std::string& advice) {
  m_file = look_at_option_file(m_path, m_shown_path);
  require_text(m_file.command, m_shown_path, advice);
  if (!m_file.is_longer) return;
  const std::string what = m_shown_path + ": the command goes on after " + std::to_string(kLongestCommand) +
                           " characters, and the rest is not read";
  if (purpose == Purpose::kChange) {
    throw Failure(kNotUnderstood, what + "; to lose nothing, give the whole command to 'qvtcfg read " +
                                      m_arguments.processor + " - --write'");
  }
  complain("warning: " + what);
}

void Session::read_command(const std::string& command, const std::string& source) {
  require_text(command, source, "");
  ProcessorInfo info;
  understand(m_engine, source, "; 'qvtcfg command " + m_arguments.processor + "' prints one that is understood",
             [&] { return m_engine.ParseProcessorInfo(m_arguments.processor, info, command); });
}

std::string Session::command() {
  std::string text;
  if (m_engine.GenerateCmdString(text) == 0) return text;
  throw Failure(kRefused, m_arguments.processor + ": " + error_text(m_engine) +
                              "; no connect command can be written for these settings: change the connection or the "
                              "cable");
}

void Session::write_option_file() {
  const std::string text = command();
  const int status = m_engine.Generate();
  if (status == kBadFile) {
    throw Failure(kFile, m_shown_path + ": " + error_text(m_engine) + "; " + why_not_written(m_path, m_shown_path));
  }
  warn_unless_readable(text);
}

// Some commands that the library writes for the debugger it does not read itself.
void Session::warn_unless_readable(const std::string& command) {
  const std::string consequence = "; the debugger is served, but qvtcfg will not read this file back";
  if (command.size() > kLongestCommand) {
    complain("warning: " + m_shown_path + ": the command has " + std::to_string(command.size()) + " characters, and " +
             std::to_string(kLongestCommand) + " are read back");
    return;
  }
  Engine reader;
  reader.GetProcessorList(&m_design);
  try {
    ProcessorInfo info;
    understand(reader, m_shown_path, consequence,
               [&] { return reader.ParseProcessorInfo(m_arguments.processor, info, command); });
  } catch (const Failure& failure) {
    complain(std::string("warning: ") + failure.what());
  }
  release_records(*reader.imp);
}

}  // namespace qvtcfg
