// SPDX-License-Identifier: MIT
#include "frontend/basics/bas_general.h"

#include "frontend/basics/bas_basis.h"
#include "runtime/convert.h"
#include "testing/dialog_test.h"

namespace zqn::testing {
namespace {

using namespace basGeneral;
using ado::Operation;

// ---- payment terms

std::vector<Variant> terms(Variant d1 = 0., Variant p1 = 0., Variant d2 = 0., Variant p2 = 0.,
                           Variant d3 = 0., Variant p3 = 0., Variant net = 0.) {
  return {d1, p1, d2, p2, d3, p3, net};
}

String sentence(const std::vector<Variant>& v) {
  return BuildZahlungstext(v[0], v[1], v[2], v[3], v[4], v[5], v[6]);
}

TEST(PaymentTermSentence, NamesEachDiscountAndTheNetTerm) {
  EXPECT_EQ(sentence(terms(14., 2., 0., 0., 0., 0., 30.)), u"14 Tage 2%, 30 Tage netto.");
  EXPECT_EQ(sentence(terms(10., 3., 20., 2., 0., 0., 30.)), u"10 Tage 3%, 20 Tage 2%, 30 Tage netto.");
  EXPECT_EQ(sentence(terms(7., 4., 14., 3., 21., 2., 60.)),
            u"7 Tage 4%, 14 Tage 3%, 21 Tage 2%, 60 Tage netto.");
  EXPECT_EQ(sentence(terms(0., 0., 10., 3.)), u"10 Tage 3%.");
  EXPECT_EQ(sentence(terms(0., 0., 0., 0., 21., 2.)), u"21 Tage 2%.");
}

TEST(PaymentTermSentence, OneDayIsATag) {
  EXPECT_EQ(sentence(terms(1., 2.)), u"1 Tag 2%.");
  EXPECT_EQ(sentence(terms(0., 0., 0., 0., 0., 0., 1.)), u"1 Tag netto.");
}

TEST(PaymentTermSentence, NothingAtAllIsNetAtOnce) {
  EXPECT_EQ(sentence(terms()), u"sofort rein Netto.");
  EXPECT_EQ(sentence(terms(Null, Null, Null, Null, Null, Null, Null)), u"sofort rein Netto.");
  EXPECT_EQ(sentence(terms(10., 0.)), u"sofort rein Netto.") << "days without a percentage leave no trace";
}

TEST(PaymentTermSentence, APercentageThatRoundsToZeroIsNoDiscount) {
  EXPECT_EQ(sentence(terms(10., 0.4)), u"sofort rein Netto.");
  EXPECT_EQ(sentence(terms(10., 0.5)), u"sofort rein Netto.");
  EXPECT_EQ(sentence(terms(10., 0.6)), u"10 Tage 0,6%.");
  EXPECT_EQ(sentence(terms(10., 1.5)), u"10 Tage 1,5%.");
}

TEST(PaymentTermSentence, ATextThatIsNoNumberIsATypeError) {
  EXPECT_EQ(errorNumberOf([] { return sentence(terms(10., u"")); }), error::TypeMismatch);
  EXPECT_EQ(errorNumberOf([] { return sentence(terms(u"", 2.)); }), error::TypeMismatch);
  EXPECT_EQ(errorNumberOf([] { return TagText(u"viele"); }), error::TypeMismatch);
}

// ---- print marks

TEST(PrintMarks, StandInAFixedOrderAndAMissingOneLeavesNoTrace) {
  PrintMarks sales{.AN = false, .AB = true, .LS = false, .RG = false, .GS = false};
  EXPECT_EQ(BuildWoDrucken(sales), u"-B---");
  EXPECT_EQ(BuildWoDrucken({.AF = true, .BS = true, .LM = true}), u"AEM");
  EXPECT_EQ(BuildWoDrucken({}), u"");
  EXPECT_EQ(BuildWoDrucken({true, true, true, true, true, true, true, true}), u"NBLRGAEM");
}

TEST(PrintMarks, AreReadFromTheirLettersAlone) {
  const PrintMarks none{false, false, false, false, false, false, false, false};
  PrintMarks second = none;
  second.AB = true;
  EXPECT_EQ(SplitWoDrucken(u"-B---"), second);
  EXPECT_EQ(SplitWoDrucken(u"xBx"), second);
  EXPECT_EQ(SplitWoDrucken(u"nblrgaem"), none);
  EXPECT_EQ(SplitWoDrucken(u""), none);
  EXPECT_EQ(SplitWoDrucken(u"MEAGRLBN"), (PrintMarks{true, true, true, true, true, true, true, true}));
}

// ---- queries

TEST(Where, AndOrderAreWrittenOnlyWhenGiven) {
  EXPECT_EQ(BuildWhereOrder({}, u"").text(), u"");
  EXPECT_EQ(BuildWhereOrder({}, u"Key").text(), u" ORDER BY Key");
  EXPECT_EQ(BuildWhereOrder(u"a=1", u"").text(), u" WHERE a=1");
  EXPECT_EQ(BuildWhereOrder(u"a=1", u"Key").text(), u" WHERE a=1 ORDER BY Key");
}

class Queries : public DialogTest {
 protected:
  Queries() {
    basBasis::SetConnection(connection);
    execute(
        u"CREATE TABLE Textbausteine (Textart VARCHAR(3) COLLATE ZQN_TEXT, TextNummer VARCHAR(10) COLLATE "
        u"ZQN_TEXT, "
        u"ZusatztextNummer VARCHAR(3) COLLATE ZQN_TEXT, SprachKZ VARCHAR(3) COLLATE ZQN_TEXT, Kurztext "
        u"VARCHAR(50), "
        u"Langtext VARCHAR(500), WoDrucken VARCHAR(8), Schriftart VARCHAR(30), Schriftgröße INTEGER, "
        u"Schriftstil "
        u"VARCHAR(10), PRIMARY KEY (Textart, TextNummer, ZusatztextNummer, SprachKZ));"
        u"INSERT INTO Textbausteine VALUES ('VSA','01','000','ÿÿÿ','Post','per "
        u"Post','N---','Tahoma',11,'fett');"
        u"INSERT INTO Textbausteine VALUES ('VSA','01','000','EN','Mail','by mail','-B--',NULL,NULL,NULL);"
        u"INSERT INTO Textbausteine VALUES ('VSA','01','000','FR','Poste','','--L-','Arial',8,NULL);"
        u"INSERT INTO Textbausteine VALUES ('VSA','01','001','ÿÿÿ','Zusatz','Zusatztext','','',0,'')");
  }
  ~Queries() override { basBasis::SetConnection(nothing); }

