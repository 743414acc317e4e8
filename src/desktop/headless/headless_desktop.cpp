// SPDX-License-Identifier: MIT
#include "desktop/headless/headless_desktop.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/menu.h"
#include "forms/text_entry.h"
#include "runtime/convert.h"

namespace zqn::headless {

Control* cancelButton(const Form& form) {
  Control* called = nullptr;
  for (const auto& control : form.controls()) {
    const auto* button = dynamic_cast<const CommandButton*>(control.get());
    if (button == nullptr || !button->isUsable()) continue;
    if (button->Cancel()) return control.get();
    if (InStr(UCase(button->Name()), u"CANCEL") != String::npos) called = control.get();
  }
  return called;
}

void HeadlessDesktop::press(const KeyStroke& stroke) {
  Form* form = activeForm();
  if (form == nullptr || openMessageBox() != nullptr) return;
  if (openPopupMenu() != nullptr) {
    if (stroke.code == key::Escape) take(nullptr);
    return;
  }
  down_ = stroke;
  const KeyOutcome outcome = form->keyPressed(stroke);
  if (outcome.own) form->ActiveControl()->ownKey(outcome.stroke);
  release();
}

void HeadlessDesktop::release() {
  const std::optional<KeyStroke> stroke = std::exchange(down_, std::nullopt);
  if (!stroke || openMessageBox() != nullptr || activeForm() == nullptr) return;
  activeForm()->keyReleased(stroke->code, stroke->shift);
}

void HeadlessDesktop::click(Control& control) {
  if (openMessageBox() != nullptr || openPopupMenu() != nullptr || &control.form() != activeForm()) return;
  if (mouseDown(control)) control.form().mouseReleased(control);
}

bool HeadlessDesktop::mouseDown(Control& control) {
  const bool focusCame = control.form().ActiveControl() != &control;
  if (!control.form().mousePressed(control)) return false;
  auto* text = dynamic_cast<TextEntry*>(&control);
  if (text != nullptr) text->userPressed(static_cast<int>(text->Text().size()), focusCame);
  return true;
}

bool HeadlessDesktop::answer(MsgBoxResult result) {
  const MessageBox* box = openMessageBox();
  if (box == nullptr) return false;
  const auto buttons = box->buttons();
  if (std::ranges::find(buttons, result) == buttons.end()) return false;
  answer_ = result;
  return true;
}

bool HeadlessDesktop::take(Menu* item) {
  if (openPopupMenu() == nullptr) return false;
  const std::vector<Menu*> items = openPopupMenu()->items();
  if (item != nullptr && (std::ranges::find(items, item) == items.end() || !item->Enabled())) return false;
  taken_ = item;
  return true;
}

void HeadlessDesktop::pressQueuedKeys() {
  KeyStroke stroke;
  while (nextQueuedKey(stroke)) press(stroke);
}

void HeadlessDesktop::doEvents() {
  release();
  pressQueuedKeys();
}

void HeadlessDesktop::runLoop(const std::function<bool()>& done) {
  // A key that opened the form or the box comes up again over it.
  release();
  while (!done()) {
    KeyStroke stroke;
    if (nextQueuedKey(stroke)) {
      press(stroke);
    } else if (tickTimer()) {
      continue;
    } else if (hasIdleStep()) {
      idleStep();
    } else {
      leaveAlone();
    }
  }
}

MsgBoxResult HeadlessDesktop::runMessageBox(const MessageBox& box) {
  const std::optional<MsgBoxResult> outer = std::exchange(answer_, std::nullopt);
  if (!hasIdleStep()) answer(box.buttons()[static_cast<std::size_t>(box.defaultButton() - 1)]);
  runLoop([this] { return answer_.has_value(); });
  return *std::exchange(answer_, outer);
}

Menu* HeadlessDesktop::runPopupMenu(Menu&) {
  const std::optional<Menu*> outer = std::exchange(taken_, std::nullopt);
  if (!hasIdleStep()) take(nullptr);
  runLoop([this] { return taken_.has_value(); });
  return *std::exchange(taken_, outer);
}

void HeadlessDesktop::leaveAlone() {
  Form* form = activeForm();
  form->closeBox();
  if (!form->Visible()) return;
  if (Control* button = cancelButton(*form)) click(*button);
  if (form->Visible())
    throw std::logic_error("a form refused its close box, and nobody is there to act on it");
}

}  // namespace zqn::headless
