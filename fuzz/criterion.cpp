// SPDX-License-Identifier: MIT
//
// Any criterion of Find is refused by one of its numbers, or is answered for every row; what an index would be
// asked for holds for each row that fits.
#include "ado/criterion.h"

#include "ado/enums.h"
#include "fuzz/input.h"
#include "runtime/collation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zqn;
  using namespace zqn::ado;
  static const Columns columns = {{u"Status", adVarWChar, 10, u"T", u"Status"},
                                  {u"Gewichtung", adDouble, 0, u"T", u"Gewichtung"},
                                  {u"Historie", adBoolean, 0, u"T", u"Historie"},
                                  {u"Summe", adVariant, 0, u"", u""}};
  static const RowStore rows = [] {
    RowStore made(4);
    for (const StringView text : {u"", u"a", u"Ä ", u"10", u"it's"}) {
      made.addText(text);
      made.addReal(static_cast<double>(text.size()) - 1.5);
      made.addInteger(text.empty() ? 0 : -1);
      made.addText(text);
    }
    for (int column = 0; column < 4; ++column) made.addNull();
    return made;
  }();
  const String text = fuzz::textOf(data, size);
  try {
    const Criterion criterion(text, columns);
    const auto equalities = criterion.equalities();
    fuzz::check(equalities.size() <= criterion.count(), "an equality is one of the comparisons");
    for (int row = 0; row < rows.rows(); ++row) {
      if (!criterion.holds({&rows, row})) continue;
      for (const ColumnEquals& one : equalities) {
        const Value value = rows.at(row, one.column);
        fuzz::check(value.kind != Value::Kind::Null, "Null fits nothing");
        if (value.kind == Value::Kind::Text && one.value.kind == Value::Kind::Text)
          fuzz::check(compareCollated(value.text, one.value.text) == 0, "a row that fits equals the literal");
      }
    }
  } catch (const RuntimeError& failure) {
    const std::int32_t number = failure.number();
    fuzz::check(number == error::InvalidArgument || number == error::ItemNotFound ||
                    number == error::ProviderTypeMismatch,
                "a criterion is refused by one of its numbers");
  }
  return 0;
}
