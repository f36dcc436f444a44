// Which options there are, where each may stand, and the reading of a run of them.

#include <algorithm>
#include <string>

#include "model/error_text.h"
#include "options/groups.h"
#include "options/pairs.h"

namespace SdkDebugDialog {
namespace {

using Takes = Option::Takes;

// --- How options are read ---

Outcome read_group(const Option& option, TokenCursor& in, std::string_view /*typed*/, EngineImp& imp) {
  return read_pairs(in, option.group, records_of(imp)).outcome;
}

// syntax_test sees to it that the option has a row.
Outcome store_value(const Option& option, const KeywordAndValue& pair, EngineImp& imp) {
  return read_value(*value_row(option), pair, records_of(imp)) ? Outcome::done : Outcome::error;
}

Outcome read_one(const Option& option, TokenCursor& in, std::string_view typed, EngineImp& imp) {
  const bool orNone = option.takes == Takes::valueOrNone || option.takes == Takes::tokenOrNone;
  const bool any = option.takes == Takes::token || option.takes == Takes::tokenOrNone;
  std::string_view value;
  const Token found = in.next(value);
  if (found == Token::value || (any && found == Token::option)) {
    return store_value(option, {typed, value, in.letter_case()}, imp);
  }
  if (!orNone) return Outcome::error;
  return found == Token::option ? Outcome::option : Outcome::end;
}

Outcome read_flag(const Option& option, TokenCursor& in, std::string_view typed, EngineImp& imp) {
  return store_value(option, {typed, "1", in.letter_case()}, imp);
}

// The simulator takes all options that follow, so that the run around it ends with it.
Outcome read_sim(const Option& option, TokenCursor& in, std::string_view typed, EngineImp& imp) {
  read_flag(option, in, typed, imp);
  return read_options(in, imp, kHdlSimOptions) ? Outcome::end : Outcome::error;
}

// --- Options that are on or off ---

constexpr When kForgotten = never("accepted and forgotten");

constexpr Keyword kFlagKeywords[] = {
    {.name = "-quiet", .kind = Kind::flag, .written = kForgotten},
    {.name = "-noattach", .kind = Kind::flag, .written = kForgotten},
    {.name = "-writeonly", .kind = Kind::flag, .written = kForgotten},
    {.name = "-uart",
     .kind = Kind::flag,
     .field = &ProcessorInfoImp::uartEnabled,
     .written = never("`odm` and `dcc` are written as other targets, which do not take it")},
    {.name = "-sim",
     .kind = Kind::flag,
     .field = &ProcessorInfoImp::modelSimEnabled,
     .written = never("the writer has no text for it")},
};

// --- All options ---

constexpr unsigned kGeneral = kGeneralOptions.bit;
constexpr unsigned kOdm = kOdmOptions.bit;
constexpr unsigned kDcc = kDccOptions.bit;
constexpr unsigned kQmtc = kQmtcOptions.bit;
constexpr unsigned kInSoftSim = kSoftSimOptions.bit;
constexpr unsigned kInPpcSim = kPpcSimOptions.bit;
constexpr unsigned kInHdlSim = kHdlSimOptions.bit;
constexpr unsigned kPlatform = kPlatformOptions.bit;
constexpr unsigned kCableText = kCableTextOptions.bit;

// In the order in which they are written; of those that are never written "-sim", which takes all that follow, comes
// last.
constexpr Option kOptions[] = {
    {"-comm", kGeneral, Takes::valueOrNone, kStub, read_one, "how the stub is reached"},
    {"-port", kGeneral, Takes::valueOrNone, kStub, read_one, "serial stub: device"},
    {"-baud", kGeneral, Takes::valueOrNone, kStub, read_one, "serial stub: rate"},
    {"-timeout", kGeneral, Takes::valueOrNone, kStub, read_one, "stub: time-out"},
    {"-cable", kGeneral | kOdm | kDcc | kQmtc | kCableText, Takes::pairs, kCable, read_cable, "download cable"},
    {"-bscan", kGeneral | kOdm | kCableText, Takes::value, kBscan, read_one, "JTAG user register of the debug module"},
    {"-configdevice", kGeneral | kOdm | kQmtc | kInHdlSim | kCableText, Takes::pairs, kConfigdevice, read_configdevice,
     "a device of the JTAG chain"},
    {"-debugdevice", kGeneral | kOdm | kDcc | kQmtc | kInPpcSim | kCableText, Takes::pairs, kDebugdevice, read_group,
     "debug device, processor, memories"},
    {"-uart", kOdm | kDcc, Takes::nothing, kFlags, read_flag, "UART of the target"},
    {"-pfsl", kGeneral, Takes::pairs, kPfsl, read_group, "checked, no effect"},
    {"-quiet", kGeneral, Takes::nothing, kFlags, read_flag, "accepted, no effect"},
    {"-noattach", kGeneral, Takes::nothing, kFlags, read_flag, "accepted, no effect"},
    {"-writeonly", kGeneral, Takes::nothing, kFlags, read_flag, "accepted, no effect"},
    {"-sim", kGeneral, Takes::ownRun, kFlags, read_sim, "hardware-description-language simulator"},
    {"-ipcport", kInHdlSim, Takes::tokenOrNone, kHdlSim, read_one, "host and port of the hardware simulator"},
    {"-memsize", kInSoftSim, Takes::token, kSoftSim, read_one, "soft-processor simulator: memory"},
    {"-icf", kInPpcSim, Takes::tokenOrNone, kPpcSim, read_one, "PowerPC simulator: configuration file"},
    {"-ipcport", kInPpcSim, Takes::tokenOrNone, kPpcSim, read_one, "host and port of the PowerPC simulator"},
    {"-config", kPlatform, Takes::value, kVirtualPlatform, read_one, "virtual platform: accuracy"},
    {"-ipcport", kPlatform, Takes::value, kVirtualPlatform, read_one, "host and port of the virtual platform"},
};

}  // namespace

constinit const Group kFlags = {kFlagKeywords};

std::span<const Option> options() { return kOptions; }

const Keyword* value_row(const Option& option) {
  const auto row = std::ranges::find(option.group.keywords, option.name.text(),
                                     [](const Keyword& keyword) { return keyword.name.text(); });
  return row != option.group.keywords.end() ? &*row : nullptr;
}

// --- Reading ---

const Option* find_option(std::string_view word, const Run& run, const LetterCase& letterCase) {
  const Bytes bytes = bytes_of(word);
  for (const Option& option : kOptions) {
    if ((option.runs & run.bit) != 0 && option.name.is(word, bytes, letterCase)) return &option;
  }
  return nullptr;
}

bool read_options(TokenCursor& in, EngineImp& imp, const Run& run) {
  std::string_view token;
  std::string_view lastToken;
  Token found = in.next(token);
  while (found == Token::option) {
    // The option may have been read by the group before it.
    const std::string_view typed = in.option();
    const Option* const option = find_option(typed, run, in.letter_case());
    if (option == nullptr) {
      set_error(imp, run.unknown, std::string(run.naming == Run::byName ? typed : lastToken).c_str());
      return false;
    }
    const Outcome outcome = option->read(*option, in, typed, imp);
    if (outcome == Outcome::error) return false;
    if (option->takes == Takes::pairs || option->takes == Takes::ownRun) {
      found = outcome == Outcome::option ? Token::option : Token::end;
    } else {
      found = in.next(lastToken);
    }
  }
  return found == Token::end;
}

}  // namespace SdkDebugDialog
