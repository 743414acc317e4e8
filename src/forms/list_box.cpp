// SPDX-License-Identifier: MIT
#include "forms/list_box.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/names.h"
#include "runtime/convert.h"
#include "runtime/locale.h"

namespace zqn {

namespace {

constexpr int pageRows = 8;

}  // namespace

ListBox::ListBox(Form& form, const ControlDesign& design, int tabIndex) : Control(form, design, tabIndex) {}

const String& ListBox::List(int index) const noexcept {
  static const String none;
  return index >= 0 && index < ListCount() ? rows_[static_cast<std::size_t>(index)].text : none;
}

const ListBox::Row& ListBox::row(int index) const {
  if (index < 0 || index >= ListCount()) throw RuntimeError(error::InvalidPropertyArrayIndex);
  return rows_[static_cast<std::size_t>(index)];
}

void ListBox::ListIndex(int index) {
  if (index < -1 || index >= ListCount()) throw RuntimeError(error::InvalidPropertyValue);
  if (listIndex_ == index) return;
  listIndex_ = index;
  anchor_ = std::max(index, 0);
  changed();
  Click.raise();
}

bool ListBox::Selected(int index) const { return row(index).selected; }

void ListBox::Selected(int index, bool selected) {
  if (row(index).selected == selected) return;
  rows_[static_cast<std::size_t>(index)].selected = selected;
  changed();
  Click.raise();
}

int ListBox::SelCount() const noexcept {
  return static_cast<int>(std::ranges::count(rows_, true, &Row::selected));
}

void ListBox::Clear() {
  rows_.clear();
  listIndex_ = -1;
  anchor_ = 0;
  changed();
}

void ListBox::AddItem(StringView text) {
  rows_.push_back({String(text)});
  changed();
}

// ---- a person selects

bool ListBox::select(int first, int last) {
  bool differs = false;
  for (int i = 0; i < ListCount(); ++i) {
    Row& each = rows_[static_cast<std::size_t>(i)];
    const bool wanted = i >= first && i <= last;
    differs = std::exchange(each.selected, wanted) != wanted || differs;
  }
  return differs;
}

bool ListBox::go(int index, int shift) {
  bool differs = std::exchange(listIndex_, index) != index;
  if ((shift & shift::Shift) != 0) {
    differs = select(std::min(anchor_, index), std::max(anchor_, index)) || differs;
  } else {
    anchor_ = index;
    if ((shift & shift::Ctrl) == 0) differs = select(index, index) || differs;
  }
  changed();
  return differs;
}

bool ListBox::userPressed(int index, int shift) {
  pressedRow_ = index;
  if (!form().mousePressed(*this)) return false;
  press(index, shift);
  return true;
}

void ListBox::press(int index, int shift) {
  pressChanged_ = false;
  if (index < 0 || index >= ListCount()) return;
  pressChanged_ = go(index, shift);
  if ((shift & (shift::Ctrl | shift::Shift)) != shift::Ctrl) return;
  rows_[static_cast<std::size_t>(index)].selected ^= true;
  pressChanged_ = true;
  changed();
}

void ListBox::userSelected(const std::vector<bool>& rows) {
  if (!form().mousePressed(*this)) return;
  bool differs = false;
  for (std::size_t i = 0; i < std::min(rows.size(), rows_.size()); ++i)
    differs = std::exchange(rows_[i].selected, rows[i]) != rows[i] || differs;
  changed();
  if (differs) Click.raise();
}

void ListBox::clicked() {
  if (std::exchange(pressChanged_, false)) Click.raise();
}

// ---- keys

int ListBox::rowFor(const KeyStroke& stroke) const {
  const int last = ListCount() - 1;
  switch (stroke.code) {
    case key::Up:
    case key::Left:
      return std::max(listIndex_ - 1, 0);
    case key::Down:
    case key::Right:
      return std::min(listIndex_ + 1, last);
    case key::PageUp:
      return std::max(listIndex_ - pageRows, 0);
    case key::PageDown:
      return std::min(std::max(listIndex_, 0) + pageRows, last);
    case key::Home:
      return 0;
    case key::End:
      return last;
    default:
      break;
  }
  if (stroke.character <= u' ') return -1;
  for (int step = 1; step <= ListCount(); ++step) {
    const int index = (listIndex_ + step) % ListCount();
    const String& text = List(index);
    if (!text.empty() && upperUnit(text.front()) == upperUnit(stroke.character)) return index;
  }
  return -1;
}

bool ListBox::ownKey(const KeyStroke& stroke) {
  if ((stroke.shift & shift::Alt) != 0 || rows_.empty()) return false;
  if (stroke.code == key::Space) {
    press(std::max(listIndex_, 0), stroke.shift);
    clicked();
    return true;
  }
  const int index = rowFor(stroke);
  if (index < 0) return false;
  if (go(index, stroke.shift)) Click.raise();
  return true;
}

// ---- automation

Variant ListBox::Property(StringView name) const {
  const ControlName element = splitName(name);
  if (element.index >= 0 && sameName(element.name, u"List")) return List(element.index);
  if (element.index >= 0 && sameName(element.name, u"Selected")) return Selected(element.index);
  return Control::Property(name);
}

const PropertyEntry* ListBox::findProperty(StringView name) const {
  static constexpr auto list = [](const Control& c) -> const ListBox& {
    return static_cast<const ListBox&>(c);
  };
  static constexpr PropertyEntry entries[] = {
      {u"Text", [](const Control& c) { return Variant(list(c).Text()); }, nullptr},
      {u"ListIndex", [](const Control& c) { return Variant(std::int32_t{list(c).ListIndex()}); },
       [](Control& c, const Variant& value) { static_cast<ListBox&>(c).ListIndex(CLng(value)); }},
      {u"ListCount", [](const Control& c) { return Variant(std::int32_t{list(c).ListCount()}); }, nullptr},
      {u"SelCount", [](const Control& c) { return Variant(std::int32_t{list(c).SelCount()}); }, nullptr},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

}  // namespace zqn
