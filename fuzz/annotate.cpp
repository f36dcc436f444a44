// Fuzz target: annotations of any bytes, as a command, an option file, and cable and chain alone.

#include <cstdint>
#include <string>
#include <string_view>

#include "SdkDebugDialog/Annotation.h"
#include "SdkDebugDialog/Configuration.h"
#include "fuzz/check.h"
#include "fuzz/input.h"
#include "tests/settings/edit_check.h"

using SdkDebugDialog::Annotation;
using SdkDebugDialog::Role;
using SdkDebugDialog::TextKind;

namespace {

bool is_space(std::string_view text) { return text.find_first_not_of(" \t\n\v\f\r") == text.npos; }

// Every word is there, in its order, and is one word.
void check_words(std::string_view text, const std::vector<Annotation>& annotations) {
  std::size_t at = 0;
  for (const Annotation& a : annotations) {
    expect(at <= a.begin && a.begin < a.end && a.end <= text.size(), "a word within the text, behind the one before");
    expect(is_space(text.substr(at, a.begin - at)), "every word to be there", text);
    const std::string_view word = text.substr(a.begin, a.end - a.begin);
    expect(word.find_first_of(" \t") == word.npos, "a word without a blank", word);
    expect(!is_space(word.substr(0, 1)) && !is_space(word.substr(word.size() - 1)), "a word without blanks around it");
    at = a.end;
  }
  expect(is_space(text.substr(at)), "the last word to be there", text);
}

void check_guesses(const EditCase& c, EditBench& bench, const std::vector<Annotation>& annotations) {
  ByHand hand(bench.hardware(), c.processor);
  const bool isRead = hand.read(c.text, c.kind);
  bool guess = false;
  for (const Annotation& a : annotations) {
    expect(a.guess || !guess, "what comes behind a guess to be one", c.text);
    guess = a.guess;
    expect(!isRead || a.role != Role::unknown, "no unknown word in a text that is read", c.text);
  }
  expect(!isRead || !guess, "no guess in a text that is read", shown(c));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static EditBench bench;
  const auto [way, text] = split(data, size, std::size(kProcessors));
  for (const TextKind kind : {TextKind::command, TextKind::optionFile, TextKind::cableText}) {
    const EditCase c = {kind == TextKind::cableText ? "" : kProcessors[way], kind, text, {}};
    const std::vector<Annotation> annotations = annotate(text, kind, bench.processor(c.processor));
    check_words(text, annotations);
    check_guesses(c, bench, annotations);
    check_words(text, annotate(text, kind));
  }
  return 0;
}
