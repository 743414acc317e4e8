// SPDX-License-Identifier: MIT
//
// The dialogs as the desk lists them: by subject, each under its title.
//
//     for (const DialogTitle& title : dialogTitles()) list.add(title.subject, title.title);
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "runtime/string.h"

namespace zqn::host {

struct DialogTitle {
  std::int32_t kind;
  const char16_t* subject;
  const char16_t* title;
  /// Opened on the generic form, though the kind has a form of its own.
  bool generic = false;
};

/// All kinds, those of one subject together; a kind with a form of its own once more where the generic form
/// has its catalogue, too.
std::span<const DialogTitle> dialogTitles();

/// Names of the elements of Param that the kind reads, the key first; none for a number that is not a kind's.
std::vector<String> paramNames(std::int32_t kind);
/// What Show returns for the kind, in words.
StringView resultName(std::int32_t kind);

}  // namespace zqn::host
