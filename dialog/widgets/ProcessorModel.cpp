// SPDX-License-Identifier: MIT
#include "widgets/ProcessorModel.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStringList>

#include "model/Bytes.h"
#include "widgets/Colours.h"

namespace qvtdialog {

namespace {

QString file_text(const Overview& overview) {
  if (!overview.debuggable) return {};
  QStringList parts;
  if (overview.hasChanges) parts += ProcessorModel::tr("not stored");
  if (!overview.unreadable.isEmpty()) {
    parts += ProcessorModel::tr("unreadable");
  } else if (!overview.hasFile) {
    parts += ProcessorModel::tr("no file");
  }
  if (overview.errors > 0) parts += ProcessorModel::tr("%n error(s)", nullptr, overview.errors);
  if (overview.warnings > 0) parts += ProcessorModel::tr("%n warning(s)", nullptr, overview.warnings);
  if (parts.isEmpty()) parts += ProcessorModel::tr("stored");
  return parts.join(QStringLiteral(", "));
}

// For the whole row: what the columns may have no room for.
QString whole_text(const QString& name, const Overview& overview) {
  QStringList lines = {name + QStringLiteral(": ") + overview.kind};
  if (overview.debuggable) lines += ProcessorModel::tr("Connections: %1").arg(overview.connections);
  if (overview.debuggable) lines += ProcessorModel::tr("Option file: %1").arg(file_text(overview));
  if (!overview.unreadable.isEmpty()) lines += overview.unreadable;
  return lines.join(QLatin1Char('\n'));
}

}  // namespace

ProcessorModel::ProcessorModel(Session& session, QObject* parent) : QAbstractTableModel(parent), m_session(session) {
  connect(&session, &Session::overview_changed, this, [this](std::size_t place) {
    const int row = static_cast<int>(place);
    emit dataChanged(index(row, 0), index(row, columnCount() - 1));
  });
  connect(&session, &Session::overviews_changed, this, [this] {
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  });
}

int ProcessorModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_session.names().size());
}

int ProcessorModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Column::count; }

QVariant ProcessorModel::data(const QModelIndex& index, int role) const {
  const auto place = static_cast<std::size_t>(index.row());
  const QString processor = shown(m_session.names()[place]);
  // The filter asks for the names of all rows: they need no look at the files.
  if (index.column() == name && role == Qt::DisplayRole) return processor;
  switch (role) {
    case Qt::DisplayRole:
      return index.column() == kind ? m_session.overview(place).kind : file_text(m_session.overview(place));
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
      return whole_text(processor, m_session.overview(place));
    case Qt::FontRole: {
      if (!m_session.overview(place).hasChanges) return {};
      QFont font;
      font.setBold(true);
      return font;
    }
    case Qt::ForegroundRole: {
      const Overview& overview = m_session.overview(place);
      if (index.column() != file) return {};
      const QPalette palette = QApplication::palette();
      if (overview.errors > 0 || !overview.unreadable.isEmpty()) return colour(Tone::error, palette);
      if (overview.warnings > 0) return colour(Tone::warning, palette);
      if (!overview.hasFile) return colour(Tone::quiet, palette);
      return {};
    }
    default:
      return {};
  }
}

QVariant ProcessorModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  const QString texts[] = {tr("Processor"), tr("Kind"), tr("Option file")};
  return texts[section];
}

Qt::ItemFlags ProcessorModel::flags(const QModelIndex& index) const {
  const bool debuggable = m_session.overview(static_cast<std::size_t>(index.row())).debuggable;
  return debuggable ? QAbstractTableModel::flags(index) : Qt::ItemFlags(Qt::ItemNeverHasChildren);
}

}  // namespace qvtdialog
