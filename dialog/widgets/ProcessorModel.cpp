// SPDX-License-Identifier: MIT
#include "widgets/ProcessorModel.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStringList>
#include <algorithm>

#include "model/Bytes.h"
#include "widgets/Colours.h"

namespace qvtdialog {

namespace {

QString file_text(const Overview& overview) {
  if (!overview.debuggable) return {};
  QStringList parts;
  // There are changes here as well then, which the font tells.
  if (overview.hasConflict) {
    parts += ProcessorModel::tr("changed elsewhere");
  } else if (overview.hasChanges) {
    parts += ProcessorModel::tr("not stored");
  }
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
  set_filter({});
  connect(&session, &Session::overview_changed, this, [this](std::size_t place) {
    if (const auto row = row_of(place)) emit dataChanged(index(*row, 0), index(*row, columnCount() - 1));
  });
  connect(&session, &Session::overviews_changed, this, [this] {
    if (rowCount() > 0) emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  });
}

void ProcessorModel::set_filter(const QString& text) {
  beginResetModel();
  m_places.clear();
  for (std::size_t place = 0; place < m_session.names().size(); ++place) {
    if (text.isEmpty() || shown(m_session.names()[place]).contains(text, Qt::CaseInsensitive))
      m_places.push_back(place);
  }
  endResetModel();
}

std::optional<int> ProcessorModel::row_of(std::size_t place) const {
  const auto found = std::lower_bound(m_places.begin(), m_places.end(), place);
  if (found == m_places.end() || *found != place) return std::nullopt;
  return static_cast<int>(found - m_places.begin());
}

QStringList ProcessorModel::common_texts(Column column) {
  if (column == name) return {tr("Processor"), QStringLiteral("processor_0")};
  if (column == kind) return {tr("Kind"), Session::tr("cannot be debugged"), QStringLiteral("arm, cortex-a9, 1")};
  Overview overview;
  overview.debuggable = overview.hasFile = true;
  overview.errors = overview.warnings = 2;
  return {tr("Option file"), tr("not stored"), file_text(overview)};
}

int ProcessorModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_places.size());
}

int ProcessorModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Column::count; }

QVariant ProcessorModel::data(const QModelIndex& index, int role) const {
  const std::size_t place = place_of(index.row());
  const QString processor = shown(m_session.names()[place]);
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

// A view asks for the flags of all rows: they need no look at the files.
Qt::ItemFlags ProcessorModel::flags(const QModelIndex& index) const {
  const bool debuggable = m_session.is_debuggable(place_of(index.row()));
  const Qt::ItemFlags flags = debuggable ? QAbstractTableModel::flags(index) : Qt::ItemFlags();
  return flags | Qt::ItemNeverHasChildren;
}

}  // namespace qvtdialog
