#include "platform/json_text.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <new>
#include <stdexcept>
#include <utility>

// A namespace of its own for the parser: a program that links this library may use another version of it.
#define RAPIDJSON_NAMESPACE SdkDebugDialog_rapidjson
#define RAPIDJSON_ASSERT(holds) ((holds) ? void() : throw std::logic_error(#holds))
#ifdef __clang__
// The parser does pointer arithmetic on a null pointer before its first allocation, which the sanitizer reports.
#pragma clang attribute push(__attribute__((no_sanitize("pointer-overflow"))), apply_to = function)
#endif
#include <rapidjson/reader.h>
#ifdef __clang__
#pragma clang attribute pop
#endif

namespace SdkDebugDialog {
namespace {

namespace rapidjson = SdkDebugDialog_rapidjson;

// --- The parser ---

// Throws std::bad_alloc, because the parser does not check the result of an allocation.
struct Allocator : rapidjson::CrtAllocator {
  static void* Realloc(void* block, std::size_t /*before*/, std::size_t size) {
    void* const moved = std::realloc(block, size);
    if (moved == nullptr) throw std::bad_alloc();
    return moved;
  }
};

using Parser = rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, Allocator>;
constexpr unsigned kFlags = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag;
// In-situ parsing writes decoded strings into the text. The stream below only counts these bytes, so the text is not
// changed and no string is copied.
constexpr unsigned kCheckingFlags = kFlags | rapidjson::kParseInsituFlag;

class Stream {
 public:
  using Ch = char;

  explicit Stream(const std::string& text, std::size_t offset = 0) : m_text(text.c_str()), m_next(m_text + offset) {}

  // The text ends with NUL; Take() does not go beyond it.
  char Peek() const { return *m_next; }
  char Take() {
    const char taken = *m_next;
    m_next += taken != '\0' ? 1 : 0;
    return taken;
  }
  std::size_t Tell() const { return static_cast<std::size_t>(m_next - m_text); }

  // Called at the start of a string. Skips plain characters here, which is faster than in the parser; most strings have
  // no others.
  char* PutBegin() {
    m_string = m_next;
    while (is_plain(*m_next)) ++m_next;
    m_written = static_cast<std::size_t>(m_next - m_string);
    return nullptr;
  }
  void Put(char) { ++m_written; }
  std::size_t PutEnd(char*) { return m_written; }

  // The offset of the last string, after its opening quote.
  std::size_t string_begin() const { return static_cast<std::size_t>(m_string - m_text); }
  // The string that has just ended, without quotes, not decoded.
  std::string_view string() const { return {m_string, static_cast<std::size_t>(m_next - m_string) - 1}; }

 private:
  static bool is_plain(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

  const char* m_text;
  const char* m_next;
  const char* m_string = m_next;
  std::size_t m_written = 0;
};

// Stores a string with its escapes decoded.
struct Decoder : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Decoder> {
  bool String(const char* text, rapidjson::SizeType size, bool) {
    decoded.assign(text, size);
    return true;
  }
  std::string decoded;
};

// The offset of a low surrogate escape without a high surrogate before it, or npos. The parser does not report this
// error. All escapes in the string must be complete.
std::size_t lone_surrogate(std::string_view raw) {
  constexpr std::size_t kEscape = 2;         // \n
  constexpr std::size_t kUnicodeEscape = 6;  // \u000A
  const auto lower = [](char c) { return static_cast<char>(c | 0x20); };
  for (std::size_t i = raw.find('\\'); i != raw.npos; i = raw.find('\\', i)) {
    if (raw[i + 1] != 'u') {
      i += kEscape;
      continue;
    }
    const bool isSurrogate = lower(raw[i + 2]) == 'd' && raw[i + 3] >= '8';
    if (isSurrogate && lower(raw[i + 3]) >= 'c') return i;
    i += isSurrogate ? 2 * kUnicodeEscape : kUnicodeEscape;
  }
  return raw.npos;
}

// Passes the parser's events to the listener.
class Handler {
 public:
  Handler(const std::string& text, const Stream& stream, JsonListener& listener)
      : m_text(text), m_stream(stream), m_listener(listener) {}

  bool Null() { return scalar(JsonKind::null); }
  bool Bool(bool) { return scalar(JsonKind::boolean); }
  bool Int(int) { return scalar(JsonKind::number); }
  bool Uint(unsigned) { return scalar(JsonKind::number); }
  bool Int64(std::int64_t) { return scalar(JsonKind::number); }
  bool Uint64(std::uint64_t) { return scalar(JsonKind::number); }
  bool Double(double) { return scalar(JsonKind::number); }
  bool RawNumber(const char*, rapidjson::SizeType, bool) { return scalar(JsonKind::number); }
  bool String(const char*, rapidjson::SizeType size, bool) { return string(&JsonListener::text, size); }
  bool Key(const char*, rapidjson::SizeType size, bool) { return string(&JsonListener::key, size); }
  bool StartObject() { return start(JsonKind::object); }
  bool EndObject(rapidjson::SizeType) { return end(JsonKind::object); }
  bool StartArray() { return start(JsonKind::array); }
  bool EndArray(rapidjson::SizeType) { return end(JsonKind::array); }

