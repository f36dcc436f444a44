#pragma once

// The frame of a connect command: its head and its target, which select a reader and a writer.

#include <string_view>

#include "options/syntax.h"

namespace SdkDebugDialog {

// An option file takes fewer heads and targets than a command.
enum class Source { file, command };

// The target that the word names behind a head of this kind; null when it names none.
const Target* find_target(std::string_view word, bool virtualPlatform, const LetterCase& letterCase);

// False when the text is not understood.
bool read_connect(TokenCursor& in, EngineImp& imp, Source source);

// What follows a head: the target, and what it takes.
bool read_target(TokenCursor& in, EngineImp& imp, Source source, bool virtualPlatform);

// False when the selected connection or cable cannot be written.
bool write_connect(TextOut& out, EngineImp& imp);

}  // namespace SdkDebugDialog
