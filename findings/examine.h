#pragma once

// Goes through a text as its reader does, and finds every mistake for which the reader refuses it.

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "findings/Report.h"
#include "findings/checks.h"
#include "options/syntax.h"

namespace SdkDebugDialog {

// A keyword with its value, or an option with its own value or without one.
struct Said {
  const Keyword* row = nullptr;
  const Option* option = nullptr;
  std::size_t group = 0;  // the number of the option in the text
  Place optionWord;
  Place word;   // the keyword, or the option
  Place value;  // empty for a flag
  std::string_view text;
};

// Something said, and where it is said again, so that it has no effect.
struct SaidTwice {
  Place optionWord;  // of the first
  Place first;
  Place again;
  const Keyword* row = nullptr;
  const Option* option = nullptr;
};

// An option that takes pairs and has none.
struct BareOption {
  const Option* option = nullptr;
  Place word;
};

// What is said in a text.
struct Examined {
  // Of every row the last time that it is said; of the devices of the chain, those of the last device that says it.
  std::vector<Said> lasts;
  std::vector<SaidTwice> twice;
  std::vector<BareOption> bare;
  std::vector<DeviceWords> devices;
  const Target* target = nullptr;
  Place targetWord;
  std::optional<Place> notReached;  // words that are not looked at
  std::optional<Place> lastCable;   // the "-cable" that ends the text, so that the reader has checked the cable

  // The last time that a row of the group is said; null if it is not.
  const Said* said(const Group& group, std::string_view name) const;
};

// Adds the errors, and what is odd about single values. What it returns is whole only if there are no errors.
Examined examine(const Subject& subject, Report& report);

}  // namespace SdkDebugDialog
