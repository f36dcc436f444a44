#include "texts.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using Tokens = std::vector<std::string>;
using Words = std::vector<std::string_view>;

Words split(std::string_view text) {
  Words words;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find(' ', at), text.size());
    words.push_back(text.substr(at, end - at));
    at = end + 1;
  }
  return words;
}

// Everything that a text can name, of all groups.
const Words kVocabulary = split(
    "connect qconnect vpconnect qvpconnect ov ppc arm r5 odm dap dcc qmtc sim stub hw "
    "-debugdevice -pfsl -quiet -noattach -writeonly -cable -comm -port -baud -timeout -configdevice -sim -bscan -uart "
    "-memsize -icf -ipcport -config "
    "type port frequency esn modulename modulearg fname url "
    "devicenr partname irlength idcode jtagport isfpga hardppc nppc jtagpin cpujtag "
    "deviceNr cpunr romemStartAdr romemSize isocmStartAdr isocmSize isocmDcrStartAdr icacheStartAdr itagStartAdr "
    "dcacheStartAdr dtagStartAdr tlbStartAdr dcrStartAdr fpuType proctype cpu_version odm_version nCpu "
    "zarvek_parallel zarvek_parallel4 zarvek_parallel3 zarvek_platformusb zarvek_svffile zarvek_plugin "
    "digilent_plugin zarvek_tcf USER1 USER2 USER3 USER4 jtag serial cpu ppc405 ppc440 sp dp m s ms cycle_approximate "
    "- -- --x -.5 -x -5 -0x10 0 1 2 0x10000 localhost:7000 : a");

// --- Values ---

std::string hex(std::uint64_t value, const char* format = "0x%llx") {
  char text[32];
  std::snprintf(text, sizeof text, format, static_cast<unsigned long long>(value));
  return text;
}

// Any characters that do not part tokens.
std::string letters(Random& random, std::size_t length) {
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-./:;=%";
  std::string text;
  for (std::size_t i = 0; i < length; ++i) text += kLetters[random.below(kLetters.size())];
  if (!text.empty() && text[0] == '-') text[0] = 'x';
  return text;
}

// A length that may matter to what looks at many characters at once or has a buffer.
std::size_t long_length(Random& random) {
  static constexpr std::size_t kNear[] = {64, 128, 192, 256, 512, 1000, 1024, 2000, 2048, 4096};
  if (random.chance(40)) return random.between(30, 200);
  return random.pick(kNear) + random.below(40) - 20;
}

std::string number(Random& random) {
  const std::uint64_t bits = random.bits() >> random.below(64);
  switch (random.below(16)) {
    case 0:
      return hex(bits);
    case 1:
      return hex(bits, "0X%llX");
    case 2:
      return hex(bits, "0%llo");
    case 3:
      return "-" + std::to_string(bits);
    case 4:
      return "-" + hex(bits);
    case 5:
      return "+" + std::to_string(bits);
    case 6:
      return std::to_string(bits) + letters(random, random.between(1, 3));
    case 7:
      return hex(bits) + letters(random, random.between(1, 3));
    case 8:
      return std::to_string(bits) + std::to_string(random.bits());
    case 9:
      return hex(bits) + hex(random.bits(), "%llx");
    case 10: {
      static const Words kOdd = split(
          "0x 0X 0xg 08 00 0x0x1 x1 + +-1 -0 -0x 1e3 1.5 4294967295 4294967296 2147483648 9223372036854775807 "
          "9223372036854775808 "
          "-9223372036854775808 -9223372036854775809 18446744073709551615 18446744073709551616 0xffffffffffffffff "
          "0x10000000000000000 0xffffffff none");
      return std::string(random.pick(kOdd));
    }
    case 11:
      return std::to_string(bits);
    default:
      return std::to_string(random.below(40));
  }
}

std::string address(Random& random) {
  const std::uint64_t base = random.below(0x10000) << 16U;
  return random.chance(80) ? hex(base) : random.chance(50) ? std::to_string(base) : hex(base, "0%llo");
}

std::string free_text(Random& random) {
  static const Words kUsual = {"LPT1", "LPT2",   "USB21", "USB22", "/dev/ttyUSB0", "/dev/ttyS1", "probe",
                               "a=1",  "x;y",    ";",     "fpga",  "arm_dap",      "UNKNOWN",    "-1",
                               "-5x",  "%s%n%d", "type",  "cpu",   "ov",           "7.10.d"};
  if (random.chance(4)) return letters(random, long_length(random));
  return random.chance(60) ? std::string(random.pick(kUsual)) : letters(random, random.between(1, 14));
}

