// SPDX-License-Identifier: MIT
#include "widgets/Style.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "widgets/Colours.h"

namespace qvtdialog {

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const int usual = QProxyStyle::pixelMetric(metric, option, widget);
  if (metric != PM_IndicatorWidth && metric != PM_IndicatorHeight) return usual;
  return std::max(usual, (widget != nullptr ? widget->fontMetrics() : QFontMetrics(QApplication::font())).ascent());
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                          const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element != PE_IndicatorCheckBox || !is_dark(option->palette)) return;
  painter->save();
  painter->setPen(colour(Tone::quiet, option->palette));
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  painter->restore();
}

}  // namespace qvtdialog