  int opens() const {
    return static_cast<int>(
        std::ranges::count(operations, Operation::Open, &std::pair<Operation, String>::first));
  }
  Variant read(StringView number, StringView additional, StringView language) {
    block = {};
    number_ = number;
    operations.clear();
    return ReadTextBaustein(u"VSA", number_, additional, language, block);
  }

  TextBlock block;
  String number_;
};

TEST_F(Queries, AListIsReadByTheClientAndAFailedOneIsClosed) {
  const auto list =
      GetRecordset(u"Textbausteine", u"SprachKZ, Kurztext", {}, u"SprachKZ", ado::adLockReadOnly);
  EXPECT_EQ(list->State(), ado::adStateOpen);
  EXPECT_EQ(list->CursorLocation(), ado::adUseClient);
  EXPECT_EQ(list->RecordCount(), 4);
  EXPECT_EQ(operations.back().second, u"SELECT SprachKZ, Kurztext FROM Textbausteine ORDER BY SprachKZ");
  EXPECT_EQ(GetRecordset(u"Fehlt", u"*", {}, u"", ado::adLockReadOnly)->State(), ado::adStateClosed);
  basBasis::SetConnection(nothing);
  EXPECT_EQ(GetRecordset(u"Textbausteine", u"*", {}, u"", ado::adLockReadOnly)->State(), ado::adStateClosed);
}

TEST_F(Queries, ATextBlockIsFoundInItsLanguage) {
  EXPECT_EQ(read(u"01", u"", u"EN"), Variant(std::int16_t{1}));
  EXPECT_EQ(block.Langtext, u"by mail");
  EXPECT_EQ(block.WoDrucken, u"-B--");
  EXPECT_EQ(block.Schriftart, u"");
  EXPECT_EQ(block.Schriftgroesse, 0);
  EXPECT_EQ(opens(), 1);
}

TEST_F(Queries, AMissingLanguageIsServedByTheDefaultRow) {
  EXPECT_EQ(read(u"01", u"", u"IT"), Variant(std::int16_t{1}));
  EXPECT_EQ(block.Langtext, u"per Post");
  EXPECT_EQ(block.Schriftgroesse, 11);
  EXPECT_EQ(block.Schriftstil, u"fett");
  EXPECT_EQ(opens(), 2);
}

TEST_F(Queries, WithoutALanguageTheDefaultRowIsAskedOnce) {
  EXPECT_EQ(read(u"01", u"", u""), Variant(std::int16_t{1}));
  EXPECT_EQ(opens(), 1);
  EXPECT_TRUE(read(u"99", u"", u"ÿÿÿ").isNull());
  EXPECT_EQ(opens(), 1);
  EXPECT_TRUE(read(u"99", u"", u"ŸŸŸ").isNull());
  EXPECT_EQ(opens(), 1) << "the same language in any case";
  EXPECT_TRUE(read(u"99", u"", u"EN").isNull());
  EXPECT_EQ(opens(), 2);
}

TEST_F(Queries, AMissingBlockLeavesEverythingAsItWas) {
  for (const StringView language : {u"ÿÿÿ", u"EN"}) {
    const TextBlock before{u"kurz", u"lang", u"N", u"Courier", 14, u"fett"};
    block = before;
    String number = u"99";
    EXPECT_TRUE(ReadTextBaustein(u"VSA", number, u"", language, block).isNull());
    EXPECT_EQ(block.Kurztext, before.Kurztext);
    EXPECT_EQ(block.Langtext, before.Langtext);
    EXPECT_EQ(block.WoDrucken, before.WoDrucken);
    EXPECT_EQ(block.Schriftart, before.Schriftart);
    EXPECT_EQ(block.Schriftgroesse, before.Schriftgroesse);
    EXPECT_EQ(block.Schriftstil, before.Schriftstil);
    EXPECT_EQ(number, u"99");
  }
}

TEST_F(Queries, TheNumberComesBackAsItIsStored) {
  somebodyElse(
      u"INSERT INTO Textbausteine (Textart, TextNummer, ZusatztextNummer, SprachKZ, Langtext) VALUES ('VSA', "
      u"'LKW', '000', 'ÿÿÿ', 'Frei Haus.')");
  EXPECT_EQ(read(u"lkw", u"", u""), Variant(std::int16_t{1}));
  EXPECT_EQ(number_, u"LKW");
}

TEST_F(Queries, ABlockWithAnEmptyLongTextCountsAsNoneThoughItIsRead) {
  EXPECT_TRUE(read(u"01", u"", u"FR").isNull());
  EXPECT_EQ(block.Kurztext, u"Poste");
  EXPECT_EQ(block.WoDrucken, u"--L-");
  EXPECT_EQ(opens(), 1);
}

TEST_F(Queries, AnAdditionalTextIsABlockOfItsOwn) {
  EXPECT_EQ(read(u"01", u"001", u""), Variant(std::int16_t{1}));
  EXPECT_EQ(block.Langtext, u"Zusatztext");
}

TEST_F(Queries, AFailedQueryLeavesTheBlockAsItWas) {
  fail(Operation::Open, u"Textbausteine", error::ProviderFailure, 2);
  block.Langtext = u"vorher";
  String number = u"01";
  EXPECT_TRUE(ReadTextBaustein(u"VSA", number, u"", u"EN", block).isEmpty());
  EXPECT_EQ(block.Langtext, u"vorher");
  EXPECT_EQ(number, u"01");
}

TEST_F(Queries, AFailedSecondQueryLeavesTheBlockAsItWas) {
  fail(Operation::Open, u"SprachKZ='ÿÿÿ'", error::ProviderFailure);
  block.Langtext = u"vorher";
  String number = u"01";
  EXPECT_TRUE(ReadTextBaustein(u"VSA", number, u"", u"IT", block).isEmpty());
  EXPECT_EQ(opens(), 2);
  EXPECT_EQ(block.Langtext, u"vorher");
  EXPECT_EQ(number, u"01");
}

// ---- lists

TEST(ListEntries, AreFoundWithoutRegardToCaseTheFirstOfEquals) {
  constexpr ControlDesign roster[] = {{u"cbo", ControlKind::ComboBox, u"", 0, 0, 1500, 315}};
  Form form({u"frmProbe", u"Probe", 3000, 3000, roster});
  auto& list = form.Get<ComboBox>(u"cbo");
  EXPECT_EQ(FindListIndex(list, u"", 7), 7) << "an empty list";
  for (const StringView entry : {u"", u"Abc", u"ABC", u"Größe"}) list.AddItem(entry);
  EXPECT_EQ(FindListIndex(list, u"abc", 0), 1);
  EXPECT_EQ(FindListIndex(list, u"GRÖßE", -1), 3);
  EXPECT_EQ(FindListIndex(list, u"", -1), 0);
  EXPECT_EQ(FindListIndex(list, u"abcd", -1), -1);
}

// ---- conversions

TEST(NullAndValues, AreExchangedByTheLanguagesComparison) {
  EXPECT_EQ(basBasis::NullToValue(Null, u"x"), Variant(u"x"));
  EXPECT_EQ(basBasis::NullToValue(u"", u"x"), Variant(u""));
  EXPECT_TRUE(basBasis::ValueToNull(u"", u"").isNull());
  EXPECT_EQ(basBasis::ValueToNull(u"0", std::int32_t{0}), Variant(u"0")) << "a number never equals a text";
  EXPECT_TRUE(basBasis::ValueToNull(0.0, std::int32_t{0}).isNull());
  EXPECT_TRUE(basBasis::ValueToNull(Null, u"").isNull());
}

TEST(CheckBoxValues, CountAsTrueOnlyWhenTheyAreOne) {
  EXPECT_TRUE(basBasis::CheckToBool(1));
  EXPECT_FALSE(basBasis::CheckToBool(0));
  EXPECT_FALSE(basBasis::CheckToBool(2));
  EXPECT_FALSE(basBasis::CheckToBool(-1));
  EXPECT_EQ(basBasis::BoolToCheck(true), 1);
  EXPECT_EQ(basBasis::BoolToCheck(false), 0);
}

}  // namespace
}  // namespace zqn::testing
