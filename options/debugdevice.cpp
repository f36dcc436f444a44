// The "-debugdevice" option.

#include <string>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "model/base_address.h"
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
constexpr Word kSingle = {"sp", kFpuSingle};
constexpr Word kDouble = {"dp", kFpuDouble};
constexpr Word kFpuTypes[] = {kSingle, kDouble};

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

void write_cpunr(TextOut::Pen& pen, const R& r) { pen.put_decimal(static_cast<std::int8_t>(r.cpuNr)); }

int read_proctype(const Pair& pair, R& r, EngineImp& /*imp*/) {
  const Word* const type = find_row<kProcessorTypes>(pair.value, pair.letterCase);
  r.procVariant = type != nullptr ? type->value : kVariantOtherPowerPC;
  return type != nullptr ? kValue : kError;
}

int read_fputype(const Pair& pair, R& r, EngineImp& imp) {
  const Word* const type = find_row<kFpuTypes>(pair.value, pair.letterCase);
  if (type == nullptr) {
    set_error(imp, "UNKNOWN Parameter '%s' for  option '%s'", std::string(pair.value).c_str(),
              std::string(pair.key).c_str());
    return kError;
  }
  r.fpuType = type->value;
  return kValue;
}

void write_fputype(TextOut::Pen& pen, const R& r) { pen.put((r.fpuType == kFpuSingle ? kSingle : kDouble).name); }

// --- What is written ---

bool has_device(const R& r) { return r.debugDevice != 0; }
bool is_on_link(const R& r) { return r.connectionType != Engine::SIMULATOR && r.connectionType != Engine::STUB; }
bool has_romem(const R& r) {
  return r.connectionType == Engine::HARDWARE && r.romemStartAddr != kAddressNotSet && r.romemSize != 0;
}
bool has_isocm(const R& r) { return r.procVariant == kVariantPpc405 && r.isocmStartAddr != kAddressNotSet; }
bool has_fpu(const R& r) { return r.procFamily == kFamilyPowerPC && r.fpuType != kFpuNone; }

// A misaligned base stays stored, but nothing follows it.
template <MapBaseIndex base>
int read_base(const Pair& pair, R& r, EngineImp& imp) {
  const auto address = static_cast<std::uint32_t>(to_unsigned(pair.value));
  r.*kMapBases[base].field = address;
  return set_map_base(imp, kMapBases[base], address) ? kValue : kError;
}

template <MapBaseIndex base>
bool has_base(const R& r) {
  return r.procFamily == kFamilyPowerPC && r.*kMapBases[base].field != kAddressNotSet;
}

template <MapBaseIndex base>
constexpr Row base_row(std::string_view name) {
  return {
      .name = name, .field = kMapBases[base].field, .hex = true, .read = read_base<base>, .written = has_base<base>};
}

constexpr Row kKeywords[] = {
    {.name = "deviceNr", .field = &R::debugDevice, .written = has_device},
    {.name = "cpunr", .read = read_cpunr, .written = is_on_link, .write = write_cpunr},
    {.name = "romemStartAdr", .field = &R::romemStartAddr, .hex = true, .written = has_romem},
    {.name = "romemSize", .field = &R::romemSize, .written = has_romem},
    {.name = "isocmStartAdr", .field = &R::isocmStartAddr, .hex = true, .written = has_isocm},
    {.name = "isocmSize", .field = &R::isocmSize, .written = has_isocm},
    {.name = "isocmDcrStartAdr", .field = &R::isocmDcrStartAddr, .hex = true, .written = has_isocm, .gap = "  "},
    base_row<kIcache>("icacheStartAdr"),
    base_row<kItag>("itagStartAdr"),
    base_row<kDcache>("dcacheStartAdr"),
    base_row<kDtag>("dtagStartAdr"),
    base_row<kTlb>("tlbStartAdr"),
    base_row<kDcr>("dcrStartAdr"),
    {.name = "fpuType", .read = read_fputype, .written = has_fpu, .write = write_fputype},
    {.name = "proctype", .read = read_proctype},
    {.name = "cpu_version", .field = &R::cpuVersion},
    {.name = "odm_version", .field = &R::odmVersion},
    {.name = "nCpu", .field = &R::nCpu, .isSigned = true},
};

}  // namespace

int read_debugdevice(TokenCursor& in, EngineImp& imp) {
  Reading<R> reading = {*imp.currentProcessor, imp, in.letter_case()};
  return read_pairs<kKeywords>(in, reading, "UNKNOWN Parameter '%s' for  option '-debugDevice'");
}

int QvtOption_Parser::parse_debugdevice(std::string& text, EngineImp& imp) {
  return on_text<read_debugdevice>(text, imp);
}

int write_debugdevice(TextOut& out, EngineImp& imp) {
  if (!any_written<kKeywords>(*imp.currentProcessor)) return kValue;
  out.put(" -debugdevice");
  write_pairs<kKeywords>(out, *imp.currentProcessor);
  return kValue;
}

int QvtOption_Parser::write_debugdeviceoptions(std::string& out, EngineImp& imp) {
  return on_end<write_debugdevice>(out, imp);
}

}  // namespace SdkDebugDialog
