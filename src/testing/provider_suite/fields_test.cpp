// SPDX-License-Identifier: MIT
#include "runtime/digits.h"
#include "runtime/locale.h"
#include "testing/provider_suite/suite.h"

namespace zqn::ado::suite {

namespace {

const sql::Text RowTwenty = u"SELECT * FROM Vertriebsstati WHERE Status='20'";

std::int32_t assign(Recordset& rs, StringView field, const Variant& value) {
  return errorNumberOf([&] { rs.Fields(field).Value(value); });
}

}  // namespace

TEST_P(RecordsetTest, FieldsAreFoundByNameInAnyCaseAndByOrdinal) {
  const auto rs = open(RowTwenty);
  EXPECT_EQ(rs->Fields().Count(), 4);
  EXPECT_EQ(rs->Fields(u"BEZEICHNUNG").Value(), Variant(u"Angebot"));
  EXPECT_EQ(rs->Fields(3).Name(), context->resultName(u"Gewichtung"));
  EXPECT_EQ(errorNumberOf([&] { rs->Fields(u"Fehlt"); }), error::ItemNotFound);
  EXPECT_EQ(errorNumberOf([&] { rs->Fields(4); }), error::ItemNotFound);
  EXPECT_EQ(errorNumberOf([&] { rs->Fields(-1); }), error::ItemNotFound);
}

TEST_P(RecordsetTest, ValuesHaveTheKindOfTheirColumn) {
  const auto rs = open(u"SELECT * FROM Vertriebsstati ORDER BY Status");
  EXPECT_EQ(rs->Fields(u"Status").Value(), Variant(u"10"));
  EXPECT_EQ(rs->Fields(u"AutoOverwrite").Value(), Variant(std::int32_t{0}));
  EXPECT_EQ(rs->Fields(u"Gewichtung").Value(), Variant(10.0));
  rs->MoveLast();
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Null);
  EXPECT_EQ(rs->Fields(u"Gewichtung").Value(), Null);
}

TEST_P(RecordsetTest, FieldsTellTypeAndSize) {
  const auto rs = open(RowTwenty);
  EXPECT_EQ(rs->Fields(u"Status").Type(), adVarWChar);
  EXPECT_EQ(rs->Fields(u"Status").DefinedSize(), 10);
  EXPECT_EQ(rs->Fields(u"AutoOverwrite").Type(), adSmallInt);
  EXPECT_EQ(rs->Fields(u"Gewichtung").Type(), adDouble);
}

TEST_P(RecordsetTest, NullEmptyTextAndMissingColumnKeepApart) {
  connection->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='' WHERE Status='20'");
  const auto rs = list();
  rs->MoveNext();
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Variant(u""));
  rs->MoveNext();
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Null);
  EXPECT_EQ(errorNumberOf([&] { rs->Fields(u"Langtext").Value(); }), error::ItemNotFound);
}

TEST_P(RecordsetTest, WithoutCurrentRowOnlyTheValueFails) {
  const auto rs = openForWrite(u"SELECT * FROM Vertriebsstati WHERE Status='99'");
  Field status = rs->Fields(u"Status");
  EXPECT_EQ(status.Name(), context->resultName(u"Status"));
  EXPECT_EQ(errorNumberOf([&] { status.Value(); }), error::NoCurrentRecord);
  EXPECT_EQ(errorNumberOf([&] { status.Value(u"x"); }), error::NoCurrentRecord);
  EXPECT_EQ(rs->EditMode(), adEditNone);
}

TEST_P(RecordsetTest, KeptFieldIsInvalidAfterClose) {
  auto rs = open(RowTwenty);
  const Field field = rs->Fields(u"Status");
  rs->Requery();
  EXPECT_EQ(field.Value(), Variant(u"20")) << "a field lives through Requery";
  rs->Close();
  EXPECT_EQ(errorNumberOf([&] { field.Value(); }), error::ObjectNotValid);
  EXPECT_EQ(errorNumberOf([&] { field.Name(); }), error::ObjectNotValid);
  rs->Open(RowTwenty, connection);
  const Field another = rs->Fields(u"Status");
  EXPECT_EQ(errorNumberOf([&] { field.Value(); }), error::ObjectNotValid);
  rs = nothing;
  EXPECT_EQ(errorNumberOf([&] { another.Value(); }), error::ObjectNotValid);
}

TEST_P(RecordsetTest, AllTextsComeBackAsTheyWereWritten) {
  connection->Execute(u"CREATE TABLE Texte (Schluessel " + context->textColumn(10) +
                      u" NOT NULL PRIMARY KEY, Wert " + context->textColumn(60) + u")");
  const String texts[] = {u"Müßig – ÿÿÿ €",       u"😀 außerhalb",        u"",         u" Rand ",
                          u"Zeile\r\nZeile\tTab", u"O'Neill \"x\" %_[]", u"кириллица"};
  for (std::size_t i = 0; i < std::size(texts); ++i) {
    const auto rs = openForWrite(u"SELECT * FROM Texte WHERE Schluessel=" + sql::value(digits(i)));
    rs->AddNew();
    rs->Fields(u"Schluessel").Value(digits(i));
    rs->Fields(u"Wert").Value(texts[i]);
    rs->Update();
    rs->Requery();
    EXPECT_EQ(rs->Fields(u"Wert").Value(), Variant(texts[i]));
  }
}

// ---- assigning

