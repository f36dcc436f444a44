#pragma once

// Runs the real program in a temporary folder.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

struct Result {
  int code = -1;
  std::string out;
  std::string err;
};

class Tool : public testing::Test {
 protected:
  Tool();
  ~Tool() override;

  // Runs qvtcfg with the arguments; the folder is the working directory. An answer in JSON must be valid.
  Result qvtcfg(std::vector<std::string> arguments, const std::string& input = "") const;

  // Runs it with both outputs on a terminal, so that err stays empty, and with the environment variables NAME=VALUE.
  Result qvtcfg_on_terminal(std::vector<std::string> arguments,
                            std::vector<std::string> environment = {"TERM=xterm"}) const;

  // The same for another program, to which the keys are typed.
  Result on_terminal(const std::vector<std::string>& command, std::vector<std::string> environment,
                     const std::string& keys = "") const;

  // Runs a shell script; $QVTCFG is the program.
  Result shell(const std::string& script) const;

  // The result in the answer of `qvtcfg --json ...`, which must succeed.
  nlohmann::json json(std::vector<std::string> arguments) const;

  // Copies a design from examples/designs to the folder's design.json.
  void use_design(const std::string& name) const;

  void write(const std::string& path, const std::string& text) const;
  std::string read(const std::string& path) const;
  bool exists(const std::string& path) const { return std::filesystem::exists(m_folder / path); }

  // Creates etc/ and stores the command as the option file.
  void write_option_file(const std::string& processor, const std::string& command) const;
  std::string read_option_file(const std::string& processor) const { return read("etc/qvt_" + processor + ".opt"); }

  const std::filesystem::path& folder() const { return m_folder; }

 private:
  Result run(const std::vector<std::string>& command, const std::string& input) const;

  std::filesystem::path m_root;    // contains the folder and the files for the program's streams
  std::filesystem::path m_folder;  // contains design.json, a copy of large.json, and an empty etc/
};

// An error message: a line that begins with "qvtcfg: " and contains the text. Only errors with their places, a note and
// the losses may follow.
MATCHER_P(IsComplaint, text, "") {
  if (!arg.starts_with("qvtcfg: ") || !arg.ends_with("\n") || arg.find(text) == std::string::npos) return false;
  for (std::size_t end = arg.find('\n'); end + 1 < arg.size(); end = arg.find('\n', end + 1)) {
    const std::string_view rest = std::string_view(arg).substr(end + 1);
    const bool finding = rest.substr(0, rest.find('\n')).find(": error: ") != std::string_view::npos;
    if (!finding && !rest.starts_with("qvtcfg: note: ") && !rest.starts_with("  ")) return false;
  }
  return true;
}
