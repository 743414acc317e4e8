// SPDX-License-Identifier: MIT
//
// How the sales dialogs ask the host's information dialog for a record:
//
//     const Variant number = askAuskunft(Session, u"AUSK_Kundenauskunft", u"Kundenauskunft",
//     u"Kundennummer");
#pragma once

#include "contract/session.h"
#include "runtime/variant.h"

namespace zqn {

/// The item of the row that a person took over, Empty when none was. Error 429 when the host has no
/// information dialog; any other error of that dialog goes through.
Variant askAuskunft(const Ref<Session>& session, StringView name, StringView title, StringView item);

}  // namespace zqn
