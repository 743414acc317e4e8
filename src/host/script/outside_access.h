// SPDX-License-Identifier: MIT
//
// What a script reaches outside the dialog: rows that somebody else reads and writes, settings, and
// what the next information dialog answers. The host fills the functions; run-time errors may leave them.
#pragma once

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

#include "runtime/variant.h"

namespace zqn::script {

struct Setting {
  String section, key, value;
  /// zqnSaveSettingConstants: 0 the user's, 1 global.
  std::int32_t scope = 1;
};

struct OutsideAccess {
  using Rows = std::vector<std::vector<Variant>>;
  using Settings = std::vector<std::pair<String, String>>;

  /// Reads on a second connection: values as stored.
  std::function<Rows(StringView statement)> query;
  /// Changes something on a second connection.
  std::function<void(StringView statement)> execute;
  std::function<void(const Setting&)> saveSetting;
  /// Keys and values of a section in the order of the keys, the user's value before the global one.
  std::function<Settings(StringView section)> settings;
};

/// What information dialogs answer while a script runs.
struct AuskunftAnswer {
  /// Nobody offers the component: error 429 on creating it.
  bool missing = false;
  /// 0 nothing taken, 1 something taken.
  std::int32_t result = 0;
  std::vector<std::pair<String, Variant>> items{};
};

}  // namespace zqn::script
