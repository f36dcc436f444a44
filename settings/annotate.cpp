// What each word of a text is, which setting it is about, and how far the reader came.

#include <algorithm>
#include <string_view>
#include <vector>

#include "SdkDebugDialog/Annotation.h"
#include "SdkDebugDialog/Configuration.h"
#include "options/groups.h"
#include "settings/catalogue.h"
#include "settings/engine_text.h"
#include "settings/walk.h"

namespace SdkDebugDialog {
namespace {

const Setting* setting_of(const WalkedWord& word) {
  switch (word.role) {
    case Role::target:
      // A command for the virtual platform has no connection keyword: its target selects the connection.
      return word.target->virtualPlatform ? find_setting("connection") : nullptr;
    case Role::connection:
      return find_setting("connection");
    case Role::option: {
      if (&word.option->group == &kConfigdevice) return find_setting("devices");
      const Keyword* const row = value_row(*word.option);
      return row != nullptr ? setting_of(*row) : nullptr;
    }
    case Role::keyword:
    case Role::value:
      return setting_of(*word.keyword);
    case Role::head:
    case Role::ignored:
    case Role::unknown:
      return nullptr;
  }
  return nullptr;
}

}  // namespace

std::vector<Annotation> annotate(std::string_view text, TextKind kind) { return annotate(text, kind, Processor()); }

std::vector<Annotation> annotate(std::string_view text, TextKind kind, const Processor& processor) {
  std::vector<Annotation> annotations;
  for (const WalkedWord& word : walk(text, kind)) {
    annotations.push_back({.begin = word.begin, .end = word.end, .role = word.role, .setting = setting_of(word)});
  }
  const Reading reading = read_state(processor, text, kind);
  if (reading.understood) return annotations;
  // The reader refuses the last word that it consumed, or the end of the text behind it.
  auto guess = std::ranges::partition_point(
      annotations, [&](const Annotation& annotation) { return annotation.begin < reading.consumed; });
  if (guess != annotations.begin()) --guess;
  for (; guess != annotations.end(); ++guess) guess->guess = true;
  return annotations;
}

}  // namespace SdkDebugDialog
