// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "host/script/line_functions.h"
#include "host/script/script_error.h"
#include "runtime/enumeration_table.h"

namespace zqn::script::outside {

namespace {

using Op = ado::Operation;

constexpr std::array<std::pair<const char*, Op>, 8> operations{{{"Open", Op::Open},
                                                                {"Execute", Op::Execute},
                                                                {"Update", Op::Update},
                                                                {"AddNew", Op::AddNew},
                                                                {"Requery", Op::Requery},
                                                                {"Find", Op::Find},
                                                                {"Close", Op::Close},
                                                                {"Field", Op::Field}}};
static_assert(hasRowForEach<Op::Field>(operations, &std::pair<const char*, Op>::second));

Op operationOf(const std::string& name) {
  std::string names;
  for (const auto& [known, operation] : operations) {
    if (name == known) return operation;
    names += (names.empty() ? "" : ", ") + std::string(known);
  }
  throw ScriptError("unknown operation \"" + name + "\"; there is " + names);
}

template <class Change>
void change(const char* what, Change&& apply) {
  try {
    apply();
  } catch (const RuntimeError& failure) {
    throw ScriptError(std::string(what) + " failed: " + failure.what());
  }
}

}  // namespace

void exec(const LineContext& context, const Arguments& line) {
  const std::string statement = line.text("exec");
  change("the statement", [&] { context.outside.execute(fromUtf8(statement)); });
}

void setting(const LineContext& context, const Arguments& line) {
  constexpr const char* members[] = {"section", "key", "value", "scope"};
  const Arguments given = line.object("setting", members);
  const std::int32_t scope = given.has("scope") ? given.wholeNumber("scope", 0, 1) : 1;
  const Setting setting{fromUtf8(given.text("section")), fromUtf8(given.text("key")),
                        fromUtf8(given.text("value")), scope};
  change("saving the setting", [&] { context.outside.saveSetting(setting); });
}

void auskunft(const LineContext& context, const Arguments& line) {
  if (line.any("auskunft").is_null()) {
    context.auskunft = {.missing = true};
    return;
  }
  constexpr const char* members[] = {"result", "items"};
  const Arguments given = line.object("auskunft", members);
  AuskunftAnswer answer{.result = given.wholeNumber("result", std::int32_t{0})};
  if (given.has("items")) {
    const Json& items = given.any("items");
    if (!items.is_object()) throw ScriptError(R"(of "auskunft": "items" must be an object)");
    for (const auto& [name, value] : items.items()) {
      if (value.is_structured()) throw ScriptError("of \"auskunft\": \"" + name + "\" must be a value");
      answer.items.emplace_back(fromUtf8(name), variantOf(value));
    }
  }
  context.auskunft = std::move(answer);
}

void fail(const LineContext& context, const Arguments& line) {
  constexpr const char* members[] = {"operation", "match", "number", "description", "times"};
  const Arguments given = line.object("fail", members);
  const Op operation = operationOf(given.text("operation"));
  const std::int32_t number = given.wholeNumber("number");
  const String description =
      given.has("description") ? fromUtf8(given.text("description")) : error::description(number);
  const int times =
      given.has("times") ? given.wholeNumber("times", 1, std::numeric_limits<std::int32_t>::max()) : 1;
  context.faults.arm(
      {operation, fromUtf8(given.text("match", "")), RuntimeError(number, description), times});
}

/// Somebody has copied a text in another program.
void clipboard(const LineContext& context, const Arguments& line) {
  context.desktop.copyToClipboard(fromUtf8(line.text("clipboard")));
}

}  // namespace zqn::script::outside
