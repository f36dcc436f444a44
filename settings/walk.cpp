#include "settings/walk.h"

#include <algorithm>
#include <utility>

#include "options/TokenCursor.h"
#include "options/groups.h"
#include "options/option_file.h"

namespace SdkDebugDialog {
namespace {

std::string_view read_part(std::string_view text, TextKind kind) {
  return kind == TextKind::optionFile ? option_line(text) : text;
}

}  // namespace

// --- The words ahead ---

Walker::Walker(std::string_view text, TextKind kind)
    : m_text(text),
      m_kind(kind),
      m_source(kind == TextKind::optionFile ? Source::file : Source::command),
      m_cursor(read_part(text, kind)) {}

const Piece* Walker::ahead(std::size_t count) {
  while (m_ahead.size() <= count) {
    std::string_view word;
    if (!m_cursor.cut(word)) return nullptr;
    const auto begin = static_cast<std::size_t>(word.data() - m_text.data());
    m_ahead.push_back({word, begin, begin + word.size()});
  }
  return &m_ahead[count];
}

void Walker::replace_ahead(std::size_t count, const std::vector<Piece>& by) {
  m_ahead.erase(m_ahead.begin(), m_ahead.begin() + static_cast<std::ptrdiff_t>(count));
  m_ahead.insert(m_ahead.begin(), by.begin(), by.end());
}

// Tells what the next word is, and goes to the one behind it.
void Walker::take(Role role, const Keyword* keyword) {
  const Piece piece = m_ahead.front();
  m_ahead.erase(m_ahead.begin());
  m_here.begin = piece.begin;
  m_here.end = piece.end;
  m_here.role = role;
  m_here.keyword = keyword;
  found(m_here, piece.text);
}

// The kind of the next word. The readers refuse a lone dash wherever they come to it.
Token Walker::next(bool isValueDue) {
  for (const Piece* piece = ahead(); piece != nullptr; piece = ahead()) {
    if (piece->text != "-") return m_cursor.classify(piece->text);
    if (!lone_dash(isValueDue)) take(Role::unknown);
  }
  return Token::end;
}

// --- Head and target ---

void Walker::go() {
  if (m_kind == TextKind::cableText) {
    walk_options(kCableTextOptions);
  } else {
    command();
  }
}

const Head* Walker::find_head() {
  m_head = find_name(heads(), ahead()->text, letter_case());
  return m_head != nullptr && is_allowed(m_head->inFile) ? m_head : nullptr;
}

const Target* Walker::find_target() {
  const std::string_view word = ahead()->text;
  m_here.target = SdkDebugDialog::find_target(word, m_head != nullptr && m_head->virtualPlatform, letter_case());
  if (m_head == nullptr && m_here.target == nullptr) {
    m_here.target = SdkDebugDialog::find_target(word, true, letter_case());
  }
  return m_here.target != nullptr && is_allowed(m_here.target->inFile) ? m_here.target : nullptr;
}

const Connection* Walker::find_connection() {
  return m_here.connection = find_name(m_here.target->connections, ahead()->text, letter_case());
}

void Walker::command() {
  // What names something in its place; anything else is told. False if nothing can stand there.
  const auto named = [&](Slot slot, Role role, auto find) {
    Token token = next();
    while (token != Token::end && !find() && refused(slot)) token = next();
    if (token != Token::value) {
      missing(slot);
      return false;
    }
    take(find() ? role : Role::unknown);
    return true;
  };
  if (!named(Slot::head, Role::head, [&] { return find_head() != nullptr; })) return walk_options(kAnyOptions);
  if (!named(Slot::target, Role::target, [&] { return find_target() != nullptr; })) return walk_options(kAnyOptions);
  const Target* const target = m_here.target;
  if (target == nullptr) return walk_options(kAnyOptions);
  if (target->connections.empty()) return walk_options(*target->options);
  const bool isThere = named(Slot::connection, Role::connection, [&] { return find_connection() != nullptr; });
  walk_options(isThere && m_here.connection != nullptr ? m_here.connection->options : kAnyOptions);
}

// --- Options ---

void Walker::walk_options(const Run& run) {
  m_run = &run;
  if (run.bit == kSoftSimOptions.bit) return single_option();
  for (Token token = next(); token != Token::end; token = next()) {
    const Option* known = nullptr;
    if (token == Token::option) known = find_option(ahead()->text, *m_run, letter_case());
    if (known == nullptr && refused(Slot::option)) continue;
    if (token == Token::option) {
      walk_option(known);
    } else {
      take(Role::unknown);
    }
  }
}

void Walker::walk_option(const Option* option) {
  m_here.run = m_run;
  m_here.option = option;
  m_here.group = ++m_options;
  if (option != nullptr) {
    take(Role::option);
    what_it_takes(*option);
  } else {
    take(Role::unknown);
    while (next() == Token::value) take(Role::unknown);
  }
  m_here.run = nullptr;
  m_here.option = nullptr;
  m_here.group = 0;
}

void Walker::what_it_takes(const Option& option) {
  using Takes = Option::Takes;
  switch (option.takes) {
    case Takes::nothing:
      return;
    case Takes::value:
    case Takes::valueOrNone:
      return own_value(option, false, option.takes == Takes::valueOrNone);
    case Takes::token:
    case Takes::tokenOrNone:
      return own_value(option, true, option.takes == Takes::tokenOrNone);
    case Takes::pairs:
      return pairs(option.group);
    case Takes::ownRun:
      if (m_run != &kAnyOptions) m_run = &kHdlSimOptions;
      return;
  }
}

void Walker::own_value(const Option& option, bool anyToken, bool orNone) {
  m_row = value_row(option);
  const auto is_value = [&](Token token) { return token == Token::value || (anyToken && token == Token::option); };
  Token token = next(true);
  while (!is_value(token) && token == Token::option && !orNone && refused(Slot::value)) token = next(true);
  if (is_value(token)) {
    value_ahead();
    return take(Role::value, m_row);
  }
  missing(Slot::value);
  // The reader skips an option that stands in place of the value.
  if (orNone && token == Token::option) take(Role::ignored);
}

void Walker::pairs(const Group& group) {
  for (Token token = next(); token != Token::end; token = next()) {
    const std::string_view word = ahead()->text;
    if (token == Token::option) {
      if (find_option(word, *m_run, letter_case()) == nullptr && refused(Slot::keyword)) continue;
      return;
    }
    m_row = find_name(group.keywords, word, letter_case());
    const bool isKnown = m_row != nullptr;
    if (!isKnown && refused(Slot::keyword)) continue;
    take(isKnown ? Role::keyword : Role::unknown, m_row);
    Token value = next(true);
    while (isKnown && value == Token::option && refused(Slot::value)) value = next(true);
    if (value != Token::value) {
      if (isKnown) missing(Slot::value);
      continue;
    }
    if (isKnown) value_ahead();
    take(isKnown ? Role::value : Role::unknown, m_row);
  }
}

// The reader reads one option, if there is one, and ignores the rest.
void Walker::single_option() {
  for (Token token = next(); token == Token::option; token = next()) {
    const Option* const known = find_option(ahead()->text, *m_run, letter_case());
    if (known == nullptr && refused(Slot::option)) continue;
    walk_option(known);
    break;
  }
  while (ahead() != nullptr) take(Role::ignored);
}

// --- All words ---

namespace {

class WordList : public Walker {
 public:
  using Walker::Walker;
  std::vector<WalkedWord> words;

 private:
  void found(const WalkedWord& word, std::string_view /*spelled*/) override { words.push_back(word); }
};

void add_ignored(std::string_view text, std::size_t from, std::vector<WalkedWord>& words) {
  const auto end = text.end();
  auto begin = text.begin() + static_cast<std::ptrdiff_t>(from);
  while ((begin = std::find_if_not(begin, end, is_space)) != end) {
    const auto wordEnd = std::find_if(begin, end, is_space);
    words.push_back({.begin = static_cast<std::size_t>(begin - text.begin()),
                     .end = static_cast<std::size_t>(wordEnd - text.begin())});
    begin = wordEnd;
  }
}

}  // namespace

std::vector<WalkedWord> walk(std::string_view text, TextKind kind) {
  WordList list(text, kind);
  list.go();
  const std::string_view line = read_part(text, kind);
  add_ignored(text, static_cast<std::size_t>(line.data() - text.data()) + line.size(), list.words);
  return std::move(list.words);
}

}  // namespace SdkDebugDialog
