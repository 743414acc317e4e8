// SPDX-License-Identifier: MIT
#include "forms/drop_down.h"

#include <algorithm>

#include "runtime/locale.h"

namespace zqn {

// ---- the open list

void DropDown::userOpened() {
  if (open_ || !mayOpen() || ListCount() == 0) return;
  open_ = true;
  rememberStanding();
  marked_ = ListIndex();
  listChanged();
}

void DropDown::dropList() noexcept {
  open_ = false;
  marked_ = -1;
}

void DropDown::userClosed() {
  if (!open_) return;
  dropList();
  listChanged();
}

void DropDown::userToggled() {
  if (open_) {
    userClosed();
  } else {
    userOpened();
  }
}

void DropDown::userMarked(int index) {
  if (!open_ || index < 0 || index >= ListCount() || marked_ == index) return;
  marked_ = index;
  listChanged();
}

void DropDown::markChosen() {
  if (!open_ || marked_ == ListIndex()) return;
  marked_ = ListIndex();
  listChanged();
}

void DropDown::userChose(int index) {
  userClosed();
  if (index >= 0 && index < ListCount()) choose(index);
}

// ---- keys

namespace {

bool opensList(const KeyStroke& stroke) {
  if (stroke.code == key::F4) return stroke.shift == shift::None;
  return stroke.shift == shift::Alt && (stroke.code == key::Down || stroke.code == key::Up);
}

bool movesCaret(int code) {
  return code == key::Left || code == key::Right || code == key::Home || code == key::End;
}

}  // namespace

bool DropDown::openListTakes(const KeyStroke& stroke) {
  if (!open_) return false;
  if (opensList(stroke)) {
    // The key that has opened it closes it again, and takes what has been marked meanwhile.
    if (marked_ == ListIndex()) {
      userClosed();
    } else {
      userChose(marked_);
    }
    return true;
  }
  if (stroke.code == key::Enter || stroke.code == key::Tab) {
    userChose(marked_);
    // Tab goes on to the next control.
    return stroke.code != key::Tab;
  }
  if (stroke.code == key::Escape) {
    userClosed();
    restoreStanding();
  } else if (const std::optional<int> entry = entryFor(stroke, marked_)) {
    userMarked(*entry);
  } else if (hasEditor()) {
    return stroke.character == 0 && stroke.code != key::Delete && !movesCaret(stroke.code);
  }
  return true;
}

bool DropDown::isListKey(const KeyStroke& stroke) const {
  return opensList(stroke) || entryFor(stroke, ListIndex()).has_value();
}

bool DropDown::closedListTakes(const KeyStroke& stroke) {
  if (opensList(stroke)) {
    userOpened();
    return true;
  }
  const std::optional<int> entry = entryFor(stroke, ListIndex());
  // At the end of the list a key leads nowhere, and nothing is taken.
  if (entry && *entry != ListIndex()) userChose(*entry);
  return entry.has_value();
}

/// The entry that a key leads to; nullopt for a key that leads nowhere.
std::optional<int> DropDown::entryFor(const KeyStroke& stroke, int from) const {
  if ((stroke.shift & (shift::Ctrl | shift::Alt)) != 0) return std::nullopt;
  if (hasEditor() && (movesCaret(stroke.code) || stroke.character >= u' ')) return std::nullopt;
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

int DropDown::nextWithLetter(char16_t letter, int from) const {
  for (int step = 1; step <= ListCount(); ++step) {
    const int index = (from + step) % ListCount();
    const String& entry = List(index);
    if (!entry.empty() && upperUnit(entry.front()) == upperUnit(letter)) return index;
  }
  return from;
}

}  // namespace zqn
