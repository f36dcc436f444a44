#pragma once

// The syntax of the connect command as data: everything that can be said in it, for readers and writers, for tests and
// for the documents that are made from it. The tables themselves stand beside the readers and writers of their subject.

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "SdkDebugDialog/CableOption.h"
#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "options/Name.h"
#include "options/Outcome.h"
#include "options/TextOut.h"
#include "options/TokenCursor.h"

namespace SdkDebugDialog {

// What a group is read into and written from: those of an engine, and the device of a group that describes one.
struct Records {
  EngineImp* imp = nullptr;
  ProcessorInfoImp* processor = nullptr;
  CableOption* cable = nullptr;
  JtagOption* device = nullptr;
};
inline Records records_of(EngineImp& imp, JtagOption* device = nullptr) {
  return {&imp, imp.currentProcessor, imp.cable, device};
}

// --- Values ---

// A value that is one of a few words.
struct Word {
  Name name;
  std::uint32_t value = 0;
};

// The kind of a value; how it is typed, and how it is written.
enum class Kind {
  flag,    // an option without a value
  number,  // as unsigned; decimal, written as a signed number
  signedNumber,
  hexadecimal,
  address,  // hexadecimal; kAddressNotSet stands for "not set"
  text,
  word,         // one of the words of the row
  hostAndPort,  // "host:port"
};

struct Keyword;

// When something is written: the condition, and the same in words. Without a condition it is never written, and the
// words say why. The rows "type" of a cable and "jtagport" are written by the writers of their groups, which know when.
struct When {
  bool (*holds)(const Keyword& row, const Records& records) = nullptr;
  const char* words = "";
};
inline constexpr When kAlways = {[](const Keyword&, const Records&) { return true; }, "always"};
constexpr When never(const char* why) { return {nullptr, why}; }

// The field that a value is stored in.
using Field = std::variant<std::monostate, std::int8_t ProcessorInfoImp::*, std::uint8_t ProcessorInfoImp::*,
                           std::int32_t ProcessorInfoImp::*, std::uint32_t ProcessorInfoImp::*,
                           std::string ProcessorInfoImp::*, std::uint32_t CableOption::*, std::string CableOption::*,
                           std::int8_t JtagOption::*, std::uint32_t JtagOption::*, std::string JtagOption::*>;

// A keyword with its value, as met in the text.
struct KeywordAndValue {
  std::string_view key;
  std::string_view value;
  const LetterCase& letterCase;
};

// A keyword of a group, or an option that has one value. Rows of a group stand in the order in which they are written.
struct Keyword {
  Name name;
  Kind kind = Kind::text;
  Field field = {};
  std::span<const Word> words = {};
  When written;

  // Only where a value is not simply stored, or not written as its kind tells. read answers whether it is accepted.
  bool (*read)(const Keyword& row, const KeywordAndValue& pair, const Records& to) = nullptr;
  void (*write)(const Keyword& row, TextOut& out, const Records& from) = nullptr;

  // For people, with `text` as in Markdown; so are the words of When.
  const char* meaning = "";
  const char* unit = "";
  const char* initial = "";      // the default, where a new record does not tell
  const char* notReadBack = "";  // why what is written is not read back, or not with the same meaning
  bool repeats = false;          // it can be given several times, and each value counts
};

// Keywords that belong together: those of the pairs that follow an option, or options with one value each.
struct Group {
  std::span<const Keyword> keywords;
  const char* unknown = "";  // error text for any other keyword, which is its %s
};

extern const Group kCable;
extern const Group kConfigdevice;
extern const Group kDebugdevice;
extern const Group kPfsl;
extern const Group kBscan;
extern const Group kStub;
extern const Group kFlags;
extern const Group kSoftSim;
extern const Group kPpcSim;
extern const Group kHdlSim;
extern const Group kVirtualPlatform;

// --- Options ---

// Where options may stand one after the other.
struct Run {
  // What an unknown option is called in the error text.
  enum Naming {
    byName,
    byLastToken,  // by the last token that the run read itself, which after a group is an older one, or none
  };

