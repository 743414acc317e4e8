// SPDX-License-Identifier: MIT
#include "desktop/qt/style.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace zqn::qt {

namespace {

int scaled(int pixels, const QStyleOption* option, const QWidget* widget) {
  const int dpi = widget != nullptr ? widget->logicalDpiX() : 96;
  return qRound(pixels * (option != nullptr && widget == nullptr ? option->fontMetrics.fontDpi() : dpi) /
                96.0);
}

}  // namespace

DialogStyle::DialogStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int DialogStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returned) const {
  // The list of a drop-down opens below its field, not over it.
  if (hint == SH_ComboBox_Popup) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

int DialogStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return scaled(12, option, widget);
    case PM_RadioButtonLabelSpacing:
      return scaled(4, option, widget);
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

void DialogStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
  const QColor colour = option->palette.color(QPalette::Active, QPalette::Highlight);
  switch (element) {
    case PE_FrameFocusRect:
      drawFocusFrame(*painter, option->rect, colour);
      return;
    case PE_PanelButtonCommand:
    case PE_PanelLineEdit:
    case PE_Frame:
      QProxyStyle::drawPrimitive(element, option, painter, widget);
      if (option->state & State_HasFocus) drawFocusFrame(*painter, option->rect, colour);
      return;
    default:
      QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void drawFocusFrame(QPainter& painter, const QRect& rect, const QColor& colour) {
  constexpr double thickness = 1.5;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, thickness));
  painter.setBrush(Qt::NoBrush);
  const double inset = thickness / 2;
  painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), 2, 2);
  painter.restore();
}

QFont dialogFont() {
  constexpr double points = 8.25;
  QFont font;
  font.setFamilies({QStringLiteral("Tahoma"), QStringLiteral("Liberation Sans")});
  font.setPointSizeF(points);
  return font;
}

void configureApplication(QApplication& app) {
  app.setStyle(new DialogStyle);
  app.setFont(dialogFont());
  // A field that cannot be changed is still read.
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x66, 0x66, 0x66));
  QApplication::setPalette(palette);
}

}  // namespace zqn::qt
