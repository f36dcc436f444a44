#pragma once

// One engine over one design, for one run.

#include <string>
#include <vector>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "command_line.h"
#include "option_file.h"
#include "platform/DesignFile.h"

namespace qvtcfg {

// What an option file is read for.
enum class Purpose { kShow, kChange };

// Failures of the engine leave as Failure, with the engine's text and what to do.
class Session {
 public:
  // Reads the design and finds its processors.
  explicit Session(const Arguments& arguments);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Selects the processor of the arguments with the settings of its option file, or of its defaults when there is
  // no file. A file of which the library reads a part may be shown, not changed.
  const OptionFile& read_option_file(Purpose purpose);

  // Selects it with the settings of a command; source names where that comes from.
  void read_command(const std::string& command, const std::string& source);

  // The connect command for the settings.
  std::string command();

  // Stores it in the option file.
  void write_option_file();

  // The option file's path for messages and answers.
  const std::string& option_file_name() const { return m_shown_path; }

  SdkDebugDialog::Engine& engine() { return m_engine; }
  const SdkDebugDialog::EngineImp& state() const { return *m_engine.imp; }

  // Every processor of the design, debuggable or not.
  const std::vector<std::string>& processors() const { return m_processors; }

 private:
  void inspect_option_file(Purpose purpose, const std::string& advice);
  void warn_unless_readable(const std::string& command);

  const Arguments& m_arguments;
  DesignFile m_design;
  std::vector<std::string> m_processors;
  std::string m_path;
  std::string m_shown_path;
  OptionFile m_file;
  SdkDebugDialog::Engine m_engine;
};

}  // namespace qvtcfg
