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

void HeadlessUser::mouseDown(const Spot& spot) {
  auto* grid = dynamic_cast<FlexGrid*>(&spot.control);
  guarded(spot.control, u"MouseDown", [&] {
    if (grid != nullptr) {
      pressed_ = headless::pressOn(*grid, {spot.row, spot.col}, spot.button);
      return;
    }
    pressed_ = spot.control.form().mousePressed(spot.control);
    auto* list = dynamic_cast<TDBList*>(&spot.control);
    if (pressed_ && list != nullptr) list->userSelect(spot.row);
    auto* rows = dynamic_cast<ListBox*>(&spot.control);
    if (pressed_ && rows != nullptr) rows->userPressed(spot.row, spot.shift);
  });
  twice_ = false;
}

void HeadlessUser::mouseMove(const Spot& spot) {
  auto* grid = dynamic_cast<FlexGrid*>(&spot.control);
  if (!pressed_ || grid == nullptr) return;
  guarded(spot.control, u"Scroll", [&] { headless::dragTo(*grid, {spot.row, spot.col}); });
}

void HeadlessUser::mouseUp(const Spot& spot) {
  if (!pressed_) return;
  pressed_ = false;
  auto* grid = dynamic_cast<FlexGrid*>(&spot.control);
  if (grid != nullptr)
    guarded(spot.control, u"MouseUp", [&] { grid->userReleased({spot.row, spot.col}, spot.button, 0); });
  if (spot.button != 1 || twice_) return;
  guarded(spot.control, u"Click", [&] { spot.control.form().mouseReleased(spot.control); });
}

void HeadlessUser::mouseDownAgain(const Spot& spot) {
  guarded(spot.control, u"MouseDown", [&] {
    const bool passes = spot.control.form().mousePressed(spot.control);
    if (!passes) return;
    if (auto* list = dynamic_cast<TDBList*>(&spot.control)) list->userDoubleClick(spot.row);
    if (auto* rows = dynamic_cast<ListBox*>(&spot.control)) rows->userPressed(spot.row, spot.shift);
    auto* grid = dynamic_cast<FlexGrid*>(&spot.control);
    if (grid == nullptr) return;
    pressed_ = twice_ = true;
    grid->userPressedTwice({spot.row, spot.col});
  });
}

void HeadlessUser::takeEntry(Control& control, int entry) {
  auto& drop = dynamic_cast<DropDown&>(control);
  if (!drop.isOpen()) {
    mouseDown({control});
    const bool agreed = pressed_;
    mouseUp({control});
    // A click into the text of a field opens nothing; its button does.
    if (agreed) guarded(control, u"Click", [&] { drop.userOpened(); });
  }
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
