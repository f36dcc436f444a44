#pragma once

// The tool suite's message manager.

#if defined(__GNUC__)
#define COMMSGMGR_API __attribute__((visibility("default")))
#define COMMSGMGR_PRINTF(text, first) __attribute__((format(printf, text, first)))
#else
#define COMMSGMGR_API
#define COMMSGMGR_PRINTF(text, first)
#endif

class COMMSGMGR_API ComMsgMgr {
 public:
  // Receives one formatted message. The texts are valid during the call only.
  using Sink = void (*)(int type, const char* id, unsigned int mask, const char* text);

  struct COMMSGMGR_API sendMsg {
    // Formats a message and hands it to the sink.
    static void eval(int type, const char* id, unsigned int mask, const char* format, ...) COMMSGMGR_PRINTF(4, 5);
  };

  // Sends all further messages of the process to sink and returns the sink before. Null restores the default,
  // which prints the text to standard error.
  static Sink setSink(Sink sink);
};
