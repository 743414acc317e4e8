// SPDX-License-Identifier: MIT
#include "host/database/schema/generate.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>

#include "host/database/schema/sample.h"
#include "host/database/schema/schema.h"

namespace zqn::host {

namespace {

constexpr int base = 36;
constexpr std::int64_t keysOfThree = base * base * base;
constexpr std::int64_t firstCustomer = 10001;
constexpr std::int64_t firstOffer = 20'000'001;

// ---- keys

String baseKey(std::int64_t number, int digits) {
  String key;
  for (; number > 0; number /= base) key += u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"[number % base];
  while (static_cast<int>(key.size()) < digits) key += u'0';
  return {key.rbegin(), key.rend()};
}

int keyDigits(StringView tableName) {
  if (tableName == u"Preislistenkopf") return 5;
  constexpr std::array<StringView, 4> three{u"Vertriebsstati", u"Zahlungsarten", u"ZahlungsartenEK",
                                            u"Zahlungsbedingungen"};
  return std::ranges::find(three, tableName) != three.end() ? 3 : 7;
}

String digits(std::int64_t number, int width) {
  std::string text = std::to_string(number);
  if (static_cast<int>(text.size()) < width)
    text.insert(0, static_cast<std::size_t>(width) - text.size(), '0');
  return fromUtf8(text);
}

// ---- values

template <std::size_t Count>
StringView pick(const std::array<StringView, Count>& words, std::int64_t number) {
  return words[static_cast<std::size_t>(number) % Count];
}

String goods(std::int64_t row) {
  constexpr std::array<StringView, 11> nouns{u"Kugelhahn", u"Dichtung", u"Flansch",  u"Rohrbogen",
                                             u"Schraube",  u"Ventil",   u"Pumpe",    u"Filter",
                                             u"Schlauch",  u"Zylinder", u"Wälzlager"};
  constexpr std::array<StringView, 7> kinds{u"Messing", u"verzinkt", u"PVC",    u"Edelstahl",
                                            u"geprüft", u"groß",     u"mit Öse"};
  return String(pick(nouns, row)) + u" " + String(pick(kinds, row)) + u" " + digits(row, 7);
}

Variant when(bool given, String text) {
  if (!given) return Null;
  return text;
}

Variant orNull(std::int64_t row, String text) { return when(row % 97 != 96, std::move(text)); }

// A day of 2026; every month has the 28 days that are used.
String day2026(std::int64_t row) {
  return u"2026" + digits(1 + row / 28 % 12, 2) + digits(1 + row % 28, 2) + u"000000";
}

std::int32_t narrow(std::int64_t number) { return static_cast<std::int32_t>(number); }

// ---- rows

Variant catalogueValue(const Column& column, std::int64_t row) {
  switch (column.kind) {
    case ColumnKind::Flag:
      return row % 3 == 0;
    case ColumnKind::Whole:
      return narrow(row % 101);
    default:
      return orNull(row, goods(row).substr(0, static_cast<std::size_t>(column.length)));
  }
}

// A key followed by values of the columns' kinds serves every table without a rule of its own.
Row catalogueRow(const Table& table, std::int64_t row) {
  Row values{baseKey(row, keyDigits(table.name))};
  for (std::size_t position = 1; position < table.columns.size(); ++position)
    values.emplace_back(catalogueValue(table.columns[position], row));
  return values;
}

Row termsRow(const Table& table, std::int64_t row) {
  const std::int32_t days = narrow(2 + row % 20), net = narrow(30 + row % 61), percent = narrow(1 + row % 5);
  const String sentence =
      digits(days, 1) + u" Tage " + digits(percent, 1) + u"%, " + digits(net, 1) + u" Tage netto.";
  return {baseKey(row, keyDigits(table.name)), sentence, days, 0, 0, net,
          static_cast<double>(percent),        0.0,      0.0};
}

Row paymentTypeRow(const Table& table, std::int64_t row) {
  const bool withoutAccounting = row % 10 == 0;
  return {baseKey(row, keyDigits(table.name)),
          orNull(row, goods(row)),
          withoutAccounting,
          withoutAccounting ? Variant(u"-") : when(row % 2 == 0, u"E"),
          when(row % 4 == 0, baseKey(row % keysOfThree, 3)),
          row % 5 == 0 ? -1 : 0};
}

// The blocks of the four text kinds take turns, so the first quarter of each catalogue's keys has its text.
Row textBlockRow(const Table&, std::int64_t row) {
  struct TextKind {
    StringView name, owner, printMarks;
  };
  static constexpr std::array<TextKind, 4> textKinds{
      TextKind{u"EVA", u"VersandtexteEK", u"AEM"}, TextKind{u"EZA", u"ZahlungsartenEK", u"-----AEM"},
      TextKind{u"VSA", u"Versandtexte", u"NBLR-"}, TextKind{u"ZAA", u"Zahlungsarten", u"NBLR----"}};
  const TextKind& textKind = textKinds[static_cast<std::size_t>(row % 4)];
  const std::int64_t owner = row / 4;
  return {textKind.name,
          baseKey(owner, keyDigits(textKind.owner)),
          mainText,
          everyLanguage,
          orNull(owner, goods(owner)),
          u"Wortlaut zu " + goods(owner) + u".\r\nEr steht auf zwei Zeilen.",
          textKind.printMarks,
          u"Arial",
          10,
          u"---L"};
}

Row shippingRow(const Table& table, std::int64_t row) {
  return {baseKey(row, keyDigits(table.name)), orNull(row, goods(row)), orNull(row, u"Frachtbrief A4"),
          orNull(row, u"Paketaufkleber A6")};
}

Row categoryRow(const Table& table, std::int64_t row) {
  return {baseKey(row, keyDigits(table.name)),
          orNull(row, goods(row)),
          row % 2 == 0,
          row % 4 == 0,
          when(row % 2 == 0, baseKey(row % keysOfThree, 3)),
          when(row % 3 == 0, baseKey(row, 7)),
          row % 5 != 0,
          row % 5 == 1};
}

Row countryRow(const Table& table, std::int64_t row) {
  return {baseKey(row, keyDigits(table.name)), orNull(row, baseKey(row % (base * base), 2)),
          orNull(row, goods(row))};
}

Row bookingRangeRow(const Table&, std::int64_t row) {
  const std::int64_t origin = row / keysOfThree;
  return {baseKey(row % keysOfThree, 3), origin == 0 ? String(u"VK") : u"H" + digits(origin, 2),
          orNull(row, goods(row))};
}

Row criterionRow(const Table& table, std::int64_t row) { return {baseKey(row, keyDigits(table.name))}; }

Row reasonRow(const Table& table, std::int64_t row) {
  return {baseKey(row, keyDigits(table.name)), orNull(row, goods(row)), narrow(1 + row % 3)};
}

// One list and one section: a generated list is as long as it can be.
Row listValueRow(const Table&, std::int64_t row) { return {u"Artikel", 1, goods(row)}; }
Row keywordRow(const Table&, std::int64_t row) { return {goods(row), u"Kunden"}; }

Row priceListRow(const Table& table, std::int64_t row) {
  // In turn: an ordinary list, a promotion for all, for the customers of the list before, for one customer.
  const std::int64_t rule = row % 4;
  const int width = keyDigits(table.name);
  return {baseKey(row, width),
          orNull(row, goods(row)),
          rule != 0,
          when(rule != 0, day2026(row)),
          rule == 0 ? u"99999999999999" : u"20271231000000",
          when(rule == 2, baseKey(row - 2, width)),
          when(rule == 3, digits(firstCustomer + row, 1)),
          u"EUR"};
}

Row priceLineRow(const Table&, std::int64_t row) {
  return {baseKey(row / 4, 5), u"ART-" + digits(row, 9), static_cast<double>(row % 4 * 100 + 1), u"Stk",
          static_cast<double>(row % 10'000) / 100.0};
}

Row customerRow(const Table&, std::int64_t row) {
  constexpr std::array<StringView, 5> towns{u"Köln", u"Lübeck", u"Gießen", u"Rom", u"Zürich"};
  return {digits(firstCustomer + row, 1),
          orNull(row, u"Kunde " + digits(row, 7) + u" GmbH"),
          Null,
          u"Straße " + digits(row % 1000, 1),
          digits(10'000 + row % 90'000, 5),
          pick(towns, row),
          baseKey(row, 7),
          Null,
          baseKey(row, 7),
          baseKey(row, 5),
          baseKey(row % keysOfThree, 3),
          baseKey(row % keysOfThree, 3),
          baseKey(row, 7),
          baseKey(row % keysOfThree, 3)};
}

Row offerRow(const Table&, std::int64_t row) {
  return {narrow(firstOffer + row),
          digits(firstCustomer + row, 1),
          day2026(row),
          orNull(row, goods(row)),
          static_cast<double>(row % 100'000) / 4.0,
          u"EUR",
          when(row % 100 == 0, u"Vorlage " + goods(row))};
}

using MakeRow = Row (*)(const Table&, std::int64_t);

MakeRow rowMaker(StringView tableName) {
  struct Entry {
    StringView table;
    MakeRow make;
  };
  static constexpr std::array special{Entry{u"Zahlungsbedingungen", termsRow},
                                      Entry{u"Zahlungsarten", paymentTypeRow},
                                      Entry{u"ZahlungsartenEK", paymentTypeRow},
                                      Entry{u"Versandtexte", shippingRow},
                                      Entry{u"Textbausteine", textBlockRow},
                                      Entry{u"Laendernamen", countryRow},
                                      Entry{u"Nummernkreis_Buchungskreise", bookingRangeRow},
                                      Entry{u"Kontaktgruppen", categoryRow},
                                      Entry{u"SelektionskriterienVertrag", criterionRow},
                                      Entry{u"Kuendigungsgruende", reasonRow},
                                      Entry{u"SelectionListValues", listValueRow},
                                      Entry{u"Keywords", keywordRow},
                                      Entry{u"Preislistenkopf", priceListRow},
                                      Entry{u"Staffelpreise", priceLineRow},
                                      Entry{u"Kundenstamm", customerRow},
                                      Entry{u"Angebotskopf", offerRow}};
  const auto found = std::ranges::find(special, tableName, &Entry::table);
  return found == special.end() ? catalogueRow : found->make;
}

std::int64_t keyCapacity(const Table& table) {
  if (table.name == u"Angebotskopf") return std::numeric_limits<std::int32_t>::max() - firstOffer + 1;
  if (table.name == u"Zahlungsbedingungen") return keysOfThree;
  if (table.name == u"Preislistenkopf") return keysOfThree * base * base;
  return std::numeric_limits<std::int64_t>::max();
}

// The sample rows of a table beside the catalogues.
void supportingRows(const Table& table, const RowSink& sink) {
  sampleRows([&](const Table& sampled, const Row& row) {
    if (sampled.name == table.name) sink(sampled, row);
  });
}

}  // namespace

std::int64_t generatedRowCount(const Table& table, std::int64_t n) {
  if (table.catalogue) return std::min(n, keyCapacity(table));
  std::int64_t count = 0;
  supportingRows(table, [&](const Table&, const Row&) { ++count; });
  return count;
}

void generateRows(const Table& table, std::int64_t n, const RowSink& sink) {
  if (!table.catalogue) return supportingRows(table, sink);
  const MakeRow makeRow = rowMaker(table.name);
  const std::int64_t count = generatedRowCount(table, n);
  for (std::int64_t row = 0; row < count; ++row) sink(table, makeRow(table, row));
}

void generateRows(std::int64_t n, const RowSink& sink) {
  for (const Table& table : tables()) generateRows(table, n, sink);
}

}  // namespace zqn::host
