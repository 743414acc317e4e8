// SPDX-License-Identifier: MIT
#include "sales/basics/ask_auskunft.h"

#include "contract/object_factory.h"

namespace zqn {

Ref<AuskunftObject> createAuskunft() {
  return ObjectFactory::current().create<AuskunftObject>(u"Kalmera.AuskunftObject");
}

void addTake(AuskunftObject& auskunft) {
  auskunft.PopupItems.Add(u"Take", u"Über&nehmen", 0, false, true, true, true);
}

bool hasTaken(const AuskunftObject& auskunft) {
  constexpr std::int32_t somethingTaken = 1;
  return auskunft.Result() == somethingTaken;
}

}  // namespace zqn
