#include "platform/DesignFile.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <optional>
#include <span>
#include <string_view>
#include <system_error>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "platform/json_text.h"
#include "util/regular_file.h"

using SdkDebugDialog::escaped;
using SdkDebugDialog::in_quotes;
using SdkDebugDialog::JsonKind;

namespace {

constexpr std::size_t kMaxFileSize = std::size_t{128} << 20;  // far larger than any design, far smaller than memory
constexpr std::size_t kMaxNameLength = 200;                   // the option file's name, at most 255 bytes, contains it

// --- Messages ---

[[noreturn]] void fail(const std::string& where, const std::string& found, const std::string& expected) {
  throw DesignFileError(where + ": found " + found + ", expected " + expected);
}

// A file name for use in a message: control characters replaced, so that it stays on one line.
std::string one_line(std::string name) {
  std::ranges::replace_if(
      name, [](unsigned char c) { return c < 0x20 || c == 0x7F; }, '?');
  return name;
}

// One reference token of a JSON pointer, with its slash.
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

std::string line_and_column(std::string_view text, std::size_t offset) {
  const std::string_view before = text.substr(0, offset);
  const auto line = std::count(before.begin(), before.end(), '\n') + 1;
  const std::size_t column = offset - (before.rfind('\n') + 1) + 1;  // npos + 1 is 0
  return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

const char* words(JsonKind kind) {
  constexpr const char* kKinds[] = {"an object", "an array", "a text", "a number", "true or false", "null"};
  return kKinds[static_cast<std::size_t>(kind)];
}

// --- The file ---

void check_size(std::uint64_t size, const std::string& file) {
  if (size > kMaxFileSize) fail(file, std::to_string(size) + " bytes", "at most 128 MiB");
}

std::string contents(const std::string& path, const std::string& file) {
  const auto check = [&](const SdkDebugDialog::RegularFile& opened) {
    if (opened.other_kind() != nullptr) fail(file, opened.other_kind(), "a regular file");
    if (opened.error() == 0) return;
    throw DesignFileError(file + ": cannot be read: " + std::generic_category().message(opened.error()));
  };
  SdkDebugDialog::RegularFile opened(path);
  check(opened);
  check_size(opened.size(), file);
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

// --- Names ---

enum class Class : std::uint8_t { processor, debug, peripheral, memory, other };
constexpr std::string_view kClasses[] = {"processor", "debug", "peripheral", "memory",
                                         "other"};  // in the order of Class
std::string word(Class ipClass) { return std::string(kClasses[static_cast<std::size_t>(ipClass)]); }

bool is_identifier(std::string_view text) {
  return !text.empty() && text.size() <= kMaxNameLength &&
         std::ranges::all_of(text, SdkDebugDialog::is_letter_or_digit);
}

// A set of names, for finding duplicates.
class DifferentNames {
 public:
  void clear() {
    m_few.clear();
    if (!m_many.empty()) m_many = {};
  }
  // False when the name is already in the set.
  bool insert(std::string_view name) {
    if (!m_many.empty()) return m_many.insert(name).second;
    if (std::ranges::find(m_few, name) != m_few.end()) return false;
    m_few.push_back(name);
    if (m_few.size() > kFew) m_many.insert(m_few.begin(), m_few.end());
    return true;
  }

 private:
  static constexpr std::size_t kFew = 16;  // up to this number, a linear search is fastest
  std::vector<std::string_view> m_few;
  std::unordered_set<std::string_view> m_many;
};

}  // namespace

// The content of a design file. Strings without escapes are not copied: they are offsets into the file's text. All
// lists are flat and refer to each other by position.
class DesignFile::Content {
 public:
  struct Text {
    std::uint32_t offset = 0;
    std::uint32_t size = 0;
  };
  struct Parameter {
    Text name;
    Text value;
  };
  struct IpType {
    std::string_view name;
    std::vector<std::uint32_t> instances;
  };
  // A range of positions in a list.
  struct Range {
    std::uint32_t begin = 0;
    std::uint32_t end = 0;
  };
  struct Instance {
    Text name;
    Range parameters;
    Range names;  // of the processors connected to a debug IP, or of the peripherals of a processor
    std::uint32_t ipType = 0;
    Class ipClass = Class::other;
  };

  // The capacities are estimates from the size of the file. Unused capacity is never touched and takes no physical
  // memory; reallocation takes time.
  explicit Content(std::string file) : m_file(std::move(file)) {
    const std::size_t instanceCount = m_file.size() / 128;
    instances.reserve(instanceCount);
    parameters.reserve(2 * instanceCount);
    names.reserve(2 * instanceCount);
    m_slots.resize(std::bit_ceil(instanceCount + instanceCount / 2 + 2));
  }

  const std::string& file() const { return m_file; }

  std::string_view view(Text text) const {
    return text.offset < m_file.size() ? std::string_view(m_file).substr(text.offset, text.size)
                                       : std::string_view(m_decoded).substr(text.offset - m_file.size(), text.size);
  }
  // Copies the text, unless it is a part of the file.
  Text keep(std::string_view text) {
    std::size_t offset = static_cast<std::size_t>(text.data() - m_file.data());
    if (std::less<>()(text.data(), m_file.data()) || std::less<>()(m_file.data() + m_file.size(), text.data())) {
      m_decoded.reserve(m_file.size());  // enough for all texts: views into it stay valid
      offset = m_file.size() + m_decoded.size();
      m_decoded += text;
    }
    return {static_cast<std::uint32_t>(offset), static_cast<std::uint32_t>(text.size())};
  }

  template <class Element>
  static std::span<const Element> part(const std::vector<Element>& list, Range range) {
    return std::span(list).subspan(range.begin, range.end - range.begin);
  }

  // Null when no instance has this name.
  const Instance* find(std::string_view name) const {
    const Slot& found = m_slots[slot(hash_of(name), name)];
    return found.position != kFree ? &instances[found.position] : nullptr;
  }

  // Adds the name of the last instance to the hash table. Returns the instance that already has this name, or null.
  const Instance* enter_last_name() {
    if (2 * instances.size() > m_slots.size()) make_room();
    const std::string_view name = view(instances.back().name);
    const std::uint32_t hash = hash_of(name);
    Slot& found = m_slots[slot(hash, name)];
    if (found.position != kFree) return &instances[found.position];
    found = {hash, static_cast<std::uint32_t>(instances.size() - 1)};
    return nullptr;
  }

  void enter_last_class(Class ipClass) {
    instances.back().ipClass = ipClass;
    m_byClass[static_cast<std::size_t>(ipClass)].push_back(static_cast<std::uint32_t>(instances.size() - 1));
  }

  void enter_last_type(Text text) {
    const std::string_view name = view(text);
    const auto [found, isNew] = m_typesByName.try_emplace(name, static_cast<std::uint32_t>(ipTypes.size()));
    if (isNew) ipTypes.push_back({name, {}});
    instances.back().ipType = found->second;
    ipTypes[found->second].instances.push_back(static_cast<std::uint32_t>(instances.size() - 1));
  }

  // --- Queries: append names of instances ---

  void append_class(std::vector<std::string>& out, Class ipClass) const {
    append(out, m_byClass[static_cast<std::size_t>(ipClass)]);
  }

  void append_type(std::vector<std::string>& out, std::string_view ipType) const {
    const auto found = m_typesByName.find(ipType);
    if (found != m_typesByName.end()) append(out, ipTypes[found->second].instances);
  }

  // The names in the list of an instance, if the instance is of this class.
  void append_list(std::vector<std::string>& out, std::string_view instance, Class ipClass) const {
    const Instance* const found = find(instance);
    if (found == nullptr || found->ipClass != ipClass) return;
    const std::span<const Text> list = part(names, found->names);
    if (out.empty()) out.reserve(list.size());
    for (const Text& name : list) out.emplace_back(view(name));
  }

  std::vector<Instance> instances;
  std::vector<Parameter> parameters;
  std::vector<Text> names;
  std::vector<IpType> ipTypes;

 private:
  static constexpr std::uint32_t kFree = UINT32_MAX;

  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t position = kFree;  // of an instance
  };

  // Names that differ only in the last character get adjacent slots: names are usually numbered and looked up in order,
  // so this saves cache misses.
  static std::uint32_t hash_of(std::string_view name) {
    if (name.empty()) return 0;
    const std::size_t hash = std::hash<std::string_view>()(name.substr(0, name.size() - 1));
    return static_cast<std::uint32_t>(hash + static_cast<unsigned char>(name.back()));
  }

  // The slot of a name, or the free slot for it: linear probing, starting at the hash.
  std::size_t slot(std::uint32_t hash, std::string_view name) const {
    const std::size_t last = m_slots.size() - 1;
    for (std::size_t i = hash & last;; i = (i + 1) & last) {
      const Slot& here = m_slots[i];
      if (here.position == kFree || (here.hash == hash && view(instances[here.position].name) == name)) return i;
    }
  }

  void append(std::vector<std::string>& out, const std::vector<std::uint32_t>& positions) const {
    if (out.empty()) out.reserve(positions.size());
    for (const std::uint32_t i : positions) out.emplace_back(view(instances[i].name));
  }

  void make_room() {
    std::vector<Slot> slots(2 * m_slots.size());
    const std::size_t last = slots.size() - 1;
    for (const Slot& moved : m_slots) {
      if (moved.position == kFree) continue;
      std::size_t i = moved.hash & last;
      while (slots[i].position != kFree) i = (i + 1) & last;
      slots[i] = moved;
    }
    m_slots.swap(slots);
  }

  std::string m_file;
  std::string m_decoded;                                              // strings that had escapes, decoded
  std::vector<std::uint32_t> m_byClass[std::size(kClasses)];          // positions in instances
  std::unordered_map<std::string_view, std::uint32_t> m_typesByName;  // positions in ipTypes
  std::vector<Slot> m_slots;  // hash table; its size is a power of two, half is free
};

// Builds the content from JSON events. Every value is checked against the schema as soon as it begins, so nesting is
// never deeper than the schema allows.
class DesignFile::Reader final : public SdkDebugDialog::JsonListener {
 public:
  Reader(Content& design, std::string file) : m_design(design), m_file(std::move(file)) {}

