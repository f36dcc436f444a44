// Reader with CLI11. It needs two dashes before an option name. A vector of vectors keeps the words of a repeated
// option apart.

#include <CLI/CLI.hpp>
#include <string>
#include <utility>
#include <vector>

#include "bench/groups.h"
#include "bench/others.h"

namespace bench {
namespace {

using Words = std::vector<std::string>;

// Declared once and used for every text.
struct Grammar {
  CLI::App app;
  Words head;
  Words cable;
  Words debugDevice;
  std::vector<Words> devices;
  bool ignored = false;

  Grammar() {
    app.add_option("head", head)->required()->expected(3);
    add("--cable", cable);
    add("--configdevice", devices);
    add("--debugdevice", debugDevice);
    for (const char* name : {"--quiet", "--noattach", "--writeonly"}) app.add_flag(name, ignored)->ignore_case();
  }

  void clear() {
    head.clear();
    cable.clear();
    debugDevice.clear();
    devices.clear();
  }

 private:
  template <class Target>
  void add(const char* name, Target& target) {
    app.add_option(name, target)->ignore_case()->expected(0, CLI::detail::expected_max_vector_size);
  }
};

// Splits the text; in reverse order, as CLI11 expects.
Words part(const std::string& text) {
  Words words;
  for (std::size_t end = text.find_last_not_of(" \t"); end != std::string::npos;) {
    const std::size_t before = text.find_last_of(" \t", end);
    const std::size_t begin = before == std::string::npos ? 0 : before + 1;
    std::string word = text.substr(begin, end + 1 - begin);
    if (word.size() > 1 && word[0] == '-' && !(word[1] >= '0' && word[1] <= '9')) word.insert(word.begin(), '-');
    words.push_back(std::move(word));
    end = begin == 0 ? std::string::npos : text.find_last_not_of(" \t", begin - 1);
  }
  return words;
}

}  // namespace

bool read_with_cli11(const std::string& text, Settings& settings) {
  static Grammar grammar;
  try {
    grammar.clear();
    grammar.app.parse(part(text));
  } catch (const CLI::Error&) {
    return false;
  }
  if (!take_head(grammar.head, settings) || !take_pairs(grammar.cable, take_cable, settings) ||
      !take_pairs(grammar.debugDevice, take_debug_device, settings)) {
    return false;
  }
  for (const Words& device : grammar.devices) {
    settings.chain.emplace_back();
    if (!take_pairs(device, take_device, settings)) return false;
  }
  return true;
}

}  // namespace bench
