// The entry points of the option reader and writer. They wrap the readers on a cursor and the writers on a TextOut.

#include "options/QvtOption_Parser.h"

#include <utility>

#include "SdkDebugDialog/Result.h"
#include "options/framing.h"
#include "options/groups.h"
#include "options/option_file.h"
#include "options/target.h"

namespace SdkDebugDialog {

thread_local std::string newoption_token;

namespace {

// --- Results ---

constexpr int kError = 2;

int status(Outcome outcome) {
  switch (outcome) {
    case Outcome::done:
      return 0;
    case Outcome::option:
      return 1;
    case Outcome::error:
      return kError;
    case Outcome::end:
      return 3;
  }
  return kError;
}

int status(Token found) {
  switch (found) {
    case Token::value:
      return 0;
    case Token::option:
      return 1;
    case Token::end:
      return 3;
  }
  return kError;
}

int status(bool succeeded) { return succeeded ? 0 : kError; }

int understood(bool read) { return read ? kOk : kNotUnderstood; }
int written(bool succeeded) { return succeeded ? kOk : kCannotBeWritten; }

// --- Reading ---

void keep_option(const TokenCursor& in) {
  if (!in.option().empty()) newoption_token.assign(in.option());
}

// Runs a reader; newoption_token holds the last option that it read then, however it ended. Without memory for it, the
// exception that ended the reader gives way to std::bad_alloc.
template <class Read>
auto read_and_keep_option(TokenCursor& in, Read read) {
  try {
    const auto result = read(in);
    keep_option(in);
    return result;
  } catch (...) {
    keep_option(in);
    throw;
  }
}

// Runs a reader on the front of a caller's text and leaves there what was not consumed.
template <class Read>
int read_front(std::string& text, Read read) {
  struct Front {
    explicit Front(std::string& t) : text(t), cursor(t) {}
    ~Front() { text.erase(0, text.size() - cursor.rest().size()); }
    Front(const Front&) = delete;
    Front& operator=(const Front&) = delete;
    std::string& text;
    TokenCursor cursor;
  };
  Front front(text);
  return status(read_and_keep_option(front.cursor, read));
}

int read_option(std::string& text, EngineImp& imp, std::string_view name) {
  return read_front(text, [&](TokenCursor& in) {
    const Option& option = *find_option(name, kGeneralOptions, in.letter_case());
    return option.read(option, in, name, imp);
  });
}

int read_run(std::string& text, EngineImp& imp, const Run& run) {
  return read_front(text, [&](TokenCursor& in) { return read_options(in, imp, run); });
}

int read_named_target(std::string& text, EngineImp& imp, std::string_view name) {
  const Target& named = target(name);
  return read_front(text, [&](TokenCursor& in) { return named.read(named, in, imp); });
}

// Reads the text that the current record's command holds; nothing changes it meanwhile.
int read_command(EngineImp& imp, Source source) {
  TokenCursor cursor(imp.currentProcessor->command);
  return understood(read_and_keep_option(cursor, [&](TokenCursor& in) { return read_connect(in, imp, source); }));
}

// --- Writing ---

// Runs a writer on the end of a caller's text. What it put before an error stays there.
template <class Write>
int write_end(std::string& text, Write write) {
  TextOut out(text);
  const int result = write(out);
  out.flush();
  return result;
}

// Nothing is changed on failure but the error text.
int write_command(EngineImp& imp, std::string& text) {
  // What a device takes up as a rule; a long chain's text is not moved time and again while it grows.
  constexpr std::size_t kDevice = 80;
  if (!imp.jtagChain.empty()) text.reserve((imp.jtagChain.size() + 4) * kDevice);
  return write_end(text, [&](TextOut& out) { return written(write_connect(out, imp)); });
}

int write_target_named(std::string& text, EngineImp& imp, const Target& named) {
  return write_end(text, [&](TextOut& out) { return status(named.write(named, out, imp)); });
}

int write_cable_of_type(std::string& text, CableOption cable, Engine::CableType type) {
  return write_end(text, [&](TextOut& out) {
    write_cable_keywords(out, cable, cable_type(type));
    return 0;
  });
}

}  // namespace

// --- Tokens ---

int QvtOption_Parser::get_token(std::string& input, std::string& token) {
  return read_front(input, [&](TokenCursor& in) {
    std::string_view found;
    if (!in.cut(found)) return Token::end;
    token.assign(found);
    return in.classify(found);
  });
}

int QvtOption_Parser::get_tokenpair(std::string& input, std::string& key, std::string& value) {
  if (const int found = get_token(input, key); found != status(Token::value)) return found;
  return status(get_token(input, value) == status(Token::value));
}

// --- Whole texts ---

int QvtOption_Parser::ReadQvtOptFile(std::string processorName, EngineImp& imp) {
  std::string line = read_option_line(processorName);
  if (line.empty()) return kNoOptionFile;
  imp.currentProcessor->command = std::move(line);
  return read_command(imp, Source::file);
}

int QvtOption_Parser::ReadQvtCommand(std::string command, EngineImp& imp) {
  imp.currentProcessor->command = std::move(command);
  return read_command(imp, Source::command);
}

int QvtOption_Parser::WriteQvtCmdString(EngineImp& imp, std::string& command) {
  std::string text;
  if (const int result = write_command(imp, text); result != kOk) return result;
  imp.currentProcessor->command = text;
  command = std::move(text);
  return kOk;
}

int QvtOption_Parser::WriteQvtOptFile(EngineImp& imp) {
  std::string text;
  if (const int result = write_command(imp, text); result != kOk) return result;
  imp.currentProcessor->command = std::move(text);
  if (write_option_file(imp.currentProcessor->name, imp.currentProcessor->command)) return kOk;
  imp.engine->SetErrorStr("Error Opening File");
  return kFileNotWritten;
}

int QvtOption_Parser::ReadJtagCableOptions(std::string& text, EngineImp& imp) {
  return understood(read_run(text, imp, kCableTextOptions) == 0);
}

int QvtOption_Parser::WriteJtagCableOptionsString(EngineImp& imp, std::string& out) {
  return write_end(out, [&](TextOut& end) {
    if (!write_cable_and_chain(end, imp)) return kCannotBeWritten;
    if (imp.currentProcessor->debugDevice != 0) {
      end.put(" -debugdevice deviceNr ");
      end.put_decimal(imp.currentProcessor->debugDevice);
    }
    return kOk;
  });
}

// --- Targets ---

int QvtOption_Parser::parse_ovoptions(std::string& text, EngineImp& imp) { return read_named_target(text, imp, "ov"); }
int QvtOption_Parser::parse_odmoptions(std::string& text, EngineImp& imp) {
  return read_named_target(text, imp, "odm");
}
int QvtOption_Parser::parse_ppcoptions(std::string& text, EngineImp& imp) {
  return read_named_target(text, imp, "ppc");
}
int QvtOption_Parser::parse_armoptions(std::string& text, EngineImp& imp) {
  return read_named_target(text, imp, "arm");
}
int QvtOption_Parser::parse_armr5options(std::string& text, EngineImp& imp) {
  return read_named_target(text, imp, "r5");
}
int QvtOption_Parser::parse_dapoptions(std::string& text, EngineImp& imp) {
  return read_named_target(text, imp, "dap");
}
int QvtOption_Parser::parse_dccoptions(std::string& text, EngineImp& imp) {
  return read_named_target(text, imp, "dcc");
}
int QvtOption_Parser::parse_qmtcoptions(std::string& text, EngineImp& imp) {
  return read_named_target(text, imp, "qmtc");
}

int QvtOption_Parser::parse_vpoptions(std::string& text, EngineImp& imp) {
  return read_front(text, [&](TokenCursor& in) { return read_target(in, imp, Source::command, true); });
}

int QvtOption_Parser::parse_ppcsim_options(std::string& text, EngineImp& imp) {
  return read_run(text, imp, kPpcSimOptions);
}

int QvtOption_Parser::write_ovoptions(std::string& out, EngineImp& imp) {
  return write_target_named(out, imp, target("ov"));
}

int QvtOption_Parser::write_ppcoptions(std::string& out, EngineImp& imp) {
  return write_target_named(out, imp, target("ppc"));
}

int QvtOption_Parser::write_vpoptions(std::string& out, EngineImp& imp) {
  out = "vpconnect";
  return write_target_named(out, imp, target("ov", true));
}

int QvtOption_Parser::write_ppcsim_options(std::string& out, EngineImp& imp) {
  return write_end(out, [&](TextOut& end) { return status(write_ppcsim(end, imp)); });
}

// --- Option groups ---

int QvtOption_Parser::parse_options(std::string& text, EngineImp& imp) { return read_run(text, imp, kGeneralOptions); }
int QvtOption_Parser::parse_cable(std::string& text, EngineImp& imp) { return read_option(text, imp, "-cable"); }
int QvtOption_Parser::parse_configdevice(std::string& text, EngineImp& imp) {
  return read_option(text, imp, "-configdevice");
}
int QvtOption_Parser::parse_debugdevice(std::string& text, EngineImp& imp) {
  return read_option(text, imp, "-debugdevice");
}
int QvtOption_Parser::parse_ovfsloptions(std::string& text, EngineImp& imp) { return read_option(text, imp, "-pfsl"); }
int QvtOption_Parser::parse_modelsim_options(std::string& text, EngineImp& imp) {
  return read_option(text, imp, "-sim");
}
int QvtOption_Parser::parse_odmbscan(std::string& text, EngineImp& imp) { return read_option(text, imp, "-bscan"); }

int QvtOption_Parser::parse_commoptions(std::string& text, std::string option, EngineImp& imp) {
  return read_front(text, [&](TokenCursor& in) { return read_stub_option(option, in, imp); });
}

int QvtOption_Parser::write_jtagoptions(std::string& out, EngineImp& imp) {
  return write_end(out, [&](TextOut& end) { return status(write_cable_and_chain(end, imp)); });
}

int QvtOption_Parser::write_debugdeviceoptions(std::string& out, EngineImp& imp) {
  return write_end(out, [&](TextOut& end) {
    write_debugdevice(end, imp);
    return 0;
  });
}

int QvtOption_Parser::write_commoptions(std::string& out, EngineImp& imp) {
  return write_end(out, [&](TextOut& end) {
    write_serial_stub(end, imp);
    return 0;
  });
}

int QvtOption_Parser::write_ovfsloptions(std::string& /*out*/, EngineImp& /*imp*/) { return 0; }

int QvtOption_Parser::write_zarvek_cableoptions(std::string& out, const CableOption& cable) {
  return write_cable_of_type(out, cable, Engine::ZARVEK_PLATFORMUSB);
}

int QvtOption_Parser::write_digilent_cableoptions(std::string& out, const CableOption& cable) {
  return write_cable_of_type(out, cable, Engine::DIGILENT_PLUGIN);
}

int QvtOption_Parser::write_plugin_cableoptions(std::string& out, const CableOption& cable) {
  return write_cable_of_type(out, cable, Engine::ZARVEK_PLUGIN);
}

int QvtOption_Parser::setcable_frequency(EngineImp& imp, int useDefault) {
  return status(set_frequency(imp, useDefault != 0));
}

}  // namespace SdkDebugDialog
