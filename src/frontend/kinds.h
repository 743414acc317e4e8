// SPDX-License-Identifier: MIT
//
// The 37 kinds of dialogs: number, name, and what serves each. Which kinds this library opens follows from
// its forms: a kind without a form here returns Empty from Show at once.
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
  /// Its definition class on the generic form; empty for a dedicated one.
  const char16_t* definition;
  /// The tables it reads and writes, commas between them; the first is the catalogue.
  const char16_t* tables;
};

/// All kinds, 1 to 37 in order.
std::span<const KindInfo> dialogKinds() noexcept;
/// The kind of a number; nullptr outside 1 to 37.
const KindInfo* findKind(std::int32_t number) noexcept;
/// Show opens a form for this number.
bool isOffered(std::int32_t number) noexcept;

/// A form of this library, for checks that run on every one of them.
struct RegisteredForm {
  const char16_t* name;
  std::unique_ptr<Form> (*make)();
};
std::span<const RegisteredForm> registeredForms() noexcept;

}  // namespace zqn
