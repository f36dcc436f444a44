#pragma once

// One engine with one design, for one run of the program.

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

// Why an option file is read.
enum class Purpose { kShow, kChange };

// Whether a design is required. With kDesignIfAny, the default design file may be missing.
enum class Need { kDesign, kDesignIfAny };

// Errors of the engine are thrown as Failure, with the engine's error text and what to do.
class Session {
 public:
  // Reads the design and finds its processors.
  explicit Session(const Arguments& arguments, Need need = Need::kDesign);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Selects the processor of the arguments with the settings in its option file, or with the defaults if there is no
  // file. If the library reads only a part of the file, kShow prints a warning and kChange throws Failure.
  const OptionFile& read_option_file(Purpose purpose);

  // Selects the processor with the settings in a command.
  void read_command(const GivenText& command);

  // Finds the processor from the command and selects it. If the design has no such processor, processor() is empty
  // afterwards.
  void identify(const GivenText& command);

  // The connect command for the settings.
  std::string command();

  // Writes the connect command to the option file.
  void write_option_file();

  // The name of the processor and the path of its option file for messages and output. The path is valid only if the
  // name is not empty.
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
  std::unique_ptr<SdkDebugDialog::ProcessorInfoImp> m_identified;  // created from a command
};

}  // namespace qvtcfg
