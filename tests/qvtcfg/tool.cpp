#include "tool.h"

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <system_error>

#include "answers.h"

namespace {

void write_file(const std::filesystem::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  ASSERT_TRUE(file.flush()) << path;
}

std::string read_file(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

void join(int stream, const std::filesystem::path& path, int flags) {
  const int file = open(path.c_str(), flags, 0600);
  if (file < 0 || dup2(file, stream) < 0) _exit(126);
  close(file);
}

// The program must not run in the language of the user who runs the tests.
[[noreturn]] void become(const std::vector<std::string>& command, const std::filesystem::path& folder) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  setenv("QVTCFG", QVTCFG, 1);
  setenv("LC_ALL", "C", 1);
  if (chdir(folder.c_str()) == 0) execv(arguments[0], arguments.data());
  _exit(127);
}

}  // namespace

Tool::Tool() {
  std::string pattern = (std::filesystem::temp_directory_path() / "qvtcfg-test-XXXXXX").string();
  m_root = mkdtemp(pattern.data());
  m_folder = m_root / "work";
  std::filesystem::create_directories(m_folder / "etc");
  use_design("large");
}

Tool::~Tool() { std::filesystem::remove_all(m_root); }

Result Tool::run(const std::vector<std::string>& command, const std::string& input) const {
  write_file(m_root / "in", input);
  const pid_t child = fork();
  if (child == 0) {
    join(STDIN_FILENO, m_root / "in", O_RDONLY);
    join(STDOUT_FILENO, m_root / "out", O_WRONLY | O_CREAT | O_TRUNC);
    join(STDERR_FILENO, m_root / "err", O_WRONLY | O_CREAT | O_TRUNC);
    become(command, m_folder);
  }
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status));
  return {WEXITSTATUS(status), read_file(m_root / "out"), read_file(m_root / "err")};
}

Result Tool::qvtcfg(std::vector<std::string> arguments, const std::string& input) const {
  const bool answers = asks_for_answer(arguments);
  arguments.insert(arguments.begin(), QVTCFG);
  Result result = run(arguments, input);
  if (answers) expect_answer(result.out, result.code);
  return result;
}

Result Tool::qvtcfg_on_terminal(std::vector<std::string> arguments, std::vector<std::string> environment) const {
  arguments.insert(arguments.begin(), QVTCFG);
  return on_terminal(arguments, std::move(environment));
}

Result Tool::on_terminal(const std::vector<std::string>& command, std::vector<std::string> environment,
                         const std::string& keys) const {
  int terminal = -1;
  const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
  if (child < 0) throw std::system_error(errno, std::generic_category(), "no pseudo-terminal; is /dev/pts mounted?");
  if (child == 0) {
    unsetenv("NO_COLOR");
    for (std::string& variable : environment) putenv(variable.data());
    become(command, m_folder);
  }
  EXPECT_EQ(::write(terminal, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  Result result;
  char block[4096];
  for (ssize_t count = 0; (count = ::read(terminal, block, sizeof block)) > 0;) {
    result.out.append(block, static_cast<std::size_t>(count));
  }
  close(terminal);
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  result.code = WEXITSTATUS(status);
  return result;
}

Result Tool::shell(const std::string& script) const { return run({"/bin/sh", "-c", script}, ""); }

nlohmann::json Tool::json(std::vector<std::string> arguments) const {
  arguments.insert(arguments.begin(), "--json");
  const Result result = qvtcfg(arguments);
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(result.err, "");
  return result_of(result.out);
}

void Tool::use_design(const std::string& name) const {
  std::filesystem::copy_file(std::filesystem::path(PROJECT_SOURCE_DIR) / "examples/designs" / (name + ".json"),
                             m_folder / "design.json", std::filesystem::copy_options::overwrite_existing);
}

void Tool::write(const std::string& path, const std::string& text) const { write_file(m_folder / path, text); }

std::string Tool::read(const std::string& path) const { return read_file(m_folder / path); }

void Tool::write_option_file(const std::string& processor, const std::string& command) const {
  std::filesystem::create_directories(m_folder / "etc");
  write("etc/qvt_" + processor + ".opt", command);
}
