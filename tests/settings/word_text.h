#pragma once

// What the words of a text are, as text: "H:connect T:ov C:odm O:-cable K:type V:zarvek_plugin", and I for ignored, U
// for unknown. A "?" follows a role that is a guess.

#include <string>
#include <string_view>

#include "SdkDebugDialog/Annotation.h"

inline char role_letter(SdkDebugDialog::Role role) {
  using SdkDebugDialog::Role;
  switch (role) {
    case Role::head:
      return 'H';
    case Role::target:
      return 'T';
    case Role::connection:
      return 'C';
    case Role::option:
      return 'O';
    case Role::keyword:
      return 'K';
    case Role::value:
      return 'V';
    case Role::ignored:
      return 'I';
    case Role::unknown:
      return 'U';
  }
  return '!';
}

template <class Words>
std::string word_text(std::string_view text, const Words& words) {
  std::string all;
  for (const auto& word : words) {
    all += all.empty() ? "" : " ";
    all += role_letter(word.role);
    if constexpr (requires { word.guess; }) all += word.guess ? "?" : "";
    all.append(":").append(text.substr(word.begin, word.end - word.begin));
  }
  return all;
}

// Whether the words stand in order and between them is nothing but white space.
template <class Words>
bool covers(std::string_view text, const Words& words) {
  constexpr std::string_view kSpace = " \t\n\v\f\r";
  std::size_t end = 0;
  const auto is_space = [&](std::size_t to) {
    return text.substr(end, to - end).find_first_not_of(kSpace) == std::string_view::npos;
  };
  for (const auto& word : words) {
    if (word.begin < end || word.end <= word.begin || word.end > text.size() || !is_space(word.begin)) return false;
    if (kSpace.find(text[word.begin]) != std::string_view::npos) return false;
    if (kSpace.find(text[word.end - 1]) != std::string_view::npos) return false;
    end = word.end;
  }
  return is_space(text.size());
}