std::string host_and_port(Random& random) {
  switch (random.below(8)) {
    case 0:
      return ":" + number(random);
    case 1:
      return letters(random, random.between(1, 9)) + ":";
    case 2:
      return letters(random, random.between(1, 9));
    case 3:
      return ":";
    case 4:
      return "a:" + number(random) + ":" + number(random);
    default:
      return letters(random, random.between(1, 9)) + ":" + number(random);
  }
}

// --- Grammar ---

// Puts the tokens of a text together.
class Grammar {
 public:
  // So many out of a hundred choices are wrong.
  Grammar(Random& random, unsigned slips) : m_random(random), m_slips(slips) {}

  Tokens take() { return std::move(m_tokens); }

  void start(Start start) {
    switch (start) {
      case Start::command:
        return command();
      case Start::ov:
        return ov();
      case Start::ppc:
        return ppc();
      case Start::arm:
        return hw_only();
      case Start::odm:
        return bare({&Grammar::uart, &Grammar::bscan, &Grammar::debugdevice, &Grammar::cable, &Grammar::configdevice});
      case Start::dcc:
        return bare({&Grammar::uart, &Grammar::debugdevice, &Grammar::cable});
      case Start::qmtc:
        return bare({&Grammar::debugdevice, &Grammar::cable, &Grammar::configdevice});
      case Start::vp:
        return vp();
      case Start::ppcsim:
        return bare({&Grammar::icf, &Grammar::ipcport, &Grammar::debugdevice});
      case Start::options:
        return general();
      case Start::jtag:
        return jtag();
      case Start::modelsim:
        return bare({&Grammar::ipcport, &Grammar::configdevice});
      case Start::bscan:
        word({"USER1", "USER2", "USER3", "USER4"});
        break;
      case Start::stub:
        stub_value();
        break;
      // The rest are groups: another option may end them.
      case Start::cable:
        cable_pairs();
        break;
      case Start::configdevice:
        configdevice_pairs();
        break;
      case Start::debugdevice:
        debugdevice_pairs();
        break;
      case Start::pfsl:
        pfsl_pairs();
        break;
    }
    if (chance(50)) general();
  }

 private:
  using Part = void (Grammar::*)();
  using Parts = std::vector<Part>;

  bool chance(unsigned percent) { return m_random.chance(percent); }
  bool slip() { return m_random.chance(m_slips); }
  void put(std::string token) { m_tokens.push_back(std::move(token)); }
  void word(const Words& words) { put(std::string(slip() ? m_random.pick(kVocabulary) : m_random.pick(words))); }
  void pair(std::string_view key, std::string value) {
    word({key});
    if (!slip()) put(std::move(value));
  }

  void some(const Parts& parts, std::size_t most) {
    const std::size_t count = m_random.below(most + 1);
    for (std::size_t i = 0; i < count; ++i) (this->*m_random.pick(parts))();
  }

  void command() {
    if (chance(8)) {
      word({"vpconnect", "qvpconnect"});
      return vp();
    }
    word({"connect", "connect", "qconnect"});
    static constexpr std::pair<std::string_view, Start> kTargets[] = {
        {"ov", Start::ov},   {"ov", Start::ov},   {"ov", Start::ov},   {"ppc", Start::ppc},
        {"ppc", Start::ppc}, {"ppc", Start::ppc}, {"arm", Start::arm}, {"r5", Start::arm},
        {"dap", Start::arm}, {"odm", Start::odm}, {"dcc", Start::dcc}, {"qmtc", Start::qmtc}};
    const auto& [name, next] = m_random.pick(kTargets);
    word({name});
    start(next);
  }

  void ov() {
    if (chance(10)) {
      word({"sim"});
      if (chance(60)) pair("-memsize", number(m_random));
    } else {
      word({"stub", "odm", "odm"});
      general();
    }
  }
  void ppc() {
    if (chance(35)) {
      word({"sim"});
      return start(Start::ppcsim);
    }
    word({"hw"});
    general();
  }
  void hw_only() {
    word({"hw"});
    general();
  }
  void vp() {
    word({"ov"});
    some({&Grammar::config, &Grammar::ipcport}, 2);
  }
  void bare(const Parts& parts) { some(parts, 5); }
  void jtag() {
    some({&Grammar::cable, &Grammar::configdevice, &Grammar::configdevice, &Grammar::debugdevice, &Grammar::bscan}, 5);
    maybe_long_chain();
  }
  void general() {
    some({&Grammar::cable, &Grammar::cable, &Grammar::configdevice, &Grammar::configdevice, &Grammar::debugdevice,
          &Grammar::debugdevice, &Grammar::pfsl, &Grammar::flag, &Grammar::stub, &Grammar::stub, &Grammar::bscan},
         6);
    maybe_long_chain();
    if (chance(8)) {
      word({"-sim"});
      start(Start::modelsim);
    }
    if (slip()) word(kVocabulary);
  }
  void maybe_long_chain() {
    if (m_random.below(500) != 0) return;
    for (std::size_t i = m_random.between(30, 300); i > 0; --i) configdevice();
  }

