// The options of the simulators: "-memsize" of the soft processor's, "-icf" and "-ipcport" of the PowerPC's, "-ipcport"
// of the hardware-description-language simulator, "-config" and "-ipcport" of the virtual platform.

#include <string>

#include "options/groups.h"
#include "options/number.h"
#include "options/pairs.h"

namespace SdkDebugDialog {
namespace {

using P = ProcessorInfoImp;

// Reads "host:port", "host:" or ":port"; an empty host is this machine, a port that is no number is 0. False, with
// nothing stored, when there is no colon.
bool read_host_and_port(std::string_view value, std::string& host, std::uint32_t& port) {
  const std::size_t colon = value.find(':');
  if (colon == std::string_view::npos) return false;
  port = static_cast<std::uint32_t>(to_decimal(value.substr(colon + 1)));
  host = colon == 0 ? "localhost" : value.substr(0, colon);
  return true;
}

// --- Soft processor ---

constexpr Keyword kSoftSimKeywords[] = {
    {.name = " -memsize ",
     .kind = Kind::number,
     .field = &P::memSize,
     .written = never("`ov sim` is written alone"),
     .meaning = "memory"},
};

// --- PowerPC ---

constexpr std::uint32_t kDefaultPpcSimPort = 6470;

bool read_ppcsim_address(const Keyword& /*row*/, const KeywordAndValue& pair, const Records& to) {
  P& p = *to.processor;
  if (!read_host_and_port(pair.value, p.simHost, p.simPort)) p.simPort = kDefaultPpcSimPort;
  return true;
}

void write_ppcsim_address(const Keyword& row, TextOut& out, const Records& from) {
  out.put_name(row.name);
  out.put(from.processor->simHost);
  out.put(":");
  out.put_decimal(static_cast<std::int32_t>(from.processor->simPort));
}

constexpr When kIcfSet = {[](const Keyword&, const Records& r) { return !r.processor->simConfigFile.empty(); },
                          "when set"};
// The configuration file has precedence over the address.
constexpr When kHostAlone = {[](const Keyword&, const Records& r) {
                               return r.processor->simConfigFile.empty() && !r.processor->simHost.empty();
                             },
                             "when a host is set and `-icf` is not"};

constexpr Keyword kPpcSimKeywords[] = {
    {.name = " -icf ", .field = &P::simConfigFile, .written = kIcfSet, .meaning = "configuration file"},
    {.name = " -ipcport ",
     .kind = Kind::hostAndPort,
     .field = &P::simHost,
     .written = kHostAlone,
     .read = read_ppcsim_address,
     .write = write_ppcsim_address,
     .meaning = "without a colon the port is 6470 and the host stays"},
};

// --- Hardware-description-language simulator ---

bool read_hdlsim_address(const Keyword& /*row*/, const KeywordAndValue& pair, const Records& to) {
  read_host_and_port(pair.value, to.processor->modelSimHost, to.processor->modelSimPort);
  return true;
}

constexpr Keyword kHdlSimKeywords[] = {
    {.name = " -ipcport ",
     .kind = Kind::hostAndPort,
     .field = &P::modelSimHost,
     .written = never("`-sim` is not written"),
     .read = read_hdlsim_address,
     .meaning = "without a colon nothing changes",
     .initial = "`localhost:9998`"},
};

// --- Virtual platform ---

constexpr std::uint32_t kDefaultPlatformPort = 2340;
constexpr Word kAccuracies[] = {{" cycle_approximate", 1}};

bool read_accuracy(const Keyword& row, const KeywordAndValue& pair, const Records& to) {
  if (!read_word(row, pair, to)) return false;
  to.processor->vpConfigured = 1;
  return true;
}

void write_accuracy(const Keyword& row, TextOut& out, const Records& from) {
  out.put_name(row.name);
  if (from.processor->vpCycleApproximate != 0) out.put_name(kAccuracies[0].name);
}

bool read_platform_address(const Keyword& /*row*/, const KeywordAndValue& pair, const Records& to) {
  P& p = *to.processor;
  if (!read_host_and_port(pair.value, p.simHost, p.simPort)) p.simPort = kDefaultPlatformPort;
  return true;
}

// Nothing stands between option, host and port.
void write_platform_address(const Keyword& row, TextOut& out, const Records& from) {
  out.put_name(row.name);
  out.put(from.processor->simHost);
  out.put_decimal(static_cast<std::int32_t>(from.processor->simPort));
}

constexpr When kConfigured = {[](const Keyword&, const Records& r) { return r.processor->vpConfigured != 0; },
                              "when set"};
constexpr When kAddressAlone = {
    [](const Keyword&, const Records& r) { return r.processor->vpConfigured == 0 && !r.processor->simHost.empty(); },
    "when a host is set and `-config` is not"};

constexpr Keyword kVirtualPlatformKeywords[] = {
    {.name = " -config",
     .kind = Kind::word,
     .field = &P::vpCycleApproximate,
     .words = kAccuracies,
     .written = kConfigured,
     .read = read_accuracy,
     .write = write_accuracy,
     .initial = "not configured",
     .notReadBack = "`-config` alone: the reader wants the word"},
    {.name = " -ipcport",
     .kind = Kind::hostAndPort,
     .field = &P::simHost,
     .written = kAddressAlone,
     .read = read_platform_address,
     .write = write_platform_address,
     .meaning = "without a colon the port is 2340 and the host stays",
     .notReadBack = "host and port are joined to the option"},
};

}  // namespace

constinit const Group kSoftSim = {kSoftSimKeywords};
constinit const Group kPpcSim = {kPpcSimKeywords};
constinit const Group kHdlSim = {kHdlSimKeywords};
constinit const Group kVirtualPlatform = {kVirtualPlatformKeywords};

bool write_ppcsim(TextOut& out, EngineImp& imp) {
  write_pairs(out, kPpcSimKeywords, records_of(imp));
  return true;
}

}  // namespace SdkDebugDialog
