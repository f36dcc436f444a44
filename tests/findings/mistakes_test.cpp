// Independent mistakes: as many errors as there are options with a mistake.

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Diagnosis.h"
#include "tests/compare/random.h"

namespace {

using SdkDebugDialog::Finding;
using SdkDebugDialog::Severity;

struct Pair {
  std::string keyword;
  std::string value;
  bool isWord = false;  // one of a few words
};

struct Option {
  std::string name;
  std::string value = {};
  bool isWord = false;
  std::vector<Pair> pairs = {};
};

const std::vector<Option>& options() {
  static const std::vector<Option> kOptions = {
      {"-cable", "", false, {{"type", "zarvek_platformusb", true}, {"port", "USB21"}, {"frequency", "12000000"}}},
      {"-debugdevice",
       "",
       false,
       {{"deviceNr", "2"}, {"cpunr", "1"}, {"icacheStartAdr", "0x70000000"}, {"fpuType", "sp", true}}},
      {"-configdevice",
       "",
       false,
       {{"devicenr", "1"}, {"partname", "prom32"}, {"irlength", "16"}, {"idcode", "0x05059093"}}},
      {"-configdevice", "", false, {{"devicenr", "2"}, {"partname", "fpga"}, {"irlength", "10"}}},
      {"-pfsl", "", false, {{"port", "1"}, {"type", "ms", true}}},
      {"-bscan", "USER1", true},
      {"-comm", "jtag", true},
      {"-baud", "115200"},
      {"-port", "/dev/ttyUSB0"},
      {"-quiet"},
      {"-writeonly"},
  };
  return kOptions;
}

// --- Mistakes ---

// Doubles one of its letters.
void misspell(Random& random, std::string& word) {
  const std::size_t at = random.between(1, word.size() - 1);
  word.insert(at, 1, word[at]);
}

// Each returns false where the option has no room for it. The option is changed, or its text is.
bool misspell_option(Random& random, Option& option, std::string& /*text*/) {
  misspell(random, option.name);
  return true;
}
bool no_such_option(Random& /*random*/, Option& option, std::string& /*text*/) {
  option.name = "-nonsense";
  return true;
}
bool misspell_keyword(Random& random, Option& option, std::string& /*text*/) {
  if (option.pairs.empty()) return false;
  misspell(random, option.pairs[random.below(option.pairs.size())].keyword);
  return true;
}
bool no_such_keyword(Random& random, Option& option, std::string& /*text*/) {
  if (option.pairs.empty()) return false;
  option.pairs[random.below(option.pairs.size())].keyword = "nonsense";
  return true;
}
bool no_such_word(Random& /*random*/, Option& option, std::string& /*text*/) {
  const auto pair = std::ranges::find_if(option.pairs, &Pair::isWord);
  if (pair == option.pairs.end() && !option.isWord) return false;
  (option.isWord ? option.value : pair->value) = "nonsense";
  return true;
}
bool no_value(Random& /*random*/, Option& option, std::string& /*text*/) {
  if (option.pairs.empty()) return false;
  option.pairs.back().value.clear();
  return true;
}
bool misaligned_address(Random& /*random*/, Option& option, std::string& /*text*/) {
  const auto pair = std::ranges::find(option.pairs, "icacheStartAdr", &Pair::keyword);
  if (pair == option.pairs.end()) return false;
  pair->value = "0x70000001";
  return true;
}
bool equals_sign(Random& random, Option& option, std::string& /*text*/) {
  if (option.pairs.empty()) return false;
  Pair& pair = option.pairs[random.below(option.pairs.size())];
  pair.keyword += "=" + pair.value;
  pair.value.clear();
  return true;
}
bool no_blank_after_option(Random& /*random*/, Option& option, std::string& /*text*/) {
  if (option.pairs.empty()) return false;
  option.name += option.pairs[0].keyword;
  option.pairs[0].keyword.clear();
  return true;
}
bool two_dashes(Random& /*random*/, Option& option, std::string& /*text*/) {
  option.name.insert(0, "-");
  return true;
}
bool no_dash(Random& /*random*/, Option& option, std::string& /*text*/) {
  option.name.erase(0, 1);
  return true;
}
bool lone_dash(Random& /*random*/, Option& option, std::string& /*text*/) {
  option.name.insert(1, " ");
  return true;
}
bool surplus_word(Random& /*random*/, Option& option, std::string& text) {
  if (!option.pairs.empty()) return false;
  text = " nonsense";
  return true;
}

using Mistake = bool (*)(Random& random, Option& option, std::string& text);
constexpr Mistake kMistakes[] = {
    misspell_option, no_such_option,     misspell_keyword, no_such_keyword,       no_such_word,
    no_value,        misaligned_address, equals_sign,      no_blank_after_option, two_dashes,
    no_dash,         lone_dash,          surplus_word,
};

void put(std::string& text, const std::string& word) {
  if (!word.empty()) text.append(" ").append(word);
}

std::string text_of(const Option& option) {
  std::string text;
  put(text, option.name);
  put(text, option.value);
  for (const Pair& pair : option.pairs) {
    put(text, pair.keyword);
    put(text, pair.value);
  }
  return text;
}

std::string errors_of(const std::string& text, std::size_t& count) {
  std::string errors;
  for (const Finding& finding : SdkDebugDialog::diagnose(text, SdkDebugDialog::TextKind::command)) {
    if (finding.severity != Severity::error) continue;
    ++count;
    errors.append("\n  ").append(std::to_string(finding.begin)).append(": ").append(finding.message);
  }
  return errors;
}

TEST(Mistakes, GiveOneErrorForEachOptionThatHasOne) {
  constexpr std::size_t kMostFaults = 8;
  std::size_t faults = 0;
  for (unsigned seed = 0; seed < 5000 && faults < kMostFaults; ++seed) {
    Random random(seed);
    std::vector<Option> some = options();
    random.shuffle(some);
    some.resize(random.between(1, some.size()));
    std::string text = random.chance(70) ? "connect ov odm" : "connect ppc hw";
    std::size_t mistakes = 0;
    bool isAfterMistake = false;
    for (Option& option : some) {
      std::string after;
      const Mistake mistake = random.pick(kMistakes);
      // Without its dash, the option would belong to the one before it, which must be right and have no such keyword.
      const bool losesDash = mistake == no_dash || mistake == lone_dash;
      const bool isIndependent = !losesDash || (!isAfterMistake && option.name != "-port");
      isAfterMistake = isIndependent && random.chance(40) && mistake(random, option, after);
      if (isAfterMistake) ++mistakes;
      text += text_of(option) + after;
    }
    std::size_t count = 0;
    const std::string errors = errors_of(text, count);
    if (count == mistakes) continue;
    ++faults;
    ADD_FAILURE() << mistakes << " mistakes, " << count << " errors: " << text << errors;
  }
}

}  // namespace
