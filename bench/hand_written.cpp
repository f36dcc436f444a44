#include "bench/hand_written.h"

#include <algorithm>
#include <charconv>

namespace bench {
namespace {

constexpr char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

// --- Numbers ---

template <class Number>
Number number(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  int base = 10;
  if (text.size() > 1 && text[0] == '0') {
    const bool hex = text[1] == 'x' || text[1] == 'X';
    base = hex ? 16 : 8;
    text.remove_prefix(hex ? 2 : 1);
  }
  std::uint64_t value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value, base);
  return static_cast<Number>(negative ? 0 - value : value);
}

// The bases of the debug address map must be multiples of 64 KB.
bool take_base(std::string_view text, std::uint32_t& base) {
  base = number<std::uint32_t>(text);
  return (base & 0xFFFFU) == 0;
}

// --- Words ---

struct CableName {
  std::string_view name;
  CableType type;
  std::string_view port;
};

constexpr CableName kCables[] = {
    {"zarvek_platformusb", CableType::platformusb, "USB21"},
    {"zarvek_parallel", CableType::parallel4, "LPT1"},
    {"zarvek_parallel4", CableType::parallel4, "LPT1"},
    {"zarvek_parallel3", CableType::parallel3, "LPT1"},
    {"zarvek_plugin", CableType::plugin, {}},
    {"digilent_plugin", CableType::digilent, {}},
    {"zarvek_tcf", CableType::tcf, {}},
};

bool take_cable_type(std::string_view word, Cable& cable) {
  const auto* const row = std::ranges::find_if(kCables, [&](const CableName& c) { return same(word, c.name); });
  if (row == std::end(kCables)) return false;
  cable.type = row->type;
  if (!row->port.empty()) cable.port = row->port;
  return true;
}

bool take_bscan(std::string_view word, Settings& settings) {
  constexpr std::pair<std::string_view, std::uint32_t> kRegisters[] = {
      {"user1", 2}, {"user2", 3}, {"user3", 34}, {"user4", 35}};
  const auto* const row = std::ranges::find_if(kRegisters, [&](const auto& r) { return same(word, r.first); });
  if (row == std::end(kRegisters)) return false;
  settings.bscanPort = row->second;
  return true;
}

// --- Tokens and options ---

class Words {
 public:
  explicit Words(std::string_view text) : m_at(text.data()), m_end(text.data() + text.size()) {}

  // Empty at the end of the text.
  std::string_view next() {
    while (m_at != m_end && is_blank(*m_at)) ++m_at;
    const char* const begin = m_at;
    while (m_at != m_end && !is_blank(*m_at)) ++m_at;
    return {begin, static_cast<std::size_t>(m_at - begin)};
  }

 private:
  static bool is_blank(char c) { return c == ' ' || c == '\t'; }