  void read() {
    const std::string& text = m_design.file();
    if (text.empty()) fail(m_file, "nothing", "a JSON object");
    if (const auto fault = SdkDebugDialog::read_json(text, *this)) {
      fail(m_file + ": " + line_and_column(text, fault->offset), fault->found, fault->expected);
    }
    check_references("processors", Class::debug, {Class::processor});
    check_references("peripherals", Class::processor, {Class::peripheral, Class::memory, Class::other});
  }

  void text(std::string_view text) override;
  void key(std::string_view name) override;
  void scalar(JsonKind kind) override { value(kind); }
  void start(JsonKind kind) override;
  void end(JsonKind kind) override;

 private:
  using Text = Content::Text;

  struct Node;
  struct Member {
    std::string_view key;
    const Node* value;
    bool required = false;
    std::optional<Class> onlyIn = {};  // if set, only instances of this class may have the member
  };

  // A node of the schema: what a value must be.
  struct Node {
    JsonKind kind;
    std::span<const Member> members = {};                   // for an object with fixed members
    const Node* element = nullptr;                          // for an array, or an object with arbitrary members
    void (Reader::*start)() = nullptr;                      // called at the start of an object or array
    void (Reader::*take)(std::string_view text) = nullptr;  // called with a string
  };
  static const Node& root();

