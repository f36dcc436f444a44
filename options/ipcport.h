#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "options/number.h"

namespace SdkDebugDialog {

// Reads "host:port", "host:" or ":port"; an empty host is this machine, a port that is no number is 0. False, with
// nothing stored, when there is no colon.
inline bool read_host_and_port(std::string_view value, std::string& host, std::uint32_t& port) {
  const std::size_t colon = value.find(':');
  if (colon == std::string_view::npos) return false;
  port = static_cast<std::uint32_t>(to_decimal(value.substr(colon + 1)));
  host = colon == 0 ? "localhost" : value.substr(0, colon);
  return true;
}

}  // namespace SdkDebugDialog
