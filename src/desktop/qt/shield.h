// SPDX-License-Identifier: MIT
//
// Keeps exceptions out of Qt's event handling, which cannot bear them. Everything that Qt calls and that may
// run a handler of a form goes through `shielded`. A run-time error is told to the person as one that left
// the named event; anything else is kept and goes on where the modal loop stands:
//
//     shielded(control, u"KeyDown", [&] { form.keyPressed(stroke); });
#pragma once

#include <functional>

#include "forms/event.h"

namespace zqn::qt {

void shielded(EventOwner& owner, const char16_t* event, const std::function<void()>& act);

/// Throws what was kept, once. For the modal loop alone.
void rethrowShielded();

}  // namespace zqn::qt
