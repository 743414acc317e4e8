// SPDX-License-Identifier: MIT
//
// The 37 kinds of dialogs: number, name, and what serves each. The table is the one place where a kind gets
// its form.
#pragma once

#include <cstdint>
#include <span>

#include "runtime/string.h"

namespace zqn {

enum class KindServer { DedicatedForm, GenericForm };

struct KindInfo {
  std::int32_t number;
  /// "zqnCommonDialogVertriebsStati"
  const char16_t* constant;
  KindServer server;
  /// "frmVertriebsstati"; "frmDialog" for the generic form.
  const char16_t* form;
  /// Its definition class on the generic form; empty for a dedicated one.
  const char16_t* definition;
  /// The tables it reads and writes, commas between them; the first is the catalogue.
  const char16_t* tables;
  /// The form is part of this library: Show opens it. A kind that is not offered returns Empty at once.
  bool offered;
};

/// All kinds, 1 to 37 in order.
std::span<const KindInfo> dialogKinds() noexcept;
/// The kind of a number; nullptr outside 1 to 37.
const KindInfo* findKind(std::int32_t number) noexcept;

}  // namespace zqn
