// Selecting a processor, which includes reading its option file.

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "bench/folder.h"
#include "bench/hand_written.h"
#include "bench/suite.h"
#include "bench/texts.h"
#include "platform/DesignFile.h"
#include "tests/support/SelectedEngine.h"

namespace bench {
namespace {

struct Selection {
  DesignFile design = DesignFile::load(example_design("small.json"));
  DiscoveredEngine engine{design};

  int select() {
    SdkDebugDialog::ProcessorInfo info;
    engine.release_chain();
    return engine.engine.SetProcessor("ovrin_0", info);
  }
};

bool read_file_by_hand(Settings& settings) {
  const int file = ::open("etc/qvt_ovrin_0.opt", O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  char buffer[1024];
  const ssize_t count = ::read(file, buffer, sizeof buffer);
  ::close(file);
  if (count < 0) return false;
  const std::string_view text(buffer, static_cast<std::size_t>(count));
  return read_by_hand(text.substr(0, text.find('\n')), settings);
}

}  // namespace

void add_selection() {
  const Work work = {"select a processor"};
  std::filesystem::current_path(work_folder());

  auto selection = std::make_shared<Selection>();
  std::string command;
  expect(selection->select() == 0 && selection->engine.engine.GenerateCmdString(command) == 0 &&
             command == hardware_text(),
         work, kOurs);
  add(work, kOurs, [selection] { benchmark::DoNotOptimize(selection->select()); });

  const char* const who = "open, read, hand-written";
  Settings settings;
  expect(read_file_by_hand(settings) && settings == hardware_settings(), work, who);
  add(work, who, [] {
    Settings fresh;
    benchmark::DoNotOptimize(read_file_by_hand(fresh));
    benchmark::DoNotOptimize(fresh);
  });
}

}  // namespace bench
