// SPDX-License-Identifier: MIT
#include "host/script/line_context.h"

#include "host/script/control_traits.h"
#include "host/script/script_error.h"

namespace zqn::script {

Form& LineContext::form() const {
  Form* form = desktop.activeForm();
  if (form == nullptr) throw Refusal("no form is open");
  return *form;
}

Control& LineContext::control(const std::string& name) const {
  const Form& owner = form();
  if (Control* control = owner.findControl(fromUtf8(name))) return *control;
  std::string names;
  for (const auto& each : owner.controls()) names += (names.empty() ? "" : ", ") + nameOf(*each);
  throw ScriptError(toUtf8(owner.Name()) + " has no control \"" + name + "\"; it has " + names);
}

Form& LineContext::usableForm() const {
  Form& owner = form();
  if (desktop.openMessageBox() != nullptr) throw Refusal("a message box is open");
  if (desktop.openPopupMenu() != nullptr) throw Refusal("a popup menu is open");
  if (!owner.Visible()) throw Refusal(toUtf8(owner.Name()) + " is closed");
  return owner;
}

Control& LineContext::usableControl(const std::string& name) const {
  Control& found = control(name);
  usableForm();
  if (!found.isShown()) throw Refusal(nameOf(found) + " is invisible");
  if (!found.isUsable()) throw Refusal(nameOf(found) + " is disabled");
  return found;
}

}  // namespace zqn::script
