// SPDX-License-Identifier: MIT
#include "model/library_texts.h"

#include <QCoreApplication>
#include <string>

#include "model/Bytes.h"

namespace qvtdialog {

using SdkDebugDialog::Setting;
using SdkDebugDialog::SettingGroup;
using SdkDebugDialog::SettingKind;
using SdkDebugDialog::SettingValue;
using SdkDebugDialog::Severity;
using SdkDebugDialog::value_text;

QString translated(std::string_view text) {
  const std::string source(text);
  const QString found = QCoreApplication::translate("library", source.c_str());
  // What was put together can have bytes that are no characters.
  return found == QString::fromStdString(source) ? shown(text) : found;
}

QString label_of(const Setting& setting) { return translated(setting.label); }
QString meaning_of(const Setting& setting) { return translated(setting.meaning); }
QString label_of(const SettingGroup& group) { return translated(group.label); }
QString unit_of(const Setting& setting) { return translated(setting.unit); }

QString value_of(const Setting& setting, const SettingValue& value) {
  if (const bool* const on = std::get_if<bool>(&value)) {
    return *on ? QCoreApplication::translate("value", "on") : QCoreApplication::translate("value", "off");
  }
  const std::string text = value_text(setting, value);
  if (!text.empty()) return shown(text);
  return setting.kind == SettingKind::devices ? QCoreApplication::translate("value", "none")
                                              : QCoreApplication::translate("value", "not set");
}

QString shortened(const std::string& text) {
  constexpr qsizetype kMost = 600;
  // A character has four bytes at most.
  const QString beginning = shown(std::string_view(text).substr(0, 4 * kMost)).trimmed();
  return beginning.size() <= kMost ? beginning : beginning.left(kMost) + QStringLiteral(" …");
}

QString severity_of(Severity severity) {
  switch (severity) {
    case Severity::error:
      return QCoreApplication::translate("severity", "error");
    case Severity::warning:
      return QCoreApplication::translate("severity", "warning");
    case Severity::note:
      break;
  }
  return QCoreApplication::translate("severity", "note");
}

}  // namespace qvtdialog
