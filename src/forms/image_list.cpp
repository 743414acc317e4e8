// SPDX-License-Identifier: MIT
#include "forms/image_list.h"

namespace zqn {

ImageList::ImageList(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex) {
  Visible(false);
}

const Picture& ImageList::ListImages(int index) const {
  if (index < 1 || index > Count())
    throw RuntimeError(IndexOutOfBounds, u"Index außerhalb des Bereichs der Bilderliste");
  return *pictures_[static_cast<std::size_t>(index - 1)];
}

}  // namespace zqn
