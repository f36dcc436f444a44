// The "-pfsl" option of the soft processor: checked, forgotten, and so never written.

#include <string>

#include "model/error_text.h"
#include "options/groups.h"
#include "options/pairs.h"

namespace SdkDebugDialog {
namespace {

constexpr Word kLinkTypes[] = {{"m"}, {"s"}, {"ms"}};

bool read_link_type(const Keyword& row, const KeywordAndValue& pair, const Records& to) {
  if (find_name(row.words, pair.value, pair.letterCase) != nullptr) return true;
  set_error(*to.imp, "UNKNOWN Parameter '%s' for  option 'type'", std::string(pair.value).c_str());
  return false;
}

constexpr When kNever = never("checked and forgotten");

constexpr Keyword kKeywords[] = {
    {.name = " port ", .written = kNever},
    {.name = " type ", .kind = Kind::word, .words = kLinkTypes, .written = kNever, .read = read_link_type},
};

}  // namespace

constinit const Group kPfsl = {kKeywords, "UNKNOWN Parameter '%s' for  option '-pfsl'"};

}  // namespace SdkDebugDialog