  // An object or array that is open.
  struct Frame {
    const Node* node;
    const Node* next;        // schema of the next value
    std::string_view key;    // of the current member
    std::size_t count = 0;   // number of elements so far
    std::uint32_t seen = 0;  // fixed members so far: bit i for members[i] of the node
  };

  const Node& value(JsonKind found);
  void fixed_key(Frame& object, std::string_view name);
  void free_key(Frame& object, std::string_view name);
  void check_members(Frame& object);
  std::string place() const;
  [[noreturn]] void wrong(const std::string& found, const std::string& expected) const {
    fail(m_file + ": " + place(), found, expected);
  }

  Content::Instance& instance() { return m_design.instances.back(); }
  void start_instance() { m_design.instances.emplace_back(); }
  void start_parameters();
  void start_names();
  void take_name(std::string_view text);
  void take_type(std::string_view text);
  void take_class(std::string_view text);
  void take_parameter(std::string_view text) { m_design.parameters.back().value = m_design.keep(text); }
  void take_reference(std::string_view text);
  void check_identifier(std::string_view text) const;
  void check_references(std::string_view key, Class user, const std::vector<Class>& allowed) const;

  Content& m_design;
  std::string m_file;
  std::vector<Frame> m_open;
  DifferentNames m_seen;  // names in the current parameters or list
};

const DesignFile::Reader::Node& DesignFile::Reader::root() {
  static constexpr Node kText{.kind = JsonKind::text};
  static constexpr Node kName{.kind = JsonKind::text, .take = &Reader::take_name};
  static constexpr Node kType{.kind = JsonKind::text, .take = &Reader::take_type};
  static constexpr Node kClass{.kind = JsonKind::text, .take = &Reader::take_class};
  static constexpr Node kParameter{.kind = JsonKind::text, .take = &Reader::take_parameter};
  static constexpr Node kReference{.kind = JsonKind::text, .take = &Reader::take_reference};
  static constexpr Node kParameters{
      .kind = JsonKind::object, .element = &kParameter, .start = &Reader::start_parameters};
  static constexpr Node kNames{.kind = JsonKind::array, .element = &kReference, .start = &Reader::start_names};
  static constexpr Member kInstanceMembers[] = {
      {.key = "name", .value = &kName, .required = true},
      {.key = "type", .value = &kType, .required = true},
      {.key = "class", .value = &kClass, .required = true},
      {.key = "parameters", .value = &kParameters},
      {.key = "processors", .value = &kNames, .onlyIn = Class::debug},
      {.key = "peripherals", .value = &kNames, .onlyIn = Class::processor},
  };
  static constexpr Node kInstance{
      .kind = JsonKind::object, .members = kInstanceMembers, .start = &Reader::start_instance};
  static constexpr Node kInstances{.kind = JsonKind::array, .element = &kInstance};
  static constexpr Member kDesignMembers[] = {
      {.key = "name", .value = &kText},
      {.key = "instances", .value = &kInstances, .required = true},
  };
  static constexpr Node kDesign{.kind = JsonKind::object, .members = kDesignMembers};
  return kDesign;
}

std::string DesignFile::Reader::place() const {
  if (m_open.empty()) return "top level";
  std::string out;
  for (const Frame& frame : m_open) {
    out += frame.node->kind == JsonKind::array ? '/' + std::to_string(frame.count - 1) : step(frame.key);
  }
  return out;
}

// Called when a value begins: checks its kind and returns its schema.
const DesignFile::Reader::Node& DesignFile::Reader::value(JsonKind found) {
  const Node* expected = &root();
  if (!m_open.empty()) {
    ++m_open.back().count;
    expected = m_open.back().next;
  }
  if (found != expected->kind) wrong(words(found), words(expected->kind));
  return *expected;
}

void DesignFile::Reader::text(std::string_view text) {
  const Node& node = value(JsonKind::text);
  if (node.take != nullptr) (this->*node.take)(text);
}

void DesignFile::Reader::start(JsonKind kind) {
  const Node& node = value(kind);
  m_open.push_back({.node = &node, .next = node.element, .key = {}});
  if (node.start != nullptr) (this->*node.start)();
}

void DesignFile::Reader::key(std::string_view name) {
  Frame& object = m_open.back();
  object.key = name;
  object.node->element != nullptr ? free_key(object, name) : fixed_key(object, name);
}

void DesignFile::Reader::fixed_key(Frame& object, std::string_view name) {
  const std::span<const Member> members = object.node->members;
  const auto member = std::ranges::find(members, name, &Member::key);
  if (member == members.end()) {
    std::vector<std::string_view> known;
    for (const Member& candidate : members) known.push_back(candidate.key);
    wrong("an unknown member", choice(known));
  }
  const std::uint32_t bit = 1U << static_cast<unsigned>(member - members.begin());
  if ((object.seen & bit) != 0) wrong("a second member of this name", "one");
  object.seen |= bit;
  object.key = member->key;
  object.next = member->value;
}

// Only parameters have arbitrary keys.
void DesignFile::Reader::free_key(Frame& object, std::string_view name) {
  const Text kept = m_design.keep(name);
  object.key = m_design.view(kept);
  if (!m_seen.insert(object.key)) wrong("a second member of this name", "one");
  m_design.parameters.push_back({.name = kept, .value = {}});
  instance().parameters.end = static_cast<std::uint32_t>(m_design.parameters.size());
}

void DesignFile::Reader::end(JsonKind kind) {
  if (kind == JsonKind::object) check_members(m_open.back());
  m_open.pop_back();
}

void DesignFile::Reader::check_members(Frame& object) {
  std::uint32_t seen = object.seen;
  for (const Member& member : object.node->members) {
    object.key = member.key;
    if (member.required && (seen & 1U) == 0) wrong("nothing", words(member.value->kind));
    if (member.onlyIn && (seen & 1U) != 0 && instance().ipClass != *member.onlyIn) {
      wrong("it in class " + word(instance().ipClass), "it in class " + word(*member.onlyIn) + " only");
    }
    seen >>= 1U;
  }
}

void DesignFile::Reader::check_identifier(std::string_view text) const {
  if (!is_identifier(text)) {
    wrong(in_quotes(text), "1 to " + std::to_string(kMaxNameLength) + " letters, digits or underscores");
  }
}

void DesignFile::Reader::start_parameters() {
  m_seen.clear();
  const auto begin = static_cast<std::uint32_t>(m_design.parameters.size());
  instance().parameters = {begin, begin};
}

void DesignFile::Reader::start_names() {
  m_seen.clear();
  const auto begin = static_cast<std::uint32_t>(m_design.names.size());
  instance().names = {begin, begin};
}

void DesignFile::Reader::take_name(std::string_view text) {
  check_identifier(text);
  instance().name = m_design.keep(text);
  if (const Content::Instance* const first = m_design.enter_last_name()) {
    const auto other = first - m_design.instances.data();
    wrong(in_quotes(text), "another name than that of /instances/" + std::to_string(other));
  }
}

void DesignFile::Reader::take_type(std::string_view text) {
  check_identifier(text);
  m_design.enter_last_type(m_design.keep(text));
}

void DesignFile::Reader::take_class(std::string_view text) {
  const auto* found = std::ranges::find(kClasses, text);
  if (found == std::end(kClasses)) wrong(in_quotes(text), choice(kClasses));
  m_design.enter_last_class(static_cast<Class>(found - std::begin(kClasses)));
}

void DesignFile::Reader::take_reference(std::string_view text) {
  const Text kept = m_design.keep(text);
  if (!m_seen.insert(m_design.view(kept))) wrong(in_quotes(text) + " again", "each name once");
  m_design.names.push_back(kept);
  instance().names.end = static_cast<std::uint32_t>(m_design.names.size());
}

// Checks that every name in the lists of the instances of class user is that of an instance of an allowed class.
void DesignFile::Reader::check_references(std::string_view key, Class user, const std::vector<Class>& allowed) const {
  for (const Content::Instance& instance : m_design.instances) {
    if (instance.ipClass != user) continue;
    const std::span<const Text> names = Content::part(m_design.names, instance.names);
    for (const Text& text : names) {
      const std::string_view name = m_design.view(text);
      const Content::Instance* const used = m_design.find(name);
      if (used != nullptr && std::ranges::find(allowed, used->ipClass) != allowed.end()) continue;
      const auto position = &instance - m_design.instances.data();
      const auto place = &text - names.data();
      std::vector<std::string> classes;
      std::ranges::transform(allowed, std::back_inserter(classes), word);
      fail(m_file + ": /instances/" + std::to_string(position) + step(key) + '/' + std::to_string(place),
           in_quotes(name) + (used != nullptr ? " of class " + word(used->ipClass) : ", which is no instance"),
           "an instance of class " + choice(classes));
    }
  }
}

// --- Queries ---

DesignFile::DesignFile(std::string text, const std::string& file) {
  const auto content = std::make_shared<Content>(std::move(text));
  Reader(*content, file).read();
  m_content = content;
}

DesignFile DesignFile::load(const std::string& path) {
  const std::string file = one_line(path);
  return {contents(path, file), file};
}

DesignFile DesignFile::parse(const std::string& text, const std::string& name) {
  const std::string file = one_line(name);
  check_size(text.size(), file);
  return {text, file};
}

void DesignFile::getProcessorInstances(std::vector<std::string>& out, bool /*flag*/) {
  m_content->append_class(out, Class::processor);
}

void DesignFile::getIpInstances(std::vector<std::string>& out, const HwIpType& ipClass) {
  if (ipClass == HW_IP_DEBUG) m_content->append_class(out, Class::debug);
}

void DesignFile::getIpInstances(std::vector<std::string>& out, const std::string& ipType, bool /*flag*/) {
  m_content->append_type(out, ipType);
}

std::string DesignFile::getIpName(const std::string& instance) {
  const Content::Instance* const found = m_content->find(instance);
  return found != nullptr ? std::string(m_content->ipTypes[found->ipType].name) : std::string();
}

void DesignFile::getOdmConnectedProcessorList(std::vector<std::string>& out, const std::string& debugInstance) {
  m_content->append_list(out, debugInstance, Class::debug);
}

void DesignFile::getPeripherals(const std::string& processor, std::vector<std::string>& out) {
  m_content->append_list(out, processor, Class::processor);
}

std::string DesignFile::getParameterValue(const std::string& instance, const std::string& parameter) {
  const Content::Instance* const found = m_content->find(instance);
  if (found == nullptr) return {};
  for (const Content::Parameter& candidate : Content::part(m_content->parameters, found->parameters)) {
    if (m_content->view(candidate.name) == parameter) return std::string(m_content->view(candidate.value));
  }
  return {};
}
