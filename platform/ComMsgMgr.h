#pragma once

// The message manager of the tool suite.

#if defined(__GNUC__)
#define COMMSGMGR_API __attribute__((visibility("default")))
#define COMMSGMGR_PRINTF(text, first) __attribute__((format(printf, text, first)))
#else
#define COMMSGMGR_API
#define COMMSGMGR_PRINTF(text, first)
#endif

class COMMSGMGR_API ComMsgMgr {
 public:
  // Receives one formatted message. id and text are valid during the call only. May be called from several threads at
  // the same time.
  using Sink = void (*)(int type, const char* id, unsigned int mask, const char* text);

  struct COMMSGMGR_API sendMsg {
    // Formats a message and passes it to the sink.
    static void eval(int type, const char* id, unsigned int mask, const char* format, ...) COMMSGMGR_PRINTF(4, 5);
  };

  // Sets the sink, which is one for the process, and returns the previous one. Null restores the default sink, which
  // prints the text to standard error. Not thread-safe: set the sink before threads start.
  static Sink setSink(Sink sink);
};
