#pragma once

// Text for a terminal, and helpers for splitting and joining.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qvtcfg {

inline constexpr std::string_view kWhiteSpace = " \t\n\v\f\r";

// The length in bytes of the printable character at the start of the text; 0 when there is none.
std::size_t character_length(std::string_view text);

// The code of a character.
std::uint32_t code_point(std::string_view character);

// Whether a terminal shows nothing for a character, or shows others in another order for it: a byte-order mark, a mark
// for the direction of writing.
bool is_unseen(std::string_view character);

// The text with control bytes and invalid UTF-8 escaped as \xNN, and unseen characters as \uNNNN.
std::string visible(std::string_view text);

// The text on one line for a message: runs of white space replaced by one blank, escaped by visible(), and truncated to
// the limit in bytes.
std::string one_line(std::string_view text, std::size_t limit = 300);

// The position of the first control byte or invalid UTF-8 byte; white space of every kind is allowed.
std::optional<std::size_t> first_non_text(std::string_view text);

// Splits at runs of blanks and tabs.
std::vector<std::string> split_words(std::string_view text);

std::string join(const std::vector<std::string>& items, std::string_view separator = ", ");

// Eight hexadecimal digits after 0x.
std::string hex_text(std::uint32_t value);

}  // namespace qvtcfg
