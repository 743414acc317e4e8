// SPDX-License-Identifier: MIT
#include "desktop/qt/colours.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zqn::qt {

namespace {

constexpr std::array<std::pair<std::uint32_t, QPalette::ColorRole>, 21> systemColours{{
    {0x80000000, QPalette::Button},           // scroll bars
    {0x80000001, QPalette::Window},           // desktop
    {0x80000002, QPalette::Highlight},        // caption of the active window
    {0x80000003, QPalette::Mid},              // caption of an inactive window
    {0x80000004, QPalette::Window},           // menu
    {0x80000005, QPalette::Base},             // window background
    {0x80000006, QPalette::Shadow},           // window frame
    {0x80000007, QPalette::WindowText},       // menu text
    {0x80000008, QPalette::Text},             // window text
    {0x80000009, QPalette::HighlightedText},  // caption text
    {0x8000000C, QPalette::Mid},              // application workspace
    {0x8000000D, QPalette::Highlight},        // highlight
    {0x8000000E, QPalette::HighlightedText},  // highlighted text
    {0x8000000F, QPalette::Window},           // button face
    {0x80000010, QPalette::Dark},             // button shadow
    {0x80000011, QPalette::PlaceholderText},  // grey text
    {0x80000012, QPalette::ButtonText},       // button text
    {0x80000014, QPalette::Light},            // highlight of a button
    {0x80000016, QPalette::Midlight},         // light side of a button
    {0x80000017, QPalette::ToolTipText},      // text of a tool tip
    {0x80000018, QPalette::ToolTipBase},      // background of a tool tip
}};

}  // namespace

QColor toQt(std::uint32_t colour, const QPalette& palette) {
  if ((colour & 0x80000000U) == 0)
    return QColor(static_cast<int>(colour & 0xFF), static_cast<int>((colour >> 8) & 0xFF),
                  static_cast<int>((colour >> 16) & 0xFF));
  const auto* known = std::ranges::find(systemColours, colour, [](const auto& entry) { return entry.first; });
  return palette.color(QPalette::Active, known != systemColours.end() ? known->second : QPalette::WindowText);
}

}  // namespace zqn::qt
