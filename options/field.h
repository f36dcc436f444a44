#pragma once

// Access to the field that a row of the registry stores its value in.

#include <type_traits>

#include "options/syntax.h"

namespace SdkDebugDialog {

template <class Value>
Value& field_of(const Records& records, Value ProcessorInfoImp::*field) {
  return records.processor->*field;
}
template <class Value>
Value& field_of(const Records& records, Value CableOption::*field) {
  return records.cable->*field;
}
template <class Value>
Value& field_of(const Records& records, Value JtagOption::*field) {
  return records.device->*field;
}

// Calls use with the stored value, unless there is no field.
template <class Use>
void with_field(const Field& stored, const Records& records, Use use) {
  std::visit(
      [&](auto field) {
        if constexpr (!std::is_same_v<decltype(field), std::monostate>) use(field_of(records, field));
      },
      stored);
}

}  // namespace SdkDebugDialog
