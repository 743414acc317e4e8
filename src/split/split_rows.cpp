// SPDX-License-Identifier: MIT
#include "split/split_rows.h"

#include <cmath>

#include "runtime/convert.h"
#include "split/split_text.h"
#include "split/split_values.h"

namespace zqn {

namespace {

constexpr int latestYear = 9999;

/// The first digits of a stored date; what is behind the eighth is a time.
std::optional<std::chrono::year_month_day> storedDate(StringView stored) {
  constexpr std::size_t digits = 8;
  if (stored.size() < digits) return std::nullopt;
  const auto number = [&](std::size_t start, std::size_t length) {
    int value = 0;
    for (const char16_t unit : stored.substr(start, length))
      value = unit >= u'0' && unit <= u'9' && value >= 0 ? 10 * value + (unit - u'0') : -1;
    return value;
  };
  const int month = number(4, 2);
  const int day = number(6, 2);
  if (month < 0 || day < 0) return std::nullopt;
  const std::chrono::year_month_day date(std::chrono::year(number(0, 4)),
                                         std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day)));
  return date.ok() && date.year() >= std::chrono::year(1) ? std::optional(date) : std::nullopt;
}

[[noreturn]] void cannotHold(StringView what) {
  throw RuntimeError(error::InvalidProcedureCall,
                     u"Der Aufteilungstext kann das nicht enthalten: " + String(what));
}

String storedText(const std::optional<std::chrono::year_month_day>& date) {
  if (!date) return {};
  const bool inCalendar =
      date->ok() && date->year() >= std::chrono::year(1) && date->year() <= std::chrono::year(latestYear);
  if (!inCalendar) cannotHold(u"ein Datum, das es nicht gibt");
  const auto padded = [](int number, StringView pattern) { return Format(std::int32_t{number}, pattern); };
  return padded(static_cast<int>(date->year()), u"0000") +
         padded(static_cast<int>(static_cast<unsigned>(date->month())), u"00") +
         padded(static_cast<int>(static_cast<unsigned>(date->day())), u"00") + u"000000";
}

const String& holdable(const String& field) {
  if (field.find(u'"') != String::npos) cannotHold(u"ein Anführungszeichen");
  if (field.find(u"\r\n") != String::npos) cannotHold(u"einen Zeilenumbruch");
  return field;
}

}  // namespace

std::vector<SplitRow> readSplit(StringView text) {
  std::vector<SplitRow> rows;
  for (const String& line : splitLines(text)) {
    if (Trim(line).empty()) continue;
    const SplitFields fields = splitFieldsOf(line);
    rows.push_back({.quantity = Val2(fields[SplitQuantity]),
                    .unit = concatenate(fields[SplitUnit]),
                    .batch = concatenate(fields[SplitBatch]),
                    .expiry = storedDate(concatenate(fields[SplitDate])),
                    .serial = concatenate(fields[SplitSerial])});
  }
  return rows;
}

String writeSplit(std::span<const SplitRow> rows) {
  String text;
  for (const SplitRow& row : rows) {
    if (!std::isfinite(row.quantity)) cannotHold(u"eine Menge, die keine Zahl ist");
    if (!text.empty()) text += splitLineBreak;
    text += splitLine(row.quantity, {holdable(row.unit), holdable(row.batch), storedText(row.expiry),
                                     holdable(row.serial)});
  }
  return text;
}

}  // namespace zqn
