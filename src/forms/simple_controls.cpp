// SPDX-License-Identifier: MIT
#include <cstdlib>

#include "forms/check_box.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/frame.h"
#include "forms/label.h"
#include "forms/menu.h"
#include "runtime/convert.h"

namespace zqn {

namespace {

/// The entry "Caption" of a control that has one.
template <class C>
constexpr PropertyEntry captionEntry{
    u"Caption", [](const Control& c) { return Variant(static_cast<const C&>(c).Caption()); },
    [](Control& c, const Variant& value) { static_cast<C&>(c).Caption(CStr(value)); }};

}  // namespace

// ---- Label

Label::Label(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex), caption_(design.text) {
  BackColor(colour::ButtonFace);
}

void Label::Caption(StringView caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed();
}

const PropertyEntry* Label::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {captionEntry<Label>};
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

// ---- Frame

Frame::Frame(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex), caption_(design.text) {
  BackColor(colour::ButtonFace);
}

void Frame::Caption(StringView caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed();
}

const PropertyEntry* Frame::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {captionEntry<Frame>};
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

// ---- Menu

Menu::Menu(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex), caption_(design.text) {}

void Menu::Caption(StringView caption) { caption_ = caption; }

std::vector<Menu*> Menu::items() const {
  std::vector<Menu*> found;
  for (const auto& each : form().controls()) {
    auto* item = dynamic_cast<Menu*>(each.get());
    if (item != nullptr && item->container() == this && item->Visible()) found.push_back(item);
  }
  return found;
}

const PropertyEntry* Menu::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {captionEntry<Menu>};
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

// ---- CommandButton

CommandButton::CommandButton(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex),
      caption_(design.text),
      cancel_(design.other.Cancel),
      default_(design.other.Default) {
  BackColor(colour::ButtonFace);
}

void CommandButton::Caption(StringView caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed();
}

void CommandButton::Picture(const zqn::Picture* picture) {
  picture_ = picture;
  changed();
}

bool CommandButton::ownKey(const KeyStroke& stroke) {
  if (stroke.character != u' ') return false;
  clicked();
  return true;
}

const PropertyEntry* CommandButton::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      captionEntry<CommandButton>,
      {u"Cancel", [](const Control& c) { return Variant(static_cast<const CommandButton&>(c).Cancel()); },
       nullptr},
      {u"Default", [](const Control& c) { return Variant(static_cast<const CommandButton&>(c).Default()); },
       nullptr},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

// ---- CheckBox

CheckBox::CheckBox(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex), caption_(design.text) {
  BackColor(colour::ButtonFace);
}

void CheckBox::Caption(StringView caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed();
}

void CheckBox::Value(int value) {
  if (value < 0 || value > 2) throw RuntimeError(error::InvalidPropertyValue);
  if (value_ == value) return;
  value_ = value;
  changed();
  Click.raise();
}

void CheckBox::Value(const Variant& value) { Value(int{CLng(value)}); }

bool CheckBox::ownKey(const KeyStroke& stroke) {
  if (stroke.character != u' ') return false;
  clicked();
  return true;
}

void CheckBox::clicked() { Value(value_ == 0 ? 1 : 0); }

const PropertyEntry* CheckBox::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      captionEntry<CheckBox>,
      {u"Value",
       [](const Control& c) { return Variant(std::int32_t{static_cast<const CheckBox&>(c).Value()}); },
       [](Control& c, const Variant& value) { static_cast<CheckBox&>(c).Value(value); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

}  // namespace zqn
