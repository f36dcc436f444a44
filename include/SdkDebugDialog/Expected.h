// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The result of an operation that can fail: a value, or an error with a text.

#include <string>
#include <utility>
#include <variant>

namespace SdkDebugDialog {

/// What kind of error it is.
enum class ErrorCode {
  noSuchProcessor,   ///< the design has no processor of this name that can be debugged
  noSuchSetting,     ///< no setting has this name
  invalidValue,      ///< a text or a value that the setting can never have
  refused,           ///< a value that is not accepted, or a setting that does not apply
  notUnderstood,     ///< the reader refuses the text
  cannotBeWritten,   ///< there is no connect command for these settings
  wouldLose,         ///< storing would lose something, or what is stored would not be read back with the same meaning
  changedMeanwhile,  ///< the file has changed since it was read, or exists although it should not
  file,              ///< a file cannot be read or written
};

/// Why an operation failed.
/// Fields are added at its end, in a major version only.
struct Error {
  ErrorCode code = ErrorCode::refused;  ///< for programs
  std::string message;                  ///< one line, never empty: what is wrong and what is accepted
  std::string engineText;               ///< what Engine::GetErrorStr says about it; often empty
};

/// A value or an error. Asking for the one that it does not hold throws std::bad_variant_access.
template <class Value>
class Expected {
 public:
  /// Success.
  Expected(Value value) : m_content(std::in_place_index<0>, std::move(value)) {}
  /// Failure.
  Expected(Error error) : m_content(std::in_place_index<1>, std::move(error)) {}

  /// Whether it holds a value.
  explicit operator bool() const { return m_content.index() == 0; }

  /// The value.
  Value& value() { return std::get<0>(m_content); }
  /// The value.
  const Value& value() const { return std::get<0>(m_content); }
  /// The value.
  Value& operator*() { return value(); }
  /// The value.
  const Value& operator*() const { return value(); }
  /// A member of the value.
  Value* operator->() { return &value(); }
  /// A member of the value.
  const Value* operator->() const { return &value(); }

  /// The error.
  const Error& error() const { return std::get<1>(m_content); }

 private:
  std::variant<Value, Error> m_content;
};

/// Success, or an error.
template <>
class Expected<void> : public Expected<std::monostate> {
 public:
  /// Success.
  Expected() : Expected<std::monostate>(std::monostate()) {}
  /// Failure.
  Expected(Error error) : Expected<std::monostate>(std::move(error)) {}
};

}  // namespace SdkDebugDialog
