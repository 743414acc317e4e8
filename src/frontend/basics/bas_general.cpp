// SPDX-License-Identifier: MIT
#include "frontend/basics/bas_general.h"

#include <array>
#include <utility>

#include "frontend/basics/bas_basis.h"
#include "runtime/convert.h"
#include "runtime/resume_next.h"

namespace zqn::basGeneral {

using basBasis::GetConnection;
using basBasis::NullToValue;

// ---- queries

ado::sql::Text BuildWhereOrder(const ado::sql::Text& Where, StringView OrderBy) {
  ado::sql::Text clauses;
  if (!Where.text().empty()) clauses += u" WHERE " + Where;
  if (!OrderBy.empty()) clauses += ado::sql::Text(u" ORDER BY ") + OrderBy;
  return clauses;
}

Ref<ado::Recordset> GetRecordset(StringView Table, StringView Fields, const ado::sql::Text& Where,
                                 StringView OrderBy, int LockType) {
  ResumeNext step;
  const auto rs = Ref<ado::Recordset>::make();
  step([&] { rs->CursorLocation(ado::adUseClient); });
  const ado::sql::Text statement =
      u"SELECT " + ado::sql::Text(Fields) + u" FROM " + Table + BuildWhereOrder(Where, OrderBy);
  step([&] { rs->Open(statement, GetConnection(), ado::adOpenKeyset, LockType); });
  return rs;
}

// ---- text blocks

namespace {

ado::sql::Text blockStatement(StringView Textart, StringView TextNummer, StringView Zusatz,
                              StringView Sprache) {
  using ado::sql::value;
  return u"SELECT * FROM Textbausteine WHERE Textart=" + value(Textart) + u" AND TextNummer=" +
         value(TextNummer) + u" AND ZusatztextNummer=" + value(Zusatz) + u" AND SprachKZ=" + value(Sprache);
}

}  // namespace

Variant ReadTextBaustein(StringView Textart, String& TextNummer, StringView ZusatztextNummer,
                         StringView SprachKZ, TextBlock& block) {
  return ReadTextBlock(GetConnection(), Textart, TextNummer, ZusatztextNummer, SprachKZ, block);
}

Variant ReadTextBlock(const Ref<ado::Connection>& Connection, StringView Textart, String& TextNummer,
                      StringView ZusatztextNummer, StringView SprachKZ, TextBlock& block) {
  ResumeNext step;
  const StringView zusatz = ZusatztextNummer.empty() ? mainText : ZusatztextNummer;
  StringView sprache = SprachKZ.empty() ? languageIndependent : SprachKZ;
  ado::Recordset rs;
  const auto open = [&] {
    rs.Open(blockStatement(Textart, TextNummer, zusatz, sprache), Connection, ado::adOpenKeyset,
            ado::adLockOptimistic);
  };
  step([&] { rs.CursorLocation(ado::adUseClient); });
  step(open);
  // A query that failed leaves a closed recordset: nothing can be read, and nothing is known of the block.
  if (rs.State() == ado::adStateClosed) return {};
  if (rs.IsEOF()) {
    if (StrComp(sprache, languageIndependent) == 0) return Null;
    sprache = languageIndependent;
    step([&] { rs.Close(); });
    step(open);
    if (rs.State() == ado::adStateClosed) return {};
    if (rs.IsEOF()) return Null;
  }
  const auto textOf = [&](StringView field) { return CStr(NullToValue(rs.Fields(field).Value(), u"")); };
  step([&] { TextNummer = textOf(u"TextNummer"); });
  step([&] { block.Kurztext = textOf(u"Kurztext"); });
  step([&] { block.Langtext = textOf(u"Langtext"); });
  step([&] { block.WoDrucken = textOf(u"WoDrucken"); });
  step([&] { block.Schriftart = textOf(u"Schriftart"); });
  step(
      [&] { block.Schriftgroesse = CLng(NullToValue(rs.Fields(u"Schriftgröße").Value(), std::int32_t{0})); });
  step([&] { block.Schriftstil = textOf(u"Schriftstil"); });
  const Variant found = block.Langtext.empty() ? Variant(Null) : Variant(std::int16_t{1});
  step([&] { rs.Close(); });
  return found;
}

// ---- print marks

namespace {

/// Letters and marks in the order in which they are written.
constexpr std::array<std::pair<char16_t, PrintMarks::Mark PrintMarks::*>, 8> printLetters{
    {{u'N', &PrintMarks::AN},
     {u'B', &PrintMarks::AB},
     {u'L', &PrintMarks::LS},
     {u'R', &PrintMarks::RG},
     {u'G', &PrintMarks::GS},
     {u'A', &PrintMarks::AF},
     {u'E', &PrintMarks::BS},
     {u'M', &PrintMarks::LM}}};

}  // namespace

PrintMarks SplitWoDrucken(StringView WoDrucken) {
  PrintMarks marks;
  for (const auto& [letter, mark] : printLetters) marks.*mark = WoDrucken.find(letter) != StringView::npos;
  return marks;
}

String BuildWoDrucken(const PrintMarks& marks) {
  String text;
  for (const auto& [letter, mark] : printLetters) {
    if ((marks.*mark).has_value()) text += *(marks.*mark) ? letter : u'-';
  }
  return text;
}

// ---- lists

std::int32_t FindListIndex(const ComboBox& List, StringView Text, std::int32_t Default) {
  for (int index = 0; index < List.ListCount(); ++index) {
    if (StrComp(List.List(index), Text) == 0) return index;
  }
  return Default;
}

// ---- payment terms

String TagText(const Variant& Anzahl) { return CLng(Anzahl) == 1 ? u" Tag " : u" Tage "; }

String BuildZahlungstext(const Variant& SkTage1, const Variant& Prozent1, const Variant& SkTage2,
                         const Variant& Prozent2, const Variant& SkTage3, const Variant& Prozent3,
                         const Variant& NettoTage) {
  const auto textOf = [](const Variant& value) { return CStr(NullToValue(value, u"0")); };
  const std::array<std::pair<String, String>, 3> steps{{{textOf(SkTage1), textOf(Prozent1)},
                                                        {textOf(SkTage2), textOf(Prozent2)},
                                                        {textOf(SkTage3), textOf(Prozent3)}}};
  const String net = textOf(NettoTage);
  const bool hasNet = CLng(net) != 0;

  String text;
  const auto add = [&text](const String& clause) { text += (text.empty() ? u"" : u", ") + clause; };
  for (const auto& [days, percent] : steps) {
    if (CLng(percent) != 0) add(days + TagText(days) + percent + u"%");
  }
  if (text.empty() && !hasNet) text = u"sofort rein Netto";
  if (hasNet) add(net + TagText(net) + u"netto");
  return text + u".";
}

}  // namespace zqn::basGeneral
