#pragma once

// A text with its words, and changes in it.

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "settings/walk.h"

namespace SdkDebugDialog {

struct Draft {
  Draft(std::string text, TextKind kind);

  std::string text;
  TextKind kind;
  std::vector<WalkedWord> words;

  std::string_view word(std::size_t i) const;
  // Whether the reader looks at the word.
  bool is_read(std::size_t i) const { return words[i].role != Role::ignored; }
  // The number of words up to the last one that is read.
  std::size_t read_end() const;

  // An option and what belongs to it, as far as it is read: its first word, and the first word behind.
  struct Group {
    std::size_t first = 0;
    std::size_t end = 0;
    const Option* option = nullptr;  // null for an unknown one
  };
  // By the number of the group; that of the words before the first option is 0, and it may be empty.
  std::vector<Group> groups;
};

// Changes in a draft, collected and made at once. Changes at the same place are made in the order in which they were
// added.
class Changes {
 public:
  explicit Changes(const Draft& draft) : m_draft(draft) {}

  void replace(std::size_t word, std::string_view by);
  // Removes the word with the white space in front of it.
  void remove(std::size_t word);
  // Behind that many words. The text begins with a blank.
  void add(std::size_t words, std::string_view text);

  std::string made() const;

 private:
  struct Splice {
    std::size_t begin;
    std::size_t end;
    std::string text;
  };
  const Draft& m_draft;
  std::vector<Splice> m_splices;
};

std::string with_added(const Draft& draft, std::size_t words, std::string_view text);

}  // namespace SdkDebugDialog
