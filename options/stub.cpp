// How a software stub is reached: "-comm", "-port", "-baud" and "-timeout".

#include <string>

#include "SdkDebugDialog/Engine.h"
#include "SdkDebugDialog/EngineImp.h"
#include "SdkDebugDialog/ProcessorInfo.h"
#include "options/QvtOption_Parser.h"
#include "options/groups.h"
#include "options/keyword.h"

namespace SdkDebugDialog {
namespace {

using R = ProcessorInfoImp;

constexpr Word kJtag = {"jtag", Engine::STUB_OVER_JTAG};
constexpr Word kSerial = {"serial", Engine::STUB_OVER_SERIAL};
constexpr Word kLinks[] = {kJtag, kSerial};

int read_comm(const Pair& pair, R& r, EngineImp& /*imp*/) {
  const Word* const link = find_row<kLinks>(pair.value, pair.letterCase);
  if (link == nullptr) return kError;
  r.stubType = link->value;
  return kValue;
}

// The rate has always stood behind two blanks.
void write_baud(TextOut::Pen& pen, const R& r) {
  pen.put(" ");
  pen.put_decimal(r.stubBaudRate);
}

constexpr Keyword<R> kOptions[] = {
    {.name = "-comm", .read = read_comm},
    {.name = "-port", .field = &R::stubSerialPort, .written = always<R>},
    {.name = "-baud", .field = &R::stubBaudRate, .written = always<R>, .write = write_baud, .gap = "  "},
    {.name = "-timeout", .field = &R::stubTimeout, .written = always<R>},
};

}  // namespace

int read_stub_option(TokenCursor& in, std::string_view option, EngineImp& imp) {
  std::string_view value;
  if (const int kind = in.next(value); kind != kValue) return kind;
  Reading<R> reading = {*imp.currentProcessor, imp, in.letter_case()};
  if (const int result = read_pair<kOptions>(option, value, reading); result != kOtherKey) return result;
  // The option stands where the text says parameter, and the value where it says option.
  set_error(imp, "UNKNOWN Parameter '%s' for  option '%s'", std::string(option).c_str(), std::string(value).c_str());
  return kError;
}

int QvtOption_Parser::parse_commoptions(std::string& text, std::string option, EngineImp& imp) {
  return read_front(text, [&](TokenCursor& in) { return read_stub_option(in, option, imp); });
}

void write_comm(TextOut& out, const EngineImp& imp) {
  out.put(" -comm ");
  out.put((imp.currentProcessor->stubType == Engine::STUB_OVER_JTAG ? kJtag : kSerial).name);
}

int write_serial_stub(TextOut& out, EngineImp& imp) {
  write_pairs<kOptions>(out, *imp.currentProcessor);
  return kValue;
}

int QvtOption_Parser::write_commoptions(std::string& out, EngineImp& imp) {
  return on_end<write_serial_stub>(out, imp);
}

}  // namespace SdkDebugDialog