  // Options.
  void cable() {
    word({"-cable"});
    cable_pairs();
  }
  void configdevice() {
    word({"-configdevice"});
    configdevice_pairs();
  }
  void debugdevice() {
    word({"-debugdevice"});
    debugdevice_pairs();
  }
  void pfsl() {
    word({"-pfsl"});
    pfsl_pairs();
  }
  void flag() { word({"-quiet", "-noattach", "-writeonly"}); }
  void uart() { word({"-uart"}); }
  void bscan() {
    word({"-bscan"});
    word({"USER1", "USER2", "USER3", "USER4"});
  }
  void icf() { pair("-icf", free_text(m_random)); }
  void ipcport() { pair("-ipcport", host_and_port(m_random)); }
  void config() {
    word({"-config"});
    word({"cycle_approximate"});
  }
  void stub() {
    switch (m_random.below(4)) {
      case 0:
        word({"-comm"});
        return word({"jtag", "serial"});
      case 1:
        return pair("-port", free_text(m_random));
      default:
        return pair(chance(50) ? "-baud" : "-timeout", number(m_random));
    }
  }
  void stub_value() {
    if (chance(50)) return word({"jtag", "serial"});
    put(chance(50) ? number(m_random) : free_text(m_random));
  }

  // Pairs of the groups.
  void cable_pairs() {
    static const struct {
      std::string_view name;
      Words accepted;
    } kTypes[] = {
        {"zarvek_platformusb", split("750000 1500000 3000000 6000000 12000000 24000000")},
        {"zarvek_parallel3", split("200000")},
        {"zarvek_parallel", split("200000 625000 2500000 5000000")},
        {"zarvek_parallel4", split("200000 625000 2500000 5000000")},
        {"zarvek_tcf", split("125000 250000 500000 750000 1000000 1500000 2000000 3000000 4000000 5000000 6000000 "
                             "7500000 10000000 12000000 15000000 24000000 30000000")},
        {"zarvek_plugin", split("")},
        {"digilent_plugin", split("")},
    };
    const auto& [type, accepted] = m_random.pick(kTypes);
    const bool typed = chance(92);
    std::vector<std::pair<std::string_view, std::string>> pairs;
    if (typed) pairs.emplace_back("type", slip() ? "zarvek_svffile" : type);
    if (type == "zarvek_plugin" && chance(93)) pairs.emplace_back("modulename", free_text(m_random));
    for (std::size_t i = chance(15) ? m_random.between(1, 3) : 0; i > 0; --i) {
      pairs.emplace_back("modulearg", free_text(m_random));
    }
    if (slip() || slip()) {
      pairs.emplace_back("frequency", number(m_random));
    } else if (typed && !accepted.empty() && chance(50)) {
      pairs.emplace_back("frequency", m_random.pick(accepted));
    }
    for (const std::string_view key : {"port", "esn", "fname", "url", "modulename"}) {
      if (chance(key == "port" ? 35 : 8)) pairs.emplace_back(key, free_text(m_random));
    }
    put_pairs(std::move(pairs));
  }

  void configdevice_pairs() {
    std::vector<std::pair<std::string_view, std::string>> pairs;
    for (const std::string_view key : {"devicenr", "irlength", "idcode", "isfpga", "nppc"}) {
      if (chance(key == "nppc" ? 10 : 50)) pairs.emplace_back(key, number(m_random));
    }
    if (chance(60)) pairs.emplace_back("partname", free_text(m_random));
    if (chance(15)) pairs.emplace_back("hardppc", chance(50) ? "ppc405" : free_text(m_random));
    if (chance(10)) pairs.emplace_back("jtagport", slip() ? free_text(m_random) : "cpu");
    put_pairs(std::move(pairs));
  }

