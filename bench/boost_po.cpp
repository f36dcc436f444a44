// Reader with Boost.Program_options. It uses the list of parsed options, in the order of the text, and no
// variables_map.

#include <boost/program_options.hpp>
#include <string>
#include <vector>

#include "bench/groups.h"
#include "bench/others.h"

namespace bench {
namespace {

namespace po = boost::program_options;

using Words = std::vector<std::string>;

struct Grammar {
  po::options_description options;
  po::positional_options_description positional;

  Grammar() {
    options.add_options()("head", po::value<Words>()->multitoken())("cable", po::value<Words>()->multitoken())(
        "configdevice", po::value<Words>()->multitoken())("debugdevice", po::value<Words>()->multitoken())("quiet", "")(
        "noattach", "")("writeonly", "");
    positional.add("head", -1);
  }
};

}  // namespace

bool read_with_boost(const std::string& text, Settings& settings) {
  static const Grammar grammar;
  constexpr int kStyle = po::command_line_style::allow_long | po::command_line_style::allow_long_disguise |
                         po::command_line_style::long_allow_next | po::command_line_style::long_case_insensitive;
  try {
    Words head;
    const auto parsed = po::command_line_parser(po::split_unix(text, " \t", "", ""))
                            .options(grammar.options)
                            .positional(grammar.positional)
                            .style(kStyle)
                            .run();
    for (const po::option& option : parsed.options) {
      bool understood = true;
      if (option.string_key == "head") {
        head.insert(head.end(), option.value.begin(), option.value.end());
      } else if (option.string_key == "cable") {
        understood = take_pairs(option.value, take_cable, settings);
      } else if (option.string_key == "configdevice") {
        settings.chain.emplace_back();
        understood = take_pairs(option.value, take_device, settings);
      } else if (option.string_key == "debugdevice") {
        understood = take_pairs(option.value, take_debug_device, settings);
      }
      if (!understood) return false;
    }
    return take_head(head, settings);
  } catch (const po::error&) {
    return false;
  }
}

}  // namespace bench
