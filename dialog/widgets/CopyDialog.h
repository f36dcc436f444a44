// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "model/Session.h"

class QLabel;
class QLineEdit;
class QListView;
class QPlainTextEdit;
class QPushButton;

namespace qvtdialog {

class CopyTargets;

// Copies the settings of a processor to others, as a step in the history of each. Before that it shows what those that
// are chosen do not take, and what their files lose.
class CopyDialog : public QDialog {
  Q_OBJECT

 public:
  CopyDialog(Session& session, Document& from, QWidget* parent);

 private:
  void preview();
  void copy();

  Session& m_session;
  Document& m_from;
  CopyTargets* m_targets;
  QLineEdit* m_filter;
  QListView* m_view;
  QPlainTextEdit* m_preview;
  QPushButton* m_copy;
};

}  // namespace qvtdialog
