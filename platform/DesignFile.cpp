#include "platform/DesignFile.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <span>
#include <string_view>
#include <system_error>
#include <unordered_set>
#include <utility>

#include "util/regular_file.h"

namespace {

constexpr std::size_t kMaxFileSize = std::size_t{128} << 20;  // far above any design, far below what a machine holds
constexpr std::size_t kMaxNameLength = 200;       // leaves room in a file name of 255 bytes
constexpr std::size_t kMaxEcho = 60;

// Text of the file for use in a message: printable, bounded, on one line.
std::string escaped(std::string_view text) {
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

// A file's name for use in a message: as it is, but on one line.
std::string one_line(std::string name) {
  std::ranges::replace_if(
      name, [](unsigned char c) { return c < 0x20 || c == 0x7F; }, '?');
  return name;
}

// One step of a JSON pointer.
std::string step(std::string_view key) {
  std::string out;
  for (const char c : key) out += c == '~' ? "~0" : c == '/' ? "~1" : std::string(1, c);
  return '/' + escaped(out);
}

// "a, b or c"
template <typename Words>
std::string choice(const Words& words) {
  std::string out;
  for (std::size_t i = 0; i < std::size(words); ++i) {
    if (i > 0) out += i + 1 < std::size(words) ? ", " : " or ";
    out += words[i];
  }
  return out;
}

constexpr std::string_view kIdentifier = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_";

bool is_identifier(std::string_view text) {
  return !text.empty() && text.size() <= kMaxNameLength && text.find_first_not_of(kIdentifier) == text.npos;
}

[[noreturn]] void fail(const std::string& where, const std::string& found, const std::string& expected) {
  throw DesignFileError(where + ": found " + found + ", expected " + expected);
}

// --- Broken JSON: the parser's sentences, in our words ---

struct Phrase {
  std::string_view theirs;
  const char* ours;
};

// What was expected. The first that occurs counts; the last always does.
constexpr Phrase kExpectations[] = {
    {"ill-formed UTF-8", "UTF-8"},
    {"missing closing quote", "a closing quote"},
    {"control character", "control characters written as escapes such as \\n"},
    {"hex digits", "four hexadecimal digits after \\u"},
    {"surrogate", "a pair of surrogates"},
    {"after backslash", "an escape such as \\n or \\u000A"},
    {"invalid number", "a digit"},
    {"parsing object key", "a member name in double quotes"},
    {"parsing object separator", "':'"},
    {"parsing array", "',' or ']'"},
    {"parsing object", "',' or '}'"},
    {"", "a value"},
};

std::string expectation(std::string_view sentence) {
  const auto* phrase = std::find_if(std::begin(kExpectations), std::end(kExpectations), [&](const Phrase& candidate) {
    return sentence.find(candidate.theirs) != sentence.npos;
  });
  return phrase->ours;
}

std::string line_and_column(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto line = std::count(before.begin(), before.end(), '\n') + 1;
  const std::size_t column = offset - (before.rfind('\n') + 1) + 1;  // npos + 1 is 0
  return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

// --- The file ---

std::string contents(const std::string& path, const std::string& file) {
  const auto check = [&](const SdkDebugDialog::RegularFile& opened) {
    if (opened.other_kind() != nullptr) fail(file, opened.other_kind(), "a regular file");
    if (opened.error() == 0) return;
    throw DesignFileError(file + ": cannot be read: " + std::generic_category().message(opened.error()));
  };
  SdkDebugDialog::RegularFile opened(path);
  check(opened);
  if (opened.size() > kMaxFileSize) fail(file, std::to_string(opened.size()) + " bytes", "at most 128 MiB");
  std::string text(opened.size(), '\0');
  std::size_t length = 0;
  std::ptrdiff_t count = 0;
  while ((count = opened.read(text.data() + length, text.size() - length)) > 0) {
    length += static_cast<std::size_t>(count);
  }
  check(opened);
  text.resize(length);
  return text;
}

}  // namespace

// Takes in a design as the parser meets it. Every value is checked against what may stand at its place before
// anything in it is read, so nesting never goes deeper than a design does.
class DesignFile::Reader final : public nlohmann::json_sax<nlohmann::json> {
 public:
  Reader(std::string_view text, std::string file) : m_text(text), m_file(std::move(file)) {}

  DesignFile read() {
    if (m_text.empty()) fail(m_file, "nothing", "a JSON object");
    const std::size_t nul = m_text.find('\0');  // which the parser takes for the end
    if (nul != m_text.npos) broken(nul, in_quotes(m_text.substr(nul, 1)), "JSON text");
    nlohmann::json::sax_parse(m_text, this);
    check_references("processors", &Instance::processors, {Class::processor});
    check_references("peripherals", &Instance::peripherals, {Class::peripheral, Class::memory, Class::other});
    return std::move(m_design);
  }

  // The parser's events. What is wrong is thrown, so all of them ask for more.
  bool null() override { return scalar(Kind::null); }
  bool boolean(bool) override { return scalar(Kind::boolean); }
  bool number_integer(number_integer_t) override { return scalar(Kind::number); }
  bool number_unsigned(number_unsigned_t) override { return scalar(Kind::number); }
  bool number_float(number_float_t, const string_t&) override { return scalar(Kind::number); }
  bool binary(binary_t&) override { return false; }  // no such value in JSON text
  bool string(string_t& text) override;
  bool start_object(std::size_t) override { return open(Kind::object); }
  bool key(string_t& name) override;
  bool end_object() override;
  bool start_array(std::size_t) override { return open(Kind::array); }
  bool end_array() override;
  bool parse_error(std::size_t position, const std::string& token, const nlohmann::detail::exception& error) override;

 private:
  // The words stand in the order of the enumerations.
  enum class Kind { object, array, text, number, boolean, null };
  static constexpr const char* kKinds[] = {"an object", "an array", "a text", "a number", "true or false", "null"};
  static const char* words(Kind kind) { return kKinds[static_cast<std::size_t>(kind)]; }

  static constexpr std::string_view kClasses[] = {"processor", "debug", "peripheral", "memory", "other"};
  static std::string word(Class ipClass) { return std::string(kClasses[static_cast<std::size_t>(ipClass)]); }

  struct Node;
  struct Member {
    std::string_view key;
    const Node* value;
    bool required = false;
    std::optional<Class> onlyIn = {};  // the one class of instance that may have it
  };

  // What may stand at a place of the file.
  struct Node {
    Kind kind;
    std::span<const Member> members = {};               // of an object with fixed members
    const Node* element = nullptr;                      // of an array, or of an object with free members
    void (Reader::*start)() = nullptr;                  // of an object or array
    void (Reader::*take)(std::string& text) = nullptr;  // of a text
  };
  static const Node& root();

  // An object or array that has begun.
  struct Frame {
    const Node* node;
    const Node* next;                      // what the next value may be
    std::string key;                       // of the current member
    std::size_t count = 0;                 // of elements begun
    std::unordered_set<std::string> seen;  // member names, or names in a list
  };

  const Node& value(Kind found);
  bool scalar(Kind found);
  bool open(Kind kind);
  std::string place() const;
  [[noreturn]] void wrong(const std::string& found, const std::string& expected) const {
    fail(m_file + ": " + place(), found, expected);
  }
  [[noreturn]] void broken(std::size_t offset, const std::string& found, const std::string& expected) const {
    fail(m_file + ": " + line_and_column(m_text, offset), found, expected);
  }

  Instance& instance() { return m_design.m_instances.back(); }
  void start_instance() { m_design.m_instances.emplace_back(); }
  void take_name(std::string& text);
  void take_type(std::string& text);
  void take_class(std::string& text);
  void take_parameter(std::string& text) { instance().parameters[m_open.back().key] = std::move(text); }
  void take_processor(std::string& text) { take_reference(text, instance().processors); }
  void take_peripheral(std::string& text) { take_reference(text, instance().peripherals); }
  void take_reference(std::string& text, std::vector<std::string>& list);
  void check_identifier(const std::string& text) const;
  void check_references(std::string_view key, std::vector<std::string> Instance::*list,
                        const std::vector<Class>& allowed) const;

  std::string_view m_text;
  std::string m_file;
  DesignFile m_design;
  std::vector<Frame> m_open;
};

const DesignFile::Reader::Node& DesignFile::Reader::root() {
  static constexpr Node kText{.kind = Kind::text};
  static constexpr Node kName{.kind = Kind::text, .take = &Reader::take_name};
  static constexpr Node kType{.kind = Kind::text, .take = &Reader::take_type};
  static constexpr Node kClass{.kind = Kind::text, .take = &Reader::take_class};
  static constexpr Node kParameter{.kind = Kind::text, .take = &Reader::take_parameter};
  static constexpr Node kProcessor{.kind = Kind::text, .take = &Reader::take_processor};
  static constexpr Node kPeripheral{.kind = Kind::text, .take = &Reader::take_peripheral};
  static constexpr Node kParameters{.kind = Kind::object, .element = &kParameter};
  static constexpr Node kProcessors{.kind = Kind::array, .element = &kProcessor};
  static constexpr Node kPeripherals{.kind = Kind::array, .element = &kPeripheral};
  static constexpr Member kInstanceMembers[] = {
      {.key = "name", .value = &kName, .required = true},
      {.key = "type", .value = &kType, .required = true},
      {.key = "class", .value = &kClass, .required = true},
      {.key = "parameters", .value = &kParameters},
      {.key = "processors", .value = &kProcessors, .onlyIn = Class::debug},
      {.key = "peripherals", .value = &kPeripherals, .onlyIn = Class::processor},
  };
  static constexpr Node kInstance{.kind = Kind::object, .members = kInstanceMembers, .start = &Reader::start_instance};
  static constexpr Node kInstances{.kind = Kind::array, .element = &kInstance};
  static constexpr Member kDesignMembers[] = {
      {.key = "name", .value = &kText},
      {.key = "instances", .value = &kInstances, .required = true},
  };
  static constexpr Node kDesign{.kind = Kind::object, .members = kDesignMembers};
  return kDesign;
}

std::string DesignFile::Reader::place() const {
  if (m_open.empty()) return "top level";
  std::string out;
  for (const Frame& frame : m_open) {
    out += frame.node->kind == Kind::array ? '/' + std::to_string(frame.count - 1) : step(frame.key);
  }
  return out;
}

// A value begins; the answer is what stands there.
const DesignFile::Reader::Node& DesignFile::Reader::value(Kind found) {
  const Node* expected = &root();
  if (!m_open.empty()) {
    ++m_open.back().count;
    expected = m_open.back().next;
  }
  if (found != expected->kind) wrong(words(found), words(expected->kind));
  return *expected;
}

bool DesignFile::Reader::scalar(Kind found) {
  value(found);
  return true;
}

bool DesignFile::Reader::open(Kind kind) {
  const Node& node = value(kind);
  m_open.push_back({.node = &node, .next = node.element, .key = {}, .seen = {}});
  if (node.start != nullptr) (this->*node.start)();
  return true;
}

bool DesignFile::Reader::string(string_t& text) {
  const Node& node = value(Kind::text);
  if (node.take != nullptr) (this->*node.take)(text);
  return true;
}

bool DesignFile::Reader::key(string_t& name) {
  Frame& object = m_open.back();
  object.key = name;
  if (object.node->element == nullptr) {
    const std::span<const Member> members = object.node->members;
    const auto member = std::ranges::find(members, std::string_view(name), &Member::key);
    if (member == members.end()) {
      std::vector<std::string_view> known;
      for (const Member& candidate : members) known.push_back(candidate.key);
      wrong("an unknown member", choice(known));
    }
    object.next = member->value;
  }
  if (!object.seen.insert(name).second) wrong("a second member of this name", "one");
  return true;
}

bool DesignFile::Reader::end_object() {
  Frame& object = m_open.back();
  for (const Member& member : object.node->members) {
    object.key = member.key;
    const bool seen = object.seen.contains(object.key);
    if (member.required && !seen) wrong("nothing", words(member.value->kind));
    if (member.onlyIn && seen && instance().ipClass != *member.onlyIn) {
      wrong("it in class " + word(instance().ipClass), "it in class " + word(*member.onlyIn) + " only");
    }
  }
  m_open.pop_back();
  return true;
}

bool DesignFile::Reader::end_array() {
  m_open.pop_back();
  return true;
}

bool DesignFile::Reader::parse_error(std::size_t position, const std::string& /*token*/,
                                     const nlohmann::detail::exception& error) {
  constexpr int kNumberTooLarge = 406;
  if (error.id == kNumberTooLarge) return scalar(Kind::number);
  const std::string_view what = error.what();
  const std::string_view sentence = what.substr(0, what.find("; last read: "));  // the rest repeats the file
  const std::size_t offset = position - 1;
  if (offset >= m_text.size()) broken(m_text.size(), "the end of the file", expectation(sentence));

  const bool complete = what.ends_with("; expected end of input");
  const std::string expected = complete ? "the end of the file" : expectation(sentence);
  constexpr std::string_view kUnexpected = " - unexpected ";
  if (const std::size_t token = sentence.find(kUnexpected); token != sentence.npos) {
    const std::string_view rest = sentence.substr(token + kUnexpected.size());
    const std::string name(rest.substr(0, rest.find("; ")));
    broken(offset, name.front() == '\'' ? name : "a " + name, expected);
  }
  if (sentence.ends_with("invalid literal")) {
    // The whole word.
    const std::size_t begin = m_text.substr(0, offset).find_last_not_of(kIdentifier) + 1;  // npos + 1 is 0
    const std::size_t end = std::max(m_text.find_first_not_of(kIdentifier, begin), offset + 1);
    broken(begin, in_quotes(m_text.substr(begin, end - begin)), expected);
  }
  broken(offset, in_quotes(m_text.substr(offset, 1)), expected);
}

void DesignFile::Reader::check_identifier(const std::string& text) const {
  if (!is_identifier(text)) {
    wrong(in_quotes(text), "1 to " + std::to_string(kMaxNameLength) + " letters, digits or underscores");
  }
}

void DesignFile::Reader::take_name(std::string& text) {
  check_identifier(text);
  const std::size_t position = m_design.m_instances.size() - 1;
  const auto [first, isNew] = m_design.m_byName.try_emplace(text, position);
  if (!isNew) wrong(in_quotes(text), "another name than that of /instances/" + std::to_string(first->second));
  instance().name = std::move(text);
}

void DesignFile::Reader::take_type(std::string& text) {
  check_identifier(text);
  m_design.m_byIpType[text].push_back(m_design.m_instances.size() - 1);
  instance().ipType = std::move(text);
}

void DesignFile::Reader::take_class(std::string& text) {
  const auto* found = std::ranges::find(kClasses, text);
  if (found == std::end(kClasses)) wrong(in_quotes(text), choice(kClasses));
  instance().ipClass = static_cast<Class>(found - std::begin(kClasses));
  m_design.m_byClass[instance().ipClass].push_back(m_design.m_instances.size() - 1);
}

void DesignFile::Reader::take_reference(std::string& text, std::vector<std::string>& list) {
  if (!m_open.back().seen.insert(text).second) wrong(in_quotes(text) + " again", "each name once");
  list.push_back(std::move(text));
}

// The names in one list of every instance are those of instances of the classes allowed.
void DesignFile::Reader::check_references(std::string_view key, std::vector<std::string> Instance::*list,
                                          const std::vector<Class>& allowed) const {
  std::vector<std::string> words;
  std::ranges::transform(allowed, std::back_inserter(words), word);
  const std::string expected = "an instance of class " + choice(words);
  for (const Instance& user : m_design.m_instances) {
    for (const std::string& name : user.*list) {
      const Instance* used = m_design.find(name);
      if (used != nullptr && std::ranges::find(allowed, used->ipClass) != allowed.end()) continue;
      const auto user_position = &user - m_design.m_instances.data();
      const auto name_position = &name - (user.*list).data();
      fail(m_file + ": /instances/" + std::to_string(user_position) + step(key) + '/' + std::to_string(name_position),
           in_quotes(name) + (used != nullptr ? " of class " + word(used->ipClass) : ", which is no instance"),
           expected);
    }
  }
}

// --- The answers ---

DesignFile DesignFile::load(const std::string& path) {
  const std::string file = one_line(path);
  return Reader(contents(path, file), file).read();
}

DesignFile DesignFile::parse(const std::string& text, const std::string& name) {
  return Reader(text, one_line(name)).read();
}

const DesignFile::Instance* DesignFile::find(const std::string& name) const {
  const auto found = m_byName.find(name);
  return found != m_byName.end() ? &m_instances[found->second] : nullptr;
}

// The names of the instances under a key.
template <typename Key>
void DesignFile::append(std::vector<std::string>& out, const std::unordered_map<Key, std::vector<std::size_t>>& index,
                        const Key& key) const {
  const auto found = index.find(key);
  if (found == index.end()) return;
  for (const std::size_t position : found->second) out.push_back(m_instances[position].name);
}

void DesignFile::getProcessorInstances(std::vector<std::string>& out, bool /*flag*/) {
  append(out, m_byClass, Class::processor);
}

void DesignFile::getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) {
  if (ipClass == HW_IP_DEBUG) append(out, m_byClass, Class::debug);
}

void DesignFile::getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool /*flag*/) {
  append(out, m_byIpType, ipType);
}

std::string DesignFile::getIpName(const std::string& instance) {
  const Instance* found = find(instance);
  return found != nullptr ? found->ipType : std::string();
}

void DesignFile::getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) {
  const Instance* found = find(debugInstance);
  if (found != nullptr) out.insert(out.end(), found->processors.begin(), found->processors.end());
}

void DesignFile::getPeripherals(const std::string& processor, std::vector<std::string>& out) {
  const Instance* found = find(processor);
  if (found != nullptr) out.insert(out.end(), found->peripherals.begin(), found->peripherals.end());
}

std::string DesignFile::getParameterValue(const std::string& instance, const std::string& parameter) {
  const Instance* found = find(instance);
  if (found == nullptr) return {};
  const auto value = found->parameters.find(parameter);
  return value != found->parameters.end() ? value->second : std::string();
}
