// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <vector>

#include "model/Document.h"

class QCheckBox;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace qvtdialog {

// Shows what storing changes and loses, processor by processor, and stores those that a person leaves chosen. What
// loses something is stored only if that is asked for as well.
class ApplyDialog : public QDialog {
  Q_OBJECT

 public:
  ApplyDialog(std::vector<Document*> documents, QWidget* parent);

 private:
  QTreeWidgetItem* add_document(Document& document);
  bool loses() const;
  void update_buttons();
  void store();

  std::vector<Document*> m_documents;
  QTreeWidget* m_tree;
  QCheckBox* m_goOn;
  QLabel* m_failure;
  QPushButton* m_store;
};

}  // namespace qvtdialog
