// SPDX-License-Identifier: MIT
#pragma once

#include <SdkDebugDialog/Settings.h>

#include <QAbstractScrollArea>
#include <QRect>
#include <QString>
#include <cstdint>
#include <vector>

namespace qvtdialog {

// A part of the address space that a setting takes.
struct AddressRegion {
  QString label;
  std::uint64_t begin = 0;
  std::uint64_t end = 0;  // behind the last byte
  bool overlaps = false;  // with another region
  const SdkDebugDialog::Setting* setting = nullptr;
};

// Regions of the address space, a lane for each, to one common scale. What is longer than a few blocks of 64 KB and has
// neither beginning nor end of a region in it is left out, with a mark that tells its size. Overlaps are red and
// hatched, and named below the picture. A click on a lane asks for its setting, and so does Enter.
class AddressPicture : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit AddressPicture(QWidget* parent = nullptr);

  void show_regions(std::vector<AddressRegion> regions);

  // Where a region is drawn, and its whole lane, in the viewport.
  QRect region_rect(int index) const;
  QRect lane_rect(int index) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void setting_wanted(const SdkDebugDialog::Setting* setting);

 protected:
  bool viewportEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  // Between two addresses that follow each other as the beginning or end of a region.
  struct Segment {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
    int regions = 0;        // how many regions it is a part of
    bool is_short = false;  // most of it is left out
    int x = 0;
    int width = 0;
  };
  struct Overlap {
    int first = 0;
    int second = 0;
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
  };

  int count() const { return static_cast<int>(m_regions.size()); }
  const AddressRegion& region(int index) const { return m_regions[static_cast<std::size_t>(index)]; }
  void find_segments();
  void find_overlaps();
  void lay_out();
  void set_widths(int room);
  int x_of(std::uint64_t address) const;
  QRect content_rect(int index) const;
  int index_at(const QPoint& point) const;
  void want(int index);
  QString overlap_text(const Overlap& overlap) const;
  QString overlaps_text() const;
  QString description(int index) const;
  void paint_axis(QPainter& painter) const;
  void paint_lane(QPainter& painter, int index) const;

  std::vector<AddressRegion> m_regions;
  std::vector<Segment> m_segments;  // they follow each other without a gap
  std::vector<Overlap> m_overlaps;
  int m_current = -1;  // the lane that the keys have chosen

  int m_line = 0;  // height of a line of text; other distances follow
  int m_label_width = 0;
  int m_notice_height = 0;
  QSize m_content;
};

}  // namespace qvtdialog
