#include "options/keyword.h"

#include <boost/algorithm/string/predicate.hpp>
#include <locale>

namespace SdkDebugDialog {

bool same_word(std::string_view a, std::string_view b) {
  // The locale decides on single characters, so words of different lengths are never the same.
  return a.size() == b.size() && boost::iequals(a, b);
}

bool folds_ascii_only() { return std::locale() == std::locale::classic(); }

}  // namespace SdkDebugDialog
