// Every head with every target, connection and option, with and without hardware, compared with a second implementation
// of the rules.

#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "options/QvtOption_Parser.h"
#include "tests/options/work_folder.h"
#include "tests/support/FakeHardware.h"
#include "tests/support/SelectedEngine.h"

namespace SdkDebugDialog {
namespace {

// The parts of a text; an empty part is left out.
struct Text {
  std::string head;
  std::string target;
  std::string word;    // the connection
  std::string option;  // what follows
};

struct Outcome {
  int status;
  std::uint32_t connection;
  std::uint32_t family;
  std::uint32_t variant;
  std::uint32_t allowed;
  std::string error;
  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& o) {
  return out << "status " << o.status << " connection " << o.connection << " family " << o.family << " variant "
             << o.variant << " allowed " << o.allowed << " error " << o.error;
}

// --- The rules ---

class Rules {
 public:
  Rules(bool hardware, bool file, const Outcome& before) : m_hardware(hardware), m_file(file), m_now(before) {}

  Outcome apply(const Text& text) {
    m_now.status = understands(text) ? 0 : 3;
    return m_now;
  }

 private:
  bool understands(const Text& text) {
    if (text.head == "vpconnect" || (text.head == "qvpconnect" && !m_file)) return virtual_platform(text);
    if (text.head != "connect" && (text.head != "qconnect" || m_file)) return false;
    if (text.target == "ov") return soft(text);
    if (text.target == "ppc") return power_pc(text);
    if (text.target == "arm") return arm_core(text, 4);
    if (text.target == "r5") return arm_core(text, 5);
    if (m_file) return false;
    if (text.target == "dap") return access_port(text);
    if (text.target == "odm") {
      m_now.allowed = 16;
      return bare(text);
    }
    if (text.target == "qmtc") {
      m_now.allowed = 32;
      return bare(text);
    }
    if (text.target == "dcc") {
      m_now.family = 2;
      m_now.variant = 4;
      m_now.allowed = 256;
      return bare(text);
    }
    return false;
  }

  bool virtual_platform(const Text& text) {
    if (text.target != "ov" || !admitted(8)) return false;
    m_now.connection = 8;
    if (!m_hardware) {
      m_now.allowed |= 8;
      m_now.variant = 0;
    }
    if (text.word.empty() && text.option.empty()) return true;
    if (text.word.empty() && text.option != "stray") {
      m_now.error = "UNKNOWN virtual platform Option '" + text.option + "'";
    }
    return false;
  }

  bool soft(const Text& text) {
    if (text.word == "sim") {
      if (!admitted(1)) return false;
      m_now.connection = 1;
      // A plain word after "sim" is ignored, an option other than "-memsize" is an error.
      if (!text.option.empty() && text.option != "stray") return false;
      learn(1, 0, 0);
      return true;
    }
    const std::uint32_t bit = text.word == "stub" ? 4 : text.word == "odm" ? 2 : 0;
    if (bit == 0 || !admitted(bit) || !general(text)) return false;
    m_now.connection = bit;
    learn(bit, 0, 0);
    return true;
  }

  bool power_pc(const Text& text) {
    const std::uint32_t bit = text.word == "sim" ? 1 : text.word == "hw" ? 2 : 0;
    if (bit == 0 || !admitted(bit)) return false;
    learn(0, 1, 6);  // before the options are read; the connection is set after them
    if (bit == 1 && text.option == "stray") return false;
    if (bit == 1 && !text.option.empty()) {
      m_now.error = "UNKNOWN  PowerPC Sim Option '" + text.option + "'";
      return false;
    }
    if (bit == 2 && !general(text)) return false;
    m_now.connection = bit;
    learn(bit, 1, 6);
    return true;
  }

  bool arm_core(const Text& text, std::uint32_t variant) {
    if (text.word != "hw" || !admitted(2) || !general(text)) return false;
    m_now.connection = 2;
    learn(2, 2, variant);
    return true;
  }

  bool access_port(const Text& text) {
    if (text.word != "hw" || !general(text)) return false;
    m_now.connection = 2;
    m_now.allowed = 512;
    m_now.family = 2;
    m_now.variant = 4;
    return true;
  }

  // These targets have no connection keyword, so it is an unexpected word.
  bool bare(const Text& text) {
    if (!text.word.empty() || text.option == "stray") return false;
    if (text.option.empty()) return true;
    m_now.error = "UNKNOWN Option '" + text.option + "'";
    return false;
  }

  bool general(const Text& text) {
    if (text.option == "-foo") m_now.error = "UNKNOWN Option ''";
    return text.option.empty() || text.option == "-quiet";
  }

  bool admitted(std::uint32_t bit) const { return !m_hardware || (m_now.allowed & bit) != 0; }

  void learn(std::uint32_t bit, std::uint32_t family, std::uint32_t variant) {
    if (m_hardware) return;
    m_now.allowed |= bit;
    m_now.family = family;
    m_now.variant = variant;
  }

