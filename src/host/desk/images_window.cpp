// SPDX-License-Identifier: MIT
#include "host/desk/images_window.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "desktop/qt/picture_box.h"
#include "desktop/qt/text.h"
#include "frontend/constants.h"

namespace zqn::host {

namespace {

/// So many images stand below each other; image, number, name and a gap stand beside each other.
constexpr int rows = 16;
constexpr int cellsOfImage = 4;
constexpr int gap = 16;

}  // namespace

ImagesWindow::ImagesWindow(QWidget* parent) : QDialog(parent) {
  setWindowTitle("Bilder");
  auto* layout = new QVBoxLayout(this);
  auto* grid = new QGridLayout;
  layout->addLayout(grid);
  for (int number = zqImgInteressentenstamm; number <= zqImgCategory; ++number) {
    const Picture& picture = Constants::GetImage(zqImageConstants(number));
    const QString constant = qt::toQt(StringView(picture.name));
    auto* image = new QLabel;
    image->setAccessibleName(constant);
    image->setPixmap(qt::pixelsOf(picture, *this));
    auto* name = new QLabel(constant);
    name->setTextInteractionFlags(Qt::TextSelectableByMouse);
    const int row = (number - 1) % rows;
    const int column = (number - 1) / rows * cellsOfImage;
    grid->addWidget(image, row, column, Qt::AlignCenter);
    grid->addWidget(new QLabel(QString::number(number)), row, column + 1, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(name, row, column + 2);
    grid->setColumnMinimumWidth(column + 3, gap);
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  buttons->button(QDialogButtonBox::Close)->setText("Schließen");
  layout->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::rejected, this, &ImagesWindow::reject);
}

}  // namespace zqn::host
