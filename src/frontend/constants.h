// SPDX-License-Identifier: MIT
//
// Constants of the system.
#pragma once

#include "forms/picture.h"
#include "frontend/enumerations.h"
#include "runtime/string.h"

namespace zqn {

/// Constants of the system whose members need no object:
///
///     const Picture& phone = Constants::GetImage(zqImgPhone);  // a GIF of 16 by 16 pixels
class Constants {
 public:
  Constants() = delete;

  /// Twips in one pixel of the current desktop's screen, as its settings are at the moment. Error 429 without
  /// a current desktop.
  static double zqnTwipsPerPixelX();
  static double zqnTwipsPerPixelY();
  /// The picture of that number, for as long as the process lives. Error 35600 outside 1 to 47.
  static const Picture& GetImage(const zqImageConstants& Image);
  /// "TALVEX"
  static String zqCompanyName() { return u"TALVEX"; }
  /// "TALVEX Kavelin"
  static String zqAppName() { return u"TALVEX Kavelin"; }
};

}  // namespace zqn
