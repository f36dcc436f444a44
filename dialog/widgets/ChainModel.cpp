// SPDX-License-Identifier: MIT
#include "widgets/ChainModel.h"

#include <SdkDebugDialog/Configuration.h>

#include <QFont>
#include <QStringList>

#include "model/Bytes.h"

namespace qvtdialog {

using SdkDebugDialog::Configuration;
using SdkDebugDialog::Expected;
using SdkDebugDialog::find_setting;
using SdkDebugDialog::JtagOption;
using SdkDebugDialog::parse_value;
using SdkDebugDialog::value_text;

namespace {

// A device as the parts of NR,PART,IRLENGTH,IDCODE,FPGA,HARDPPC,PPCCOUNT; the part is left out, for it may have commas.
constexpr int kPlaces[] = {0, 1, 3, 2, 4, 5, 6};  // of the columns

QStringList parts_of(JtagOption device) {
  // Told in full only if the last three are not the default.
  const bool isPlain = device.isfpga == 0 && device.hardppc == 0 && device.nppc == 0;
  if (isPlain) device.nppc = 1;
  device.partname = JtagOption().partname;
  QStringList parts =
      shown(value_text(*find_setting("devices"), std::vector<JtagOption>{device})).split(QLatin1Char(','));
  if (isPlain) parts.back() = QStringLiteral("0");
  return parts;
}

}  // namespace

void ChainModel::set_chain(const Chain& chain, int debugDevice) {
  if (chain == m_chain && debugDevice == m_debugDevice) return;
  // Rows that stay keep what a view knows of them: the selection, and a cell that is edited.
  const int before = rowCount();
  const int after = static_cast<int>(chain.size());
  if (after > before) {
    beginInsertRows({}, before, after - 1);
    m_chain = chain;
    endInsertRows();
  } else if (after < before) {
    beginRemoveRows({}, after, before - 1);
    m_chain = chain;
    endRemoveRows();
  }
  m_chain = chain;
  m_debugDevice = debugDevice;
  if (after > 0) emit dataChanged(index(0, 0), index(after - 1, columnCount() - 1));
}

Expected<JtagOption> ChainModel::with_text(const JtagOption& device, int column, const QString& text) {
  JtagOption changed = device;
  if (column == part) {
    changed.partname = bytes_of(text);
  } else {
    QStringList parts = parts_of(device);
    parts[kPlaces[column]] = text;
    const auto parsed = parse_value(*find_setting("devices"), bytes_of(parts.join(QLatin1Char(','))));
    if (!parsed) return parsed.error();
    const auto& devices = std::get<Chain>(*parsed);
    if (devices.size() != 1) {
      return SdkDebugDialog::Error{SdkDebugDialog::ErrorCode::invalidValue, bytes_of(tr("A value is missing.")), {}};
    }
    changed = devices.front();
    changed.partname = device.partname;
  }
  Configuration tried;
  if (const auto set = tried.set(*find_setting("devices"), Chain{changed}); !set) return set.error();
  return changed;
}

int ChainModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_chain.size());
}

int ChainModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Column::count; }

QVariant ChainModel::data(const QModelIndex& index, int role) const {
  const JtagOption& device = m_chain[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      if (index.column() == part) return shown(device.partname);
      return parts_of(device)[kPlaces[index.column()]];
    case Qt::FontRole:
      if (m_debugDevice != 0 && device.devicenr == m_debugDevice) {
        QFont font;
        font.setBold(true);
        return font;
      }
      return {};
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
      return m_debugDevice != 0 && device.devicenr == m_debugDevice ? tr("This is the debug device.") : QVariant();
    default:
      return {};
  }
}

QVariant ChainModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  const QString texts[][2] = {
      {tr("No."), tr("Number of the device in the chain")},
      {tr("Part"), tr("Name of the part: one word")},
      {tr("IDCODE"), tr("The device's JTAG IDCODE")},
      {tr("IR length"), tr("Length of the instruction register, in bits")},
      {tr("FPGA"), tr("Whether the device is an FPGA: 1 or 0; read, never written anew")},
      {tr("Hard PPC"), tr("Hard PowerPC core: none, ppc405 or other; read, never written anew")},
      {tr("Cores"), tr("Number of hard PowerPC cores; read, never written anew")},
  };
  if (role == Qt::DisplayRole) return texts[section][0];
  if (role == Qt::ToolTipRole) return texts[section][1];
  return {};
}

Qt::ItemFlags ChainModel::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemIsEditable;
}

bool ChainModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole) return false;
  const auto device = with_text(m_chain[static_cast<std::size_t>(index.row())], index.column(), value.toString());
  if (!device) return false;
  emit entered(index.row(), *device);
  return true;
}

}  // namespace qvtdialog
