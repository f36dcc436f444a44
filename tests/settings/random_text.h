#pragma once

// Random texts for the readers, made of the names of the registry: right ones, and ones with mistakes.

#include <rapidcheck.h>

#include <string>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Annotation.h"
#include "options/groups.h"
#include "options/syntax.h"

class RandomText {
 public:
  static std::string make(SdkDebugDialog::TextKind kind) {
    RandomText random;
    if (kind == SdkDebugDialog::TextKind::cableText) {
      random.options(SdkDebugDialog::kCableTextOptions);
    } else {
      random.command();
    }
    return random.finish(kind == SdkDebugDialog::TextKind::optionFile);
  }

 private:
  using Keyword = SdkDebugDialog::Keyword;
  using Kind = SdkDebugDialog::Kind;
  using Takes = SdkDebugDialog::Option::Takes;

  static std::size_t below(std::size_t count) { return *rc::gen::resize(100, rc::gen::inRange<std::size_t>(0, count)); }
  static bool chance(std::size_t percent) { return below(100) < percent; }
  template <class Rows>
  static const auto& pick(const Rows& rows) {
    return *(std::begin(rows) + static_cast<std::ptrdiff_t>(below(std::size(rows))));
  }

  void put(std::string_view word) { m_words.emplace_back(word); }

  void command() {
    const auto& head = pick(SdkDebugDialog::heads());
    put(head.name.text());
    std::vector<const SdkDebugDialog::Target*> fitting;
    for (const auto& target : SdkDebugDialog::targets()) {
      if (target.virtualPlatform == head.virtualPlatform) fitting.push_back(&target);
    }
    const SdkDebugDialog::Target& target = *pick(fitting);
    put(target.name.text());
    if (target.connections.empty()) return options(*target.options);
    const auto& connection = pick(target.connections);
    put(connection.name.text());
    options(connection.options);
  }

  void options(const SdkDebugDialog::Run& run) {
    std::vector<const SdkDebugDialog::Option*> fitting;
    for (const auto& option : SdkDebugDialog::options()) {
      if ((option.runs & run.bit) != 0) fitting.push_back(&option);
    }
    for (std::size_t count = below(5); count > 0; --count) {
      const SdkDebugDialog::Option& option = *pick(fitting);
      put(option.name.text());
      if (option.takes == Takes::ownRun) return options(SdkDebugDialog::kHdlSimOptions);
      if (option.takes == Takes::nothing) continue;
      if (option.takes != Takes::pairs) {
        put(value(*SdkDebugDialog::value_row(option)));
        continue;
      }
      for (std::size_t pairs = below(4); pairs > 0; --pairs) {
        const Keyword& row = pick(option.group.keywords);
        put(row.name.text());
        put(value(row));
      }
    }
  }

  static std::string_view value(const Keyword& row) {
    static constexpr std::string_view kNumbers[] = {"0", "1", "200", "6000000", "-1", "0x10000"};
    static constexpr std::string_view kTexts[] = {"a", "host:1234", "port", "-7", "caf\xe9"};
    if (!row.words.empty()) return pick(row.words).name.text();
    if (row.kind == Kind::word) return pick(pick(SdkDebugDialog::cable_types()).names).text();
    return row.kind == Kind::text || row.kind == Kind::hostAndPort ? pick(kTexts) : pick(kNumbers);
  }

  // A name of the registry, or a word that is in none.
  static std::string_view any_word() {
    static constexpr std::string_view kJunk[] = {"-", "-", "-foo", "foo", "--", "-0", "x\ny", "-c", "a\0b", "\xff"};
    if (chance(30)) return pick(kJunk);
    if (chance(10)) return pick(SdkDebugDialog::heads()).name.text();
    if (chance(20)) return pick(SdkDebugDialog::targets()).name.text();
    const SdkDebugDialog::Option& option = pick(SdkDebugDialog::options());
    if (chance(50)) return option.name.text();
    const Keyword& row = pick(option.group.keywords);
    return chance(50) ? row.name.text() : value(row);
  }

  void make_mistake() {
    const auto at = m_words.begin() + static_cast<std::ptrdiff_t>(below(m_words.size() + 1));
    if (at == m_words.end() || chance(40)) {
      m_words.insert(at, std::string(any_word()));
    } else if (chance(50)) {
      m_words.erase(at);
    } else {
      *at = any_word();
    }
  }

  std::string finish(bool inFile) {
    if (chance(50)) {
      for (std::size_t mistakes = below(4); mistakes > 0; --mistakes) make_mistake();
    }
    static constexpr std::string_view kBetween[] = {" ", "\t", "  ", " \v ", "\r ", " \f\t"};
    static constexpr std::string_view kAround[] = {"", " ", "\t", "\n", "\r\n", "\v"};
    static constexpr std::string_view kOtherLines[] = {"\n", "\nconnect ov sim\n", "\r\n- x", "\n\n \f-y\vz"};
    const bool odd = chance(30);
    std::string text;
    if (inFile) text.append(below(3), '\n');
    if (odd) text += pick(kAround);
    for (const std::string& word : m_words) {
      if (!text.empty()) text += odd ? pick(kBetween) : " ";
      text += word;
      // As much as is read of a file, or nearly.
      if (chance(2)) text.append(940 + below(100), chance(50) ? ' ' : 'z');
    }
    if (odd) text += pick(kAround);
    if (inFile && chance(50)) text += pick(kOtherLines);
    if (chance(30)) {
      for (char& c : text) {
        if (((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) && chance(50)) c = static_cast<char>(c ^ 0x20);
      }
    }
    return text;
  }

  std::vector<std::string> m_words;
};
