#pragma once

// One engine over one design, for one run.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "command_line.h"
#include "given_text.h"
#include "option_file.h"
#include "platform/DesignFile.h"

namespace qvtcfg {

// What an option file is read for.
enum class Purpose { kShow, kChange };

// Whether there must be a design: one that is named, or there by default, is used either way.
enum class Need { kDesign, kDesignIfAny };

// Failures of the engine leave as Failure, with the engine's text and what to do.
class Session {
 public:
  // Reads the design and finds its processors.
  explicit Session(const Arguments& arguments, Need need = Need::kDesign);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Selects the processor of the arguments with the settings of its option file, or of its defaults when there is
  // no file. A file of which the library reads a part may be shown, not changed.
  const OptionFile& read_option_file(Purpose purpose);

  // Selects it with the settings of a command.
  void read_command(const GivenText& command);

  // Has the command tell the processor, and selects what it describes. The processor is one of the design, for
  // everything that follows, or has no name.
  void identify(const GivenText& command);

  // The connect command for the settings.
  std::string command();

  // Stores it in the option file.
  void write_option_file();

  // The processor, and its option file's path for messages and answers; without a name there is no such file.
  const std::string& processor() const { return m_processor; }
  const std::string& option_file_name() const { return m_shown_path; }

  SdkDebugDialog::Engine& engine() { return m_engine; }
  const SdkDebugDialog::EngineImp& state() const { return *m_engine.imp; }

  bool has_design() const { return m_design.has_value(); }

  // Every processor of the design, debuggable or not.
  const std::vector<std::string>& processors() const { return m_processors; }

 private:
  void name_processor(const std::string& name);
  void inspect_option_file(Purpose purpose, const std::string& advice);
  void warn_unless_readable(const std::string& command);

  const Arguments& m_arguments;
  std::optional<DesignFile> m_design;
  std::vector<std::string> m_processors;
  std::string m_processor;
  std::string m_path;
  std::string m_shown_path;
  OptionFile m_file;
  SdkDebugDialog::Engine m_engine;
  std::unique_ptr<SdkDebugDialog::ProcessorInfoImp> m_identified;  // by a command
};

}  // namespace qvtcfg
