// SPDX-License-Identifier: MIT
#pragma once

// Texts of the library, in the language of the dialog. Texts that the library puts together, such as errors, stay as
// they are.

#include <SdkDebugDialog/Configuration.h>
#include <SdkDebugDialog/Diagnosis.h>
#include <SdkDebugDialog/Settings.h>

#include <QString>
#include <span>
#include <string_view>

namespace qvtdialog {

// A fixed text of the library, translated if there is a translation.
QString translated(std::string_view text);
// All texts that there are translations of.
std::span<const char* const> library_strings();

QString label_of(const SdkDebugDialog::Setting& setting);
QString meaning_of(const SdkDebugDialog::Setting& setting);
QString label_of(const SdkDebugDialog::SettingGroup& group);
// The unit as it stands behind a field; empty if there is none.
QString unit_of(const SdkDebugDialog::Setting& setting);
// A value as a person reads it; "not set", "none" where there is nothing.
QString value_of(const SdkDebugDialog::Setting& setting, const SdkDebugDialog::SettingValue& value);
// The beginning of a text that can be very long, for a label.
QString shortened(const std::string& text);
QString severity_of(SdkDebugDialog::Severity severity);

}  // namespace qvtdialog
