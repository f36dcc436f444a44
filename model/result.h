#pragma once

namespace SdkDebugDialog {

// What the operations of Engine and EngineImp return.
inline constexpr int kOk = 0;
inline constexpr int kRefused = 1;        // setters, and everything without a selected processor
inline constexpr int kNotSet = 1;         // getters
inline constexpr int kNotApplicable = 2;  // to this processor or connection
inline constexpr int kNotListed = 2;      // selection: no such processor

}  // namespace SdkDebugDialog
