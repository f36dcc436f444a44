// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The message manager of the tool suite.

#if defined(__GNUC__)
/// Marks what the library that has the message manager exports.
#define COMMSGMGR_API __attribute__((visibility("default")))
/// Lets the compiler check the arguments of a format.
#define COMMSGMGR_PRINTF(text, first) __attribute__((format(printf, text, first)))
#else
#define COMMSGMGR_API
#define COMMSGMGR_PRINTF(text, first)
#endif

/// Messages of the tool suite's libraries.
class COMMSGMGR_API ComMsgMgr {
 public:
  /// Receives one formatted message. id and text are valid during the call only. May be called from several threads at
  /// the same time.
  using Sink = void (*)(int type, const char* id, unsigned int mask, const char* text);

  /// The operation that sends a message.
  struct COMMSGMGR_API sendMsg {
    /// Formats a message and passes it to the sink.
    static void eval(int type, const char* id, unsigned int mask, const char* format, ...) COMMSGMGR_PRINTF(4, 5);
  };

  /// Sets the sink, which is one for the process, and returns the previous one. Null restores the default sink, which
  /// prints the text to standard error. Not thread-safe: set the sink before threads start.
  static Sink setSink(Sink sink);
};
