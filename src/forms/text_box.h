// SPDX-License-Identifier: MIT
//
// A field of text, of one line or of several. Assigning `Text` by code and typing both raise Change, and only
// when the text differs. Lines that a person makes or pastes are parted by CR LF.
#pragma once

#include <concepts>

#include "forms/text_entry.h"
#include "runtime/convert.h"

namespace zqn {

class TextBox : public TextEntry {
 public:
  TextBox(Form& form, const ControlDesign& design, int tabIndex);

  using TextEntry::Text;
  /// Cut to MaxLength without an error; the caret goes to the front, nothing is selected.
  void Text(StringView text);
  /// Assigns a value: converted to text. Errors 94 (Null), 13.
  void Text(const std::same_as<Variant> auto& value) { Text(StringView(CStr(value))); }

  int MaxLength() const noexcept { return lengthLimit(); }
  /// Does not touch the present text. Error 380 when negative.
  void MaxLength(int length);
  zqn::Alignment Alignment() const noexcept { return alignment_; }
  void Alignment(zqn::Alignment alignment);
  /// Takes several lines. Enter, where no event has taken it away, and Ctrl+Enter begin a new one.
  bool MultiLine() const noexcept { return design().other.MultiLine; }

  /// A person can mark and copy, not edit; code assigns as ever.
  bool Locked() const noexcept { return design().other.Locked; }

  // ---- for toolkits

  bool isReadOnly() const noexcept override { return Locked(); }
  bool hasLines() const noexcept override { return MultiLine(); }
  String pastedAs(StringView text) const override;
  /// Enter begins a line. Up, Down, PageUp and PageDown go by stored lines; a toolkit that draws them broken
  /// finds the place itself (userMoved).
  bool ownKey(const KeyStroke& stroke) override;

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  void moveToLine(int place, bool extend);

  zqn::Alignment alignment_;
};

}  // namespace zqn