  void debugdevice_pairs() {
    std::vector<std::pair<std::string_view, std::string>> pairs;
    if (chance(60)) pairs.emplace_back("deviceNr", number(m_random));
    // The number that a design gives, 200 as what it is written as, or another one.
    static const Words kNumbers = split("1 1 2 3 200 -56 4294967240");
    if (chance(20)) pairs.emplace_back("cpunr", chance(80) ? std::string(m_random.pick(kNumbers)) : number(m_random));
    for (const std::string_view key :
         {"romemStartAdr", "romemSize", "isocmStartAdr", "isocmSize", "isocmDcrStartAdr", "nCpu"}) {
      if (chance(12)) pairs.emplace_back(key, chance(50) ? number(m_random) : address(m_random));
    }
    for (const std::string_view key :
         {"icacheStartAdr", "itagStartAdr", "dcacheStartAdr", "dtagStartAdr", "tlbStartAdr", "dcrStartAdr"}) {
      if (chance(12)) pairs.emplace_back(key, slip() ? number(m_random) : address(m_random));
    }
    if (chance(15)) pairs.emplace_back("fpuType", slip() ? free_text(m_random) : chance(50) ? "sp" : "dp");
    if (chance(15)) pairs.emplace_back("proctype", slip() ? free_text(m_random) : chance(50) ? "ppc405" : "ppc440");
    for (const std::string_view key : {"cpu_version", "odm_version"}) {
      if (chance(8)) pairs.emplace_back(key, free_text(m_random));
    }
    put_pairs(std::move(pairs));
  }

  void pfsl_pairs() {
    std::vector<std::pair<std::string_view, std::string>> pairs;
    if (chance(60)) pairs.emplace_back("port", free_text(m_random));
    if (chance(60)) {
      static const Words kTypes = {"m", "s", "ms"};
      pairs.emplace_back("type", slip() ? free_text(m_random) : std::string(m_random.pick(kTypes)));
    }
    put_pairs(std::move(pairs));
  }

  void put_pairs(std::vector<std::pair<std::string_view, std::string>> pairs) {
    if (chance(40)) m_random.shuffle(pairs);
    if (!pairs.empty() && chance(5)) pairs.push_back(m_random.pick(pairs));
    for (auto& [key, value] : pairs) pair(key, std::move(value));
  }

  Random& m_random;
  unsigned m_slips;
  Tokens m_tokens;
};

// --- Spelling and mistakes ---

// Letters of ASCII, whatever the locale; at times with the capital I that Turkish has for i.
void change_case(Random& random, std::string& token) {
  enum class Way { upper, lower, mixed, turkish };
  const Way way = static_cast<Way>(random.below(random.chance(20) ? 4 : 3));
  for (char& c : token) {
    const bool upper = way == Way::upper || way == Way::turkish || (way == Way::mixed && random.chance(50));
    if (way == Way::turkish && c == 'i') {
      c = '\xdd';
    } else if (upper && c >= 'a' && c <= 'z') {
      c = static_cast<char>(c - 'a' + 'A');
    } else if (!upper && c >= 'A' && c <= 'Z') {
      c = static_cast<char>(c - 'A' + 'a');
    }
  }
}

char odd_character(Random& random) {
  // White space of both kinds, the ends of what counts as such, letters that other locales have cases for.
  constexpr std::string_view kOdd("\0\x01\x08\t\n\v\f\r\x0e\x1f \"#%'-0:;\x7f\x80\x85\xa0\xb5\xc4\xdd\xdf\xe4\xfd\xff",
                                  30);
  return random.chance(70) ? random.pick(kOdd) : static_cast<char>(random.bits());
}

void change_character(Random& random, std::string& text) {
  if (text.empty()) {
    text += odd_character(random);
    return;
  }
  const std::size_t at = random.below(text.size());
  char& c = text[at];
  switch (random.below(7)) {
    case 0:
      text.insert(at, 1, odd_character(random));
      break;
    case 1:
      text.erase(at, 1);
      break;
    case 2:
      c = odd_character(random);
      break;
    case 3:
      // The other case of a letter; what has none becomes another character.
      c = static_cast<char>(c ^ 0x20);
      break;
    case 4:
      c = static_cast<char>(c ^ (1 << random.below(8)));
      break;
    case 5:
      std::swap(c, text[random.below(text.size())]);
      break;
    default:
      // The Turkish I with a dot, and i without.
      if (c == 'i' || c == 'I') c = random.chance(50) ? '\xdd' : '\xfd';
  }
}

