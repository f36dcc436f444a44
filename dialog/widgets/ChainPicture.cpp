// SPDX-License-Identifier: MIT
#include "widgets/ChainPicture.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygon>
#include <QScrollBar>
#include <QStringList>
#include <QToolTip>
#include <algorithm>
#include <optional>
#include <utility>

#include "model/Bytes.h"
#include "widgets/Colours.h"

namespace qvtdialog {

using SdkDebugDialog::JtagOption;

namespace {

// The distances, by the height of a line: between boxes, from a row to the next one, within a box.
constexpr int gap(int line) { return line * 7 / 4; }
constexpr int row_gap(int line) { return line * 3 / 2; }
constexpr int padding(int line) { return line / 2; }

QString idcode_text(const JtagOption& device) {
  return QStringLiteral("0x") + QString::number(device.idcode, 16).toUpper().rightJustified(8, u'0');
}

QString name_text(const JtagOption& device) {
  return ChainPicture::tr("%1: %2", "number of a device, its part name")
      .arg(int{device.devicenr})
      .arg(shown(device.partname));
}

QString register_text(const JtagOption& device) {
  const QString length = ChainPicture::tr("IR %1", "length of the instruction register").arg(int{device.irlength});
  return device.isfpga != 0 ? ChainPicture::tr("%1, FPGA", "length of the instruction register").arg(length) : length;
}

QFont bold(QFont font) {
  font.setBold(true);
  return font;
}

// It ends before the frame of a selected device.
void paint_arrow(QPainter& painter, const QPoint& from, const QPoint& to, int head) {
  const QPoint tip = to - QPoint(head * 3 / 4, 0);
  painter.drawLine(from, tip - QPoint(head, 0));
  painter.setBrush(painter.pen().color());
  painter.drawPolygon(QPolygon({tip, tip + QPoint(-head, -head / 2), tip + QPoint(-head, head / 2)}));
  painter.setBrush(Qt::NoBrush);
}

}  // namespace

ChainPicture::ChainPicture(QWidget* parent) : QAbstractScrollArea(parent) {
  setObjectName(QStringLiteral("chain_picture"));
  setAccessibleName(tr("JTAG chain"));
  setFocusPolicy(Qt::StrongFocus);
  lay_out();
  tell_chain();
}

void ChainPicture::show_chain(std::vector<JtagOption> chain, int debug_device, const QString& processor) {
  m_chain = std::move(chain);
  m_debug_device = debug_device;
  m_processor = processor;
  m_debug_index = -1;
  if (debug_device != 0) {
    const auto device =
        std::ranges::find_if(m_chain, [&](const JtagOption& candidate) { return candidate.devicenr == debug_device; });
    if (device != m_chain.end()) m_debug_index = static_cast<int>(device - m_chain.begin());
  }
  if (m_selected >= count()) m_selected = -1;
  lay_out();
  tell_chain();
}

void ChainPicture::set_selected(int index) {
  index = index >= 0 && index < count() ? index : -1;
  if (index == m_selected) return;
  m_selected = index;
  tell_chain();
  viewport()->update();
  if (index < 0) return;
  const QRect rect = content_rect(index).adjusted(-m_line, -m_line, m_line, m_line);
  const auto show = [](QScrollBar& bar, int from, int to) {
    if (to > bar.value() + bar.pageStep()) bar.setValue(to - bar.pageStep());
    if (from < bar.value()) bar.setValue(from);
  };
  show(*verticalScrollBar(), rect.top(), rect.bottom());
  show(*horizontalScrollBar(), rect.left(), rect.right());
}

QRect ChainPicture::device_rect(int index) const { return content_rect(index).translated(-offset()); }

void ChainPicture::select(int index) {
  if (index == m_selected) return;
  set_selected(index);
  emit selected(m_selected);
}

// --- Texts ---

QString ChainPicture::description(int index) const {
  const JtagOption& device = m_chain[static_cast<std::size_t>(index)];
  QStringList parts = {name_text(device), tr("IDCODE %1").arg(idcode_text(device)), register_text(device)};
  if (is_debug_device(index))
    parts += m_processor.isEmpty() ? tr("debug device") : tr("debug device of %1").arg(m_processor);
  return parts.join(tr(", ", "between the parts of a list"));
}

void ChainPicture::tell_chain() {
  QStringList parts = {tr("TDI")};
  for (int i = 0; i < count(); ++i) parts += name_text(m_chain[static_cast<std::size_t>(i)]);
  parts += tr("TDO");
  QString text = parts.join(tr(", ", "between the parts of a list"));
  if (m_chain.empty()) text = tr("There are no devices in the JTAG chain.");
  if (m_debug_index >= 0) text += tr("; debug device: %1").arg(description(m_debug_index));
  if (m_selected >= 0) text += tr("; selected: %1").arg(description(m_selected));
  setAccessibleDescription(text);
}

// --- Layout ---

void ChainPicture::lay_out() {
  const QFontMetrics metrics(font());
  const QFontMetrics bold_metrics(bold(font()));
  m_line = metrics.height();
  m_terminal = std::max(bold_metrics.horizontalAdvance(tr("TDI")), bold_metrics.horizontalAdvance(tr("TDO"))) + m_line;
  int text = std::max(metrics.horizontalAdvance(QStringLiteral("0xDDDDDDDD")), metrics.averageCharWidth() * 12);
  for (const JtagOption& device : m_chain) {
    text = std::max(
        {text, bold_metrics.horizontalAdvance(name_text(device)), metrics.horizontalAdvance(register_text(device))});
  }
  if (m_debug_index >= 0) {
    text = std::max({text, bold_metrics.horizontalAdvance(tr("Debug device")),
                     metrics.horizontalAdvance(m_processor) + 2 * padding(m_line)});
  }
  // Widths are rounded: without some room, a text that fits could be elided.
  text += m_line / 4;
  m_box_height = 3 * m_line + 2 * padding(m_line);
  m_debug_height = m_box_height + 3 * m_line;
  m_top = m_debug_device != 0 && m_debug_index < 0 && !m_chain.empty() ? 2 * m_line : 0;

  const int beside = 2 * (m_terminal + gap(m_line) + padding(m_line));
  const auto arrange = [&](int width) {
    const int room = width - beside + gap(m_line);
    const auto take_width = [&](int most) {
      m_box_width = std::min(text, most) + 2 * padding(m_line);
      m_columns = std::max(1, room / (m_box_width + gap(m_line)));
    };
    take_width(m_line * 18);
    // Long names are shortened where that saves rows.
    if (m_columns < count()) take_width(m_line * 10);
    const int columns = std::min(m_columns, std::max(1, count()));
    m_content = {beside + columns * (m_box_width + gap(m_line)) - gap(m_line), row_top(row_count())};
  };
  // Without a scroll bar, if it fits.
  const QSize room = maximumViewportSize();
  arrange(room.width());
  if (m_content.height() > room.height()) arrange(room.width() - verticalScrollBar()->sizeHint().width());
  if (m_chain.empty()) m_content = {};

  verticalScrollBar()->setRange(0, std::max(0, m_content.height() - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setSingleStep(m_line);
  horizontalScrollBar()->setRange(0, std::max(0, m_content.width() - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setSingleStep(m_line);
  updateGeometry();
  viewport()->update();
}

// The row with the debug device is higher than the others.
int ChainPicture::row_top(int row) const {
  const bool is_below = m_debug_index >= 0 && row > m_debug_index / m_columns;
  return m_top + row * (m_box_height + row_gap(m_line)) + (is_below ? m_debug_height - m_box_height : 0);
}

int ChainPicture::row_at(int y) const {
  const int height = m_box_height + row_gap(m_line);
  const int row = (y - m_top) / height;
  const int debug_row = m_debug_index / m_columns;
  if (m_debug_index < 0 || row <= debug_row) return row;
  return std::max(debug_row, (y - m_top - (m_debug_height - m_box_height)) / height);
}

QRect ChainPicture::content_rect(int index) const {
  const int row = index / m_columns;
  const int column = index % m_columns;
  const int height = is_debug_device(index) ? m_debug_height : m_box_height;
  return {padding(m_line) + m_terminal + gap(m_line) + column * (m_box_width + gap(m_line)),
          (row_top(row) + row_top(row + 1) - height) / 2, m_box_width, height};
}

QPoint ChainPicture::offset() const { return {horizontalScrollBar()->value(), verticalScrollBar()->value()}; }

int ChainPicture::index_at(const QPoint& point) const {
  const QPoint at = point + offset();
  if (m_chain.empty() || at.y() < m_top) return -1;
  const int first = row_at(at.y()) * m_columns;
  for (int index = first; index < std::min(first + m_columns, count()); ++index) {
    if (content_rect(index).contains(at)) return index;
  }
  return -1;
}

QSize ChainPicture::sizeHint() const {
  const int height = std::max(m_box_height + row_gap(m_line), std::min(m_content.height(), row_top(2)));
  return {m_line * 30, height + 2 * frameWidth()};
}

// A device between the ends.
QSize ChainPicture::minimumSizeHint() const {
  return {2 * (m_terminal + gap(m_line) + padding(m_line)) + m_box_width + 2 * frameWidth(),
          row_top(1) + 2 * frameWidth()};
}

// --- Painting ---

void ChainPicture::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  if (m_chain.empty()) {
    painter.setPen(colour(Tone::quiet, palette()));
    painter.drawText(viewport()->rect().adjusted(m_line, 0, -m_line, 0), int{Qt::AlignCenter} | Qt::TextWordWrap,
                     tr("There are no devices in the JTAG chain."));
    return;
  }
  painter.translate(-offset());
  if (m_top > 0) {
    painter.setPen(colour(Tone::error, palette()));
    painter.drawText(QRect(padding(m_line), 0, std::max(m_content.width(), viewport()->width()), m_top),
                     Qt::AlignVCenter,
                     tr("The chain has no device %1, which is set as the debug device.").arg(m_debug_device));
  }
  const QRect visible = event->rect().translated(offset());
  // Lines reach from a row into the next one.
  const int first = std::max(0, row_at(visible.top()) - 1);
  const int last = std::min(row_count() - 1, row_at(visible.bottom()) + 1);
  for (int row = first; row <= last; ++row) paint_row(painter, row);
}

void ChainPicture::paint_row(QPainter& painter, int row) const {
  const int first = row * m_columns;
  const int last = std::min(first + m_columns, count()) - 1;
  const int head = m_line / 2;
  const QPen line(colour(Tone::quiet, palette()), std::max(1.0, m_line / 12.0));
  const auto paint_terminal = [&](const QRect& rect, const QString& text) {
    painter.setPen(line);
    painter.drawRoundedRect(rect, rect.height() / 2.0, rect.height() / 2.0);
    painter.setPen(palette().color(QPalette::Text));
    painter.setFont(bold(font()));
    painter.drawText(rect, Qt::AlignCenter, text);
    painter.setPen(line);
  };
  painter.setPen(line);
  const auto left_of = [&](int index) { return QPoint(content_rect(index).left(), content_rect(index).center().y()); };
  const auto right_of = [&](int index) {
    return QPoint(content_rect(index).right(), content_rect(index).center().y());
  };
  const int middle = left_of(first).y();
  if (row == 0) {
    const QRect terminal(padding(m_line), middle - m_line * 3 / 4, m_terminal, m_line * 3 / 2);
    paint_terminal(terminal, tr("TDI"));
    paint_arrow(painter, {terminal.right(), middle}, left_of(first), head);
  } else {
    paint_arrow(painter, {padding(m_line) + m_terminal / 2, middle}, left_of(first), head);
  }
  for (int index = first; index < last; ++index) paint_arrow(painter, right_of(index), left_of(index + 1), head);
  const int behind = right_of(last).x() + gap(m_line);
  if (last == count() - 1) {
    paint_arrow(painter, right_of(last), {behind, middle}, head);
    paint_terminal({behind, middle - m_line * 3 / 4, m_terminal, m_line * 3 / 2}, tr("TDO"));
  } else {
    // Around the end of this row, between the rows, to the beginning of the next one.
    const int far_right = behind + m_terminal / 2;
    const int far_left = padding(m_line) + m_terminal / 2;
    const int between = row_top(row + 1);
    painter.drawPolyline(QPolygon({right_of(last), QPoint(far_right, middle), QPoint(far_right, between),
                                   QPoint(far_left, between), QPoint(far_left, content_rect(last + 1).center().y())}));
  }
  for (int index = first; index <= last; ++index) paint_device(painter, index);
}

void ChainPicture::paint_device(QPainter& painter, int index) const {
  const JtagOption& device = m_chain[static_cast<std::size_t>(index)];
  const QRect box = content_rect(index);
  const bool is_debug = is_debug_device(index);
  const bool is_selected = index == m_selected;
  const double radius = m_line / 4.0;
  const QColor accent = colour(Tone::accent, palette());
  const double thin = std::max(1.0, m_line / 12.0);

  painter.setPen(QPen(is_debug ? accent : colour(Tone::quiet, palette()), is_debug ? 2 * thin : thin));
  painter.setBrush(is_debug ? background(Tone::accent, palette()) : palette().color(QPalette::Base));
  painter.drawRoundedRect(box, radius, radius);
  painter.setBrush(Qt::NoBrush);
  if (is_selected) {
    const double outside = thin * 3;
    painter.setPen(QPen(palette().color(QPalette::Highlight), thin * 2.5, hasFocus() ? Qt::SolidLine : Qt::DashLine));
    painter.drawRoundedRect(QRectF(box).adjusted(-outside, -outside, outside, outside), radius + outside,
                            radius + outside);
  }

  QRect line = box.adjusted(padding(m_line), padding(m_line), -padding(m_line), 0);
  line.setHeight(m_line);
  const auto put = [&](const QString& text, const QFont& font, const QColor& text_colour) {
    painter.setFont(font);
    painter.setPen(text_colour);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetrics(font).elidedText(text, Qt::ElideMiddle, line.width()));
    line.translate(0, m_line);
  };
  const QColor text = palette().color(QPalette::Text);
  if (is_debug) {
    put(tr("Debug device"), bold(font()), accent);
    line.translate(0, padding(m_line) / 2);
  }
  put(name_text(device), bold(font()), text);
  put(idcode_text(device), font(), text);
  put(register_text(device), font(), text);
  if (is_debug && !m_processor.isEmpty()) {
    line.translate(0, padding(m_line) / 2);
    line.setHeight(m_line * 5 / 4);
    painter.setPen(QPen(accent, thin));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(line, radius, radius);
    painter.setBrush(Qt::NoBrush);
    painter.setFont(font());
    painter.setPen(text);
    painter.drawText(line, Qt::AlignCenter,
                     QFontMetrics(font()).elidedText(m_processor, Qt::ElideMiddle, line.width() - padding(m_line)));
  }
}

// --- Events ---

bool ChainPicture::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
  const auto* const help = static_cast<QHelpEvent*>(event);
  const int index = index_at(help->pos());
  QToolTip::showText(help->globalPos(), index < 0 ? QString() : description(index).toHtmlEscaped(), viewport());
  return true;
}

void ChainPicture::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) lay_out();
}

void ChainPicture::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  lay_out();
}

void ChainPicture::mousePressEvent(QMouseEvent* event) {
  const int index = index_at(event->position().toPoint());
  if (event->button() == Qt::LeftButton && index >= 0) select(index);
}

// Taken, so that the widget around it does nothing with it.
void ChainPicture::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }

void ChainPicture::keyPressEvent(QKeyEvent* event) {
  const auto target = [&]() -> std::optional<int> {
    switch (event->key()) {
      case Qt::Key_Left:
        return m_selected - 1;
      case Qt::Key_Right:
        return m_selected + 1;
      case Qt::Key_Up:
        return m_selected - m_columns;
      case Qt::Key_Down:
        return m_selected + m_columns;
      case Qt::Key_Home:
        return 0;
      case Qt::Key_End:
        return count() - 1;
      default:
        return std::nullopt;
    }
  }();
  if (!target) return QAbstractScrollArea::keyPressEvent(event);
  if (*target >= 0 && *target < count()) select(*target);
}

void ChainPicture::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void ChainPicture::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

}  // namespace qvtdialog
