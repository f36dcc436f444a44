// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/JtagOption.h>

#include <QAbstractScrollArea>
#include <QString>
#include <vector>

namespace qvtdialog {

// The JTAG chain from TDI to TDO, in as many rows as it takes. The debug device is framed and carries the name of the
// processor. A click or the arrow keys select a device. Only what is visible is painted.
class ChainPicture : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit ChainPicture(QWidget* parent = nullptr);

  // debug_device: the number of the device, as in the chain; 0: none is set.
  void show_chain(std::vector<SdkDebugDialog::JtagOption> chain, int debug_device, const QString& processor);

  // The index of the device that is selected; -1: none. set_selected() emits no signal.
  int selected_index() const { return m_selected; }
  void set_selected(int index);

  // Where a device is, in the viewport.
  QRect device_rect(int index) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void selected(int index);

 protected:
  bool viewportEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int count() const { return static_cast<int>(m_chain.size()); }
  bool is_debug_device(int index) const { return index == m_debug_index; }
  void lay_out();
  void tell_chain();
  void select(int index);
  int index_at(const QPoint& point) const;
  QString description(int index) const;
  QRect content_rect(int index) const;
  int row_count() const { return (count() + m_columns - 1) / m_columns; }
  int row_top(int row) const;
  int row_at(int y) const;
  QPoint offset() const;
  void paint_row(QPainter& painter, int row) const;
  void paint_device(QPainter& painter, int index) const;

  std::vector<SdkDebugDialog::JtagOption> m_chain;
  int m_debug_device = 0;
  int m_debug_index = -1;  // -1: there is none, or the chain does not have it
  QString m_processor;
  int m_selected = -1;

  // The layout, from the sizes of the texts.
  int m_line = 0;  // height of a line of text; other distances follow
  int m_columns = 1;
  int m_terminal = 0;  // width of TDI and TDO
  int m_box_width = 0;
  int m_box_height = 0;
  int m_debug_height = 0;
  int m_top = 0;  // above the first row, for a notice
  QSize m_content;
};

}  // namespace qvtdialog
