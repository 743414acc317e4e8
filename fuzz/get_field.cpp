// SPDX-License-Identifier: MIT
//
// GetField takes any line apart into as many fields as it says, none with a quote.
#include "fuzz/input.h"
#include "split/split_text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zqn;
  const String line = fuzz::textOf(data, size);
  const auto count = *GetField(0, line, u'|', u'"').as<std::int32_t>();
  fuzz::check(line.empty() ? count == 0 : count >= 1, "a line has fields");
  for (int index = 1; index <= count; ++index) {
    const Variant field = GetField(index, line, u'|', u'"');
    fuzz::check(!field.isNull(), "a field that is there is not Null");
    if (const String* text = field.as<String>())
      fuzz::check(text->find(u'"') == String::npos, "no quote reaches a field");
    if (index > 8) break;
  }
  if (!line.empty())
    fuzz::check(GetField(count + 1, line, u'|', u'"').isNull(), "no field is behind the last");
  return 0;
}