 private:
  bool scalar(JsonKind kind) {
    m_listener.scalar(kind);
    return true;
  }
  bool start(JsonKind kind) {
    m_listener.start(kind);
    return true;
  }
  bool end(JsonKind kind) {
    m_listener.end(kind);
    return true;
  }

  bool string(void (JsonListener::*tell)(std::string_view), std::size_t size) {
    const std::string_view raw = m_stream.string();
    if (raw.size() == size) {  // no escapes: every escape is longer than its decoded bytes
      (m_listener.*tell)(raw);
      return true;
    }
    if (lone_surrogate(raw) != raw.npos) return false;
    Stream again(m_text, m_stream.string_begin() - 1);
    Decoder decoder;
    Parser().Parse<kFlags | rapidjson::kParseStopWhenDoneFlag>(again, decoder);
    (m_listener.*tell)(decoder.decoded);
    return true;
  }

  const std::string& m_text;
  const Stream& m_stream;
  JsonListener& m_listener;
};

// --- Errors ---

constexpr const char* kPairExpected = "a pair of surrogates";
constexpr const char* kTheEnd = "the end of the file";

bool is_digit(char c) { return c >= '0' && c <= '9'; }

JsonFault byte_fault(std::string_view text, std::size_t offset, const char* expected) {
  if (offset >= text.size()) return {text.size(), kTheEnd, expected};
  return {offset, in_quotes(text.substr(offset, 1)), expected};
}

const char* expectation(rapidjson::ParseErrorCode code) {
  switch (code) {
    case rapidjson::kParseErrorDocumentRootNotSingular:
      return kTheEnd;
    case rapidjson::kParseErrorObjectMissName:
      return "a member name in double quotes";
    case rapidjson::kParseErrorObjectMissColon:
      return "':'";
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
      return "',' or '}'";
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
      return "',' or ']'";
    default:
      return "a value";
  }
}

// The offset of the first character that is not a hexadecimal digit, in a \u escape or in the \u escape after it.
std::size_t wrong_hex_digit(std::string_view text, std::size_t escape) {
  constexpr const char* kDigits = "0123456789ABCDEFabcdef";
  const std::size_t first = text.find_first_not_of(kDigits, escape + 2);
  return first < escape + 6 ? first : text.find_first_not_of(kDigits, escape + 8);
}

// The offset of the error after a high surrogate escape that is not followed by a low surrogate.
std::size_t wrong_second_surrogate(std::string_view text, std::size_t escape) {
  if (text.substr(escape + 6, 1) != "\\") return escape + 6;
  if (text.substr(escape + 7, 1) != "u") return escape + 7;
  return escape + 11;
}

// The offset of the first invalid byte of the UTF-8 sequence that begins at an offset.
std::size_t wrong_utf8(std::string_view text, std::size_t offset) {
  struct Lead {
    unsigned char from, to;              // range of the first byte
    unsigned char secondFrom, secondTo;  // range of the second byte; all others are 0x80 to 0xBF
    std::size_t size;
  };
  constexpr Lead kLeads[] = {
      {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3}, {0xE1, 0xEC, 0x80, 0xBF, 3},
      {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4},
      {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4},
  };
  const auto byte = [&](std::size_t i) {
    return offset + i < text.size() ? static_cast<unsigned char>(text[offset + i]) : 0;
  };
  const auto* const lead =
      std::ranges::find_if(kLeads, [&](const Lead& l) { return byte(0) >= l.from && byte(0) <= l.to; });
  if (lead == std::end(kLeads)) return offset;
  if (byte(1) < lead->secondFrom || byte(1) > lead->secondTo) return offset + 1;
  std::size_t i = 2;
  while (i < lead->size && byte(i) >= 0x80 && byte(i) <= 0xBF) ++i;
  return offset + i;
}

// The error in the surrogates of the stream's last string, up to the offset end.
std::optional<JsonFault> surrogate_fault(std::string_view text, const Stream& stream, std::size_t end) {
  const std::size_t begin = stream.string_begin();
  const std::size_t lone = lone_surrogate(text.substr(begin, end - begin));
  if (lone == text.npos) return {};
  return byte_fault(text, begin + lone + 5, kPairExpected);
}

// The kind of literal that begins with a character.
const char* literal(char first) {
  switch (first) {
    case '"':
      return "a string literal";
    case 't':
      return "a true literal";
    case 'f':
      return "a false literal";
    case 'n':
      return "a null literal";
    default:
      return "a number literal";
  }
}

JsonFault fault(const std::string& text, rapidjson::ParseErrorCode code, std::size_t offset, const char* expected);

// The error when an unexpected token begins at the offset, or when a word has a wrong character there.
JsonFault token_fault(const std::string& text, std::size_t offset, const char* expected) {
  if (offset >= text.size()) return byte_fault(text, offset, expected);

  std::size_t begin = offset;
  while (begin > 0 && is_letter_or_digit(text[begin - 1])) --begin;
  const char first = text[begin];
  if (begin == offset) {
    if (std::string_view("{}[]:,").find(first) != std::string_view::npos) {
      return {offset, std::string("'") + first + "'", expected};
    }
    Stream stream(text, offset);
    rapidjson::BaseReaderHandler<> nobody;
    const rapidjson::ParseResult result =
        Parser().Parse<kCheckingFlags | rapidjson::kParseStopWhenDoneFlag>(stream, nobody);
    if (result.Code() == rapidjson::kParseErrorNumberTooBig) {
      const std::size_t end = std::min(text.find_first_not_of("+-.0123456789Ee", offset), text.size());
      return {end - 1, literal(first), expected};
    }
    if (const auto surrogate = surrogate_fault(text, stream, result.IsError() ? result.Offset() : stream.Tell()))
      return *surrogate;
    if (!result.IsError()) return {stream.Tell() - 1, literal(first), expected};
    if (first == '"' || first == '-' || is_digit(first)) {
      return fault(text, result.Code(), result.Offset(), expected);
    }
    offset = result.Offset();
  }
  // The whole word.
  std::size_t end = begin;
  while (end < text.size() && is_letter_or_digit(text[end])) ++end;
  if (offset >= text.size()) return byte_fault(text, offset, expected != kTheEnd ? expected : "a value");
  return {begin, in_quotes(text.substr(begin, std::max(end, offset + 1) - begin)), expected};
}

// Converts the parser's error code and offset. For strings, the offset is that of the wrong character or escape.
JsonFault fault(const std::string& text, rapidjson::ParseErrorCode code, std::size_t offset, const char* expected) {
  switch (code) {
    case rapidjson::kParseErrorStringMissQuotationMark:
      return byte_fault(text, offset, "a closing quote");
    case rapidjson::kParseErrorStringEscapeInvalid:
      if (text[offset] == '\\') return byte_fault(text, offset + 1, "an escape such as \\n or \\u000A");
      return byte_fault(text, offset, "control characters written as escapes such as \\n");
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
      return byte_fault(text, wrong_hex_digit(text, offset), "four hexadecimal digits after \\u");
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
      return byte_fault(text, wrong_second_surrogate(text, offset), kPairExpected);
    case rapidjson::kParseErrorStringInvalidEncoding:
      return byte_fault(text, wrong_utf8(text, offset), "UTF-8");
    case rapidjson::kParseErrorNumberMissFraction:
    case rapidjson::kParseErrorNumberMissExponent:
      return byte_fault(text, offset, "a digit");
    case rapidjson::kParseErrorNumberTooBig:
      return {offset, "a number too large", "a smaller one"};
    default:
      if (offset > 0 && text[offset - 1] == '-') return byte_fault(text, offset, "a digit");
      return token_fault(text, offset, expected);
  }
}

}  // namespace

std::optional<JsonFault> read_json(const std::string& text, JsonListener& listener) {
  const std::size_t nul = text.find('\0');  // the parser would take it as the end
  if (nul != text.npos) return byte_fault(text, nul, "JSON text");

  std::size_t begin = 0;
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark.front())) {
    while (begin < kByteOrderMark.size() && text[begin] == kByteOrderMark[begin]) ++begin;
    if (begin < kByteOrderMark.size()) return byte_fault(text, begin, "a value");
  }

  Stream stream(text, begin);
  Handler handler(text, stream, listener);
  const rapidjson::ParseResult result = Parser().Parse<kCheckingFlags>(stream, handler);
  if (!result.IsError()) return {};
  if (result.Code() == rapidjson::kParseErrorNumberTooBig) listener.scalar(JsonKind::number);
  if (auto surrogate = surrogate_fault(text, stream, result.Offset())) return surrogate;
  return fault(text, result.Code(), result.Offset(), expectation(result.Code()));
}

std::string escaped(std::string_view text) {
  constexpr std::size_t kMaxEcho = 60;
  constexpr const char* kHex = "0123456789ABCDEF";
  std::string out;
  for (const char c : text.substr(0, kMaxEcho)) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte > 0x7E) {
      out.append("\\x").append(1, kHex[byte >> 4U]).append(1, kHex[byte & 0xFU]);
      continue;
    }
    if (c == '"' || c == '\\') out += '\\';
    out += c;
  }
  return text.size() > kMaxEcho ? out + "..." : out;
}

std::string in_quotes(std::string_view text) { return '"' + escaped(text) + '"'; }

}  // namespace SdkDebugDialog
