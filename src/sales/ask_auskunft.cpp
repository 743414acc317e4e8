// SPDX-License-Identifier: MIT
#include "sales/ask_auskunft.h"

#include "contract/auskunft.h"
#include "contract/object_factory.h"

namespace zqn {

Variant askAuskunft(const Ref<Session>& session, StringView name, StringView title, StringView item) {
  constexpr std::int32_t taken = 1;
  const auto auskunft = ObjectFactory::current().create<AuskunftObject>(u"Kalmera.AuskunftObject");
  auskunft->PopupItems.Add(u"Take", u"Über&nehmen", 0, false, true, true, true);
  auskunft->Show(session, name, title);
  return auskunft->Result() == taken ? auskunft->ResultDataItems(item) : Variant();
}

}  // namespace zqn
