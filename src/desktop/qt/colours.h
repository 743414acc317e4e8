// SPDX-License-Identifier: MIT
//
// The 32-bit colours of the dialogs as Qt's: 0x00BBGGRR is a colour of its own, 0x800000nn is one of the
// desktop's, taken from the palette.
#pragma once

#include <QPalette>
#include <cstdint>

namespace zqn::qt {

QColor toQt(std::uint32_t colour, const QPalette& palette);

}  // namespace zqn::qt
