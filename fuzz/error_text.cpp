#include "fuzz/error_text.h"

#include <algorithm>
#include <boost/algorithm/string/predicate.hpp>
#include <cstddef>
#include <iterator>
#include <string>

namespace {

constexpr std::size_t kLongest = 2047;  // longer texts are cut

// The text before and after the part that is copied from the command.
struct Form {
  std::string_view before;
  std::string_view after = {};
};

constexpr Form kReading[] = {
    {"UNKNOWN Option '", "'"},
    {"UNKNOWN  PowerPC Sim Option '", "'"},
    {"UNKNOWN  ModelSim Option '", "'"},
    {"UNKNOWN virtual platform Option '", "'"},
    {"UNKNOWN Parameter '", "' for  option '-cable'"},
    {"UNKNOWN Parameter '", "' for option '-configDevice'"},
    {"UNKNOWN Parameter '", "' for  option '-debugDevice'"},
    {"UNKNOWN Parameter '", "' for  option '-pfsl'"},
    {"UNKNOWN Parameter '", "' for  option 'type'"},
    {"UNKNOWN Parameter '", "' for  option 'fpuType'"},
    {"UnSupported Zarvek Parallel3 Cable Frequency - ", "\n\t Supported Frequencies: 200000"},
    {"UnSupported Zarvek Parallel4 Cable Frequency - ", "\n Supported Frequencies: 200000, 625000, 2500000, 5000000"},
    {"UnSupported Zarvek PlatformUSB Cable Frequency - ",
     "\nSupported Frequencies: 750000, 1500000, 3000000, 6000000, 12000000, 24000000"},
    {"UnSupported Zarvek TCF Cable Frequency - ",
     "\nSupported Frequencies: 750000, 1500000, 3000000, 6000000, 10000000, 12000000, 15000000, 20000000, 24000000, "
     "30000000"},
};

constexpr std::string_view kReadingWhole[] = {
    "Icache Start Address should be aligned at 64k boundry",
    "Dcache Start Address should be aligned at 64k boundry",
    "Itag Start Address should be aligned at 64k boundry",
    "Dtag Start Address should be aligned at 64k boundry",
    "TLB Start Address should be aligned at 64k boundry",
    "DCR Start Address should be aligned at 64k boundry",
    "Plug-in Module NOT specified for Cable Type zarvek_plugin",
    "Cable Type zarvek_svffile is not supported in this release\n",
};

constexpr std::string_view kWriting[] = {
    "Invalid Connect Type for Ovrin Target",
    "Invalid Connect Type for PowerPC Target",
    "Invalid Cable Type",
};

bool has_form(std::string_view text, const Form& form) {
  if (!text.starts_with(form.before)) return false;
  if (text.size() == kLongest) return true;
  // Keywords in the text have the case in which they were typed.
  return text.size() >= form.before.size() + form.after.size() &&
         boost::iequals(text.substr(text.size() - form.after.size()), form.after);
}

}  // namespace

bool is_reading_error(std::string_view text) {
  if (text.size() > kLongest || text.find('\0') != text.npos) return false;
  return std::ranges::find(kReadingWhole, text) != std::end(kReadingWhole) ||
         std::ranges::any_of(kReading, [&](const Form& form) { return has_form(text, form); });
}

bool is_writing_error(std::string_view text) { return std::ranges::find(kWriting, text) != std::end(kWriting); }
