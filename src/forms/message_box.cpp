// SPDX-License-Identifier: MIT
#include "forms/message_box.h"

#include "forms/desktop.h"

namespace zqn {

std::vector<MsgBoxResult> MessageBox::buttons() const {
  switch (style & 0xF) {
    case msgbox::OKCancel:
      return {MsgBoxResult::OK, MsgBoxResult::Cancel};
    case msgbox::YesNoCancel:
      return {MsgBoxResult::Yes, MsgBoxResult::No, MsgBoxResult::Cancel};
    case msgbox::YesNo:
      return {MsgBoxResult::Yes, MsgBoxResult::No};
    default:
      return {MsgBoxResult::OK};
  }
}

int MessageBox::defaultButton() const {
  const int wanted = 1 + (style & 0x300) / msgbox::DefaultButton2;
  return wanted <= static_cast<int>(buttons().size()) ? wanted : 1;
}

std::optional<MsgBoxResult> MessageBox::escapeResult() const {
  const MsgBoxResult last = buttons().back();
  if (last == MsgBoxResult::No) return std::nullopt;
  return last;
}

MsgBoxResult MsgBox(StringView text, int style, StringView title) {
  return Desktop::current().messageBox({String(text), String(title), style});
}

}  // namespace zqn
