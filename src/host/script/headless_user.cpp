// SPDX-License-Identifier: MIT
#include "host/script/headless_user.h"

#include "desktop/headless/grid_mouse.h"
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
      pressed_ = headless::pressOn(*grid, {target.row, target.col}, target.button);
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
  twice_ = false;
}

void HeadlessUser::mouseMove(const MouseTarget& target) {
  auto* grid = dynamic_cast<FlexGrid*>(&target.control);
  if (!pressed_ || grid == nullptr) return;
  guarded(target.control, u"Scroll", [&] { headless::dragTo(*grid, {target.row, target.col}); });
}

void HeadlessUser::mouseUp(const MouseTarget& target) {
  if (!pressed_) return;
  pressed_ = false;
  auto* grid = dynamic_cast<FlexGrid*>(&target.control);
  if (grid != nullptr)
    guarded(target.control, u"MouseUp", [&] {
      grid->userReleased({target.row, target.col}, target.button, 0);
    });
  if (target.button != 1 || twice_) return;
  guarded(target.control, u"Click", [&] { target.control.form().mouseReleased(target.control); });
}

void HeadlessUser::mouseDownAgain(const MouseTarget& target) {
  guarded(target.control, u"MouseDown", [&] {
    if (auto* list = dynamic_cast<TDBList*>(&target.control)) {
      list->userPressedAgain(target.row);
      return;
    }
    if (auto* rows = dynamic_cast<ListBox*>(&target.control)) {
      rows->userPressedAgain(target.shift);
      return;
    }
    auto* grid = dynamic_cast<FlexGrid*>(&target.control);
    if (!target.control.form().mousePressed(target.control) || grid == nullptr) return;
    pressed_ = twice_ = true;
    grid->userPressedTwice({target.row, target.col});
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
