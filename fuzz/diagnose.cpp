// Fuzz target: diagnoses of commands, option files, and cable and chain alone. The first byte selects the processor and
// the kind of text, the rest is the text.

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <utility>

#include "fuzz/check.h"
#include "fuzz/input.h"
#include "tests/findings/diagnosis_check.h"

using SdkDebugDialog::TextKind;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr TextKind kKinds[] = {TextKind::command, TextKind::optionFile};
  constexpr std::size_t kCableText = std::size(kKinds) * std::size(kProcessors);
  static DiagnosisBench bench;
  auto [way, text] = split(data, size, kCableText + 1);
  DiagnosisCase c{"", TextKind::cableText, std::move(text)};
  if (way < kCableText) {
    c.kind = kKinds[way / std::size(kProcessors)];
    c.processor = kProcessors[way % std::size(kProcessors)];
  }
  const std::string fault = bench.fault(c);
  expect(fault.empty(), "an error where the text is refused, and safe fixes", shown(c) + "\n  " + fault);
  return 0;
}
