// SPDX-License-Identifier: MIT
//
// A drop-down over a list of texts, one of which is chosen, or none.
//
//     cbo.AddItem(u"Kundenstamm");
//     cbo.ListIndex(0);  // raises Click
#pragma once

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

  /// A person takes an entry, from the open list or by keys. Raises Click when it is another one; nothing
  /// outside the entries.
  void userChose(int index);
  /// Arrows, Home and End choose; a letter chooses the next entry that begins with it.
  bool ownKey(const KeyStroke& stroke) override;
  void clicked() override {}
  String content() const override { return Text(); }

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  bool chooseByLetter(char16_t letter);

  std::vector<String> entries_;
  int listIndex_ = -1;
};

}  // namespace zqn
