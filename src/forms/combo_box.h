// SPDX-License-Identifier: MIT
//
// A drop-down over a list of texts, one of which is chosen, or none. A click, F4 or Alt+Down opens the list;
// while it is open one entry is marked, the keys are the list's, and nothing is chosen until a click, Enter
// or Tab takes the marked entry. Esc leaves the choice as it was.
//
//     cbo.AddItem(u"Kundenstamm");
//     cbo.ListIndex(0);  // raises Click
#pragma once

#include <optional>
#include <vector>

#include "forms/control.h"

namespace zqn {

class ComboBox : public Control {
 public:
  ComboBox(Form& form, const ControlDesign& design, int tabIndex);

  int ListCount() const noexcept { return static_cast<int>(entries_.size()); }
  /// Entry `index` from 0; "" outside, without an error.
  const String& List(int index) const noexcept;
  /// The chosen entry, -1 for none.
  int ListIndex() const noexcept { return listIndex_; }
  /// Raises Click when it differs, also for -1. Error 380 outside -1 and the entries; the choice stays.
  void ListIndex(int index);
  /// The chosen entry's text, "" for none.
  const String& Text() const noexcept { return List(listIndex_); }
  /// Chooses the first entry that equals the text without regard to case; error 383 when there is none.
  void Text(StringView text);

  /// Empties the list; nothing is chosen afterwards. Raises nothing.
  void Clear();
  /// Adds an entry at the end. Raises nothing.
  void AddItem(StringView text);

  // ---- for toolkits

  /// The list is open, and its marked entry, -1 for none.
  bool isOpen() const noexcept { return open_; }
  int markedEntry() const noexcept { return marked_; }
  /// Opens the list, unless it has no entries.
  void userOpened();
  void userClosed();
  /// The pointer or a screen reader goes to an entry of the open list.
  void userMarked(int index);
  /// A person takes an entry, from the open list or by keys, and the list closes. Raises Click when it is
  /// another one; nothing outside the entries.
  void userChose(int index);
  bool takesKeyFirst(const KeyStroke& stroke) override;
  /// Arrows, Home and End choose; a letter chooses the next entry that begins with it.
  bool ownKey(const KeyStroke& stroke) override;
  void clicked() override;
  void focusLeft() override { userClosed(); }
  String content() const override { return Text(); }
  /// Knows "List(2)", too.
  Variant Property(StringView name) const override;
  using Control::Property;

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  std::optional<int> entryFor(const KeyStroke& stroke, int from) const;
  int nextWithLetter(char16_t letter, int from) const;

  std::vector<String> entries_;
  int listIndex_ = -1;
  bool open_ = false;
  int marked_ = -1;
};

}  // namespace zqn
