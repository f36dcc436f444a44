// The "-debugdevice" option.

#include <algorithm>
#include <string>

#include "model/base_address.h"
#include "model/error_text.h"
#include "model/processor_kind.h"
#include "options/groups.h"
#include "options/number.h"
#include "options/pairs.h"

namespace SdkDebugDialog {
namespace {

using P = ProcessorInfoImp;

// --- Values that are more than stored ---

// A processor that the hardware description numbered keeps its number; the text may only repeat it. The number is
// compared as the signed byte that is written.
bool read_cpunr(const Keyword& /*row*/, const KeywordAndValue& pair, const Records& to) {
  const auto number = static_cast<std::uint32_t>(to_unsigned(pair.value));
  std::uint8_t& cpuNr = to.processor->cpuNr;
  if (to.imp->hwManager != nullptr) {
    return static_cast<std::uint32_t>(static_cast<std::int8_t>(cpuNr)) == number;
  }
  cpuNr = static_cast<std::uint8_t>(number);
  return true;
}

void write_cpunr(const Keyword& row, TextOut& out, const Records& from) {
  out.put_decimal(row.name, static_cast<std::int8_t>(from.processor->cpuNr));
}

bool read_proctype(const Keyword& row, const KeywordAndValue& pair, const Records& to) {
  if (read_word(row, pair, to)) return true;
  to.processor->procVariant = kVariantOtherPowerPC;
  return false;
}

bool read_fputype(const Keyword& row, const KeywordAndValue& pair, const Records& to) {
  if (read_word(row, pair, to)) return true;
  set_error(*to.imp, "UNKNOWN Parameter '%s' for  option '%s'", std::string(pair.value).c_str(),
            std::string(pair.key).c_str());
  return false;
}

// A misaligned base stays stored, but nothing follows it.
bool read_base(const Keyword& row, const KeywordAndValue& pair, const Records& to) {
  const auto field = std::get<std::uint32_t P::*>(row.field);
  const auto address = static_cast<std::uint32_t>(to_unsigned(pair.value));
  to.processor->*field = address;
  return set_map_base(*to.imp, field, address);
}

// --- What is written ---

constexpr When kDeviceSet = {[](const Keyword&, const Records& r) { return r.processor->debugDevice != 0; },
                             "unless 0"};
constexpr When kOnLink = {[](const Keyword&, const Records& r) {
                            const std::uint32_t connection = r.processor->connectionType;
                            return connection != Engine::SIMULATOR && connection != Engine::STUB;
                          },
                          "unless the connection is simulator or stub"};
constexpr When kRomemSet = {[](const Keyword&, const Records& r) {
                              const P& p = *r.processor;
                              return p.connectionType == Engine::HARDWARE && p.romemStartAddr != kAddressNotSet &&
                                     p.romemSize != 0;
                            },
                            "hardware connection, start set and size not 0"};
constexpr When kIsocmSet = {[](const Keyword&, const Records& r) {
                              const P& p = *r.processor;
                              return p.procVariant == kVariantPpc405 && p.isocmStartAddr != kAddressNotSet;
                            },
                            "ppc405, `isocmStartAdr` set"};
constexpr When kFpu = {[](const Keyword&, const Records& r) {
                         return r.processor->procFamily == kFamilyPowerPC && r.processor->fpuType != kFpuNone;
                       },
                       "PowerPC with FPU"};

constexpr When kBaseSet = {[](const Keyword& row, const Records& r) {
                             const P& p = *r.processor;
                             return p.procFamily == kFamilyPowerPC &&
                                    p.*std::get<std::uint32_t P::*>(row.field) != kAddressNotSet;
                           },
                           "PowerPC, when set"};
constexpr When kNever = never("kept for programs");

// --- Keywords ---

constexpr Word kFpuTypes[] = {{"sp", kFpuSingle}, {"dp", kFpuDouble}};
constexpr Word kProcessorTypes[] = {{"ppc405", kVariantPpc405}, {"ppc440", kVariantPpc440}};

// A base of the debug address map.
constexpr Keyword base(Name name, std::uint32_t P::*field, const char* meaning) {
  return {
      .name = name, .kind = Kind::address, .field = field, .written = kBaseSet, .read = read_base, .meaning = meaning};
}

constexpr Keyword kKeywords[] = {
    {.name = " deviceNr ",
     .kind = Kind::number,
     .field = &P::debugDevice,
     .written = kDeviceSet,
     .meaning = "debug device in the JTAG chain; 0 for none"},
    {.name = " cpunr ",
     .kind = Kind::number,
     .field = &P::cpuNr,
     .written = kOnLink,
     .read = read_cpunr,
     .write = write_cpunr,
     .meaning = "number of the processor on its debug link",
     .initial = "1, or as in the design"},
    {.name = " romemStartAdr ",
     .kind = Kind::address,
     .field = &P::romemStartAddr,
     .written = kRomemSet,
     .meaning = "read-only memory"},
    {.name = " romemSize ",
     .kind = Kind::number,
     .field = &P::romemSize,
     .written = kRomemSet,
     .meaning = "its size",
     .unit = "bytes"},
    {.name = " isocmStartAdr ",
     .kind = Kind::address,
     .field = &P::isocmStartAddr,
     .written = kIsocmSet,
     .meaning = "on-chip instruction memory"},
    {.name = " isocmSize ",
     .kind = Kind::number,
     .field = &P::isocmSize,
     .written = kIsocmSet,
     .meaning = "its size",
     .unit = "bytes"},
    {.name = "  isocmDcrStartAdr ",
     .kind = Kind::address,
     .field = &P::isocmDcrStartAddr,
     .written = kIsocmSet,
     .meaning = "its DCR base"},
    base(" icacheStartAdr ", &P::icacheStartAddr, "instruction cache, and base of the debug address map"),
    base(" itagStartAdr ", &P::itagStartAddr, "instruction tags"),
    base(" dcacheStartAdr ", &P::dcacheStartAddr, "data cache"),
    base(" dtagStartAdr ", &P::dtagStartAddr, "data tags"),
    base(" tlbStartAdr ", &P::tlbStartAddr, "TLB"),
    base(" dcrStartAdr ", &P::dcrStartAddr, "device control registers"),
    {.name = " fpuType ",
     .kind = Kind::word,
     .field = &P::fpuType,
     .words = kFpuTypes,
     .written = kFpu,
     .read = read_fputype,
     .meaning = "single or double precision",
     .initial = "no FPU"},
    {.name = " proctype ",
     .kind = Kind::word,
     .field = &P::procVariant,
     .words = kProcessorTypes,
     .written = never("the target alone tells what the processor is"),
     .read = read_proctype,
     .meaning = "kind of PowerPC",
     .initial = "as in the design"},
    {.name = " cpu_version ", .field = &P::cpuVersion, .written = kNever, .meaning = "version of the processor"},
    {.name = " odm_version ", .field = &P::odmVersion, .written = kNever, .meaning = "version of the debug module"},
    {.name = " nCpu ",
     .kind = Kind::signedNumber,
     .field = &P::nCpu,
     .written = kNever,
     .meaning = "number of processors"},
};

}  // namespace

constinit const Group kDebugdevice = {kKeywords, "UNKNOWN Parameter '%s' for  option '-debugDevice'"};

void write_debugdevice(TextOut& out, EngineImp& imp) {
  const Records from = records_of(imp);
  if (std::ranges::none_of(kKeywords, [&](const Keyword& row) { return is_written(row, from); })) return;
  out.put(" -debugdevice");
  write_pairs(out, kKeywords, from);
}

}  // namespace SdkDebugDialog
