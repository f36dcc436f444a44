// How a software stub is reached: "-comm", "-port", "-baud" and "-timeout".

#include <string>

#include "model/error_text.h"
#include "options/groups.h"
#include "options/pairs.h"

namespace SdkDebugDialog {
namespace {

using P = ProcessorInfoImp;

constexpr Word kLinks[] = {{"jtag", Engine::STUB_OVER_JTAG}, {"serial", Engine::STUB_OVER_SERIAL}};
constexpr When kSerial = {
    [](const Keyword&, const Records& r) { return r.processor->stubType != Engine::STUB_OVER_JTAG; }, "serial stub"};

constexpr Keyword kKeywords[] = {
    {.name = " -comm ",
     .kind = Kind::word,
     .field = &P::stubType,
     .words = kLinks,
     .written = {kAlways.holds, "connection `stub`"}},
    {.name = " -port ", .field = &P::stubSerialPort, .written = kSerial, .meaning = "serial device"},
    {.name = "  -baud  ",
     .kind = Kind::number,
     .field = &P::stubBaudRate,
     .written = kSerial,
     .meaning = "rate",
     .unit = "baud",
     .initial = "0, not set"},
    {.name = " -timeout ",
     .kind = Kind::number,
     .field = &P::stubTimeout,
     .written = kSerial,
     .meaning = "handed to the debugger as it is"},
};

}  // namespace

// The option stands where the text says parameter, and the value where it says option.
constinit const Group kStub = {kKeywords, "UNKNOWN Parameter '%s' for  option '%s'"};

Outcome read_stub_option(std::string_view option, TokenCursor& in, EngineImp& imp) {
  std::string_view value;
  if (const Token found = in.next(value); found != Token::value) {
    return found == Token::option ? Outcome::option : Outcome::end;
  }
  const Keyword* const row = find_name(kStub.keywords, option, in.letter_case());
  if (row == nullptr) set_error(imp, kStub.unknown, std::string(option).c_str(), std::string(value).c_str());
  const bool stored = row != nullptr && read_value(*row, {option, value, in.letter_case()}, records_of(imp));
  return stored ? Outcome::done : Outcome::error;
}

bool write_stub(TextOut& out, EngineImp& imp) {
  write_pairs(out, kKeywords, records_of(imp));
  return imp.currentProcessor->stubType != Engine::STUB_OVER_JTAG || write_chain_and_device(out, imp);
}

void write_serial_stub(TextOut& out, EngineImp& imp) {
  for (const Keyword& row : std::span(kKeywords).subspan<1>()) write_pair(out, row, records_of(imp));
}

}  // namespace SdkDebugDialog
