// SPDX-License-Identifier: MIT
#include "frontend/constants.h"

#include "forms/desktop.h"
#include "frontend/images.h"

namespace zqn {

namespace plan {

using enum ControlKind;

constexpr ControlDesign roster[] = {{u"ImageList1", ImageList, u"", 120, 120, 570, 570}};
constexpr FormDesign form{u"Images", u"Images", 810, 810, roster};

}  // namespace plan

Images::Images() : Form(plan::form) {
  for (const Picture& picture : imagePictures()) ImageList1.Add(picture);
}

Images& Images::instance() {
  static Images images;
  return images;
}

double Constants::zqnTwipsPerPixelX() { return Desktop::current().TwipsPerPixelX(); }

double Constants::zqnTwipsPerPixelY() { return Desktop::current().TwipsPerPixelY(); }

const Picture& Constants::GetImage(const zqImageConstants& Image) {
  return Images::instance().ImageList1.ListImages(Image);
}

}  // namespace zqn
