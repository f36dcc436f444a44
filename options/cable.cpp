// The "-cable" option.

#include <algorithm>
#include <boost/algorithm/string/replace.hpp>
#include <string>

#include "SdkDebugDialog/CableCatalogue.h"
#include "SdkDebugDialog/CableOption.h"
#include "model/cable_kind.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/keyword.h"

namespace SdkDebugDialog {
namespace {

// --- Cable names ---

using CableWriter = int (*)(TextOut& out, const CableOption& cable);

int write_zarvek(TextOut& out, const CableOption& cable);
int write_plugin(TextOut& out, const CableOption& cable);
int write_digilent(TextOut& out, const CableOption& cable);

// A name in the text. Where a type has several, the first one is written; without a writer a type is only read.
struct CableName {
  std::string_view name;
  Engine::CableType type;
  CableWriter write = nullptr;
};

constexpr CableName kNames[] = {
    {"zarvek_parallel", Engine::ZARVEK_PARALLEL4, write_zarvek},
    {"zarvek_parallel4", Engine::ZARVEK_PARALLEL4},
    {"zarvek_parallel3", Engine::ZARVEK_PARALLEL3, write_zarvek},
    {"zarvek_platformusb", Engine::ZARVEK_PLATFORMUSB, write_zarvek},
    {"zarvek_svffile", Engine::ZARVEK_SVFFILE},
    {"zarvek_plugin", Engine::ZARVEK_PLUGIN, write_plugin},
    {"digilent_plugin", Engine::DIGILENT_PLUGIN, write_digilent},
    {"zarvek_tcf", Engine::ZARVEK_TCF},
};

// A new type overwrites the port where the type has one, and nothing else.
int read_type(const Pair& pair, CableOption& cable, EngineImp& imp) {
  const CableName* const name = find_row<kNames>(pair.value, pair.letterCase);
  if (name == nullptr) return kError;
  if (name->type == Engine::ZARVEK_SVFFILE) {
    imp.engine->SetErrorStr("Cable Type zarvek_svffile is not supported in this release\n");
    return kError;
  }
  cable.type = name->type;
  if (const std::string_view port = cable_kind(cable.type).defaultPort; !port.empty()) cable.port = port;
  return kValue;
}

// --- Keywords ---

int read_fname(const Pair& pair, CableOption& cable, EngineImp& imp) {
  imp.currentProcessor->svfFileSet = 1;
  cable.fname = pair.value;
  return kValue;
}

int read_modulearg(const Pair& pair, CableOption& cable, EngineImp& /*imp*/) {
  if (!cable.modulearg.empty()) cable.modulearg += ';';
  cable.modulearg += pair.value;
  return kValue;
}

// Every argument is written with a keyword of its own, empty ones too; the row writes the first keyword.
void write_modulearg(TextOut::Pen& pen, const CableOption& cable) {
  pen.put(boost::replace_all_copy(cable.modulearg, ";", " modulearg "));
}

// A cable that its serial number selects is written without port and frequency.
bool has_esn(const CableOption& cable) { return !cable.esn.empty(); }
bool has_no_esn(const CableOption& cable) { return cable.esn.empty(); }
bool has_modulearg(const CableOption& cable) { return !cable.modulearg.empty(); }

using Row = Keyword<CableOption>;

constexpr Row kKeywords[] = {
    {.name = "type", .read = read_type},
    {.name = "port", .field = &CableOption::port, .written = has_no_esn},
    {.name = "frequency", .field = &CableOption::frequency, .written = has_no_esn},
    {.name = "esn", .field = &CableOption::esn, .written = has_esn},
    {.name = "modulename", .field = &CableOption::modulename, .written = always<CableOption>},
    {.name = "modulearg", .read = read_modulearg, .written = has_modulearg, .write = write_modulearg},
    {.name = "fname", .read = read_fname},
    {.name = "url", .field = &CableOption::url},
};
constexpr std::uint32_t kFrequencySeen = 1U << row_index(kKeywords, "frequency");

int write_zarvek(TextOut& out, const CableOption& cable) {
  write_pairs<kKeywords, row_index(kKeywords, "port"), row_index(kKeywords, "esn")>(out, cable);
  return kValue;
}

int write_plugin(TextOut& out, const CableOption& cable) {
  write_pairs<kKeywords, row_index(kKeywords, "modulename"), row_index(kKeywords, "modulearg")>(out, cable);
  return kValue;
}

int write_digilent(TextOut& /*out*/, const CableOption& /*cable*/) { return kValue; }

// What must hold at the end of the text; a cable that other options follow is not checked.
int check_cable(EngineImp& imp, bool useDefault) {
  const CableOption& cable = *imp.cable;
  if (cable.type == Engine::ZARVEK_SVFFILE && cable.fname.empty()) {
    imp.engine->SetErrorStr("SVF File NOT specified for Cable Type zarvek_svffile");
    return kError;
  }
  if (cable.type == Engine::ZARVEK_PLUGIN && cable.modulename.empty()) {
    imp.engine->SetErrorStr("Plug-in Module NOT specified for Cable Type zarvek_plugin");
    return kError;
  }
  return QvtOption_Parser::setcable_frequency(imp, useDefault ? 1 : 0) == kValue ? kEnd : kError;
}

}  // namespace

// --- Reading ---

int read_cable(TokenCursor& in, EngineImp& imp) {
  Reading<CableOption> reading = {*imp.cable, imp, in.letter_case()};
  const int end = read_pairs<kKeywords>(in, reading, "UNKNOWN Parameter '%s' for  option '-cable'");
  return end == kEnd ? check_cable(imp, (reading.seen & kFrequencySeen) == 0) : end;
}

int QvtOption_Parser::parse_cable(std::string& text, EngineImp& imp) { return on_text<read_cable>(text, imp); }

int QvtOption_Parser::setcable_frequency(EngineImp& imp, int useDefault) {
  CableOption& cable = *imp.cable;
  const CableKind& kind = cable_kind(cable.type);
  if (useDefault != 0) {
    cable.frequency = kind.defaultFrequency;
    return kValue;
  }
  if (std::ranges::find(kind.accepted, cable.frequency) != kind.accepted.end()) return kValue;
  if (kind.refusal != nullptr) set_error(imp, kind.refusal, static_cast<std::int32_t>(cable.frequency));
  return kError;
}

// --- Writing ---

int write_cable_section(TextOut& out, EngineImp& imp) {
  const CableOption& cable = *imp.cable;
  if (cable.type == Engine::CABLE_NONE) return kValue;
  out.put(" -cable");
  for (const CableName& name : kNames) {
    if (name.type != cable.type || name.write == nullptr) continue;
    out.put(" type ");
    out.put(name.name);
    return name.write(out, cable);
  }
  imp.engine->SetErrorStr("Invalid Cable Type");
  return kError;
}

int QvtOption_Parser::write_zarvek_cableoptions(std::string& out, const CableOption& cable) {
  return on_end<write_zarvek>(out, cable);
}

int QvtOption_Parser::write_digilent_cableoptions(std::string& out, const CableOption& cable) {
  return on_end<write_digilent>(out, cable);
}

int QvtOption_Parser::write_plugin_cableoptions(std::string& out, const CableOption& cable) {
  return on_end<write_plugin>(out, cable);
}

}  // namespace SdkDebugDialog