  const char* m_at;
  const char* m_end;
};

bool is_option(std::string_view word) {
  return word.size() > 1 && word[0] == '-' && !(word[1] >= '0' && word[1] <= '9');
}

// Takes pairs up to the next option or the end of the text; word is then this option, or empty.
template <TakePair take>
bool take_pairs(Words& words, std::string_view& word, Settings& settings) {
  for (word = words.next(); !word.empty() && !is_option(word); word = words.next()) {
    const std::string_view value = words.next();
    if (value.empty() || is_option(value) || !take(word, value, settings)) return false;
  }
  return true;
}

bool read_options(Words& words, Settings& settings) {
  std::string_view word = words.next();
  while (!word.empty()) {
    bool understood = false;
    if (same(word, "-cable")) {
      understood = take_pairs<take_cable>(words, word, settings);
    } else if (same(word, "-configdevice")) {
      settings.chain.emplace_back();
      understood = take_pairs<take_device>(words, word, settings);
    } else if (same(word, "-debugdevice")) {
      understood = take_pairs<take_debug_device>(words, word, settings);
    } else if (same(word, "-bscan")) {
      understood = take_bscan(words.next(), settings);
      word = words.next();
    } else if (same(word, "-quiet") || same(word, "-noattach") || same(word, "-writeonly")) {
      understood = true;
      word = words.next();
    }
    if (!understood) return false;
  }
  return true;
}

// --- Writing ---

template <class Number>
void append_number(std::string& out, Number value, int base = 10) {
  char digits[16];
  const auto result = std::to_chars(digits, digits + sizeof digits, value, base);
  out.append(digits, result.ptr);
}

std::string_view cable_name(CableType type) { return std::ranges::find(kCables, type, &CableName::type)->name; }

void append_address(std::string& out, std::string_view key, std::uint32_t address) {
  out += key;
  append_number(out, address, 16);
}

void append_powerpc(std::string& out, const Settings& settings) {
  if (settings.icacheStart != kNotSet) append_address(out, " icacheStartAdr 0x", settings.icacheStart);
  if (settings.itagStart != kNotSet) append_address(out, " itagStartAdr 0x", settings.itagStart);
  if (settings.dcacheStart != kNotSet) append_address(out, " dcacheStartAdr 0x", settings.dcacheStart);
  if (settings.dtagStart != kNotSet) append_address(out, " dtagStartAdr 0x", settings.dtagStart);
  if (settings.tlbStart != kNotSet) append_address(out, " tlbStartAdr 0x", settings.tlbStart);
  if (settings.dcrStart != kNotSet) append_address(out, " dcrStartAdr 0x", settings.dcrStart);
  if (settings.fpuType != 0) out += settings.fpuType == 1 ? " fpuType sp" : " fpuType dp";
}

}  // namespace

bool same(std::string_view text, std::string_view lowerCaseWord) {
  return text.size() == lowerCaseWord.size() &&
         std::equal(text.begin(), text.end(), lowerCaseWord.begin(), [](char a, char b) { return lower(a) == b; });
}

bool take_target(std::string_view target, Settings& settings) {
  if (same(target, "ov")) {
    settings.family = Family::soft;
  } else if (same(target, "ppc")) {
    settings.family = Family::powerpc;
  } else if (same(target, "arm")) {
    settings.family = Family::arm;
  } else {
    return false;
  }
  return true;
}

bool take_connection(std::string_view connection, Settings& settings) {
  if (same(connection, settings.family == Family::soft ? "odm" : "hw")) {
    settings.connection = Connection::hardware;
  } else if (same(connection, "sim")) {
    settings.connection = Connection::simulator;
  } else {
    return false;
  }
  return true;
}

bool take_cable(std::string_view key, std::string_view value, Settings& settings) {
  Cable& cable = settings.cable;
  if (same(key, "type")) return take_cable_type(value, cable);
  if (same(key, "port")) {
    cable.port = value;
  } else if (same(key, "frequency")) {
    cable.frequency = number<std::uint32_t>(value);
  } else if (same(key, "esn")) {
    cable.esn = value;
  } else if (same(key, "fname")) {
    cable.fname = value;
  } else if (same(key, "modulename")) {
    cable.modulename = value;
  } else if (same(key, "modulearg")) {
    if (!cable.modulearg.empty()) cable.modulearg += ';';
    cable.modulearg += value;
  } else if (same(key, "url")) {
    cable.url = value;
  } else {
    return false;
  }
  return true;
}

bool take_device(std::string_view key, std::string_view value, Settings& settings) {
  Device& device = settings.chain.back();
  if (same(key, "devicenr")) {
    device.devicenr = number<std::int8_t>(value);
  } else if (same(key, "partname")) {
    device.partname = value;
  } else if (same(key, "irlength")) {
    device.irlength = number<std::int8_t>(value);
  } else if (same(key, "idcode")) {
    device.idcode = number<std::uint32_t>(value);
  } else if (same(key, "isfpga")) {
    device.isfpga = number<std::int8_t>(value);
  } else if (same(key, "hardppc")) {
    device.hardppc = same(value, "ppc405") ? 1 : 2;
  } else if (same(key, "nppc")) {
    device.nppc = number<std::int8_t>(value);
  } else if (same(key, "jtagport") && same(value, "cpu")) {
    settings.cpuJtag = true;
  } else {
    return false;
  }
  return true;
}

