// SPDX-License-Identifier: MIT
//
// How the sales dialogs ask the host's information dialog for a record, statement by statement, so that each
// dialog has its own error mode:
//
//     const Ref<AuskunftObject> auskunft = createAuskunft();
//     addTake(*auskunft);
//     auskunft->Show(Session, u"AUSK_Kundenauskunft", u"Kundenauskunft");
//     if (hasTaken(*auskunft)) use(auskunft->ResultDataItems(u"Kundennummer"));
#pragma once

#include "contract/auskunft.h"

namespace zqn {

/// A new information dialog. Error 429 when the host has none.
Ref<AuskunftObject> createAuskunft();
/// A person shall be able to take the row that is shown over.
void addTake(AuskunftObject& auskunft);
/// A row was taken over. The dialog's own errors go through.
bool hasTaken(const AuskunftObject& auskunft);

}  // namespace zqn
