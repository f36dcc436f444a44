// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/Settings.h>

#include <QPointer>
#include <QWidget>

#include "model/Document.h"
#include "widgets/ChainModel.h"

class QLabel;
class QPushButton;
class QTableView;

namespace qvtdialog {

class ChainPicture;

// The JTAG chain: as a picture, and as a table beside it in which it is changed.
class ChainEditor : public QWidget {
  Q_OBJECT

 public:
  ChainEditor(const SdkDebugDialog::Setting& setting, QWidget* parent);

  void set_document(Document* document);
  void refresh();
  void focus();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPushButton* add_button(const QString& name, const QString& text, const QString& tip, void (ChainEditor::*action)());
  int row() const;
  void select(int row);
  void update_buttons();

  void add();
  void remove();
  void move_up() { move(-1); }
  void move_down() { move(1); }
  void move(int by);
  // Tells in the line below what is not accepted.
  void assign(const Chain& chain, int debugDevice, const QString& title);

  const SdkDebugDialog::Setting& m_setting;
  const SdkDebugDialog::Setting& m_debugDevice;
  QPointer<Document> m_document;
  ChainModel* m_model;
  ChainPicture* m_picture;
  QTableView* m_table;
  QLabel* m_note;
  QPushButton* m_add;
  QPushButton* m_remove;
  QPushButton* m_up;
  QPushButton* m_down;
};

}  // namespace qvtdialog
