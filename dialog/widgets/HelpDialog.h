// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/Configuration.h>
#include <SdkDebugDialog/Diagnosis.h>

#include <QDialog>

class QTextBrowser;

namespace qvtdialog {

// The documentation of a setting, a kind of finding, or the keys, beside the window.
class HelpDialog : public QDialog {
  Q_OBJECT

 public:
  explicit HelpDialog(QWidget* parent);

  // With the state in a configuration, or null.
  void show_setting(const SdkDebugDialog::Setting& setting, const SdkDebugDialog::SettingState* state);
  void show_kind(const SdkDebugDialog::FindingKind& kind);
  void show_keys();

 private:
  void show_page(const QString& title, const QString& html);

  QTextBrowser* m_text;
};

}  // namespace qvtdialog
