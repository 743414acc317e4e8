// SPDX-License-Identifier: MIT
#include "forms/menu.h"

#include "forms/form.h"

namespace zqn {

std::vector<Menu*> Menu::items() const {
  std::vector<Menu*> found;
  for (const auto& each : form().controls()) {
    auto* item = dynamic_cast<Menu*>(each.get());
    if (item != nullptr && item->container() == this && item->Visible()) found.push_back(item);
  }
  return found;
}

}  // namespace zqn
