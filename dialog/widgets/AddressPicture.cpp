// SPDX-License-Identifier: MIT
#include "widgets/AddressPicture.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygon>
#include <QScrollBar>
#include <QStringList>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "widgets/Colours.h"

namespace qvtdialog {

namespace {

constexpr std::uint64_t kBlock = 0x10000;
// In a longer stretch without an edge of a region, the middle is left out.
constexpr std::uint64_t kLongest = 8 * kBlock;

QString address_text(std::uint64_t address) {
  return QStringLiteral("0x") + QString::number(address, 16).toUpper().rightJustified(8, u'0');
}

QString size_text(std::uint64_t bytes) {
  const QString units[] = {AddressPicture::tr("%1 bytes"), AddressPicture::tr("%1 KB"), AddressPicture::tr("%1 MB"),
                           AddressPicture::tr("%1 GB")};
  double size = static_cast<double>(bytes);
  std::size_t unit = 0;
  for (; size >= 1024 && unit + 1 < std::size(units); ++unit) size /= 1024;
  return units[unit].arg(QLocale().toString(size, 'g', 4));
}

QString range_text(std::uint64_t begin, std::uint64_t end) {
  return AddressPicture::tr("%1 – %2", "first and last address").arg(address_text(begin), address_text(end - 1));
}

constexpr int header_height(int line) { return line * 7 / 2; }
constexpr int lane_height(int line) { return line * 5 / 2; }
constexpr int padding(int line) { return line / 2; }

QPen thin_pen(const QColor& colour, int line) { return {colour, std::max(1.0, line / 14.0)}; }

}  // namespace

AddressPicture::AddressPicture(QWidget* parent) : QAbstractScrollArea(parent) {
  setObjectName(QStringLiteral("address_picture"));
  setAccessibleName(tr("Addresses"));
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setMouseTracking(true);
  show_regions({});
}

void AddressPicture::show_regions(std::vector<AddressRegion> regions) {
  m_regions = std::move(regions);
  std::erase_if(m_regions, [](const AddressRegion& region) { return region.begin >= region.end; });
  std::ranges::stable_sort(m_regions, {}, &AddressRegion::begin);
  m_current = std::min(m_current, count() - 1);
  find_segments();
  find_overlaps();
  lay_out();
  QStringList texts;
  for (int i = 0; i < count(); ++i) texts += description(i);
  setAccessibleDescription(m_regions.empty() ? tr("No address is set.")
                                             : texts.join(tr("; ", "between the regions of a list")));
}

// --- Texts ---

QString AddressPicture::overlap_text(const Overlap& overlap) const {
  return tr("%1 and %2 overlap: %3.")
      .arg(region(overlap.first).label, region(overlap.second).label, range_text(overlap.begin, overlap.end));
}

QString AddressPicture::overlaps_text() const {
  constexpr std::size_t kMostOverlaps = 12;
  QStringList texts;
  for (std::size_t i = 0; i < std::min(m_overlaps.size(), kMostOverlaps); ++i) texts += overlap_text(m_overlaps[i]);
  if (m_overlaps.size() > kMostOverlaps) {
    texts += tr("%n more overlap(s).", nullptr, static_cast<int>(m_overlaps.size() - kMostOverlaps));
  }
  return texts.join(u'\n');
}

QString AddressPicture::description(int index) const {
  const AddressRegion& shown = region(index);
  QStringList parts = {tr("%1: %2, %3", "label, addresses, size")
                           .arg(shown.label, range_text(shown.begin, shown.end), size_text(shown.end - shown.begin))};
  for (const Overlap& overlap : m_overlaps) {
    if (overlap.first == index) parts += tr("overlaps with %1").arg(region(overlap.second).label);
    if (overlap.second == index) parts += tr("overlaps with %1").arg(region(overlap.first).label);
  }
  return parts.join(tr(", ", "between the parts of a list"));
}

// --- Layout ---

void AddressPicture::find_segments() {
  std::vector<std::uint64_t> edges;
  for (const AddressRegion& region : m_regions) {
    edges.push_back(region.begin);
    edges.push_back(region.end);
  }
  std::ranges::sort(edges);
  edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
  m_segments.clear();
  for (std::size_t i = 0; i + 1 < edges.size(); ++i) {
    const auto covers = [&](const AddressRegion& region) { return region.begin <= edges[i] && region.end > edges[i]; };
    m_segments.push_back({.begin = edges[i],
                          .end = edges[i + 1],
                          .regions = static_cast<int>(std::ranges::count_if(m_regions, covers)),
                          .is_short = edges[i + 1] - edges[i] > kLongest});
  }
}

void AddressPicture::find_overlaps() {
  m_overlaps.clear();
  for (int first = 0; first < count(); ++first) {
    for (int second = first + 1; second < count() && region(second).begin < region(first).end; ++second) {
      if (!region(first).overlaps || !region(second).overlaps) continue;
      m_overlaps.push_back({.first = first,
                            .second = second,
                            .begin = region(second).begin,
                            .end = std::min(region(first).end, region(second).end)});
    }
  }
}

// Every segment to the same scale, as wide as there is room; but none too narrow to be seen.
void AddressPicture::set_widths(int room) {
  // The addresses at both ends of what is left out, if they do not take too much of the room.
  const int address_width =
      fontMetrics().horizontalAdvance(address_text(m_segments.empty() ? 0 : m_segments.back().end));
  const auto short_ones = static_cast<int>(std::ranges::count_if(m_segments, &Segment::is_short));
  const int wanted = (address_width + m_line) * 3 / 2;
  const int least_short = 2 * short_ones * wanted < room ? wanted : 2 * m_line;
  const auto least = [&](const Segment& segment) {
    if (segment.is_short) {
      return std::max(least_short, fontMetrics().horizontalAdvance(size_text(segment.end - segment.begin)) + m_line);
    }
    return segment.regions > 0 ? m_line : m_line / 2;
  };
  double scale = 0;  // pixels for a byte
  std::vector<bool> is_fixed(m_segments.size());
  for (std::size_t i = 0; i < m_segments.size(); ++i) is_fixed[i] = m_segments[i].is_short;
  for (bool changed = true; changed;) {
    changed = false;
    double bytes = 0;
    int rest = room;
    for (std::size_t i = 0; i < m_segments.size(); ++i) {
      if (is_fixed[i]) {
        rest -= least(m_segments[i]);
      } else {
        bytes += static_cast<double>(m_segments[i].end - m_segments[i].begin);
      }
    }
    scale = bytes > 0 ? std::clamp(rest / bytes, 0.0, m_line * 10.0 / kBlock) : 0.0;
    for (std::size_t i = 0; i < m_segments.size(); ++i) {
      if (is_fixed[i] || scale * static_cast<double>(m_segments[i].end - m_segments[i].begin) >= least(m_segments[i])) {
        continue;
      }
      is_fixed[i] = changed = true;
    }
  }
  int x = m_label_width + 2 * padding(m_line);
  for (std::size_t i = 0; i < m_segments.size(); ++i) {
    Segment& segment = m_segments[i];
    segment.x = x;
    segment.width =
        is_fixed[i] ? least(segment) : static_cast<int>(scale * static_cast<double>(segment.end - segment.begin));
    x += segment.width;
  }
  m_content.setWidth(m_segments.empty() ? 0 : x + padding(m_line));
}

void AddressPicture::lay_out() {
  const QFontMetrics metrics(font());
  m_line = metrics.height();
  int text = 0;
  for (const AddressRegion& shown : m_regions) {
    text = std::max(
        {text, metrics.horizontalAdvance(shown.label), metrics.horizontalAdvance(range_text(shown.begin, shown.end))});
  }
  // Widths are rounded: without some room, a text that fits could be elided.
  m_label_width = std::min(text + m_line / 4, m_line * 20);
  set_widths(viewport()->width() - m_label_width - 3 * padding(m_line));
  m_notice_height = 0;
  if (!m_overlaps.empty()) {
    const QRect room(0, 0, std::max(m_content.width(), viewport()->width()) - 2 * padding(m_line), 0);
    m_notice_height = metrics.boundingRect(room, Qt::TextWordWrap, overlaps_text()).height() + 2 * padding(m_line);
  }
  m_content.setHeight(header_height(m_line) + count() * lane_height(m_line) + m_notice_height);
  if (m_regions.empty()) m_content = {};
  verticalScrollBar()->setRange(0, std::max(0, m_content.height() - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setSingleStep(m_line);
  horizontalScrollBar()->setRange(0, std::max(0, m_content.width() - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setSingleStep(m_line);
  updateGeometry();
  viewport()->update();
}

// Of the beginning or the end of a region.
int AddressPicture::x_of(std::uint64_t address) const {
  const auto segment = std::ranges::lower_bound(m_segments, address, {}, &Segment::begin);
  return segment != m_segments.end() ? segment->x : m_segments.back().x + m_segments.back().width;
}

QRect AddressPicture::content_rect(int index) const {
  const int left = x_of(region(index).begin);
  const int top = header_height(m_line) + index * lane_height(m_line) + m_line / 2;
  return {left, top, x_of(region(index).end) - left, lane_height(m_line) - m_line};
}

QRect AddressPicture::region_rect(int index) const {
  return content_rect(index).translated(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
}

QRect AddressPicture::lane_rect(int index) const {
  return {-horizontalScrollBar()->value(),
          header_height(m_line) + index * lane_height(m_line) - verticalScrollBar()->value(),
          std::max(m_content.width(), viewport()->width()), lane_height(m_line)};
}

int AddressPicture::index_at(const QPoint& point) const {
  for (int index = 0; index < count(); ++index) {
    if (lane_rect(index).contains(point)) return index;
  }
  return -1;
}

QSize AddressPicture::sizeHint() const {
  return {m_line * 40, std::max(m_content.height(), 4 * m_line) + 2 * frameWidth()};
}

QSize AddressPicture::minimumSizeHint() const {
  return {m_line * 20,
          std::min(m_content.height(), header_height(m_line) + 2 * lane_height(m_line)) + 2 * frameWidth()};
}

// --- Painting ---

void AddressPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  if (m_regions.empty()) {
    painter.setPen(colour(Tone::quiet, palette()));
    painter.drawText(viewport()->rect().adjusted(m_line, 0, -m_line, 0), int{Qt::AlignCenter} | Qt::TextWordWrap,
                     tr("No address is set."));
    return;
  }
  painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
  for (int index = 0; index < count(); ++index) paint_lane(painter, index);
  paint_axis(painter);
  if (m_notice_height > 0) {
    const int top = header_height(m_line) + count() * lane_height(m_line);
    painter.setPen(colour(Tone::error, palette()));
    painter.drawText(QRect(padding(m_line), top + padding(m_line),
                           std::max(m_content.width(), viewport()->width()) - 2 * padding(m_line), m_notice_height),
                     Qt::TextWordWrap, overlaps_text());
  }
}

void AddressPicture::paint_axis(QPainter& painter) const {
  const QFontMetrics metrics(font());
  const int axis = m_line * 2;
  const QColor quiet = colour(Tone::quiet, palette());
  const QPen pen = thin_pen(quiet, m_line);
  painter.setPen(pen);
  for (const Segment& segment : m_segments) {
    const int end = segment.x + segment.width;
    if (segment.is_short) {
      const int middle = segment.x + segment.width / 2;
      const int half = m_line / 4;
      painter.drawLine(segment.x, axis, middle - half, axis);
      painter.drawLine(middle + half, axis, end, axis);
      painter.drawLine(middle - 2 * half, axis + half, middle, axis - half);
      painter.drawLine(middle, axis + half, middle + 2 * half, axis - half);
      painter.drawText(QRect(segment.x, axis + m_line / 4, segment.width, m_line), Qt::AlignCenter,
                       size_text(segment.end - segment.begin));
      continue;
    }
    painter.drawLine(segment.x, axis, end, axis);
    // A tick for each block, unless they are so close that nobody could tell them apart.
    const double scale = segment.width / static_cast<double>(segment.end - segment.begin);
    if (scale * kBlock < m_line / 3.0) continue;
    for (std::uint64_t at = (segment.begin + kBlock - 1) / kBlock * kBlock; at < segment.end; at += kBlock) {
      const int x = segment.x + static_cast<int>(scale * static_cast<double>(at - segment.begin));
      painter.drawLine(x, axis, x, axis + m_line / 4);
    }
  }
  // Addresses, first those beside what is left out, then others where there is room.
  std::vector<QRect> labels;
  const auto put = [&](std::uint64_t address) {
    const int x = x_of(address);
    const QString text = address_text(address);
    const int width = metrics.horizontalAdvance(text);
    const int left =
        std::clamp(x - width / 2, padding(m_line), std::max(padding(m_line), m_content.width() - width - 1));
    const QRect place(left, axis - m_line * 3 / 2, width, m_line);
    const auto is_near = [&](const QRect& label) { return label.adjusted(-m_line, 0, m_line, 0).intersects(place); };
    if (std::ranges::any_of(labels, is_near)) return;
    labels.push_back(place);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(place, Qt::AlignCenter, text);
    painter.setPen(pen);
    painter.drawLine(x, axis - m_line / 3, x, axis + m_line / 4);
  };
  put(m_segments.front().begin);
  put(m_segments.back().end);
  for (const Segment& segment : m_segments) {
    if (segment.is_short) put(segment.begin);
    if (segment.is_short) put(segment.end);
  }
  for (const Segment& segment : m_segments) put(segment.begin);
}

void AddressPicture::paint_lane(QPainter& painter, int index) const {
  const AddressRegion& shown = region(index);
  const QFontMetrics metrics(font());
  const QRect lane(0, header_height(m_line) + index * lane_height(m_line),
                   std::max(m_content.width(), viewport()->width()), lane_height(m_line));
  const QColor line = colour(shown.overlaps ? Tone::error : Tone::accent, palette());
  const QColor quiet = colour(Tone::quiet, palette());

  const QRect text(padding(m_line), lane.top() + m_line / 4, m_label_width, m_line);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(text, Qt::AlignVCenter, metrics.elidedText(shown.label, Qt::ElideRight, text.width()));
  painter.setPen(shown.overlaps ? line : quiet);
  painter.drawText(text.translated(0, m_line), Qt::AlignVCenter,
                   metrics.elidedText(range_text(shown.begin, shown.end), Qt::ElideRight, text.width()));

  // Where regions begin and end, through all lanes.
  painter.setPen(QPen(palette().color(QPalette::Mid), 0, Qt::DotLine));
  for (const Segment& segment : m_segments) painter.drawLine(segment.x, lane.top(), segment.x, lane.bottom());
  const int last = m_segments.back().x + m_segments.back().width;
  painter.drawLine(last, lane.top(), last, lane.bottom());

  const QRect bar = content_rect(index);
  painter.fillRect(bar, background(shown.overlaps ? Tone::error : Tone::accent, palette()));
  for (const Segment& segment : m_segments) {
    if (segment.begin < shown.begin || segment.end > shown.end) continue;
    const QRect part(segment.x, bar.top(), segment.width, bar.height());
    if (shown.overlaps && segment.regions > 1) painter.fillRect(part, QBrush(line, Qt::BDiagPattern));
  }
  painter.setPen(thin_pen(line, m_line));
  painter.drawRect(bar);
  // What is left out of it.
  for (const Segment& segment : m_segments) {
    if (!segment.is_short || segment.begin < shown.begin || segment.end > shown.end) continue;
    const int middle = segment.x + segment.width / 2;
    const int half = m_line / 4;
    const QPoint top(middle, bar.top() - 1);
    const QPoint bottom(middle, bar.bottom() + 2);
    const QPolygon cut({bottom - QPoint(2 * half, 0), top, top + QPoint(2 * half, 0), bottom});
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawPolygon(cut);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(thin_pen(line, m_line));
    painter.drawLine(cut[0], cut[1]);
    painter.drawLine(cut[2], cut[3]);
  }
  if (index == m_current && hasFocus()) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), std::max(1.0, m_line / 8.0)));
    painter.drawRoundedRect(lane.adjusted(2, 1, -2, -1), m_line / 4.0, m_line / 4.0);
  }
}

// --- Events ---

void AddressPicture::want(int index) {
  if (index >= 0 && index < count() && region(index).setting != nullptr) emit setting_wanted(region(index).setting);
}

bool AddressPicture::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
  const auto* const help = static_cast<QHelpEvent*>(event);
  const int index = index_at(help->pos());
  QToolTip::showText(help->globalPos(), index < 0 ? QString() : description(index).toHtmlEscaped(), viewport());
  return true;
}

