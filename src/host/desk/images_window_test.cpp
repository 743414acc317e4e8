// SPDX-License-Identifier: MIT
//
// Each image of the window against the bytes of its file, pixel by pixel.
#include "host/desk/images_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPushButton>

#include "desktop/qt/text.h"
#include "frontend/constants.h"

namespace zqn::host {
namespace {

constexpr int side = 16;

class ImagesWindowTest : public ::testing::Test {
 protected:
  ImagesWindowTest() {
    window.show();
    QApplication::processEvents();
  }
  /// The picture of an image, by the name of its constant.
  const QLabel* picture(const QString& constant) const {
    for (const QLabel* label : window.findChildren<QLabel*>())
      if (label->accessibleName() == constant) return label;
    return nullptr;
  }
  /// The place of a text in the window.
  QRect placeOf(const QString& text) const {
    for (const QLabel* label : window.findChildren<QLabel*>())
      if (label->text() == text) return {label->mapTo(&window, QPoint()), label->size()};
    return {};
  }

  ImagesWindow window{nullptr};
};

QString constantOf(int number) {
  return qt::toQt(StringView(Constants::GetImage(zqImageConstants(number)).name));
}

TEST_F(ImagesWindowTest, ShowsEachImagePixelByPixel) {
  ASSERT_TRUE(window.devicePixelRatioF() == 1 && window.logicalDpiX() == 96)
      << "pixels of files and of the screen are the same only there";
  const QImage seen = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
  const QRgb background = window.palette().color(QPalette::Window).rgb();
  for (int number = 1; number <= 47; ++number) {
    SCOPED_TRACE(constantOf(number).toStdString());
    const auto& bytes = Constants::GetImage(zqImageConstants(number)).gif;
    QImage file;
    ASSERT_TRUE(file.loadFromData(bytes.data(), static_cast<int>(bytes.size()), "GIF"));
    ASSERT_EQ(file.size(), QSize(side, side));
    const QLabel* label = picture(constantOf(number));
    ASSERT_NE(label, nullptr);
    ASSERT_EQ(label->size(), QSize(side, side));
    const QPoint corner = label->mapTo(&window, QPoint());
    int different = 0;
    int drawn = 0;
    for (int y = 0; y < side; ++y) {
      for (int x = 0; x < side; ++x) {
        const QRgb inFile = file.convertToFormat(QImage::Format_ARGB32).pixel(x, y);
        const QRgb expected = qAlpha(inFile) == 0 ? background : inFile | 0xFF000000;
        different += seen.pixel(corner.x() + x, corner.y() + y) != expected;
        drawn += expected != background;
      }
    }
    EXPECT_EQ(different, 0);
    EXPECT_GT(drawn, 20) << "there is something to be seen";
  }
}

TEST_F(ImagesWindowTest, SetsNumberAndConstantBesideEachImage) {
  for (int number = 1; number <= 47; ++number) {
    const QLabel* label = picture(constantOf(number));
    ASSERT_NE(label, nullptr) << number;
    const QRect image(label->mapTo(&window, QPoint()), label->size());
    const QRect digits = placeOf(QString::number(number));
    const QRect name = placeOf(constantOf(number));
    for (const QRect& text : {digits, name}) {
      EXPECT_GE(text.center().y(), image.top()) << number;
      EXPECT_LE(text.center().y(), image.bottom()) << number;
    }
    EXPECT_LT(image.right(), digits.left());
    EXPECT_LT(digits.right(), name.left());
    EXPECT_TRUE(window.rect().contains(name)) << number;
  }
}

TEST_F(ImagesWindowTest, ClosesByItsButton) {
  EXPECT_EQ(window.windowTitle(), "Bilder");
  window.findChild<QPushButton*>()->click();
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace zqn::host
