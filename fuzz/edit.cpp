// Fuzz target: edits of commands, option files, and cable and chain alone. The first byte selects the processor and the
// kind of text; then come the changes in one line, such as "frequency=12M -bscan"; the rest is the text.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>

#include "fuzz/check.h"
#include "fuzz/input.h"
#include "tests/settings/edit_check.h"

using SdkDebugDialog::TextKind;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr TextKind kKinds[] = {TextKind::command, TextKind::optionFile};
  constexpr std::size_t kCableText = std::size(kKinds) * std::size(kProcessors);
  static EditBench bench;
  const auto [way, input] = split(data, size, kCableText + 1);
  const std::size_t end = std::min(input.find('\n'), input.size());
  EditCase c;
  c.changes = changes_of(input.substr(0, end));
  c.text = input.substr(std::min(end + 1, input.size()));
  c.kind = TextKind::cableText;
  if (way < kCableText) {
    c.kind = kKinds[way / std::size(kProcessors)];
    c.processor = kProcessors[way % std::size(kProcessors)];
  }
  const std::string fault = bench.fault(c);
  expect(fault.empty(), "an edit that changes what was asked for and nothing else", shown(c) + "\n  " + fault);
  return 0;
}
