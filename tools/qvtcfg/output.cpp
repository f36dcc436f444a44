#include "output.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "failure.h"

namespace qvtcfg {
namespace {

bool colours_wanted(int descriptor) {
  const char* const none = std::getenv("NO_COLOR");
  const char* const terminal = std::getenv("TERM");
  return isatty(descriptor) != 0 && (none == nullptr || *none == '\0') && terminal != nullptr &&
         std::strcmp(terminal, "dumb") != 0;
}

// In the order of Style.
constexpr const char* kEscapes[] = {"\033[1m",    "\033[1m",    "\033[2m",    "\033[31m", "\033[32m",
                                    "\033[1;31m", "\033[1;35m", "\033[1;36m", "\033[34m"};

std::size_t columns_of(int descriptor) {
  constexpr std::size_t kNarrowest = 40;
  winsize size = {};
  const bool known = ioctl(descriptor, TIOCGWINSZ, &size) == 0 && size.ws_col != 0;
  return known ? std::max<std::size_t>(size.ws_col, kNarrowest) : Look().columns;
}

}  // namespace

Look look_of(int descriptor) { return {colours_wanted(descriptor), columns_of(descriptor)}; }

std::string Look::styled(Style style, const std::string& text) const {
  return colour ? kEscapes[static_cast<int>(style)] + text + "\033[0m" : text;
}

Output::Output() : m_look(look_of(STDOUT_FILENO)) {}

void Output::line(std::string_view text) {
  m_text += text;
  m_text += '\n';
}

void Output::json(const Json& document) { line(document.dump(2, ' ', false, Json::error_handler_t::replace)); }

void Output::table(const std::vector<std::vector<std::string>>& rows) {
  std::vector<std::size_t> widths;
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  for (const auto& row : rows) {
    std::string text;
    for (std::size_t i = 0; i + 1 < row.size(); ++i) text += padded(row[i], widths[i] + 2);
    text += row.back();
    line(&row == &rows.front() ? styled(Style::kHeading, text) : text);
  }
}

void Output::flush() {
  const bool written = std::fwrite(m_text.data(), 1, m_text.size(), stdout) == m_text.size();
  if (!written || std::fflush(stdout) != 0) {
    throw OutputFailure(kFile, std::string("standard output: ") + std::strerror(errno) + "; the output is incomplete");
  }
  m_text.clear();
}

std::string padded(std::string text, std::size_t width) {
  text.resize(std::max(width, text.size()), ' ');
  return text;
}

}  // namespace qvtcfg
