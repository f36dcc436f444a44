// The "-bscan" option: the JTAG user register of the debug module.

#include "SdkDebugDialog/EngineImp.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/keyword.h"

namespace SdkDebugDialog {
namespace {

constexpr Word kRegisters[] = {{"USER1", 2}, {"USER2", 3}, {"USER3", 34}, {"USER4", 35}};
constexpr const Word& kWritten = kRegisters[0];  // the only one that is written

}  // namespace

int read_bscan(TokenCursor& in, std::string_view /*option*/, EngineImp& imp) {
  const Word* const bscan = next_row<kRegisters>(in);
  if (bscan == nullptr) return kError;
  imp.currentProcessor->bscanPort = bscan->value;
  return kValue;
}

int QvtOption_Parser::parse_odmbscan(std::string& text, EngineImp& imp) {
  return read_front(text, [&](TokenCursor& in) { return read_bscan(in, "-bscan", imp); });
}

void write_bscan(TextOut& out, const EngineImp& imp) {
  if (imp.currentProcessor->bscanPort != kWritten.value) return;
  out.put(" -bscan ");
  out.put(kWritten.name);
}

}  // namespace SdkDebugDialog
