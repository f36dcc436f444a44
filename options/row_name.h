#pragma once

// Finds a word in a table of names that is known when this is compiled.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

#include "options/LetterCase.h"
#include "options/packed_letters.h"

namespace SdkDebugDialog {

// --- One name ---

// How many letters of a name are compared at once.
constexpr std::size_t piece_width(std::size_t size) { return size >= 8 ? 8 : size >= 4 ? 4 : 1; }

// The letters of a name from a place on.
struct Piece {
  std::size_t at = 0;
  std::uint64_t letters = 0;
  std::uint64_t caseBits = 0;
};

template <const auto& rows, std::size_t row>
inline constexpr auto name_pieces = [] {
  constexpr std::string_view name = rows[row].name;
  constexpr std::size_t width = piece_width(name.size());
  std::array<Piece, (name.size() + width - 1) / width> pieces;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    // The last piece may share letters with the one before it.
    const std::size_t at = std::min(i * width, name.size() - width);
    const std::uint64_t packed = letters<width>(name.data() + at);
    pieces[i] = {at, packed, case_bits(packed)};
  }
  return pieces;
}();

// Whether a word is the name of a row in any case. The name is known when this is compiled, so that a few numbers are
// compared and nothing else. A name may be missed where the locale knows cases of more letters than those of ASCII.
template <const auto& rows, std::size_t row>
bool is_name(std::string_view word, LetterCase& letterCase) {
  constexpr std::string_view name = rows[row].name;
  if (word.size() != name.size()) return false;
  std::uint64_t differs = 0;
  std::uint64_t differsBeyondCase = 0;
  for (const Piece& piece : name_pieces<rows, row>) {
    const std::uint64_t bits = letters<piece_width(name.size())>(word.data() + piece.at) ^ piece.letters;
    differs |= bits;
    differsBeyondCase |= bits & ~piece.caseBits;
  }
  // Our own spelling is right whatever the locale is.
  return differsBeyondCase == 0 && (differs == 0 || letterCase.is_ascii() || letterCase.same(name, word));
}

// --- A table of names ---

// Calls take<i>() for one row after the other until it answers true; whether it did.
template <const auto& rows, class Take>
bool any_row(Take take) {
  return [&]<std::size_t... i>(std::index_sequence<i...>) { return (take.template operator()<i>() || ...); }
  (std::make_index_sequence<std::size(rows)>());
}

}  // namespace SdkDebugDialog
