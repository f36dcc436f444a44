// Reader with getopt_long_only. Options have no arguments; the words between them are returned in order.

#include <getopt.h>

#include <cstring>
#include <vector>

#include "bench/hand_written.h"
#include "bench/others.h"

namespace bench {
namespace {

enum Code { kWord = 1, kCable, kDevice, kDebugDevice, kIgnored };

constexpr option kOptions[] = {
    {"cable", no_argument, nullptr, kCable},
    {"configdevice", no_argument, nullptr, kDevice},
    {"debugdevice", no_argument, nullptr, kDebugDevice},
    {"quiet", no_argument, nullptr, kIgnored},
    {"noattach", no_argument, nullptr, kIgnored},
    {"writeonly", no_argument, nullptr, kIgnored},
    {nullptr, 0, nullptr, 0},
};

// Splits the text in place, and converts option names to lower case: getopt is case-sensitive.
std::vector<char*> part(std::string& text) {
  std::vector<char*> words;
  char* state = nullptr;
  for (char* word = strtok_r(text.data(), " \t", &state); word != nullptr; word = strtok_r(nullptr, " \t", &state)) {
    if (word[0] == '-') {
      for (char* c = word; *c != '\0'; ++c) {
        if (*c >= 'A' && *c <= 'Z') *c = static_cast<char>(*c + ('a' - 'A'));
      }
    }
    words.push_back(word);
  }
  return words;
}

}  // namespace

bool read_with_getopt(const std::string& text, Settings& settings) {
  std::string copy = text;
  std::vector<char*> words = part(copy);
  if (words.size() < 3 || !same(words[0], "connect") || !take_target(words[1], settings) ||
      !take_connection(words[2], settings)) {
    return false;
  }
  words.push_back(nullptr);
  const int count = static_cast<int>(words.size()) - 3;
  char** const arguments = words.data() + 2;  // getopt skips the first one

  TakePair take = nullptr;
  const char* key = nullptr;
  opterr = 0;
  optind = 0;
  for (int code = 0; (code = getopt_long_only(count, arguments, "-", kOptions, nullptr)) != -1;) {
    if (code != kWord && key != nullptr) return false;
    switch (code) {
      case kWord:
        if (take == nullptr) return false;
        if (key == nullptr) {
          key = optarg;
        } else {
          if (!take(key, optarg, settings)) return false;
          key = nullptr;
        }
        break;
      case kCable:
        take = take_cable;
        break;
      case kDevice:
        settings.chain.emplace_back();
        take = take_device;
        break;
      case kDebugDevice:
        take = take_debug_device;
        break;
      case kIgnored:
        take = nullptr;
        break;
      default:
        return false;
    }
  }
  return key == nullptr;
}

}  // namespace bench
