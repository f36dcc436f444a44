#pragma once

// The result of an operation that can fail: a value, or an error with a text.

#include <string>
#include <utility>
#include <variant>

namespace SdkDebugDialog {

enum class ErrorCode {
  noSuchProcessor,   // the design has no processor of this name that can be debugged
  noSuchSetting,     // no setting has this name
  invalidValue,      // a text or a value that the setting can never have
  refused,           // a value that is not accepted, or a setting that does not apply
  notUnderstood,     // the reader refuses the text
  cannotBeWritten,   // there is no connect command for these settings
  wouldLose,         // storing would lose something, or what is stored would not be read back with the same meaning
  changedMeanwhile,  // the file has changed since it was read, or exists although it should not
  file,              // a file cannot be read or written
};

struct Error {
  ErrorCode code = ErrorCode::refused;
  std::string message;     // one line, never empty: what is wrong and what is accepted
  std::string engineText;  // what Engine::GetErrorStr says about it; often empty
};

// A value or an error. Asking for the one that it does not hold throws std::bad_variant_access.
template <class Value>
class Expected {
 public:
  Expected(Value value) : m_content(std::in_place_index<0>, std::move(value)) {}
  Expected(Error error) : m_content(std::in_place_index<1>, std::move(error)) {}

  explicit operator bool() const { return m_content.index() == 0; }

  Value& value() { return std::get<0>(m_content); }
  const Value& value() const { return std::get<0>(m_content); }
  Value& operator*() { return value(); }
  const Value& operator*() const { return value(); }
  Value* operator->() { return &value(); }
  const Value* operator->() const { return &value(); }

  const Error& error() const { return std::get<1>(m_content); }

 private:
  std::variant<Value, Error> m_content;
};

// Success, or an error.
template <>
class Expected<void> : public Expected<std::monostate> {
 public:
  Expected() : Expected<std::monostate>(std::monostate()) {}
  Expected(Error error) : Expected<std::monostate>(std::move(error)) {}
};

}  // namespace SdkDebugDialog
