#include "settings/walk.h"

#include <algorithm>
#include <utility>

#include "options/TokenCursor.h"
#include "options/framing.h"
#include "options/groups.h"
#include "options/option_file.h"

namespace SdkDebugDialog {
namespace {

// Goes through a command, or through options alone, in the same steps as the readers. Words that it does not reach are
// Role::ignored.
class Walker {
 public:
  // The line is a part of the text, and positions are those in the text.
  Walker(std::string_view text, std::string_view line) : m_text(text), m_cursor(line) {
    std::string_view word;
    while (m_cursor.cut(word)) {
      const auto begin = static_cast<std::size_t>(word.data() - text.data());
      m_words.push_back({.begin = begin, .end = begin + word.size()});
    }
  }

  void command(Source source) {
    const auto allowed = [&](const auto& row) { return source == Source::command || row.inFile; };
    if (next() == Token::end) return;
    const Head* const head = find_name(heads(), word(), m_cursor.letter_case());
    take(head != nullptr && allowed(*head) ? Role::head : Role::unknown);

    if (next() == Token::end) return;
    m_here.target = find_target(head != nullptr && head->virtualPlatform);
    if (head == nullptr && m_here.target == nullptr) m_here.target = find_target(true);
    take(m_here.target != nullptr && allowed(*m_here.target) ? Role::target : Role::unknown);

    if (m_here.target == nullptr) return options(kGeneralOptions);
    if (m_here.target->connections.empty()) return options(*m_here.target->options);

    if (next() == Token::end) return;
    m_here.connection = find_name(m_here.target->connections, word(), m_cursor.letter_case());
    take(m_here.connection != nullptr ? Role::connection : Role::unknown);
    options(m_here.connection != nullptr ? m_here.connection->options : kGeneralOptions);
  }

  void options(const Run& run) {
    m_run = &run;
    if (run.bit == kSoftSimOptions.bit) return single_option();
    for (Token found = next(); found != Token::end; found = next()) {
      if (found == Token::option) {
        option();
      } else {
        take(Role::unknown);
      }
    }
  }

  std::vector<WalkedWord> words() && { return std::move(m_words); }

 private:
  std::string_view word() const { return m_text.substr(m_words[m_at].begin, m_words[m_at].end - m_words[m_at].begin); }

  const Target* find_target(bool virtualPlatform) const {
    return SdkDebugDialog::find_target(word(), virtualPlatform, m_cursor.letter_case());
  }

  // Records what the next word is, and goes to the one behind it.
  void take(Role role, const Keyword* keyword = nullptr) {
    WalkedWord& taken = m_words[m_at++];
    m_here.begin = taken.begin;
    m_here.end = taken.end;
    m_here.role = role;
    m_here.keyword = keyword;
    taken = m_here;
  }

  // The kind of the next word. The readers refuse a lone dash wherever they come to it.
  Token next() {
    while (m_at != m_words.size() && word() == "-") take(Role::unknown);
    return m_at != m_words.size() ? m_cursor.classify(word()) : Token::end;
  }

  void option() {
    m_here.run = m_run;
    m_here.option = find_option(word(), *m_run, m_cursor.letter_case());
    m_here.group = ++m_options;
    take(m_here.option != nullptr ? Role::option : Role::unknown);
    if (m_here.option == nullptr) {
      while (next() == Token::value) take(Role::unknown);
    } else {
      what_it_takes(*m_here.option);
    }
    m_here.run = nullptr;
    m_here.option = nullptr;
    m_here.group = 0;
  }

  void what_it_takes(const Option& option) {
    switch (option.takes) {
      case Option::Takes::nothing:
        return;
      case Option::Takes::value:
        if (next() == Token::value) take(Role::value, value_row(option));
        return;
      case Option::Takes::valueOrNone:
        if (const Token found = next(); found == Token::value) {
          take(Role::value, value_row(option));
        } else if (found == Token::option) {
          take(Role::ignored);
        }
        return;
      case Option::Takes::token:
      case Option::Takes::tokenOrNone:
        if (next() != Token::end) take(Role::value, value_row(option));
        return;
      case Option::Takes::pairs:
        return pairs(option.group);
      case Option::Takes::ownRun:
        m_run = &kHdlSimOptions;
        return;
    }
  }

  void pairs(const Group& group) {
    while (next() == Token::value) {
      const Keyword* const row = find_name(group.keywords, word(), m_cursor.letter_case());
      take(row != nullptr ? Role::keyword : Role::unknown, row);
      if (next() == Token::value) take(row != nullptr ? Role::value : Role::unknown, row);
    }
  }

  // The reader reads one option, if there is one, and ignores the rest.
  void single_option() {
    if (next() == Token::option) option();
    while (m_at != m_words.size()) take(Role::ignored);
  }

  std::string_view m_text;
  TokenCursor m_cursor;
  std::vector<WalkedWord> m_words;
  std::size_t m_at = 0;  // the next word
  const Run* m_run = nullptr;
  WalkedWord m_here;  // what holds for the next word
  std::size_t m_options = 0;
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
  const std::string_view line = kind == TextKind::optionFile ? option_line(text) : text;
  Walker walker(text, line);
  if (kind == TextKind::cableText) {
    walker.options(kCableTextOptions);
  } else {
    walker.command(kind == TextKind::optionFile ? Source::file : Source::command);
  }
  std::vector<WalkedWord> words = std::move(walker).words();
  add_ignored(text, static_cast<std::size_t>(line.data() - text.data()) + line.size(), words);
  return words;
}

}  // namespace SdkDebugDialog
