#pragma once

// Where the value of a setting comes from.

#include <SdkDebugDialog/Configuration.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace qvtcfg {

// A run of words of the text, in bytes.
struct Words {
  std::size_t begin = 0;
  std::size_t end = 0;
};

struct Origin {
  enum class Kind {
    words,       // of the option file
    otherWords,  // those of another setting, which this one follows
    design,
    cable,  // the cable's default
    initial,
  };
  Kind kind = Kind::initial;
  const SdkDebugDialog::Setting* other = nullptr;  // for otherWords
  std::vector<Words> words;                        // in the order of the text
};

// The origins of all settings, in the order of settings(); the text is the content of the option file.
std::vector<Origin> origins(const SdkDebugDialog::Configuration& configuration, std::string_view text);

}  // namespace qvtcfg
