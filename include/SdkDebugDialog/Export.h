#pragma once

// Marks what the shared library exports; everything else stays hidden.
#if defined(__GNUC__)
#define SDKDEBUGDIALOG_API __attribute__((visibility("default")))
#else
#define SDKDEBUGDIALOG_API
#endif
