// SPDX-License-Identifier: MIT
//
// A drop-down over a list of texts, one of which is chosen, or none. A click, F4 or Alt+Down opens the list;
// while it is open the keys are the list's.
//
//     cbo.AddItem(u"Kundenstamm");
//     cbo.ListIndex(0);  // raises Click
#pragma once

#include <vector>

#include "forms/control.h"
#include "forms/drop_down.h"

namespace zqn {

class ComboBox : public Control, public DropDown {
 public:
  ComboBox(Form& form, const ControlDesign& design, int tabIndex);

  int ListCount() const noexcept override { return static_cast<int>(entries_.size()); }
  const String& List(int index) const noexcept override;
  int ListIndex() const noexcept override { return listIndex_; }
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

  bool takesKeyFirst(const KeyStroke& stroke) override { return openListTakes(stroke); }
  /// Arrows, Home and End choose; a letter chooses the next entry that begins with it.
  bool ownKey(const KeyStroke& stroke) override { return closedListTakes(stroke); }
  void clicked() override { userToggled(); }
  void focusLeft() override { userClosed(); }
  String content() const override { return Text(); }
  /// Knows "List(2)", too.
  Variant Property(StringView name) const override;
  using Control::Property;

 protected:
  bool mayOpen() override { return isUsable(); }
  /// Raises Click when it is another entry.
  void choose(int index) override { ListIndex(index); }
  void listChanged() override { changed(); }
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  std::vector<String> entries_;
  int listIndex_ = -1;
};

}  // namespace zqn
