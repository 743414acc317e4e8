// SPDX-License-Identifier: MIT
//
// The design of a form as a table: one row a control, in the order of the tab index, positions and sizes in
// twips. It is the one place that says what a control is called, what kind it is, where it stands and what it
// says:
//
//     constexpr ControlDesign roster[] = {
//         {u"txtSchluessel", ControlKind::Label, u"Status", 120, 2640, 855, 255},
//         {u"Schluessel", ControlKind::TextBox, u"", 120, 2880, 1455, 285, {.MaxLength = 3}},
//     };
//     constexpr FormDesign design{u"frmVertriebsstati", u"Vertriebsstati", 6420, 5145, roster};
#pragma once

#include <cstdint>
#include <span>

#include "runtime/string.h"

namespace zqn {

enum class ControlKind {
  CheckBox,
  ComboBox,
  CommandButton,
  DateInput,
  Frame,
  ImageList,
  Label,
  ListBox,
  Menu,
  MSFlexGrid,
  MSHFlexGrid,
  OptionButton,
  PictureBox,
  Shape,
  TDBDate,
  TDBList,
  TDBNumber,
  TextBox,
  Timer,
  ToggleButton,
  zqCombo
};

enum class Alignment { Left, Right, Center };

/// What a row of the roster says beyond name, kind, text and place. Each value is the design state; logic may
/// change it later.
struct OtherDesign {
  /// Longest text in UTF-16 units; 0 is no limit. TextBox.
  int MaxLength = 0;
  zqn::Alignment Alignment = zqn::Alignment::Left;
  /// Label.
  bool Bold = false;
  /// Takes several lines. TextBox.
  bool MultiLine = false;
  /// Without a frame, to lie over the cell of a grid. TextBox.
  bool Flat = false;
  /// Digits and looks of a number: positive, negative, zero and Null, semicolons between them. TDBNumber.
  const char16_t* Format = u"";
  /// Which entries it offers (zq_combo.h says which numbers there are), how many the open list shows at once,
  /// and whether a person may type into the field. zqCombo.
  int rowsourcetype = 0;
  int maxrows = 8;
  bool allowedit = false;
  /// The button that Esc, or Enter, presses from anywhere on the form. CommandButton.
  bool Cancel = false;
  bool Default = false;
  bool Visible = true;  ///< Can be seen at first.
  bool Enabled = true;  ///< Can be used at first.
  bool TabStop = true;  ///< Tab stops here at first.
  /// May stand over another visible control, or outside the client area, on purpose.
  bool Overlaps = false;
  const char16_t* ToolTipText = u"";  ///< What the pointer over it shows.
  /// Name of the control that it stands in; its place is then relative to that one. Empty: the form.
  const char16_t* Container = u"";
  /// Is chosen when the form comes up. OptionButton.
  bool Value = false;
  /// Can be read and copied, not edited. TextBox.
  bool Locked = false;
  /// Milliseconds between two ticks; 0 is off. Timer.
  int Interval = 0;
};

struct ControlDesign {
  /// Name, with the index behind it for an element of a control array: "Label1(0)".
  const char16_t* name;
  ControlKind kind;  ///< What it is.
  /// Caption, or the text of a text box.
  const char16_t* text;
  int left;             ///< Twips from the left edge of the container.
  int top;              ///< Twips from its upper edge.
  int width;            ///< Twips.
  int height;           ///< Twips.
  OtherDesign other{};  ///< What few controls state.
};

/// A form as it is made: its title, its size and its controls.
struct FormDesign {
  const char16_t* name;                   ///< "frmDialog".
  const char16_t* caption;                ///< The title bar.
  int width;                              ///< Of the client area, in twips.
  int height;                             ///< Of the client area, in twips.
  std::span<const ControlDesign> roster;  ///< In the order of the tab index.
};

}  // namespace zqn
