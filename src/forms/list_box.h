// SPDX-License-Identifier: MIT
//
// A list of texts of which any number may be selected. A click selects one row alone, Ctrl adds and takes
// away, Shift selects a range; arrow keys and Space do the same. ListIndex is the row with the focus,
// selected or not.
//
//     lst.AddItem(u"Angebot");
//     lst.Selected(0, true);  // raises Click
#pragma once

#include <vector>

#include "forms/control.h"

namespace zqn {

class ListBox : public Control {
 public:
  ListBox(Form& form, const ControlDesign& design, int tabIndex);

  int ListCount() const noexcept { return static_cast<int>(rows_.size()); }
  /// Row `index` from 0; "" outside, without an error.
  const String& List(int index) const noexcept;
  /// The row with the focus, -1 for none.
  int ListIndex() const noexcept { return listIndex_; }
  /// Moves the focus row and selects nothing. Raises Click when it differs. Error 380 outside -1 and the
  /// rows.
  void ListIndex(int index);
  /// Error 381 outside the rows.
  bool Selected(int index) const;
  /// Raises Click when the row's state changes. Error 381 outside the rows.
  void Selected(int index, bool selected);
  int SelCount() const noexcept;
  /// The text of the focus row, "" for none.
  const String& Text() const noexcept { return List(listIndex_); }

  /// Empties the list; no row has the focus afterwards. Raises nothing.
  void Clear();
  /// Adds a row at the end, not selected. Raises nothing.
  void AddItem(StringView text);

  // ---- for toolkits

  /// The left button goes down on a row, -1 beside all of them, with these shift bits: on the row that is
  /// under the pointer now, whatever scrolls when the focus comes here, which is first. What it changes raises
  /// one Click when the button is released. False when the click is over, as Form::mousePressed.
  bool userPressed(int row, int shift);
  /// The second press of a double click, wherever the rows have scrolled meanwhile: on the row of the first.
  bool userPressedAgain(int shift) { return userPressed(pressedRow_, shift); }
  /// A person selects exactly these rows, by a screen reader: as by clicks, the focus comes here first. Raises
  /// Click when something changes.
  void userSelected(const std::vector<bool>& rows);
  void clicked() override;
  /// Arrows, Home, End and page keys move, letters go to the next row that begins with them; with Shift the
  /// range grows, with Ctrl only the focus row moves. Space selects, with Ctrl it switches.
  bool ownKey(const KeyStroke& stroke) override;
  String content() const override { return Text(); }
  /// Knows "List(2)" and "Selected(2)", too.
  Variant Property(StringView name) const override;
  using Control::Property;

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  struct Row {
    String text;
    bool selected = false;
  };

  const Row& row(int index) const;
  void press(int row, int shift);
  /// A person goes to a row: the shift bits say what becomes of the selection. True when something changed.
  bool go(int index, int shift);
  bool select(int first, int last);
  int rowFor(const KeyStroke& stroke) const;

  std::vector<Row> rows_;
  int listIndex_ = -1;
  /// Where a range begins.
  int anchor_ = 0;
  /// The press that is to be released has changed something.
  bool pressChanged_ = false;
  int pressedRow_ = -1;
};

}  // namespace zqn
