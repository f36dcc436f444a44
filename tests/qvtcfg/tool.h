#pragma once

// Starts the real program as a user does, in a folder of its own.

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

  // Runs qvtcfg with the arguments; the folder is the working directory.
  Result qvtcfg(std::vector<std::string> arguments, const std::string& input = "") const;

  // Runs it with its output on a terminal, so that err has nothing, and with the variables NAME=VALUE.
  Result qvtcfg_on_terminal(std::vector<std::string> arguments,
                            std::vector<std::string> environment = {"TERM=xterm"}) const;

  // Runs a shell script in which $QVTCFG is the program.
  Result shell(const std::string& script) const;

  // The answer of `qvtcfg --json ...`, which must succeed.
  nlohmann::json json(std::vector<std::string> arguments) const;

  // Makes one of examples/designs the design of the folder.
  void use_design(const std::string& name) const;

  void write(const std::string& path, const std::string& text) const;
  std::string read(const std::string& path) const;
  bool exists(const std::string& path) const { return std::filesystem::exists(m_folder / path); }

  // Makes etc/ and stores the command there.
  void write_option_file(const std::string& processor, const std::string& command) const;
  std::string read_option_file(const std::string& processor) const { return read("etc/qvt_" + processor + ".opt"); }

  const std::filesystem::path& folder() const { return m_folder; }

 private:
  Result run(const std::vector<std::string>& command, const std::string& input) const;

  std::filesystem::path m_root;    // holds the folder and what the program's streams are joined to
  std::filesystem::path m_folder;  // has large.json as its design.json, and an empty etc/
};

// One line that begins with "qvtcfg: ", no matter what was asked.
MATCHER_P(IsComplaint, text, "") {
  return arg.starts_with("qvtcfg: ") && arg.ends_with("\n") && arg.find('\n') == arg.size() - 1 &&
         arg.find(text) != std::string::npos;
}
