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

int MessageBox::defaultButton() const noexcept {
  switch (style & 0x300) {
    case msgbox::DefaultButton2:
      return 2;
    case msgbox::DefaultButton3:
      return 3;
    default:
      return 1;
  }
}

bool MessageBox::hasEscape(MsgBoxResult& result) const {
  const std::vector<MsgBoxResult> all = buttons();
  const MsgBoxResult last = all.back();
  if (last == MsgBoxResult::No) return false;
  result = last;
  return true;
}

MsgBoxResult MsgBox(StringView text, int style, StringView title) {
  return Desktop::current().messageBox({String(text), String(title), style});
}

}  // namespace zqn
