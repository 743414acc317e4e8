// SPDX-License-Identifier: MIT
//
// A field of text. Positions and lengths count UTF-16 units. Assigning `Text` by code and typing both raise
// Change, and only when the text differs.
//
// A toolkit that edits natively reports what came of it through userEdited and userSelected; the headless
// desktop lets ownKey edit.
#pragma once

#include <concepts>

#include "forms/control.h"
#include "runtime/convert.h"

namespace zqn {

class TextBox : public Control {
 public:
  TextBox(Form& form, const ControlDesign& design, int tabIndex);

  const String& Text() const noexcept { return text_; }
  /// Cut to MaxLength without an error; the caret goes to the front, nothing is selected.
  void Text(StringView text);
  /// Assigns a value: converted to text. Errors 94 (Null), 13.
  void Text(const std::same_as<Variant> auto& value) { Text(StringView(CStr(value))); }

  int MaxLength() const noexcept { return maxLength_; }
  /// Does not touch the present text.
  void MaxLength(int length);
  zqn::Alignment Alignment() const noexcept { return alignment_; }
  void Alignment(zqn::Alignment alignment);

  int SelStart() const noexcept { return selStart_; }
  int SelLength() const noexcept { return selLength_; }
  /// Beyond the end: at the end. Error 380 when negative. Assigning SelStart empties the selection.
  void SelStart(int start);
  void SelLength(int length);

  Event<> Change{*this, u"Change"};

  // ---- for toolkits

  /// A person has edited: the whole text as it is now. Raises Change when it differs.
  void userEdited(StringView text, int selStart, int selLength);
  /// A person has moved the caret or the selection.
  void userSelected(int selStart, int selLength);
  /// A person pastes; the part that MaxLength leaves room for goes in, line breaks become blanks.
  void userPasted(StringView text);
  bool ownKey(const KeyStroke& stroke) override;
  String content() const override { return text_; }

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  void replaceSelection(StringView text);
  void moveCaret(int position, bool extend);

  String text_;
  int maxLength_;
  zqn::Alignment alignment_;
  int selStart_ = 0;
  int selLength_ = 0;
  /// The end of the selection that arrow keys with Shift move.
  bool caretAtStart_ = false;
};

}  // namespace zqn