bool take_debug_device(std::string_view key, std::string_view value, Settings& settings) {
  if (same(key, "devicenr")) {
    settings.debugDevice = number<std::int8_t>(value);
  } else if (same(key, "cpunr")) {
    settings.cpuNr = number<std::uint8_t>(value);
  } else if (same(key, "romemstartadr")) {
    settings.romemStart = number<std::uint32_t>(value);
  } else if (same(key, "romemsize")) {
    settings.romemSize = number<std::uint32_t>(value);
  } else if (same(key, "isocmstartadr")) {
    settings.isocmStart = number<std::uint32_t>(value);
  } else if (same(key, "isocmsize")) {
    settings.isocmSize = number<std::uint32_t>(value);
  } else if (same(key, "isocmdcrstartadr")) {
    settings.isocmDcrStart = number<std::uint32_t>(value);
  } else if (same(key, "icachestartadr")) {
    return take_base(value, settings.icacheStart);
  } else if (same(key, "itagstartadr")) {
    return take_base(value, settings.itagStart);
  } else if (same(key, "dcachestartadr")) {
    return take_base(value, settings.dcacheStart);
  } else if (same(key, "dtagstartadr")) {
    return take_base(value, settings.dtagStart);
  } else if (same(key, "tlbstartadr")) {
    return take_base(value, settings.tlbStart);
  } else if (same(key, "dcrstartadr")) {
    return take_base(value, settings.dcrStart);
  } else if (same(key, "fputype")) {
    settings.fpuType = same(value, "sp") ? 1 : 2;
  } else if (same(key, "cpu_version")) {
    settings.cpuVersion = value;
  } else if (same(key, "odm_version")) {
    settings.odmVersion = value;
  } else if (same(key, "ncpu")) {
    settings.nCpu = number<std::int32_t>(value);
  } else {
    return false;
  }
  return true;
}

bool read_by_hand(std::string_view text, Settings& settings) {
  Words words(text);
  if (!same(words.next(), "connect") || !take_target(words.next(), settings) ||
      !take_connection(words.next(), settings)) {
    return false;
  }
  if (settings.connection != Connection::simulator) return read_options(words, settings);
  const std::string_view option = words.next();
  if (same(option, "-memsize")) settings.memSize = number<std::uint32_t>(words.next());
  return option.empty() || same(option, "-memsize");
}

std::string write_by_hand(const Settings& settings) {
  std::string out = "connect ";
  out += settings.family == Family::soft ? "ov " : "ppc ";
  if (settings.connection == Connection::simulator) return out += "sim";
  out += settings.family == Family::soft ? "odm" : "hw";
  if (settings.cable.type != CableType::none) {
    out += " -cable type ";
    out += cable_name(settings.cable.type);
    if (settings.cable.esn.empty()) {
      out += " port ";
      out += settings.cable.port;
      out += " frequency ";
      append_number(out, settings.cable.frequency);
    } else {
      out += " esn ";
      out += settings.cable.esn;
    }
  }
  if (settings.bscanPort == 2) out += " -bscan USER1";
  for (const Device& device : settings.chain) {
    out += " -configdevice devicenr ";
    append_number(out, static_cast<int>(device.devicenr));
    out += " partname ";
    out += device.partname;
    out += " irlength ";
    append_number(out, static_cast<int>(device.irlength));
    out += " idcode 0x";
    append_number(out, device.idcode, 16);
  }
  out += " -debugdevice";
  if (settings.debugDevice != 0) {
    out += " deviceNr ";
    append_number(out, static_cast<int>(settings.debugDevice));
  }
  out += " cpunr ";
  append_number(out, static_cast<int>(settings.cpuNr));
  if (settings.romemStart != kNotSet && settings.romemSize != 0) {
    append_address(out, " romemStartAdr 0x", settings.romemStart);
    out += " romemSize ";
    append_number(out, settings.romemSize);
  }
  if (settings.family == Family::powerpc) append_powerpc(out, settings);
  return out;
}

}  // namespace bench
