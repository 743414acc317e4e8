// SPDX-License-Identifier: MIT
//
// A small picture without a toolkit: filled outlines in a frame of so many pixels at 96 dpi, which a toolkit
// draws as fine as its screen is; or the bytes of a GIF file.
//
//     constexpr PicturePoint arrow[] = {{4, 2}, {10, 7}, {4, 12}};
//     constexpr PictureShape shapes[] = {{0x000000, arrow}};
//     constexpr Picture picCurrent{u"picCurrent", 14, 14, shapes};
//     box.Picture(&picCurrent);
#pragma once

#include <cstdint>
#include <span>

namespace zqn {

/// Pixels at 96 dpi from the upper left corner.
struct PicturePoint {
  double x;  ///< To the right.
  double y;  ///< Down.
};

/// A polygon, filled with a 32-bit colour (control.h).
struct PictureShape {
  std::uint32_t colour;                   ///< 32 bits, as in control.h.
  std::span<const PicturePoint> outline;  ///< Its corners in order.
};

/// Pictures are constants; whoever shows one keeps a pointer, nullptr for none.
struct Picture {
  /// What scripts and assistive technology call it.
  const char16_t* name;
  int width;   ///< Pixels at 96 dpi.
  int height;  ///< Pixels at 96 dpi.
  /// Drawn in this order, the last on top.
  std::span<const PictureShape> shapes;
  /// A GIF file, drawn instead of shapes when there is one.
  std::span<const unsigned char> gif = {};
};

}  // namespace zqn
