// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/Diagnosis.h>

#include <QWidget>
#include <cstddef>
#include <vector>

class QLabel;
class QListView;
class QModelIndex;
class QPushButton;

namespace qvtdialog {

class FindingModel;

// What is wrong with a text, the errors first. Below each finding are the places that explain it and its fixes. Enter
// or a click goes to the place, or applies the fix. Hidden while there is nothing.
class FindingList : public QWidget {
  Q_OBJECT

 public:
  explicit FindingList(QWidget* parent = nullptr);

  void show_findings(const std::vector<SdkDebugDialog::Finding>& findings);

 signals:
  void fix_wanted(const SdkDebugDialog::Fix& fix);
  void all_fixes_wanted();
  // In bytes.
  void place_wanted(std::size_t begin, std::size_t end);
  // F1.
  void help_wanted(const SdkDebugDialog::FindingKind* kind);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void choose(const QModelIndex& index);
  void take_font();

  FindingModel* m_model;
  QLabel* m_summary;
  QPushButton* m_fix_all;
  QListView* m_list;
};

}  // namespace qvtdialog