TEST_P(RecordsetTest, AssignedValueReadsBackBeforeUpdate) {
  const auto rs = openForWrite(RowTwenty);
  EXPECT_EQ(rs->EditMode(), adEditNone);
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  EXPECT_EQ(rs->EditMode(), adEditInProgress);
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Variant(u"Neu"));
  rs->Fields(u"Bezeichnung").Value(Null);
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Null);
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null");
}

TEST_P(RecordsetTest, ReadOnlyRecordsetRefusesEveryChange) {
  const auto rs = open(RowTwenty);
  EXPECT_EQ(assign(*rs, u"Bezeichnung", u"Neu"), error::FeatureNotAvailable);
  EXPECT_EQ(errorNumberOf([&] { rs->AddNew(); }), error::FeatureNotAvailable);
  EXPECT_EQ(rs->EditMode(), adEditNone);
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Variant(u"Angebot"));
}

TEST_P(RecordsetTest, RowsOfMoreThanOneTableRefuseEveryChange) {
  connection->Execute(u"CREATE TABLE Andere (Status " + context->textColumn(10) + u" NOT NULL PRIMARY KEY)");
  for (const char16_t* statement :
       {u"SELECT a.Status, b.Bezeichnung FROM Vertriebsstati a, Vertriebsstati b",
        u"SELECT count(*) AS Anzahl FROM Vertriebsstati", u"SELECT DISTINCT Bezeichnung FROM Vertriebsstati",
        u"SELECT v.Status FROM Vertriebsstati v LEFT JOIN Andere a ON a.Status=v.Status"}) {
    const auto rs = openForWrite(statement);
    EXPECT_EQ(errorNumberOf([&] { rs->Fields(0).Value(u"1"); }), error::FeatureNotAvailable)
        << toUtf8(statement);
    EXPECT_EQ(errorNumberOf([&] { rs->AddNew(); }), error::FeatureNotAvailable);
  }
}

TEST_P(RecordsetTest, AssignedValueTakesTheTypeOfItsColumn) {
  const auto rs = openForWrite(RowTwenty);
  rs->Fields(u"AutoOverwrite").Value(true);
  EXPECT_EQ(rs->Fields(u"AutoOverwrite").Value(), Variant(std::int32_t{-1}));
  rs->Fields(u"AutoOverwrite").Value(u" 7 ");
  EXPECT_EQ(rs->Fields(u"AutoOverwrite").Value(), Variant(std::int32_t{7}));
  rs->Fields(u"AutoOverwrite").Value(2.5);
  EXPECT_EQ(rs->Fields(u"AutoOverwrite").Value(), Variant(std::int32_t{2})) << "half to even";
  rs->Fields(u"Gewichtung").Value(u"1,5");
  EXPECT_EQ(rs->Fields(u"Gewichtung").Value(), Variant(1.5));
  rs->Fields(u"Gewichtung").Value(Variant());
  EXPECT_EQ(rs->Fields(u"Gewichtung").Value(), Variant(0.0)) << "Empty is 0";
  rs->Fields(u"Bezeichnung").Value(12.5);
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Variant(u"12,5"));
  rs->Fields(u"Bezeichnung").Value(Variant());
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Variant(u""));
  rs->Update();
  EXPECT_EQ(stored(u"SELECT * FROM Vertriebsstati WHERE Status='20'"), u"20||2|0");
}

TEST_P(RecordsetTest, FailedAssignmentKeepsTheFieldAndTheEdit) {
  const auto rs = openForWrite(RowTwenty);
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  EXPECT_EQ(assign(*rs, u"Gewichtung", u"abc"), error::ProviderTypeMismatch);
  EXPECT_EQ(assign(*rs, u"Gewichtung", u""), error::ProviderTypeMismatch);
  EXPECT_EQ(assign(*rs, u"Gewichtung", Missing), error::ProviderTypeMismatch);
  EXPECT_EQ(assign(*rs, u"AutoOverwrite", 40000.0), error::ProviderDataOverflow);
  EXPECT_EQ(assign(*rs, u"Status", u"12345678901"), error::MultipleStep);
  EXPECT_EQ(rs->Fields(u"Gewichtung").Value(), Variant(50.5));
  EXPECT_EQ(rs->Fields(u"Status").Value(), Variant(u"20"));
  EXPECT_EQ(rs->EditMode(), adEditInProgress);
  rs->Update();
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Neu / 30|Null");
}

TEST_P(RecordsetTest, FailedFirstAssignmentStartsNoEdit) {
  const auto rs = openForWrite(RowTwenty);
  EXPECT_EQ(assign(*rs, u"Gewichtung", u"abc"), error::ProviderTypeMismatch);
  EXPECT_EQ(rs->EditMode(), adEditNone);
  rs->Close();
}

TEST_P(RecordsetTest, ComputedColumnCannotBeAssigned) {
  const auto rs =
      openForWrite(u"SELECT Status, Gewichtung * 2 AS Doppelt FROM Vertriebsstati WHERE Status='20'");
  EXPECT_EQ(rs->Fields(u"Doppelt").Value(), Variant(101.0));
  EXPECT_EQ(assign(*rs, u"Doppelt", 1.0), error::MultipleStep);
  EXPECT_EQ(assign(*rs, u"Status", u"21"), 0);
}

TEST_P(RecordsetTest, LongestTextIsCountedInUnitsNotInBytes) {
  const auto rs = openForWrite(RowTwenty);
  EXPECT_EQ(assign(*rs, u"Status", u"ÄÖÜäöüß€€€"), 0);
  EXPECT_EQ(assign(*rs, u"Status", u"ÄÖÜäöüß€€€x"), error::MultipleStep);
}

}  // namespace zqn::ado::suite