void change_token(Random& random, Tokens& tokens) {
  if (tokens.empty()) {
    tokens.emplace_back(random.pick(kVocabulary));
    return;
  }
  const std::size_t at = random.below(tokens.size());
  const auto here = tokens.begin() + static_cast<std::ptrdiff_t>(at);
  switch (random.below(10)) {
    case 0:
      tokens.erase(here);
      break;
    case 1:
      tokens.insert(here, std::string(*here));
      break;
    case 2:
      std::swap(*here, tokens[random.below(tokens.size())]);
      break;
    case 3:
      *here = random.pick(kVocabulary);
      break;
    case 4:
      tokens.insert(here, std::string(random.pick(kVocabulary)));
      break;
    case 5:
      tokens.resize(at + 1);
      break;
    case 6:
      *here = number(random);
      break;
    case 7:
      change_character(random, *here);
      break;
    case 8:
      tokens.insert(here, "-");
      break;
    default:
      here->insert(random.below(here->size() + 1), letters(random, random.between(1, 3)));
      break;
  }
}

// Makes a token so long, or puts so many blanks before it, that what follows stands at any place.
void lengthen(Random& random, Tokens& tokens) {
  if (tokens.empty()) return;
  std::string& token = tokens[random.below(tokens.size())];
  if (random.chance(50)) {
    token.insert(0, random.between(1, 140), random.chance(90) ? ' ' : '\t');
  } else if (random.chance(90)) {
    token += letters(random, long_length(random));
  } else {
    token.append(random.below(5000), 'y');
  }
}

std::string white_space(Random& random) {
  static const Words kBetween = {" ", " ", "  ", "\t", " \t", "\n ", " \r\n ", "\r ", "\v ", " \f", "\t\t", "   "};
  return std::string(random.pick(kBetween));
}

std::string join(Random& random, const Tokens& tokens, unsigned oddBlanks) {
  std::string text;
  if (random.chance(oddBlanks)) text += white_space(random);
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (i > 0) text += random.chance(oddBlanks) ? white_space(random) : " ";
    text += tokens[i];
  }
  if (random.chance(oddBlanks)) {
    static const Words kEnds = {" ", "\n", "\r\n", "\r", "\t", "  ", " \n", "\v", "\f\f"};
    text += random.pick(kEnds);
  }
  return text;
}

// No grammar at all.
std::string noise(Random& random) {
  std::string text;
  switch (random.below(3)) {
    case 0:
      for (std::size_t i = random.below(10); i > 0; --i) text += white_space(random);
      break;
    case 1:
      for (std::size_t i = random.below(150); i > 0; --i) text += static_cast<char>(random.bits());
      break;
    default: {
      Tokens tokens;
      for (std::size_t i = random.below(12); i > 0; --i) tokens.emplace_back(random.pick(kVocabulary));
      text = join(random, tokens, 5);
    }
  }
  return text;
}

}  // namespace

std::string random_text(Random& random, Start start) {
  if (random.chance(4)) return noise(random);
  const bool mistakes = random.chance(45);
  Grammar grammar(random, mistakes && random.chance(40) ? 4 : 0);
  grammar.start(start);
  Tokens tokens = grammar.take();
  if (random.chance(35)) {
    for (std::string& token : tokens) {
      if (random.chance(70)) change_case(random, token);
    }
  }
  if (mistakes && random.chance(40)) {
    for (std::size_t i = random.between(1, 3); i > 0; --i) change_token(random, tokens);
  }
  if (random.chance(12)) {
    for (std::size_t i = random.between(1, 3); i > 0; --i) lengthen(random, tokens);
  }
  std::string text = join(random, tokens, random.chance(25) ? 30 : 0);
  if (mistakes && random.chance(40)) {
    for (std::size_t i = random.between(1, 3); i > 0; --i) change_character(random, text);
  }
  return text;
}

std::string random_field(Random& random) {
  switch (random.below(8)) {
    case 0:
      return {};
    case 1:
      return letters(random, long_length(random));
    case 2:
      return noise(random);
    default:
      return free_text(random);
  }
}

std::string random_stub_option(Random& random) {
  static const Words kOptions = {"-comm", "-port", "-baud", "-timeout"};
  std::string option(random.chance(90) ? random.pick(kOptions) : random.pick(kVocabulary));
  if (random.chance(30)) change_case(random, option);
  if (random.chance(8)) change_character(random, option);
  return option;
}

std::string random_file(Random& random) {
  static const Words kBefore = {"", "", "", "", "\n", "\n\n", "\r\n", " \n", "\t"};
  static const Words kAfter = {"", "", "\n", "\r\n", "\nconnect ov sim\n", "\n\n", "\r", std::string_view("\0", 1)};
  std::string content(random.pick(kBefore));
  content += random_text(random, Start::command);
  // About as much as is read of a line.
  if (random.chance(20)) content.insert(content.find_last_of(' ') + 1, random.between(900, 1100), ' ');
  content += random.pick(kAfter);
  return content;
}
