// SPDX-License-Identifier: MIT
//
// What a person calls the dialogs: the German title of each kind, the subject it belongs to, and what the
// elements of its Param mean. For the desk's list and its fields alone.
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
std::span<const DialogTitle> dialogTitles() noexcept;

/// Names of the elements of Param that the kind reads, the key first.
std::vector<StringView> paramNames(std::int32_t kind);
/// What Show returns for the kind, in words.
StringView resultName(std::int32_t kind);

}  // namespace zqn::host
