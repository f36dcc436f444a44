// The JTAG chain: the "-configdevice" option.

#include <algorithm>
#include <memory>
#include <string>

#include "options/groups.h"
#include "options/pairs.h"

namespace SdkDebugDialog {
namespace {

bool read_jtagport(const Keyword& row, const KeywordAndValue& pair, const Records& to) {
  to.imp->cpuJtag = find_name(row.words, pair.value, pair.letterCase) != nullptr ? 1 : 0;
  return to.imp->cpuJtag == 1;
}

// Any word but ppc405 is another core.
bool read_hardppc(const Keyword& row, const KeywordAndValue& pair, const Records& to) {
  to.device->hardppc = find_name(row.words, pair.value, pair.letterCase) != nullptr ? 1 : 2;
  return true;
}

constexpr Word kPorts[] = {{"cpu", 1}};
constexpr Word kHardCores[] = {{"ppc405", 1}};
constexpr When kNever = never("kept for programs");

constexpr Keyword kKeywords[] = {
    {.name = " devicenr ",
     .kind = Kind::number,
     .field = &JtagOption::devicenr,
     .written = kAlways,
     .meaning = "position in the chain"},
    {.name = " partname ", .field = &JtagOption::partname, .written = kAlways},
    {.name = " irlength ",
     .kind = Kind::number,
     .field = &JtagOption::irlength,
     .written = kAlways,
     .meaning = "length of the instruction register",
     .unit = "bits"},
    {.name = " idcode ",
     .kind = Kind::hexadecimal,
     .field = &JtagOption::idcode,
     .written = kAlways,
     .meaning = "JTAG IDCODE"},
    {.name = " isfpga ",
     .kind = Kind::number,
     .field = &JtagOption::isfpga,
     .written = kNever,
     .meaning = "not 0 for an FPGA"},
    {.name = " hardppc ",
     .kind = Kind::word,
     .field = &JtagOption::hardppc,
     .words = kHardCores,
     .written = kNever,
     .read = read_hardppc,
     .meaning = "hard PowerPC core; any other text stands for another core"},
    {.name = " nppc ",
     .kind = Kind::number,
     .field = &JtagOption::nppc,
     .written = kNever,
     .meaning = "number of hard PowerPC cores"},
    {.name = " jtagport ",
     .kind = Kind::word,
     .words = kPorts,
     .written = {kAlways.holds, "when set, as `-configdevice jtagpin cpujtag`"},
     .read = read_jtagport,
     .meaning = "the processor is reached through its own JTAG pins",
     .initial = "not set",
     .notReadBack = "written as `jtagpin cpujtag`, which the reader does not know"},
};
// "jtagport" is written once for the chain, not for a device.
constexpr auto kOfDevice = std::span(kKeywords).first<std::size(kKeywords) - 1>();
constexpr auto kWritten = kOfDevice.first<4>();
static_assert(std::ranges::none_of(kOfDevice.subspan<4>(),
                                   [](const Keyword& row) { return row.written.holds != nullptr; }),
              "rows that are written for a device come first");

constexpr Name kOption = " -configdevice";

}  // namespace

constinit const Group kConfigdevice = {kKeywords, "UNKNOWN Parameter '%s' for option '-configDevice'"};

Outcome read_configdevice(const Option& /*option*/, TokenCursor& in, std::string_view /*typed*/, EngineImp& imp) {
  auto device = std::make_unique_for_overwrite<JtagOption>();
  const PairsRead read = read_pairs(in, kConfigdevice, records_of(imp, device.get()));
  if (read.refused) return Outcome::error;
  // A device whose last keyword lacks its value joins the chain all the same.
  imp.jtagChain.push_back(device.get());
  device.release();  // NOLINT(bugprone-unused-return-value): the chain's holder releases it
  return read.outcome;
}

bool write_cable_and_chain(TextOut& out, EngineImp& imp) {
  if (!write_cable(out, imp)) return false;
  write_bscan(out, imp);
  if (imp.cpuJtag == 1) {
    out.put_name(kOption);
    out.put(kOwnPinsWritten);
  }
  for (JtagOption* const device : imp.jtagChain) {
    out.put_name(kOption);
    write_pairs(out, kWritten, {.device = device});
  }
  return true;
}

bool write_chain_and_device(TextOut& out, EngineImp& imp) {
  if (!write_cable_and_chain(out, imp)) return false;
  write_debugdevice(out, imp);
  return true;
}

}  // namespace SdkDebugDialog
