// The JTAG chain: the "-configdevice" option, and texts of cable and chain alone.

#include <memory>
#include <string>

#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/JtagOption.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/keyword.h"
#include "options/option_loop.h"

namespace SdkDebugDialog {
namespace {

int read_jtagport(const Pair& pair, JtagOption& /*device*/, EngineImp& imp) {
  imp.cpuJtag = pair.letterCase.same(pair.value, "cpu") ? 1 : 0;
  return imp.cpuJtag == 1 ? kValue : kError;
}

int read_hardppc(const Pair& pair, JtagOption& device, EngineImp& /*imp*/) {
  device.hardppc = pair.letterCase.same(pair.value, "ppc405") ? 1 : 2;
  return kValue;
}

using Row = Keyword<JtagOption>;

constexpr Row kKeywords[] = {
    {.name = "devicenr", .field = &JtagOption::devicenr, .written = always<JtagOption>},
    {.name = "partname", .field = &JtagOption::partname, .written = always<JtagOption>},
    {.name = "irlength", .field = &JtagOption::irlength, .written = always<JtagOption>},
    {.name = "idcode", .field = &JtagOption::idcode, .hex = true, .written = always<JtagOption>},
    {.name = "jtagport", .read = read_jtagport},
    {.name = "isfpga", .field = &JtagOption::isfpga},
    {.name = "hardppc", .read = read_hardppc},
    {.name = "nppc", .field = &JtagOption::nppc},
};

constexpr Option kCableAndChain[] = {
    {.name = "-debugdevice", .group = read_debugdevice},
    {.name = "-cable", .group = read_cable},
    {.name = "-configdevice", .group = read_configdevice},
    {.name = "-bscan", .argument = read_bscan},
};

}  // namespace

// --- One device ---

int read_configdevice(TokenCursor& in, EngineImp& imp) {
  auto device = std::make_unique_for_overwrite<JtagOption>();
  Reading<JtagOption> reading = {*device, imp, in.letter_case()};
  const int end = read_pairs<kKeywords>(in, reading, "UNKNOWN Parameter '%s' for option '-configDevice'");
  if (reading.refused) return kError;
  // A device whose last key lacks its value joins the chain all the same.
  imp.jtagChain.push_back(device.get());
  device.release();  // NOLINT(bugprone-unused-return-value): the chain's holder releases it
  return end;
}

int QvtOption_Parser::parse_configdevice(std::string& text, EngineImp& imp) {
  return on_text<read_configdevice>(text, imp);
}

int write_cable_and_chain(TextOut& out, EngineImp& imp) {
  if (const int refused = write_cable_section(out, imp); refused != kValue) return refused;
  write_bscan(out, imp);
  // This form is not read back: the reader knows the pair "jtagport cpu".
  if (imp.cpuJtag == 1) out.put(" -configdevice jtagpin cpujtag");
  for (const JtagOption* const device : imp.jtagChain) {
    out.put(" -configdevice");
    write_pairs<kKeywords>(out, *device);
  }
  return kValue;
}

int QvtOption_Parser::write_jtagoptions(std::string& out, EngineImp& imp) {
  return on_end<write_cable_and_chain>(out, imp);
}

int write_chain_and_device(TextOut& out, EngineImp& imp) {
  if (const int refused = write_cable_and_chain(out, imp); refused != kValue) return refused;
  return write_debugdevice(out, imp);
}

// --- Cable and chain alone ---

int QvtOption_Parser::ReadJtagCableOptions(std::string& text, EngineImp& imp) {
  return read_front(text, [&](TokenCursor& in) {
    const int end = read_options<kCableAndChain>(in, imp, "UNKNOWN Option '%s'", UnknownName::lastToken);
    return end == kEnd ? kValue : kNotUnderstood;
  });
}

namespace {

int write_cable_text(TextOut& out, EngineImp& imp) {
  if (write_cable_and_chain(out, imp) != kValue) return kCannotBeWritten;
  if (imp.currentProcessor->debugDevice != 0) {
    out.put(" -debugdevice deviceNr ");
    out.put_decimal(imp.currentProcessor->debugDevice);
  }
  return kValue;
}

}  // namespace

int QvtOption_Parser::WriteJtagCableOptionsString(EngineImp& imp, std::string& out) {
  return on_end<write_cable_text>(out, imp);
}

}  // namespace SdkDebugDialog
