#include "random_mistakes.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "tests/compare/texts.h"

using SdkDebugDialog::TextKind;

namespace {

// What people have in their files.
constexpr std::string_view kCommands[] = {
    "connect ov odm -cable type zarvek_platformusb port USB21 frequency 6000000 -debugdevice deviceNr 2 cpunr 1",
    "connect ov odm -debugdevice deviceNr 2 -cable type zarvek_platformusb frequency 12000000",
    "connect ov odm -cable type zarvek_parallel4 port LPT1 frequency 5000000 -bscan USER1 -debugdevice deviceNr 1",
    ("connect ov odm -configdevice devicenr 1 partname prom32 irlength 8 idcode 0x05059093 -configdevice devicenr 2 "
     "partname fpga irlength 10 idcode 0x0a001093 -debugdevice deviceNr 2 cpunr 1"),
    "connect ov sim -memsize 0x100",
    "connect ov stub -comm serial -port /dev/ttyUSB0 -baud 115200 -timeout 20000",
    "connect ov stub -comm jtag -cable type zarvek_platformusb frequency 6000000 -debugdevice deviceNr 2",
    ("connect ppc hw -cable type zarvek_plugin modulename probe modulearg a=1 modulearg b -debugdevice deviceNr 1 "
     "icacheStartAdr 0x70000000 fpuType sp proctype ppc405"),
    "connect ppc hw -debugdevice deviceNr 1 romemStartAdr 0xfffc0000 romemSize 262144 -cable type zarvek_tcf",
    "connect ppc sim -ipcport localhost:7000",
    "connect ppc sim -icf sim.cfg -debugdevice cpunr 1",
    "connect arm hw -cable type zarvek_platformusb esn 1234",
    "connect r5 hw -noattach -quiet -cable type digilent_plugin -writeonly -pfsl port 1 type ms",
    "connect dap hw -configdevice jtagport cpu",
    "connect odm -uart -bscan USER2 -cable type zarvek_parallel3",
    "connect dcc -uart -debugdevice deviceNr 1",
    "connect qmtc -configdevice devicenr 1 partname fpga irlength 10 -debugdevice deviceNr 1",
    "connect ov odm -debugdevice deviceNr 1 -sim -ipcport host:1234 -configdevice devicenr 1",
    "vpconnect ov -config cycle_approximate",
    "vpconnect ov -ipcport localhost:2340",
    "qconnect ov odm -cable type zarvek_platformusb",
};

// From the first option on.
std::string_view options_of(std::string_view command) {
  return command.substr(std::min(command.find('-'), command.size()));
}

// The beginning of a word, or the end of the text.
std::size_t any_word(Random& random, const std::string& text) {
  const std::size_t blank = text.find(' ', random.below(text.size() + 1));
  return blank == text.npos ? std::min(text.find_first_not_of(' '), text.size()) : blank + 1;
}

std::size_t end_of_word(const std::string& text, std::size_t begin) {
  return std::min(text.find_first_of(" \t", begin), text.size());
}

void misspell(Random& random, std::string& text, std::size_t begin, std::size_t end) {
  if (begin == end) return;
  const std::size_t at = random.between(begin, end - 1);
  switch (random.below(5)) {
    case 0:  // swapped
      if (at + 1 < end) std::swap(text[at], text[at + 1]);
      return;
    case 1:  // doubled
      text.insert(at, 1, text[at]);
      return;
    case 2:  // lost
      text.erase(at, 1);
      return;
    case 3:  // another one
      text[at] = static_cast<char>('a' + random.below(26));
      return;
    default:
      text.insert(at, 1, static_cast<char>('a' + random.below(26)));
      return;
  }
}

void insert_any(Random& random, std::string& text, std::size_t at) {
  constexpr std::string_view kJunk[] = {
      "-",
      "--",
      "=",
      ":",
      ",",
      ";",
      "\"",
      "'",
      "\\",
      "\r",
      "\n",
      "\r\n",
      "\t",
      "  ",
      "\xEF\xBB\xBF",
      "\xE2\x80\x93",
      "\xE2\x80\x9C",
      "\xC2\xA0",
      "\xff",
      "\v",
      "# ",
      "// ",
      "MHz",
      "0x",
      "\\\n",
      " -quiet ",
      " frequency ",
      " type ",
      " -cable ",
      " 1 ",
      " -sim ",
      " -comm ",
      "010 ",
      " USER1 ",
      " jtagpin cpujtag ",
      " connect ov odm ",
      "<<<<<<< HEAD\n",
  };
  text.insert(at, random.pick(kJunk));
}

}  // namespace

DiagnosisCase random_case(Random& random) {
  constexpr TextKind kKinds[] = {TextKind::command, TextKind::command, TextKind::optionFile, TextKind::optionFile,
                                 TextKind::cableText};
  DiagnosisCase c;
  c.kind = random.pick(kKinds);
  if (c.kind != TextKind::cableText && random.chance(50)) c.processor = random.pick(kProcessors);
  if (random.chance(60)) {
    const std::string_view command = random.pick(kCommands);
    c.text = c.kind == TextKind::cableText ? options_of(command) : command;
  } else {
    c.text = c.kind == TextKind::command      ? random_text(random, Start::command)
             : c.kind == TextKind::optionFile ? random_file(random)
                                              : random_text(random, Start::jtag);
  }
  return c;
}

void make_mistake(Random& random, std::string& text) {
  constexpr std::string_view kSeparators = "=:,;\n\r\v";
  constexpr std::string_view kQuotes = "\"'`";
  constexpr std::string_view kBeginnings[] = {"\xEF\xBB\xBF", " ", "\r\n", "#", "\"", "\n", "\t", "-"};
  const std::size_t begin = any_word(random, text);
  const std::size_t end = end_of_word(text, begin);
  switch (random.below(14)) {
    case 0:
    case 1:
    case 2:
      misspell(random, text, begin, end);
      return;
    case 3:  // a dash too many or too few
      if (begin < end && text[begin] == '-' && random.chance(50)) {
        text.erase(begin, 1);
      } else {
        text.insert(begin, random.chance(80) ? "-" : "--");
      }
      return;
    case 4:  // joined with the word before
      if (begin > 0) text.erase(begin - 1, 1);
      return;
    case 5:  // another separator than a blank
      if (end < text.size()) text[end] = random.pick(kSeparators);
      return;
    case 6:  // a word lost
      text.erase(begin, end - begin);
      return;
    case 7:  // a word twice, or at another place
      text.insert(any_word(random, text), text.substr(begin, end - begin) + " ");
      return;
    case 8: {
      const char quote = random.pick(kQuotes);
      text.insert(end, 1, quote);
      text.insert(begin, 1, quote);
      return;
    }
    case 9:
      text.resize(random.below(text.size() + 1));
      return;
    case 10:  // another command
      text.append(random.chance(50) ? " " : random.chance(50) ? "\n" : "").append(random.pick(kCommands));
      return;
    case 11:  // about as long as a line that is read
      if (text.size() < 1015) {
        const std::size_t length = random.between(1015, 1030) - text.size();
        text.insert(random.chance(50) ? begin : end, length, random.chance(70) ? ' ' : 'z');
      }
      return;
    case 12:
      text.insert(0, random.pick(kBeginnings));
      return;
    default:
      insert_any(random, text, random.chance(60) ? begin : random.below(text.size() + 1));
      return;
  }
}
