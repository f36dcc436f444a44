// Fuzz target: option files, in a temporary folder in memory (/dev/shm) if there is one, else on the disk.

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <boost/algorithm/string/predicate.hpp>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "fuzz/again.h"
#include "fuzz/check.h"
#include "fuzz/error_text.h"
#include "fuzz/input.h"
#include "fuzz/lone_dash.h"
#include "tests/support/SelectedEngine.h"
#include "tests/support/changes.h"

using namespace SdkDebugDialog;
namespace fs = std::filesystem;

namespace {

constexpr std::string_view kScratchName = "fuzz_option_file_";

// A temporary folder, removed in the end. The name contains the process id, so that the next run can remove the folder
// of a run that was aborted.
class Scratch {
 public:
  Scratch() {
    for (const fs::path& base : {fs::path("/dev/shm"), fs::temp_directory_path()}) {
      remove_left(base);
      const fs::path path = base / (std::string(kScratchName) + std::to_string(::getpid()));
      std::error_code error;
      if (!fs::create_directories(path / "etc", error)) continue;
      m_path = path;
      return;
    }
    expect(false, "a folder to work in");
  }
  ~Scratch() { fs::remove_all(m_path); }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  const fs::path& path() const { return m_path; }

 private:
  static void remove_left(const fs::path& base) {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(base, error)) {
      const std::string name = entry.path().filename();
      if (!name.starts_with(kScratchName)) continue;
      const int owner = std::atoi(name.c_str() + kScratchName.size());
      if (owner > 0 && ::kill(owner, 0) != 0 && errno == ESRCH) fs::remove_all(entry.path(), error);
    }
  }

  fs::path m_path;
};

// Changes the working directory. The old one is restored, because the fuzzer uses relative paths.
class Inside {
 public:
  explicit Inside(const fs::path& folder) : m_before(fs::current_path()) { fs::current_path(folder); }
  ~Inside() { fs::current_path(m_before); }
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;

 private:
  fs::path m_before;
};

std::string content_of(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string word_of(std::string_view text, std::size_t n) {
  constexpr std::string_view kSpace = " \t\n\v\f\r";
  for (;; --n) {
    text.remove_prefix(std::min(text.find_first_not_of(kSpace), text.size()));
    std::string_view word = text.substr(0, text.find_first_of(" \t"));
    word = word.substr(0, word.find_last_not_of(kSpace) + 1);
    if (n == 0) return std::string(word);
    text.remove_prefix(word.size());
  }
}

// Some heads and targets are accepted only in a command, not in a file.
bool is_for_commands_only(const std::string& line) {
  const auto is_one_of = [](const std::string& word, std::initializer_list<const char*> words) {
    return std::ranges::any_of(words, [&](const char* w) { return boost::iequals(word, w); });
  };
  if (is_one_of(word_of(line, 0), {"qconnect", "qvpconnect"})) return true;
  return boost::iequals(word_of(line, 0), "connect") && is_one_of(word_of(line, 1), {"odm", "dap", "dcc", "qmtc"});
}

void check_as_command(const std::string& name, const std::string& line, int result, DiscoveredEngine& fromFile) {
  DiscoveredEngine fromText(known_design());
  ProcessorInfo info;
  const int same = result_of(line, [&] { return fromText.engine.ParseProcessorInfo(name, info, line); });
  if (is_for_commands_only(line)) {
    expect(result == 3, "a file to be refused", line);
    expect_same(fromFile.error(), "", "no error text");
    return;
  }
  expect(result == same, "a file to be read like its line", line);
  expect_same(changes(fromFile.imp, fromText.imp), "", "a file to mean what its line means");
  expect_same(fromFile.error(), fromText.error(), "the same error text");
  expect_same(fromFile.imp.currentProcessor->command, fromText.imp.currentProcessor->command, "the same command");
}

void check_file(const std::string& name, const std::string& file, const std::string& content) {
  std::ofstream(file, std::ios::binary | std::ios::trunc) << content;
  const std::string line = first_line(content);

  DiscoveredEngine engine(known_design());
  ProcessorInfo info;
  const int result = result_of(line, [&] { return engine.engine.SetProcessor(name, info); });
  expect_same(content_of(file), content, "reading to leave the file alone");
  if (line.empty()) {
    expect(result == 4, "4 for a file with nothing in it");
    expect_same(engine.error(), "", "no error text");
  } else {
    expect(result == 0 || result == 3 || result == kThrown, "0 or 3");
    check_as_command(name, line, result, engine);
  }
  if (result == kThrown) return;

  const bool written = check_writing(engine.imp, Way::file);
  expect_same(content_of(file), written ? engine.imp.currentProcessor->command : content,
              "the new file or the old one");
  expect(std::distance(fs::directory_iterator("etc"), {}) == 1, "nothing left behind beside the file");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr const char* kProcessors[] = {"ovrin_0", "ovrin_1", "ppc405_0", "ppc440_0", "a9_0"};
  const auto [way, text] = split(data, size, std::size(kProcessors));
  static const Scratch kScratch;
  const Inside inside(kScratch.path());
  const std::string file = std::string("etc/qvt_") + kProcessors[way] + ".opt";
  check_file(kProcessors[way], file, text);
  fs::remove(file);
  return 0;
}
