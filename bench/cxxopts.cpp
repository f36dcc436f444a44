// Reader with cxxopts. An option has one value, so all words up to the next option are passed as one: "--cable=type x".

#include <algorithm>
#include <cxxopts.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/groups.h"
#include "bench/others.h"

namespace bench {
namespace {

using Words = std::vector<std::string>;

const std::string kBlanks = " \t";

// Declared once and used for every text.
cxxopts::Options grammar() {
  cxxopts::Options options("connect");
  options.add_options()("cable", "", cxxopts::value<std::string>())("configdevice", "", cxxopts::value<std::string>())(
      "debugdevice", "", cxxopts::value<std::string>())("quiet", "")("noattach", "")("writeonly", "");
  return options;
}

Words part(std::string_view text) {
  Words words;
  for (std::size_t begin = text.find_first_not_of(kBlanks); begin != std::string_view::npos;) {
    const std::size_t end = std::min(text.find_first_of(kBlanks, begin), text.size());
    words.emplace_back(text.substr(begin, end - begin));
    begin = text.find_first_not_of(kBlanks, end);
  }
  return words;
}

bool is_option(const std::string& word) {
  return word.size() > 1 && word[0] == '-' && !(word[1] >= '0' && word[1] <= '9');
}

// Joins each option with its words, and converts option names to lower case: cxxopts is case-sensitive.
Words join_groups(Words words) {
  Words arguments;
  bool first = false;  // the next word is the first after an option
  for (std::string& word : words) {
    if (is_option(word)) {
      std::ranges::transform(word, word.begin(),
                             [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
      arguments.push_back("-" + word);
      first = true;
    } else if (arguments.empty() || !arguments.back().starts_with("--")) {
      arguments.push_back(std::move(word));
    } else {
      arguments.back().append(1, std::exchange(first, false) ? '=' : ' ').append(word);
    }
  }
  return arguments;
}

}  // namespace

bool read_with_cxxopts(const std::string& text, Settings& settings) {
  static cxxopts::Options options = grammar();
  const Words arguments = join_groups(part(text));
  std::vector<const char*> argv = {"connect"};
  for (const std::string& argument : arguments) argv.push_back(argument.c_str());
  try {
    const cxxopts::ParseResult parsed = options.parse(static_cast<int>(argv.size()), argv.data());
    if (!take_head(parsed.unmatched(), settings)) return false;
    for (const cxxopts::KeyValue& option : parsed.arguments()) {
      bool understood = true;
      if (option.key() == "cable") {
        understood = take_pairs(part(option.value()), take_cable, settings);
      } else if (option.key() == "configdevice") {
        settings.chain.emplace_back();
        understood = take_pairs(part(option.value()), take_device, settings);
      } else if (option.key() == "debugdevice") {
        understood = take_pairs(part(option.value()), take_debug_device, settings);
      }
      if (!understood) return false;
    }
    return true;
  } catch (const cxxopts::exceptions::exception&) {
    return false;
  }
}

}  // namespace bench
