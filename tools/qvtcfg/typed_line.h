#pragma once

// A command line that is being typed.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "description.h"

namespace qvtcfg {

struct TypedLine {
  struct Given {
    const Parameter* option;
    std::string value;
  };

  const CommandDescription* command;  // the innermost one that was named
  std::vector<Given> options;
  std::vector<std::string> operands;  // in front of the word and behind it
  std::size_t place = 0;              // of the word among the operands
  std::string word;                   // what is there of the word to be completed
  const Parameter* option = nullptr;  // the word is the value of this option
  std::string start;                  // what stands in front of the value in the word, such as "--format="
  bool options_ended = false;         // a "--" stands in front of the word

  bool has(std::string_view name) const;
  // The last value of an option.
  std::optional<std::string> value(std::string_view name) const;
};

// The words without the program; the word with the index is to be completed. The line refers to the program.
TypedLine typed_line(const CommandDescription& program, const std::vector<std::string>& words, std::size_t index);

// The options that the command takes: its own and those of the program, without those that only the program takes by
// itself.
std::vector<const Parameter*> options_of(const CommandDescription& program, const CommandDescription& command);

}  // namespace qvtcfg
