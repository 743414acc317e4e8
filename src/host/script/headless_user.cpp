// SPDX-License-Identifier: MIT
#include "host/script/headless_user.h"

#include <utility>

#include "forms/drop_down.h"
#include "forms/list_box.h"
#include "forms/tdb_list.h"

namespace zqn::script {

namespace {

/// Nobody above could catch what leaves the form's own doing: it counts as an error of the event.
template <class Act>
void guarded(EventOwner& owner, StringView event, Act&& act) {
  try {
    act();
  } catch (const RuntimeError& failure) {
    owner.eventFailed(event, failure);
  }
}

}  // namespace

void HeadlessUser::mouseDown(const MouseTarget& target) {
  auto* grid = dynamic_cast<FlexGrid*>(&target.control);
  guarded(target.control, u"MouseDown", [&] {
    if (grid != nullptr) {
      pressed_ = gridMouse_.press(*grid, {target.row, target.col}, target.button, target.shift);
      return;
    }
    if (auto* list = dynamic_cast<TDBList*>(&target.control)) {
      pressed_ = list->userPressed(target.row);
    } else if (auto* rows = dynamic_cast<ListBox*>(&target.control)) {
      pressed_ = rows->userPressed(target.row, target.shift);
    } else {
      pressed_ = desktop_.mouseDown(target.control);
    }
  });
}

void HeadlessUser::mouseMove(const MouseTarget& target) {
  auto* grid = dynamic_cast<FlexGrid*>(&target.control);
  if (!pressed_ || grid == nullptr) return;
  guarded(target.control, u"Scroll", [&] { gridMouse_.drag(*grid, {target.row, target.col}); });
}

void HeadlessUser::mouseUp(const MouseTarget& target) {
  if (auto* grid = dynamic_cast<FlexGrid*>(&target.control)) {
    // The grid itself knows which buttons are down on it.
    guarded(target.control, u"MouseUp", [&] {
      gridMouse_.release(*grid, {target.row, target.col}, target.button, target.shift);
    });
    return;
  }
  if (!std::exchange(pressed_, false) || target.button != 1) return;
  guarded(target.control, u"Click", [&] { target.control.form().mouseReleased(target.control); });
}

void HeadlessUser::mouseDownAgain(const MouseTarget& target) {
  guarded(target.control, u"MouseDown", [&] {
    if (auto* grid = dynamic_cast<FlexGrid*>(&target.control)) {
      gridMouse_.pressAgain(*grid, target.button, target.shift);
    } else if (auto* list = dynamic_cast<TDBList*>(&target.control)) {
      list->userPressedAgain(target.row);
    } else if (auto* rows = dynamic_cast<ListBox*>(&target.control)) {
      rows->userPressedAgain(target.shift);
    } else {
      target.control.form().mousePressed(target.control);
    }
  });
}

void HeadlessUser::takeEntry(Control& control, int entry) {
  auto& drop = dynamic_cast<DropDown&>(control);
  // The button of the field opens the list; a click into its text may not.
  if (!drop.isOpen())
    guarded(control, u"MouseDown", [&] {
      if (control.form().mousePressed(control)) drop.userOpened();
    });
  guarded(control, u"Click", [&] {
    if (drop.isOpen()) drop.userChose(entry);
  });
}

void HeadlessUser::keyDown(Form& form, const Key& key) {
  const String units = key.text.empty() ? String(1, u'\0') : key.text;
  guarded(form, u"KeyDown", [&] {
    for (const char16_t unit : units) {
      const KeyOutcome outcome = form.keyPressed({key.code, key.shift, unit});
      if (outcome.own) form.ActiveControl()->ownKey(outcome.stroke);
    }
  });
}

void HeadlessUser::keyUp(Form& form, const Key& key) {
  guarded(form, u"KeyUp", [&] { form.keyReleased(key.code, key.shift); });
}

void HeadlessUser::closeBox(Form& form) {
  guarded(form, u"QueryUnload", [&] { form.closeBox(); });
}

}  // namespace zqn::script
