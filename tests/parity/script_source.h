// SPDX-License-Identifier: MIT
//
// A script that is thought up while it runs: each line is made when the scripted user asks for it, by what the
// form shows at that moment, so that most actions meet something. It only looks; no probe of its own changes
// what the dialog does.
//
//     ScriptSource source(chance, kind, stage, desktop);
//     while (std::optional<std::string> line = source.next()) ...
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/desktop.h"
#include "forms/form.h"
#include "host/script/json_values.h"
#include "parity/random.h"
#include "parity/stage.h"

namespace zqn::parity {

class ScriptSource {
 public:
  /// References must outlive the object.
  ScriptSource(Random& chance, int kind, const Stage& stage, const Desktop& desktop);

  /// The next line; none at the end.
  std::optional<std::string> next();

 private:
  using Json = script::Json;

  Json lineAtBox();
  Json lineAtMenu();
  Json lineAtForm();
  Json lineAfterEnd();
  Json lastProbe();

  Json act(const Control& control);
  Json actOnList(const Control& control);
  Json actOnGrid(const Control& control);
  Json actOnListBox(const Control& control);
  Json actOnDropDown(const Control& control);
  Json typing();
  Json key();
  Json probe();
  const Control* anyControl();
  /// Actions that close the dialog come seldom at first.
  bool mayClose();

  Random& chance_;
  const Stage& stage_;
  const Desktop& desktop_;
  std::vector<std::string> tables_;
  int length_;
  int written_ = 0;
  int last_ = 0;
  bool seen_ = false;
};

}  // namespace zqn::parity
