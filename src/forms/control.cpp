// SPDX-License-Identifier: MIT
#include "forms/control.h"

#include <cmath>

#include "forms/desktop.h"
#include "forms/form.h"
#include "forms/names.h"
#include "runtime/convert.h"

namespace zqn {

namespace {

/// A colour as the language writes it: as a 32-bit integer, which is negative for a system colour, or as the
/// number itself. Error 6 beyond 32 bits.
std::uint32_t colourOf(const Variant& value) {
  const double number = std::nearbyint(CDbl(value));
  if (!(number >= -0x1p31 && number < 0x1p32)) throw RuntimeError(error::Overflow);
  return static_cast<std::uint32_t>(static_cast<std::int64_t>(number));
}

}  // namespace

Control::Control(Form& form, const ControlDesign& design, int tabIndex)
    : form_(form),
      design_(design),
      kind_(design.kind),
      left_(design.left),
      top_(design.top),
      width_(design.width),
      height_(design.height),
      visible_(design.other.Visible),
      enabled_(design.other.Enabled),
      tabStop_(design.other.TabStop),
      tabIndex_(tabIndex),
      toolTipText_(design.other.ToolTipText) {
  const ControlName name = splitName(design.name);
  name_ = name.name;
  index_ = name.index;
}

Control::~Control() = default;

String Control::fullName() const {
  return index_ < 0 ? name_ : name_ + u"(" + CStr(static_cast<std::int32_t>(index_)) + u")";
}

namespace {

template <class T, class V>
bool assign(T& member, V value) {
  if (member == value) return false;
  member = value;
  return true;
}

}  // namespace

void Control::Left(int twips) {
  if (assign(left_, twips)) changed();
}
void Control::Top(int twips) {
  if (assign(top_, twips)) changed();
}
void Control::Width(int twips) {
  if (assign(width_, twips)) changed();
}
void Control::Height(int twips) {
  if (assign(height_, twips)) changed();
}

void Control::Visible(bool visible) {
  if (!assign(visible_, visible)) return;
  changed();
  if (!visible) form_.leaveUnusable();
}

void Control::Enabled(bool enabled) {
  if (!assign(enabled_, enabled)) return;
  changed();
  if (!enabled) form_.leaveUnusable();
}

void Control::TabStop(bool tabStop) { tabStop_ = tabStop; }

void Control::ToolTipText(StringView text) {
  if (assign(toolTipText_, text)) changed();
}
void Control::BackColor(std::uint32_t colour) {
  if (assign(backColor_, colour)) changed();
}
void Control::ForeColor(std::uint32_t colour) {
  if (assign(foreColor_, colour)) changed();
}

bool Control::isShown() const noexcept {
  return visible_ && (container_ == nullptr || container_->isShown());
}

bool Control::isUsable() const noexcept {
  return visible_ && enabled_ && (container_ == nullptr || container_->isUsable());
}

void Control::SetFocus() {
  if (!form_.Visible() || !takesFocus() || !isUsable()) throw RuntimeError(error::InvalidProcedureCall);
  form_.moveFocus(*this, FocusCause::Code);
}

bool Control::ownKey(const KeyStroke&) { return false; }

void Control::clicked() { Click.raise(); }

void Control::changed() {
  if (FormView* view = form_.view()) view->controlChanged(*this);
}

void Control::eventFailed(StringView event, const RuntimeError& failure) {
  Desktop::current().runtimeErrorRaised(form_, name_ + u"_" + String(event), failure);
}

// ---- automation

const PropertyEntry* Control::findIn(std::span<const PropertyEntry> entries, StringView name) {
  for (const PropertyEntry& entry : entries) {
    if (sameName(entry.name, name)) return &entry;
  }
  return nullptr;
}

const PropertyEntry* Control::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Name", [](const Control& c) { return Variant(c.Name()); }, nullptr},
      {u"Index", [](const Control& c) { return Variant(std::int32_t{c.Index()}); }, nullptr},
      {u"Left", [](const Control& c) { return Variant(std::int32_t{c.Left()}); },
       [](Control& c, const Variant& value) { c.Left(CLng(value)); }},
      {u"Top", [](const Control& c) { return Variant(std::int32_t{c.Top()}); },
       [](Control& c, const Variant& value) { c.Top(CLng(value)); }},
      {u"Width", [](const Control& c) { return Variant(std::int32_t{c.Width()}); },
       [](Control& c, const Variant& value) { c.Width(CLng(value)); }},
      {u"Height", [](const Control& c) { return Variant(std::int32_t{c.Height()}); },
       [](Control& c, const Variant& value) { c.Height(CLng(value)); }},
      {u"Visible", [](const Control& c) { return Variant(c.Visible()); },
       [](Control& c, const Variant& value) { c.Visible(CBool(value)); }},
      {u"Enabled", [](const Control& c) { return Variant(c.Enabled()); },
       [](Control& c, const Variant& value) { c.Enabled(CBool(value)); }},
      {u"TabStop", [](const Control& c) { return Variant(c.TabStop()); },
       [](Control& c, const Variant& value) { c.TabStop(CBool(value)); }},
      {u"TabIndex", [](const Control& c) { return Variant(std::int32_t{c.TabIndex()}); }, nullptr},
      {u"CausesValidation", [](const Control& c) { return Variant(c.CausesValidation()); },
       [](Control& c, const Variant& value) { c.CausesValidation(CBool(value)); }},
      {u"ToolTipText", [](const Control& c) { return Variant(c.ToolTipText()); },
       [](Control& c, const Variant& value) { c.ToolTipText(CStr(value)); }},
      {u"BackColor", [](const Control& c) { return Variant(double{1.0 * c.BackColor()}); },
       [](Control& c, const Variant& value) { c.BackColor(colourOf(value)); }},
      {u"ForeColor", [](const Control& c) { return Variant(double{1.0 * c.ForeColor()}); },
       [](Control& c, const Variant& value) { c.ForeColor(colourOf(value)); }},
  };
  return findIn(entries, name);
}

Variant Control::Property(StringView name) const {
  const PropertyEntry* entry = findProperty(name);
  if (entry == nullptr) throw RuntimeError(error::NoSuchMember);
  return entry->get(*this);
}

void Control::Property(StringView name, const Variant& value) {
  const PropertyEntry* entry = findProperty(name);
  if (entry == nullptr) throw RuntimeError(error::NoSuchMember);
  if (entry->set == nullptr) throw RuntimeError(error::PropertyIsReadOnly);
  entry->set(*this, value);
}

}  // namespace zqn