void AddressPicture::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) lay_out();
}

void AddressPicture::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  lay_out();
}

void AddressPicture::mouseMoveEvent(QMouseEvent* event) {
  const int index = index_at(event->position().toPoint());
  viewport()->setCursor(index >= 0 && region(index).setting != nullptr ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

// Taken, so that the widget around it does nothing with it.
void AddressPicture::mousePressEvent(QMouseEvent* event) { event->accept(); }

void AddressPicture::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) want(index_at(event->position().toPoint()));
}

void AddressPicture::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      m_current = std::max(m_current - 1, 0);
      break;
    case Qt::Key_Down:
      m_current = std::min(m_current + 1, count() - 1);
      break;
    case Qt::Key_Home:
      m_current = 0;
      break;
    case Qt::Key_End:
      m_current = count() - 1;
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return want(m_current);
    default:
      return QAbstractScrollArea::keyPressEvent(event);
  }
  viewport()->update();
  if (m_current < 0 || m_regions.empty()) return;
  const QRect lane = lane_rect(m_current);
  if (lane.top() < 0) verticalScrollBar()->setValue(verticalScrollBar()->value() + lane.top());
  if (lane.bottom() > viewport()->height()) {
    verticalScrollBar()->setValue(verticalScrollBar()->value() + lane.bottom() - viewport()->height());
  }
}

void AddressPicture::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  if (m_current < 0 && !m_regions.empty()) m_current = 0;
  viewport()->update();
}

void AddressPicture::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

}  // namespace qvtdialog