  bool m_hardware;
  bool m_file;
  Outcome m_now;
};

// --- The matrix ---

const std::vector<std::string> kHeads = {"connect", "qconnect", "vpconnect", "qvpconnect", "xconnect", ""};
const std::vector<std::string> kTargets = {"ov", "ppc", "arm", "r5", "odm", "dap", "dcc", "qmtc", "mips", ""};
const std::vector<std::string> kWords = {"sim", "stub", "odm", "hw", "jtag", ""};
const std::vector<std::string> kOptions = {"", "-quiet", "-foo", "stray"};
const std::vector<std::uint32_t> kAllowed = {0,  1,  2,  3,   4,   5,   6,   7,   8,   9,         10,
                                             15, 16, 32, 128, 132, 135, 143, 256, 512, 0xFFFFFFFF};

struct Kind {
  std::uint32_t family;
  std::uint32_t variant;
};
const std::vector<Kind> kKinds = {{0, 0}, {1, 2}, {2, 5}};

std::string join(const Text& text) {
  std::string line;
  for (const std::string& part : {text.head, text.target, text.word, text.option}) {
    if (!part.empty()) line += (line.empty() ? "" : " ") + part;
  }
  return line;
}

// A missing part ends the text, except a missing connection, after which an option may follow.
bool is_text(const Text& text) {
  if (text.head.empty()) return text.target.empty() && text.word.empty() && text.option.empty();
  return !text.target.empty() || (text.word.empty() && text.option.empty());
}

std::vector<Text> all_texts() {
  std::vector<Text> texts;
  for (const std::string& head : kHeads) {
    for (const std::string& target : kTargets) {
      for (const std::string& word : kWords) {
        for (const std::string& option : kOptions) {
          if (const Text text = {head, target, word, option}; is_text(text)) texts.push_back(text);
        }
      }
    }
  }
  return texts;
}

class TargetMatrix : public testing::Test {
 protected:
  // Reads a text with and without hardware, for every set of connections and every kind of processor.
  template <class Read>
  void expect_by_the_rules(const Text& text, bool file, Read read) {
    for (const bool attached : {false, true}) {
      m_selected.imp.hwManager = attached ? &m_hardware : nullptr;
      for (const std::uint32_t allowed : kAllowed) {
        for (const Kind& kind : kKinds) {
          const Outcome before = {0, 64, kind.family, kind.variant, allowed, "an older text"};
          ++m_compared;
          ASSERT_EQ(outcome(before, read), Rules(attached, file, before).apply(text))
              << join(text) << (file ? " from a file" : " from a command") << (attached ? " with" : " without")
              << " hardware, admitting " << allowed << ", family " << kind.family;
        }
      }
    }
  }

  int compared() const { return m_compared; }
  EngineImp& imp() { return m_selected.imp; }

 private:
  template <class Read>
  Outcome outcome(const Outcome& before, Read read) {
    ProcessorInfoImp& processor = m_selected.processor;
    processor.connectionType = before.connection;
    processor.procFamily = before.family;
    processor.procVariant = before.variant;
    processor.allowedConnections = before.allowed;
    imp().errorStr = before.error;
    const int status = read();
    return {status,
            processor.connectionType,
            processor.procFamily,
            processor.procVariant,
            processor.allowedConnections,
            imp().errorStr};
  }

  FakeHardware m_hardware;
  SelectedEngine m_selected;
  int m_compared = 0;
};

TEST_F(TargetMatrix, EveryCommandIsReadByTheRules) {
  for (const Text& text : all_texts()) {
    const std::string line = join(text);
    expect_by_the_rules(text, false, [&] { return QvtOption_Parser::ReadQvtCommand(line, imp()); });
    ASSERT_FALSE(HasFatalFailure());
  }
  EXPECT_EQ(compared(), (5 * 9 * 6 * 4 + 5 + 1) * 2 * 21 * 3);
}

TEST_F(TargetMatrix, EveryCommandIsReadByTheRulesInCapitals) {
  for (const Text& text : all_texts()) {
    // Options are not changed, because error texts contain them.
    std::string line = join({text.head, text.target, text.word, ""});
    for (char& c : line) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    if (!text.option.empty()) line += " " + text.option;
    expect_by_the_rules(text, false, [&] { return QvtOption_Parser::ReadQvtCommand(line, imp()); });
    ASSERT_FALSE(HasFatalFailure());
  }
}

TEST_F(TargetMatrix, EveryOptionFileIsReadByTheRules) {
  const WorkFolder folder;
  for (const Text& text : all_texts()) {
    if (text.head.empty()) continue;  // a file without a command
    WorkFolder::write(folder.option_file("p"), join(text));
    expect_by_the_rules(text, true, [&] { return QvtOption_Parser::ReadQvtOptFile("p", imp()); });
    ASSERT_FALSE(HasFatalFailure());
  }
  EXPECT_EQ(compared(), (5 * 9 * 6 * 4 + 5) * 2 * 21 * 3);
}

}  // namespace
}  // namespace SdkDebugDialog
