// The "-bscan" option: the JTAG user register of the debug module.

#include "options/groups.h"
#include "options/pairs.h"

namespace SdkDebugDialog {
namespace {

constexpr Word kRegisters[] = {{"USER1", 2}, {"USER2", 3}, {"USER3", 34}, {"USER4", 35}};
constexpr When kUser1 = {[](const Keyword&, const Records& r) { return r.processor->bscanPort == kRegisters[0].value; },
                         "`USER1` only; `USER3` and `USER4` are lost"};

constexpr Keyword kKeywords[] = {
    {.name = " -bscan ",
     .kind = Kind::word,
     .field = &ProcessorInfoImp::bscanPort,
     .words = kRegisters,
     .written = kUser1},
};

}  // namespace

constinit const Group kBscan = {kKeywords};

void write_bscan(TextOut& out, EngineImp& imp) { write_pairs(out, kKeywords, records_of(imp)); }

}  // namespace SdkDebugDialog
