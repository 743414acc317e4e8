// SPDX-License-Identifier: MIT
#include "forms/combo_box.h"

#include <algorithm>

#include "forms/names.h"
#include "runtime/convert.h"

namespace zqn {

ComboBox::ComboBox(Form& form, const ControlDesign& design, int tabIndex)
    : TextEntry(form, design, tabIndex) {
  if (!allowedit()) showChoice();
}

const String& ComboBox::List(int index) const noexcept {
  static const String none;
  return index >= 0 && index < ListCount() ? entries_[static_cast<std::size_t>(index)] : none;
}

void ComboBox::ListIndex(int index) {
  if (index < -1 || index >= ListCount()) throw RuntimeError(error::InvalidPropertyValue);
  if (listIndex_ == index) return;
  listIndex_ = index;
  showChoice();
  Click.raise();
}

void ComboBox::Text(StringView text) {
  if (allowedit()) return assignText(text);
  const int entry = entryOf(text);
  if (entry < 0) throw RuntimeError(error::PropertyIsReadOnly);
  ListIndex(entry);
}

int ComboBox::entryOf(StringView text) const {
  const auto found =
      std::ranges::find_if(entries_, [&](const String& entry) { return sameName(entry, text); });
  return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

void ComboBox::showChoice() {
  showingChoice_ = true;
  assignText(List(listIndex_));
  showingChoice_ = false;
  changed();
}

void ComboBox::edited() {
  if (showingChoice_) return;
  listIndex_ = entryOf(Text());
  markChosen();
  Change.raise();
}

void ComboBox::Clear() {
  entries_.clear();
  listIndex_ = -1;
  dropList();
  showChoice();
}

void ComboBox::AddItem(StringView text) {
  entries_.emplace_back(text);
  changed();
}

// ---- a person

void ComboBox::choose(int index) {
  listIndex_ = index;
  // Also where it stands already: what was typed may be the entry in other letters.
  showChoice();
  Click.raise();
}

void ComboBox::rememberStanding() { standing_ = {Text(), anchor(), caret()}; }

void ComboBox::restoreStanding() {
  if (!allowedit()) return;
  assignText(standing_.text);
  userSelected(standing_.anchor, standing_.caret);
}

bool ComboBox::ownKey(const KeyStroke& stroke) {
  return closedListTakes(stroke) || (allowedit() && TextEntry::ownKey(stroke));
}

void ComboBox::clicked() {
  if (!allowedit()) userToggled();
}

// ---- automation

Variant ComboBox::Property(StringView name) const {
  const ControlName element = splitName(name);
  if (element.index >= 0 && sameName(element.name, u"List")) return List(element.index);
  return TextEntry::Property(name);
}

const PropertyEntry* ComboBox::findProperty(StringView name) const {
  static constexpr auto combo = [](const Control& c) -> const ComboBox& {
    return static_cast<const ComboBox&>(c);
  };
  static constexpr PropertyEntry entries[] = {
      {u"Text", [](const Control& c) { return Variant(combo(c).Text()); },
       [](Control& c, const Variant& value) { static_cast<ComboBox&>(c).Text(CStr(value)); }},
      {u"ListIndex", [](const Control& c) { return Variant(std::int32_t{combo(c).ListIndex()}); },
       [](Control& c, const Variant& value) { static_cast<ComboBox&>(c).ListIndex(CLng(value)); }},
      {u"ListCount", [](const Control& c) { return Variant(std::int32_t{combo(c).ListCount()}); }, nullptr},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : TextEntry::findProperty(name);
}

}  // namespace zqn
