// SPDX-License-Identifier: MIT
//
// Free routines of the definition classes: opening a recordset from its parts, reading a text block, the
// print marks of a text block, finding an entry of a list, and the sentence of a payment term.
//
//     Ref<ado::Recordset> list = basGeneral::GetRecordset(
//         u"Zahlungsbedingungen", u"ZahlbedSchl, Kurztext", {}, u"ZahlBedSchl", ado::adLockReadOnly);
#pragma once

#include <cstdint>
#include <optional>

#include "ado/recordset.h"
#include "ado/sql.h"
#include "forms/combo_box.h"
#include "runtime/ref.h"
#include "runtime/variant.h"

namespace zqn::basGeneral {

// ---- queries

/// " WHERE " and the condition, " ORDER BY " and the order; each only when it is not empty. Nothing is
/// checked or quoted.
ado::sql::Text BuildWhereOrder(const ado::sql::Text& Where, StringView OrderBy);

/// A recordset with a cursor of the client on the shared connection (basBasis::SetConnection), keyset asked
/// for. Never raises: a query that fails gives a closed recordset. `LockType` 1 for a list, 3 for one row
/// that is to be written.
Ref<ado::Recordset> GetRecordset(StringView Table, StringView Fields, const ado::sql::Text& Where,
                                 StringView OrderBy, int LockType);

// ---- text blocks

/// The row of Textbausteine that is independent of the language: three characters of code 255.
inline constexpr StringView languageIndependent = u"ÿÿÿ";
/// The number of the main text.
inline constexpr StringView mainText = u"000";

/// What a text block holds. A reader fills it; what is not found stays as it was.
struct TextBlock {
  String Kurztext;
  String Langtext;
  /// Print marks, see SplitWoDrucken.
  String WoDrucken;
  String Schriftart;
  std::int32_t Schriftgroesse = 0;
  String Schriftstil;
};

/// Reads one text block into `block` and, when there is one, its number into `TextNummer`. An empty
/// additional number means the main text, an empty language the language-independent row; a block that is
/// missing in a language is served by that row. Returns 1 (16 bits) when the long text is not empty, Null
/// when it is or when there is no row, Empty when the query failed. Never raises.
Variant ReadTextBaustein(StringView Textart, String& TextNummer, StringView ZusatztextNummer,
                         StringView SprachKZ, TextBlock& block);
/// The same on a connection of one's own.
Variant ReadTextBlock(const Ref<ado::Connection>& Connection, StringView Textart, String& TextNummer,
                      StringView ZusatztextNummer, StringView SprachKZ, TextBlock& block);

// ---- print marks

/// The documents that a text block is printed on, in the order of their marks.
struct PrintMarks {
  /// A mark that takes part: True prints its letter, False a hyphen. A missing one (std::nullopt) leaves no
  /// trace.
  using Mark = std::optional<bool>;
  Mark AN{}, AB{}, LS{}, RG{}, GS{};  // "N", "B", "L", "R", "G": the sales side
  Mark AF{}, BS{}, LM{};              // "A", "E", "M": the purchase side
  bool operator==(const PrintMarks&) const = default;
};

/// Which letters stand anywhere in the text; capitals only. Every mark of the result is set.
PrintMarks SplitWoDrucken(StringView WoDrucken);
/// The letters and hyphens of the marks that take part.
String BuildWoDrucken(const PrintMarks& marks);

// ---- lists

/// The first entry that equals the text without regard to case, `Default` when none does.
std::int32_t FindListIndex(const ComboBox& List, StringView Text, std::int32_t Default);

// ---- payment terms

/// The sentence of a payment term: "14 Tage 2%, 30 Tage netto.". Null counts as 0; a percentage that rounds
/// to 0 is not a discount. Errors 13 and 6 for values that do not convert to numbers.
String BuildZahlungstext(const Variant& SkTage1, const Variant& Prozent1, const Variant& SkTage2,
                         const Variant& Prozent2, const Variant& SkTage3, const Variant& Prozent3,
                         const Variant& NettoTage);
/// " Tag " for the integer 1, else " Tage ". Errors 13, 6, 94.
String TagText(const Variant& Anzahl);

}  // namespace zqn::basGeneral
