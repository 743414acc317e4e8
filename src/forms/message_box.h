// SPDX-License-Identifier: MIT
//
// Message boxes, under the platform's names and numbers:
//
//     if (MsgBox(u"Datensatz löschen?", msgbox::YesNo | msgbox::Question, u"Abfrage") != MsgBoxResult::Yes)
//     return;
#pragma once

#include <optional>
#include <vector>

#include "runtime/string.h"

namespace zqn {

/// Buttons, icon and default button: the platform's numbers, one of each added up.
namespace msgbox {
constexpr int OKOnly = 0;
constexpr int OKCancel = 1;
constexpr int YesNoCancel = 3;
constexpr int YesNo = 4;
constexpr int Critical = 16;
constexpr int Question = 32;
constexpr int Exclamation = 48;
constexpr int Information = 64;
constexpr int DefaultButton1 = 0;
constexpr int DefaultButton2 = 256;
constexpr int DefaultButton3 = 512;
}  // namespace msgbox

/// The button that was pressed: the platform's numbers.
enum class MsgBoxResult { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

/// A message box that is to open: the text breaks at CR, LF and CR LF.
struct MessageBox {
  String text;   ///< Lines break at CR, LF and CR LF.
  String title;  ///< In the title bar.
  /// Sum of the numbers of namespace msgbox.
  int style = 0;

  /// The buttons from left to right.
  std::vector<MsgBoxResult> buttons() const;
  /// The default button, counted from 1; the first one when the style asks for a button that is not there.
  int defaultButton() const;
  /// What Esc and the close box mean: Cancel, OK on a box that has OK alone; nothing for Yes and No.
  std::optional<MsgBoxResult> escapeResult() const;
};

/// Opens a message box above the open form and waits for the answer.
MsgBoxResult MsgBox(StringView text, int style, StringView title);

}  // namespace zqn
