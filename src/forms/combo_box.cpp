// SPDX-License-Identifier: MIT
#include "forms/combo_box.h"

#include <algorithm>

#include "forms/names.h"
#include "runtime/convert.h"
#include "runtime/locale.h"

namespace zqn {

ComboBox::ComboBox(Form& form, const ControlDesign& design, int tabIndex) : Control(form, design, tabIndex) {}

const String& ComboBox::List(int index) const noexcept {
  static const String none;
  return index >= 0 && index < ListCount() ? entries_[static_cast<std::size_t>(index)] : none;
}

void ComboBox::ListIndex(int index) {
  if (index < -1 || index >= ListCount()) throw RuntimeError(error::InvalidPropertyValue);
  if (listIndex_ == index) return;
  listIndex_ = index;
  changed();
  Click.raise();
}

void ComboBox::Text(StringView text) {
  const auto found =
      std::ranges::find_if(entries_, [&](const String& entry) { return sameName(entry, text); });
  if (found == entries_.end()) throw RuntimeError(error::PropertyIsReadOnly);
  ListIndex(static_cast<int>(found - entries_.begin()));
}

void ComboBox::Clear() {
  entries_.clear();
  listIndex_ = marked_ = -1;
  open_ = false;
  changed();
}

void ComboBox::AddItem(StringView text) {
  entries_.emplace_back(text);
  changed();
}

// ---- the open list

void ComboBox::userOpened() {
  if (open_ || entries_.empty() || !isUsable()) return;
  open_ = true;
  marked_ = listIndex_;
  changed();
}

void ComboBox::userClosed() {
  if (!open_) return;
  open_ = false;
  marked_ = -1;
  changed();
}

void ComboBox::userMarked(int index) {
  if (!open_ || index < 0 || index >= ListCount() || marked_ == index) return;
  marked_ = index;
  changed();
}

void ComboBox::userChose(int index) {
  userClosed();
  if (index >= 0 && index < ListCount()) ListIndex(index);
}

void ComboBox::clicked() {
  if (open_) {
    userClosed();
  } else {
    userOpened();
  }
}

// ---- keys

namespace {

bool opensList(const KeyStroke& stroke) {
  if (stroke.code == key::F4) return stroke.shift == shift::None;
  return stroke.shift == shift::Alt && (stroke.code == key::Down || stroke.code == key::Up);
}

}  // namespace

bool ComboBox::takesKeyFirst(const KeyStroke& stroke) {
  if (!open_) return false;
  if (opensList(stroke) || stroke.code == key::Enter || stroke.code == key::Tab) {
    userChose(marked_);
    // Tab goes on to the next control.
    return stroke.code != key::Tab;
  }
  if (stroke.code == key::Escape) {
    userClosed();
  } else if (const std::optional<int> entry = entryFor(stroke, marked_)) {
    userMarked(*entry);
  }
  return true;
}

bool ComboBox::ownKey(const KeyStroke& stroke) {
  if (opensList(stroke)) {
    userOpened();
    return true;
  }
  const std::optional<int> entry = entryFor(stroke, listIndex_);
  if (entry) userChose(*entry);
  return entry.has_value();
}

/// The entry that a key leads to; nullopt for a key that leads nowhere.
std::optional<int> ComboBox::entryFor(const KeyStroke& stroke, int from) const {
  if ((stroke.shift & (shift::Ctrl | shift::Alt)) != 0) return std::nullopt;
  const int last = ListCount() - 1;
  switch (stroke.code) {
    case key::Up:
    case key::Left:
      return std::max(from - 1, 0);
    case key::Down:
    case key::Right:
      return std::min(from + 1, last);
    case key::Home:
    case key::PageUp:
      return 0;
    case key::End:
    case key::PageDown:
      return last;
    default:
      break;
  }
  if (stroke.character <= u' ') return std::nullopt;
  return nextWithLetter(stroke.character, from);
}

int ComboBox::nextWithLetter(char16_t letter, int from) const {
  for (int step = 1; step <= ListCount(); ++step) {
    const int index = (from + step) % ListCount();
    const String& entry = List(index);
    if (!entry.empty() && upperUnit(entry.front()) == upperUnit(letter)) return index;
  }
  return from;
}

// ---- automation

Variant ComboBox::Property(StringView name) const {
  const ControlName element = splitName(name);
  if (element.index >= 0 && sameName(element.name, u"List")) return List(element.index);
  return Control::Property(name);
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
  return entry != nullptr ? entry : Control::findProperty(name);
}

}  // namespace zqn
