// The "-cable" option and the types of cables.

#include <algorithm>
#include <boost/algorithm/string/replace.hpp>
#include <string>

#include "model/error_text.h"
#include "options/groups.h"
#include "options/pairs.h"

namespace SdkDebugDialog {
namespace {

// --- Keywords ---

bool read_type(const Keyword& row, const KeywordAndValue& pair, const Records& to);

bool read_fname(const Keyword& /*row*/, const KeywordAndValue& pair, const Records& to) {
  to.processor->svfFileSet = 1;
  to.cable->fname = pair.value;
  return true;
}

bool read_modulearg(const Keyword& /*row*/, const KeywordAndValue& pair, const Records& to) {
  std::string& arguments = to.cable->modulearg;
  if (!arguments.empty()) arguments += ';';
  arguments += pair.value;
  return true;
}

// Every argument is written with a keyword of its own, empty ones too.
void write_modulearg(const Keyword& row, TextOut& out, const Records& from) {
  out.put_name(row.name);
  out.put(boost::replace_all_copy(from.cable->modulearg, ";", row.name.written()));
}

constexpr When kWithoutEsn = {[](const Keyword&, const Records& r) { return r.cable->esn.empty(); },
                              "for some types, unless `esn` is set"};
constexpr When kWithEsn = {[](const Keyword&, const Records& r) { return !r.cable->esn.empty(); },
                           "for some types, when set"};
constexpr When kPlugin = {kAlways.holds, "for some types"};
constexpr When kWithArguments = {[](const Keyword&, const Records& r) { return !r.cable->modulearg.empty(); },
                                 "for some types, when set; one `modulearg` for each"};

constexpr Keyword kKeywords[] = {
    {.name = " type ",
     .kind = Kind::word,
     .written = {kAlways.holds, "if the type can be written"},
     .read = read_type,
     .meaning = "type of the cable",
     .initial = "no cable"},
    {.name = " port ",
     .field = &CableOption::port,
     .written = kWithoutEsn,
     .meaning = "where the cable is plugged in",
     .initial = "that of the type"},
    {.name = " frequency ",
     .kind = Kind::number,
     .field = &CableOption::frequency,
     .written = kWithoutEsn,
     .meaning = "JTAG clock",
     .unit = "Hz",
     .initial = "that of the type"},
    {.name = " esn ",
     .field = &CableOption::esn,
     .written = kWithEsn,
     .meaning = "serial number that selects one cable"},
    {.name = " modulename ",
     .field = &CableOption::modulename,
     .written = kPlugin,
     .meaning = "module of a plug-in cable"},
    {.name = " modulearg ",
     .field = &CableOption::modulearg,
     .written = kWithArguments,
     .read = read_modulearg,
     .write = write_modulearg,
     .meaning = "an argument of the module; may come several times",
     .repeats = true},
    {.name = " fname ",
     .field = &CableOption::fname,
     .written = never("no type is written with it"),
     .read = read_fname,
     .meaning = "output file"},
    {.name = " url ", .field = &CableOption::url, .written = never("no type is written with it")},
};

// A row by its name; what names none does not compile.
consteval const Keyword* row(std::string_view name) {
  const Keyword* found = kKeywords;
  while (found->name.text() != name) ++found;
  return found;
}

// --- Types ---

constexpr std::uint32_t kParallel4Hz[] = {200000, 625000, 2500000, 5000000};
constexpr std::uint32_t kParallel3Hz[] = {200000};
constexpr std::uint32_t kPlatformUsbHz[] = {750000, 1500000, 3000000, 6000000, 12000000, 24000000};
constexpr std::uint32_t kTcfHz[] = {125000,  250000,  500000,  750000,   1000000,  1500000,  2000000,  3000000, 4000000,
                                    5000000, 6000000, 7500000, 10000000, 12000000, 15000000, 24000000, 30000000};

constexpr Name kParallel4Names[] = {"zarvek_parallel", "zarvek_parallel4"};
constexpr Name kParallel3Names[] = {"zarvek_parallel3"};
constexpr Name kPlatformUsbNames[] = {"zarvek_platformusb"};
constexpr Name kSvfFileNames[] = {"zarvek_svffile"};
constexpr Name kPluginNames[] = {"zarvek_plugin"};
constexpr Name kDigilentNames[] = {"digilent_plugin"};
constexpr Name kTcfNames[] = {"zarvek_tcf"};

// A cable that its serial number selects is written without port and frequency.
constexpr const Keyword* kZarvekWrites[] = {row("port"), row("frequency"), row("esn")};
constexpr const Keyword* kPluginWrites[] = {row("modulename"), row("modulearg")};

// The refusal texts list what they have always listed: that of the TCF cable differs from what is accepted.
constexpr CableType kTypes[] = {
    {.type = Engine::ZARVEK_PARALLEL4,
     .names = kParallel4Names,
     .defaultPort = "LPT1",
     .defaultFrequency = 5000000,
     .accepted = kParallel4Hz,
     .offered = kParallel4Hz,
     .refusal = "UnSupported Zarvek Parallel4 Cable Frequency - %d\n"
                " Supported Frequencies: 200000, 625000, 2500000, 5000000",
     .writes = kZarvekWrites},
    {.type = Engine::ZARVEK_PARALLEL3,
     .names = kParallel3Names,
     .defaultPort = "LPT1",
     .defaultFrequency = 200000,
     .accepted = kParallel3Hz,
     .offered = kParallel3Hz,
     .refusal = "UnSupported Zarvek Parallel3 Cable Frequency - %d\n"
                "\t Supported Frequencies: 200000",
     .writes = kZarvekWrites},
    {.type = Engine::ZARVEK_PLATFORMUSB,
     .names = kPlatformUsbNames,
     .defaultPort = "USB21",
     .defaultFrequency = 6000000,
     .accepted = kPlatformUsbHz,
     .offered = kPlatformUsbHz,
     .refusal = "UnSupported Zarvek PlatformUSB Cable Frequency - %d\n"
                "Supported Frequencies: 750000, 1500000, 3000000, 6000000, 12000000, 24000000",
     .writes = kZarvekWrites},
    {.type = Engine::ZARVEK_TCF,
     .names = kTcfNames,
     .accepted = kTcfHz,
     .refusal = "UnSupported Zarvek TCF Cable Frequency - %d\n"
                "Supported Frequencies: 750000, 1500000, 3000000, 6000000, 10000000, 12000000, 15000000, 20000000, "
                "24000000, 30000000",
     .notWritten = "the writer has no text for this type"},
    {.type = Engine::ZARVEK_PLUGIN, .names = kPluginNames, .writes = kPluginWrites},
    {.type = Engine::DIGILENT_PLUGIN, .names = kDigilentNames},
    {.type = Engine::ZARVEK_SVFFILE,
     .names = kSvfFileNames,
     .notRead = "Cable Type zarvek_svffile is not supported in this release\n",
     .notWritten = "the type is not supported"},
};

constexpr CableType kNoCable = {.notWritten = "there is no such type"};

// A new type overwrites the port where the type has one, and nothing else.
bool read_type(const Keyword& /*row*/, const KeywordAndValue& pair, const Records& to) {
  const Bytes bytes = bytes_of(pair.value);
  for (const CableType& type : kTypes) {
    const auto named = [&](const Name& name) { return name.is(pair.value, bytes, pair.letterCase); };
    if (std::ranges::none_of(type.names, named)) continue;
    if (type.notRead != nullptr) {
      to.imp->engine->SetErrorStr(type.notRead);
      return false;
    }
    to.cable->type = type.type;
    if (!type.defaultPort.empty()) to.cable->port = type.defaultPort;
    return true;
  }
  return false;
}

}  // namespace

constinit const Group kCable = {kKeywords, "UNKNOWN Parameter '%s' for  option '-cable'"};

std::span<const CableType> cable_types() { return kTypes; }

const CableType& cable_type(Engine::CableType type) {
  const auto* const found = std::ranges::find(kTypes, type, &CableType::type);
  return found != std::end(kTypes) ? *found : kNoCable;
}

// --- Reading ---

bool set_frequency(EngineImp& imp, bool useDefault) {
  CableOption& cable = *imp.cable;
  const CableType& type = cable_type(cable.type);
  if (useDefault) {
    cable.frequency = type.defaultFrequency;
    return true;
  }
  if (std::ranges::find(type.accepted, cable.frequency) != type.accepted.end()) return true;
  if (type.refusal != nullptr) set_error(imp, type.refusal, static_cast<std::int32_t>(cable.frequency));
  return false;
}

bool check_cable(EngineImp& imp, bool hasFrequency) {
  const CableOption& cable = *imp.cable;
  if (cable.type == Engine::ZARVEK_SVFFILE && cable.fname.empty()) {
    imp.engine->SetErrorStr("SVF File NOT specified for Cable Type zarvek_svffile");
    return false;
  }
  if (cable.type == Engine::ZARVEK_PLUGIN && cable.modulename.empty()) {
    imp.engine->SetErrorStr("Plug-in Module NOT specified for Cable Type zarvek_plugin");
    return false;
  }
  return set_frequency(imp, !hasFrequency);
}

Outcome read_cable(const Option& /*option*/, TokenCursor& in, std::string_view /*typed*/, EngineImp& imp) {
  const PairsRead read = read_pairs(in, kCable, records_of(imp), row("frequency"));
  if (read.outcome != Outcome::end) return read.outcome;
  return check_cable(imp, read.noted) ? Outcome::end : Outcome::error;
}

// --- Writing ---

void write_cable_keywords(TextOut& out, CableOption& cable, const CableType& type) {
  const Records from = {.cable = &cable};
  for (const Keyword* const keyword : type.writes) {
    if (is_written(*keyword, from)) write_pair(out, *keyword, from);
  }
}

bool write_cable(TextOut& out, EngineImp& imp) {
  CableOption& cable = *imp.cable;
  if (cable.type == Engine::CABLE_NONE) return true;
  out.put(" -cable");
  const CableType& type = cable_type(cable.type);
  if (type.notWritten != nullptr) {
    imp.engine->SetErrorStr("Invalid Cable Type");
    return false;
  }
  out.put_name(row("type")->name);
  out.put_name(type.names.front());
  write_cable_keywords(out, cable, type);
  return true;
}

}  // namespace SdkDebugDialog
