// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/Expected.h>
#include <SdkDebugDialog/JtagOption.h>

#include <QAbstractTableModel>
#include <vector>

namespace qvtdialog {

using Chain = std::vector<SdkDebugDialog::JtagOption>;

// The devices of a JTAG chain as rows. It changes nothing itself: what a person enters is told.
class ChainModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { number, part, idcode, irLength, fpga, hardPpc, ppcCount, count };

  using QAbstractTableModel::QAbstractTableModel;

  void set_chain(const Chain& chain, int debugDevice);
  const Chain& chain() const { return m_chain; }

  // The device with another text in a column, or what is accepted there.
  static SdkDebugDialog::Expected<SdkDebugDialog::JtagOption> with_text(const SdkDebugDialog::JtagOption& device,
                                                                        int column, const QString& text);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 signals:
  void entered(int row, const SdkDebugDialog::JtagOption& device);

 private:
  Chain m_chain;
  int m_debugDevice = 0;
};

}  // namespace qvtdialog
