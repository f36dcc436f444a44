// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>

#include "model/Session.h"

namespace qvtdialog {

// The processors of a session as rows. What a row shows is looked up when the row is.
class ProcessorModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { name, kind, file, count };

  ProcessorModel(Session& session, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  Session& m_session;
};

}  // namespace qvtdialog
