// SPDX-License-Identifier: MIT
//
// A drop-down over a list of texts, one of which is chosen, or none. A click, F4 or Alt+Down opens the list;
// while it is open the keys are the list's.
//
//     cbo.AddItem(u"Kundenstamm");
//     cbo.ListIndex(0);  // raises Click
//
// Designed with `allowedit` it is a field for any text beside its list: what is typed or assigned raises
// Change, and the entry that the text happens to be is the chosen one.
#pragma once

#include <vector>

#include "forms/drop_down.h"
#include "forms/text_entry.h"

namespace zqn {

class ComboBox : public TextEntry, public DropDown {
 public:
  ComboBox(Form& form, const ControlDesign& design, int tabIndex);

  int ListCount() const noexcept override { return static_cast<int>(entries_.size()); }
  const String& List(int index) const noexcept override;
  int ListIndex() const noexcept override { return listIndex_; }
  /// Raises Click when it differs, also for -1. Error 380 outside -1 and the entries; the choice stays.
  void ListIndex(int index);
  /// The chosen entry's text, "" for none; with `allowedit` what stands in the field.
  using TextEntry::Text;
  /// Chooses the first entry that equals the text without regard to case; error 383 when there is none. With
  /// `allowedit` any text: raises Change when it differs, and no Click.
  void Text(StringView text);
  /// A person may type into the field.
  bool allowedit() const noexcept { return design().other.allowedit; }

  /// Empties the list; nothing is chosen afterwards, and a field is empty. Raises nothing.
  void Clear();
  /// Adds an entry at the end. Raises nothing.
  void AddItem(StringView text);

  // ---- for toolkits

  bool isReadOnly() const noexcept override { return !allowedit(); }
  bool hasCaret() const noexcept override { return allowedit(); }
  bool takesKeyFirst(const KeyStroke& stroke) override { return openListTakes(stroke); }
  /// Arrows, Home and End choose; a letter chooses the next entry that begins with it. In a field they edit.
  bool ownKey(const KeyStroke& stroke) override;
  /// Opens the list of a field without an editor; otherwise a click sets the caret.
  void clicked() override;
  void focusLeft() override { userClosed(); }
  /// Knows "List(2)", too.
  Variant Property(StringView name) const override;
  using Control::Property;

 protected:
  bool mayOpen() override { return isUsable(); }
  void choose(int index) override;
  void rememberStanding() override;
  void restoreStanding() override;
  void listChanged() override { changed(); }
  bool hasEditor() const noexcept override { return allowedit(); }
  /// The text of a field has become another one: the choice follows.
  void edited() override;
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  int entryOf(StringView text) const;
  void showChoice();

  std::vector<String> entries_;
  int listIndex_ = -1;
  /// The field shows what was chosen from the list, which is no Change.
  bool showingChoice_ = false;
  /// The field when the list was opened.
  StandingText standing_;
};

}  // namespace zqn
