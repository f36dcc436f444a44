#include "typed_line.h"

#include <algorithm>
#include <utility>

#include "text.h"

namespace qvtcfg {
namespace {

bool is_named(const Parameter& parameter, std::string_view name) {
  return std::ranges::find(parameter.names, name) != parameter.names.end();
}

// An argument with white space is a text, also one that begins with a dash.
bool is_option(std::string_view word) {
  return word.size() > 1 && word.starts_with('-') && word.find_first_of(kWhiteSpace) == std::string_view::npos;
}

// Where the value begins in "--format=text" and "-Cfolder"; 0 if it is not in the word.
std::size_t value_in(std::string_view word) {
  if (word.starts_with("--")) return word.find('=') + 1;
  return word.size() > 2 ? 2 : 0;
}

class Reading {
 public:
  Reading(const CommandDescription& program, std::size_t index) : m_program(program), m_index(index) {
    m_line.command = &program;
  }

  void read(const std::string& word, std::size_t at) {
    const bool here = at == m_index;
    if (here) begin(word);
    const Parameter* const waiting = std::exchange(m_waiting, nullptr);
    if (waiting != nullptr && !(waiting->valueOptional && word.starts_with('-'))) {
      if (here) {
        m_line.option = waiting;
      } else {
        m_line.options.push_back({waiting, word});
      }
    } else if (!m_ended && word == "--" && !here) {
      m_ended = true;
    } else if (!m_ended && is_option(word)) {
      read_option(word, here);
    } else if (!here) {
      read_operand(word);
    }
  }

  TypedLine line() && { return std::move(m_line); }

 private:
  void begin(const std::string& word) {
    m_line.word = word;
    m_line.place = m_line.operands.size();
    m_line.options_ended = m_ended;
  }

  void read_option(const std::string& word, bool here) {
    const std::size_t value = value_in(word);
    std::string_view name = std::string_view(word).substr(0, value == 0 ? word.size() : value);
    if (name.ends_with('=')) name.remove_suffix(1);
    const auto options = options_of(m_program, *m_line.command);
    const auto found = std::ranges::find_if(options, [&](const Parameter* option) { return is_named(*option, name); });
    if (found == options.end()) return;
    const bool takes_value = !(*found)->value.empty();
    if (here) {
      if (value == 0 || !takes_value) return;
      m_line.option = *found;
      m_line.start = word.substr(0, value);
    } else if (takes_value && value == 0) {
      m_waiting = *found;
      if (m_waiting->valueOptional) m_line.options.push_back({m_waiting, ""});
    } else {
      m_line.options.push_back({*found, value == 0 ? "" : word.substr(value)});
    }
  }

  void read_operand(const std::string& word) {
    for (const CommandDescription& command : m_line.command->commands) {
      if (own_name(command) != word) continue;
      m_line.command = &command;
      m_line.place = 0;
      return;
    }
    m_line.operands.push_back(word);
  }

  const CommandDescription& m_program;
  std::size_t m_index;
  TypedLine m_line{};
  const Parameter* m_waiting = nullptr;  // the option in front takes the next word
  bool m_ended = false;
};

}  // namespace

bool TypedLine::has(std::string_view name) const {
  return std::ranges::any_of(options, [&](const Given& given) { return is_named(*given.option, name); });
}

std::optional<std::string> TypedLine::value(std::string_view name) const {
  std::optional<std::string> last;
  for (const Given& given : options) {
    if (is_named(*given.option, name)) last = given.value;
  }
  return last;
}

TypedLine typed_line(const CommandDescription& program, const std::vector<std::string>& words, std::size_t index) {
  Reading reading(program, index);
  for (std::size_t at = 0; at < words.size(); ++at) reading.read(words[at], at);
  return std::move(reading).line();
}

std::vector<const Parameter*> options_of(const CommandDescription& program, const CommandDescription& command) {
  std::vector<const Parameter*> options;
  for (const Parameter& option : command.options) options.push_back(&option);
  if (&command == &program) return options;
  for (const Parameter& option : program.options) {
    const bool own = std::ranges::any_of(command.options, [&](const Parameter& o) { return o.names == option.names; });
    if (!own && !is_named(option, "--version")) options.push_back(&option);
  }
  return options;
}

}  // namespace qvtcfg