  unsigned bit;
  const char* where;    // for people, with `text` as in Markdown
  const char* unknown;  // error text for an option that is not known there, which is its %s
  Naming naming = byName;
};
inline constexpr const char* kUnknownOption = "UNKNOWN Option '%s'";
inline constexpr Run kGeneralOptions = {1U << 0, "general", kUnknownOption, Run::byLastToken};
inline constexpr Run kOdmOptions = {1U << 1, "`odm`", kUnknownOption};
inline constexpr Run kDccOptions = {1U << 2, "`dcc`", kUnknownOption};
inline constexpr Run kQmtcOptions = {1U << 3, "`qmtc`", kUnknownOption};
inline constexpr Run kSoftSimOptions = {1U << 4, "`ov sim`", ""};  // a single one, and no text
inline constexpr Run kPpcSimOptions = {1U << 5, "`ppc sim`", "UNKNOWN  PowerPC Sim Option '%s'"};
inline constexpr Run kHdlSimOptions = {1U << 6, "after `-sim`", "UNKNOWN  ModelSim Option '%s'"};
inline constexpr Run kPlatformOptions = {1U << 7, "`vpconnect ov`", "UNKNOWN virtual platform Option '%s'"};
inline constexpr Run kCableTextOptions = {1U << 8, "cable and chain alone", kUnknownOption, Run::byLastToken};
inline constexpr const Run* kRuns[] = {
    &kGeneralOptions, &kOdmOptions,    &kDccOptions,      &kQmtcOptions,      &kSoftSimOptions,
    &kPpcSimOptions,  &kHdlSimOptions, &kPlatformOptions, &kCableTextOptions,
};

struct Option {
  // What follows the option, and what it means if that is missing.
  enum class Takes {
    nothing,
    value,        // a value; an error without it
    valueOrNone,  // a value; what stands in its place is skipped with the option
    token,        // the next token, an option too; an error without it
    tokenOrNone,  // the next token, an option too; nothing is stored without it
    pairs,
    ownRun,  // options of its own up to the end of the text
  };

  Name name;
  unsigned runs;  // the bits of those that it may stand in
  Takes takes;
  // The keywords of its pairs; otherwise a group with a row of the option's name, which describes its value.
  const Group& group;
  // Gets the option as it was typed.
  Outcome (*read)(const Option& option, TokenCursor& in, std::string_view typed, EngineImp& imp);
  const char* meaning;  // for people
};
std::span<const Option> options();

// --- Heads and targets ---

struct Head {
  Name name;
  bool virtualPlatform;  // the head of the virtual platform's commands
  bool inFile;           // an option file may begin with it; a command may begin with any
  bool written;          // our own spelling
};
std::span<const Head> heads();

// A connection keyword of a target.
struct Connection {
  Name name;
  Engine::ConnectionType type;
  const Run& options;  // that follow
  bool (*write)(TextOut& out, EngineImp& imp);
  const char* meaning;  // for people
};

inline constexpr std::uint32_t kNoKind = 0xFFFFFFFFU;

struct Target {
  Name name;
  const char* meaning;  // for people
  bool virtualPlatform = false;
  bool inFile = true;
  std::span<const Connection> connections = {};
  const Run* options = nullptr;    // that follow at once where there are no connection keywords
  std::uint32_t admits = 0;        // the Engine::ConnectionType that the processor then admits, and no other
  std::uint32_t family = kNoKind;  // what the processor then is; see model/processor_kind.h
  std::uint32_t variant = kNoKind;

  // What follows the target's name. False for an error.
  bool (*read)(const Target& target, TokenCursor& in, EngineImp& imp);
  // Writes the processors of this family, or the virtual platform, target name included. False for an error. Of several
  // targets of one family the first one counts.
  bool (*write)(const Target& target, TextOut& out, EngineImp& imp) = nullptr;
  const char* invalidConnection = "";  // error text for a connection that is not listed
};
std::span<const Target> targets();

// --- Cables ---

struct CableType {
  Engine::CableType type = Engine::CABLE_NONE;
  std::span<const Name> names = {};              // the first one is written
  std::string_view defaultPort = {};             // empty: reading the type leaves the port as it is
  std::uint32_t defaultFrequency = 0;            // Hz
  std::span<const std::uint32_t> accepted = {};  // frequencies in Hz that pass the check; none: the check never passes
  std::span<const std::uint32_t> offered = {};   // frequencies in Hz that users are shown
  const char* refusal = nullptr;                 // error text for any other frequency, which is its %d
  const char* notRead = nullptr;                 // error text where the type is known and refused
  std::span<const Keyword* const> writes = {};   // the keywords that are written, in this order
  const char* notWritten = nullptr;              // why a cable of this type cannot be written; null: it can
};
std::span<const CableType> cable_types();
// The row of a type; any other value has a row without a name, default or frequency.
const CableType& cable_type(Engine::CableType type);

}  // namespace SdkDebugDialog
