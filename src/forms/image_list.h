// SPDX-License-Identifier: MIT
//
// A store of pictures that a form keeps for others. It is never seen.
//
//     images.Add(picPhone);
//     const Picture& phone = images.ListImages(1);
#pragma once

#include <vector>

#include "forms/control.h"
#include "forms/picture.h"

namespace zqn {

class ImageList : public Control {
 public:
  /// Error number of an index that no image has.
  static constexpr std::int32_t IndexOutOfBounds = 35600;

  ImageList(Form& form, const ControlDesign& design, int tabIndex);

  /// Appends a picture, which must outlive the list.
  void Add(const Picture& picture) { pictures_.push_back(&picture); }
  int Count() const noexcept { return static_cast<int>(pictures_.size()); }
  /// The picture of an index from 1. Error 35600 outside 1 to Count.
  const Picture& ListImages(int index) const;

  bool takesFocus() const noexcept override { return false; }
  bool isDrawn() const noexcept override { return false; }

 private:
  std::vector<const Picture*> pictures_;
};

}  // namespace zqn
