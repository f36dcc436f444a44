#pragma once

namespace SdkDebugDialog {

// How a reader ended. QvtOption_Parser's entry points answer these as 0 to 3.
enum class Outcome {
  done,    // it read what it was asked for; the text goes on
  option,  // at the next option, which it has consumed: TokenCursor::option
  error,
  end,  // at the end of the text
};

}  // namespace SdkDebugDialog
