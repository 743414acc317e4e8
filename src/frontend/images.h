// SPDX-License-Identifier: MIT
//
// The form that holds the images. It is never shown; it is loaded when the first image is asked for.
#pragma once

#include <span>

#include "forms/form.h"
#include "forms/image_list.h"

namespace zqn {

/// The images in the order of zqImageConstants, made from the files in images/ when the library is built.
std::span<const Picture> imagePictures() noexcept;

class Images : public Form {
 public:
  Images();
  /// The one form of the process.
  static Images& instance();

  ImageList& ImageList1 = Get<ImageList>(u"ImageList1");
};

}  // namespace zqn
