// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <optional>
#include <vector>

#include "model/Session.h"

namespace qvtdialog {

// The processors of a session as rows: those that a filter leaves. What a row shows is looked up when the row is.
class ProcessorModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { name, kind, file, count };

  ProcessorModel(Session& session, QObject* parent);

  // Leaves those whose name has the text in it, in any case.
  void set_filter(const QString& text);
  // The place of a row in the session, and the row of a place; none if the filter leaves it out.
  std::size_t place_of(int row) const { return m_places[static_cast<std::size_t>(row)]; }
  std::optional<int> row_of(std::size_t place) const;

  // What a column has room for.
  static QStringList common_texts(Column column);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  Session& m_session;
  std::vector<std::size_t> m_places;  // of the rows, in their order
};

}  // namespace qvtdialog
