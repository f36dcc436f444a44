#include "platform/ComMsgMgr.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <string>

namespace {

void print(int /*type*/, const char* /*id*/, unsigned int /*mask*/, const char* text) { std::fputs(text, stderr); }

ComMsgMgr::Sink current_sink = print;

}  // namespace

void ComMsgMgr::sendMsg::eval(int type, const char* id, unsigned int mask, const char* format, ...) {
  std::va_list args;
  va_start(args, format);
  std::va_list measured;
  va_copy(measured, args);
  const int length = std::vsnprintf(nullptr, 0, format, measured);
  va_end(measured);
  std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
  std::vsnprintf(text.data(), text.size() + 1, format, args);
  va_end(args);
  current_sink(type, id, mask, text.c_str());
}

ComMsgMgr::Sink ComMsgMgr::setSink(Sink sink) {
  const Sink before = current_sink;
  current_sink = sink != nullptr ? sink : print;
  return before;
}
