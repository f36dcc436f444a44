// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What the shared library exports.

/// Marks the symbols that the shared library exports; all others are hidden.
#if defined(__GNUC__)
#define SDKDEBUGDIALOG_API __attribute__((visibility("default")))
#else
#define SDKDEBUGDIALOG_API
#endif
