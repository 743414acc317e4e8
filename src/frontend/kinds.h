// SPDX-License-Identifier: MIT
//
// The 37 kinds of dialogs: number, name, and what serves each. Which kinds this library opens follows from
// its forms and definition classes; any other number opens the empty generic form.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "forms/form.h"
#include "runtime/string.h"

namespace zqn {

enum class KindServer { Dedicated, Generic };

struct KindInfo {
  std::int32_t number;
  /// "zqnCommonDialogVertriebsStati"
  const char16_t* constant;
  /// A form of its own, or the generic form with a definition class.
  KindServer server;
  /// "frmVertriebsstati"; "frmDialog" for the generic form.
  const char16_t* form;
  /// Its definition class on the generic form; empty for a kind that has none.
  const char16_t* definition;
  /// The tables it reads and writes, commas between them; the first is the catalogue.
  const char16_t* tables;
};

/// All kinds, 1 to 37 in order.
std::span<const KindInfo> dialogKinds() noexcept;
/// The kind of a number; nullptr outside 1 to 37.
const KindInfo* findKind(std::int32_t number) noexcept;
/// Show opens a form with its catalogue for this number: the library has it.
bool isOffered(std::int32_t number) noexcept;
/// The form of an offered kind as it stands before it is filled, for checks that run on every form.
std::unique_ptr<Form> makeForm(std::int32_t number);
/// The same on the generic form, which has catalogues for some kinds with a form of their own, too.
std::unique_ptr<Form> makeGenericForm(std::int32_t number);

}  // namespace zqn
