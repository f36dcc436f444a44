#pragma once

// Text on its way to a terminal, and small helpers on words.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qvtcfg {

inline constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

// The text with every byte that is no text (control bytes, broken UTF-8) spelled as \xNN.
std::string visible(std::string_view text);

// The text on one line for a message: white space joined to single blanks, made visible, and cut to the limit.
std::string one_line(std::string_view text, std::size_t limit = 300);

// Where the first byte stands that is no text; white space of every kind is text.
std::optional<std::size_t> first_non_text(std::string_view text);

// The words between blanks and tabs.
std::vector<std::string> split_words(std::string_view text);

// What stands between the separators; at least one item, and empty ones too.
std::vector<std::string> split_at(std::string_view text, char separator);

std::string join(const std::vector<std::string>& items, std::string_view separator = ", ");

// " (did you mean 'x'?)" with the candidate that resembles the name; empty when none does.
std::string suggestion(std::string_view name, const std::vector<std::string>& candidates);

}  // namespace qvtcfg
