// SPDX-License-Identifier: MIT
//
// A script of any bytes is read to its end or to a ScriptError; each line is an object that reads back as the
// same when it is written.
#include <sstream>

#include "fuzz/input.h"
#include "host/script/script_error.h"
#include "host/script/script_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zqn;
  using namespace zqn::script;
  std::istringstream script(std::string(reinterpret_cast<const char*>(data), size));
  ScriptReader reader(script);
  int last = 0;
  try {
    while (const auto line = reader.next()) {
      fuzz::check(line->json.is_object(), "a line is an object");
      fuzz::check(line->number > last, "lines are counted");
      last = line->number;
      fuzz::check(Json::parse(line->json.dump()) == line->json, "a line reads back as the same");
      for (const auto& member : line->json.items()) {
        try {
          const Variant value = variantOf(member.value());
          static_cast<void>(jsonValue(value).dump());
        } catch (const RuntimeError& failure) {
          fuzz::check(failure.number() == error::TypeMismatch, "a value is refused by its number");
        }
      }
    }
  } catch (const ScriptError&) {
    fuzz::check(reader.lineNumber() > last, "the line that is refused is told");
  }
  return 0;
}
