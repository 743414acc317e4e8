// SPDX-License-Identifier: MIT
//
// Several CRM categories from one dialog: with Multiselect each double click is an event, and the window
// stays open until the person closes it.
//
//     for (const zqn::String& category : collectedCategories(dialog)) ...
#pragma once

#include <algorithm>
#include <vector>

#include "frontend/enumerations.h"
#include "frontend/orb_dialog.h"
#include "runtime/convert.h"

/// Lets a person pick, and gives the categories in the order in which they were picked, each one once.
inline std::vector<zqn::String> collectedCategories(zqn::ORBDialog& dialog) {
  std::vector<zqn::String> categories;
  dialog.Multiselect(true);
  dialog.DblClick = [&](const zqn::Variant& Result) {
    const zqn::String category = zqn::CStr(Result);
    if (std::ranges::find(categories, category) == categories.end()) categories.push_back(category);
  };
  zqn::VariantArray param{u""};
  // What Show returns is the last pick alone: the event has told of all.
  dialog.Show(zqn::zqnCommonDialogCRMKategorien, param);
  dialog.DblClick = [](const zqn::Variant&) {};
  return categories;
}
