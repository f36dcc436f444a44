// The "-debugdevice" option.

#include <string>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "model/processor_kind.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/keyword.h"

namespace SdkDebugDialog {
namespace {

using R = ProcessorInfoImp;
using Row = Keyword<R>;

// --- Values that are more than a number or a text ---

constexpr Word kProcessorTypes[] = {{"ppc405", kVariantPpc405}, {"ppc440", kVariantPpc440}};
constexpr Word kFpuTypes[] = {{"sp", kFpuSingle}, {"dp", kFpuDouble}};

// A processor that the hardware description numbered keeps its number; the text may only repeat it. The number is
// compared as the signed byte that is written.
int read_cpunr(const Pair& pair, R& r, EngineImp& imp) {
  const auto number = static_cast<std::uint32_t>(to_unsigned(pair.value));
  if (imp.hwManager != nullptr) {
    return static_cast<std::uint32_t>(static_cast<std::int8_t>(r.cpuNr)) == number ? kValue : kError;
  }
  r.cpuNr = static_cast<std::uint8_t>(number);
  return kValue;
}

void write_cpunr(std::string& out, const R& r) { append_decimal(out, static_cast<std::int8_t>(r.cpuNr)); }

int read_proctype(const Pair& pair, R& r, EngineImp& /*imp*/) {
  const Word* const type = find_row(kProcessorTypes, pair.value);
  r.procVariant = type != nullptr ? type->value : kVariantOtherPowerPC;
  return type != nullptr ? kValue : kError;
}

int read_fputype(const Pair& pair, R& r, EngineImp& imp) {
  const Word* const type = find_row(kFpuTypes, pair.value);
  if (type == nullptr) {
    set_error(imp, "UNKNOWN Parameter '%s' for  option '%s'", std::string(pair.value).c_str(),
              std::string(pair.key).c_str());
    return kError;
  }
  r.fpuType = type->value;
  return kValue;
}

void write_fputype(std::string& out, const R& r) { out += kFpuTypes[r.fpuType == kFpuSingle ? 0 : 1].name; }

// --- What is written ---

bool has_device(const R& r) { return r.debugDevice != 0; }
bool is_on_link(const R& r) { return r.connectionType != Engine::SIMULATOR && r.connectionType != Engine::STUB; }
bool has_romem(const R& r) {
  return r.connectionType == Engine::HARDWARE && r.romemStartAddr != kAddressNotSet && r.romemSize != 0;
}
bool has_isocm(const R& r) { return r.procVariant == kVariantPpc405 && r.isocmStartAddr != kAddressNotSet; }
bool has_fpu(const R& r) { return r.procFamily == kFamilyPowerPC && r.fpuType != kFpuNone; }

template <std::uint32_t R::*field>
bool has_base(const R& r) {
  return r.procFamily == kFamilyPowerPC && r.*field != kAddressNotSet;
}

// A base of the debug address map.
template <std::uint32_t R::*field>
constexpr Row base_row(std::string_view name, const char* what, std::uint32_t R::*mirror = nullptr) {
  return {.name = name, .field = field, .hex = true, .base = what, .mirror = mirror, .written = has_base<field>};
}

constexpr Row kKeywords[] = {
    {.name = "deviceNr", .field = &R::debugDevice, .written = has_device},
    {.name = "cpunr", .read = read_cpunr, .written = is_on_link, .write = write_cpunr},
    {.name = "romemStartAdr", .field = &R::romemStartAddr, .hex = true, .written = has_romem},
    {.name = "romemSize", .field = &R::romemSize, .written = has_romem},
    {.name = "isocmStartAdr", .field = &R::isocmStartAddr, .hex = true, .written = has_isocm},
    {.name = "isocmSize", .field = &R::isocmSize, .written = has_isocm},
    {.name = "isocmDcrStartAdr", .field = &R::isocmDcrStartAddr, .hex = true, .written = has_isocm, .gap = "  "},
    base_row<&R::icacheStartAddr>("icacheStartAdr", "Icache", &R::debugAddressMap),
    base_row<&R::itagStartAddr>("itagStartAdr", "Itag"),
    base_row<&R::dcacheStartAddr>("dcacheStartAdr", "Dcache"),
    base_row<&R::dtagStartAddr>("dtagStartAdr", "Dtag"),
    base_row<&R::tlbStartAddr>("tlbStartAdr", "TLB"),
    base_row<&R::dcrStartAddr>("dcrStartAdr", "DCR"),
    {.name = "fpuType", .read = read_fputype, .written = has_fpu, .write = write_fputype},
    {.name = "proctype", .read = read_proctype},
    {.name = "cpu_version", .field = &R::cpuVersion},
    {.name = "odm_version", .field = &R::odmVersion},
    {.name = "nCpu", .field = &R::nCpu, .isSigned = true},
};

}  // namespace

int read_debugdevice(TokenCursor& in, EngineImp& imp) {
  return read_pairs(in, kKeywords, *imp.currentProcessor, imp, "UNKNOWN Parameter '%s' for  option '-debugDevice'")
      .kind;
}

int QvtOption_Parser::parse_debugdevice(std::string& text, EngineImp& imp) {
  return read_front(text, [&](TokenCursor& in) { return read_debugdevice(in, imp); });
}

int QvtOption_Parser::write_debugdeviceoptions(std::string& out, EngineImp& imp) {
  constexpr std::string_view kName = " -debugdevice";
  const std::size_t before = out.size();
  out += kName;
  write_pairs(out, kKeywords, *imp.currentProcessor);
  if (out.size() == before + kName.size()) out.resize(before);
  return kValue;
}

}  // namespace SdkDebugDialog
