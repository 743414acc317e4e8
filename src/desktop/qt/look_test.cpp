// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFontInfo>
#include <QImage>
#include <QScreen>
#include <QStyle>
#include <cmath>

#include "testing/qt/entry_form.h"
#include "testing/qt/windows.h"

namespace zqn::qt::testing {

namespace {

/// How many pixels of the control look different while it has the focus.
int pixelsOfFocus(Person& person, Control& control, Control& elsewhere) {
  QWidget& widget = *person.desktop.widgetOf(control);
  const auto look = [&widget] { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); };
  elsewhere.SetFocus();
  const QImage without = look();
  control.SetFocus();
  const QImage with = look();
  int different = 0;
  for (int y = 0; y < with.height(); ++y) {
    for (int x = 0; x < with.width(); ++x) different += with.pixel(x, y) != without.pixel(x, y);
  }
  return different;
}

void expectVisibleFocus(Form& form, Control& first, Control& second) {
  Person person;
  person.at(form, {[&] {
              for (const auto& control : form.controls()) {
                if (!control->takesFocus() || !control->isUsable()) continue;
                Control& elsewhere = control.get() == &first ? second : first;
                EXPECT_GT(pixelsOfFocus(person, *control, elsewhere), 40) << toUtf8(control->fullName());
              }
            }});
}

TEST(Looks, ShowTheFocusOnEveryKindOfControl) {
  StatiForm stati;
  expectVisibleFocus(stati, stati.Schluessel, stati.Kurztext);
  EntryForm entries;
  expectVisibleFocus(entries, entries.txtKey, entries.cbo);
}

TEST(Looks, UseTheFontThatTheDesignsWereMeasuredWith) {
  const QFontInfo font(QApplication::font());
  EXPECT_THAT(font.family().toStdString(), ::testing::AnyOf("Tahoma", "Liberation Sans"));
  EXPECT_NEAR(font.pixelSize(), 11.0 * QGuiApplication::primaryScreen()->logicalDotsPerInchY() / 96, 1);
}

/// How bright a colour looks, from 0 to 1.
double luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

TEST(Looks, KeepAFieldReadableThatCannotBeChanged) {
  const QPalette palette = QApplication::palette();
  const double back = luminance(palette.color(QPalette::Disabled, QPalette::Window));
  const double text = luminance(palette.color(QPalette::Disabled, QPalette::Text));
  EXPECT_GT((back + 0.05) / (text + 0.05), 4.5) << "what people with weak sight need";
}

TEST(Looks, HaveTheNarrowRadioIndicator) {
  const QStyle& style = *QApplication::style();
  const double scale = QGuiApplication::primaryScreen()->logicalDotsPerInchX() / 96;
  QWidget widget;
  EXPECT_EQ(style.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &widget), qRound(12 * scale));
  EXPECT_EQ(style.pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, &widget), qRound(4 * scale));
}

}  // namespace

}  // namespace zqn::qt::testing
