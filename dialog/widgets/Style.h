// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

namespace qvtdialog {

// The style of the system, but for check boxes: as large as the text beside them, and with a frame that can be seen on
// a dark ground.
class Style : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace qvtdialog
