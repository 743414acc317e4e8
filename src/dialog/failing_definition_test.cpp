// SPDX-License-Identifier: MIT
//
// The generic form with a definition class that fails in one of its members: what the person sees of it.
#include "dialog/frm_dialog.h"
#include "frontend/kinds.h"
#include "testing/payment_terms.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::int32_t failure = 999;

/// The payment terms, but one member fails.
class FailingDefinition final : public clsBasisDialog {
 public:
  explicit FailingDefinition(StringView member) : member_(member) {}

  void Init(const Variant& Key, const Ref<ado::Connection>& Connection) override {
    terms_->Init(Key, Connection);
    failIn(u"Init");
  }
  void InitData() override {
    failIn(u"InitData");
    terms_->InitData();
  }
  Variant Key() const override {
    failIn(u"Key get");
    return terms_->Key();
  }
  void Key(Variant Key) override {
    failIn(u"Key let");
    terms_->Key(std::move(Key));
  }
  void DataChanged(Control&) override { failIn(u"DataChanged"); }
  void ReadData(ado::Recordset& Recordset) override {
    failIn(u"ReadData");
    terms_->ReadData(Recordset);
  }
  void WriteData() override {
    failIn(u"WriteData");
    terms_->WriteData();
  }
  void DeleteData() override {
    failIn(u"DeleteData");
    terms_->DeleteData();
  }
  Ref<ado::Recordset> GetRecordsetForShow() override {
    failIn(u"GetRecordsetForShow");
    return terms_->GetRecordsetForShow();
  }
  Ref<ado::Recordset> GetRecordsetForReadWrite() override {
    failIn(u"GetRecordsetForReadWrite");
    return terms_->GetRecordsetForReadWrite();
  }
  void ShowData(const Ref<ado::Recordset>& Recordset) override {
    failIn(u"ShowData");
    terms_->ShowData(Recordset);
  }
  ado::sql::Text FindCriteria() override {
    failIn(u"FindCriteria");
    return terms_->FindCriteria();
  }
  BasisControls& controls() override { return terms_->controls(); }

 private:
  void failIn(StringView member) const {
    if (member == member_) throw RuntimeError(failure);
  }

  String member_;
  std::unique_ptr<clsBasisDialog> terms_ = makeDefinition(3);
};

class AFailingDefinition : public PaymentTerms {
 protected:
  /// Shows the form on the key "14" with a class that fails in this member.
  void with(StringView member, const std::function<void()>& acts) {
    frmDialog form;
    form.Multiselect = true;
    try {
      form.Init(connection, u"14", std::make_unique<FailingDefinition>(member));
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), failure);
      EXPECT_EQ(member, u"Init");
    }
    form.DblClick = [this](const Variant& result) { picked.push_back(result); };
    during([&] { form.ShowData(); }, acts);
    EXPECT_FALSE(form.Visible());
  }
  /// Everything that a person can do with the form, and the close box at last.
  void doEverything() {
    doubleClick(2, u"tdblShow");
    press(key::Home);
    press(key::F9);
    enter(u"N1");
    press(key::F9);
    click(u"cmdOK");
    dynamic_cast<CheckBox&>(form().control(u"chk1")).Value(1);
    click(u"cmdDelete");
    EXPECT_TRUE(form().Visible());
  }
  std::vector<String> keys() { return rows(u"SELECT ZahlBedSchl FROM Zahlungsbedingungen ORDER BY 1"); }

  std::vector<Variant> picked;
};

TEST_F(AFailingDefinition, ShowsItsErrorsOnlyWhenItDeletes) {
  tolerateEverything();
  for (const StringView member :
       {u"Init", u"InitData", u"Key get", u"Key let", u"DataChanged", u"ReadData", u"WriteData",
        u"DeleteData", u"GetRecordsetForShow", u"GetRecordsetForReadWrite", u"ShowData", u"FindCriteria"}) {
    execute(
        u"DELETE FROM Zahlungsbedingungen; INSERT INTO Zahlungsbedingungen (ZahlBedSchl) VALUES ('00'), "
        u"('14'), "
        u"('S1')");
    reportedErrors.clear();
    with(member, [&] { doEverything(); });
    std::vector<String> expected;
    if (member == u"DeleteData") expected.push_back(u"cmdDelete_Click");
    EXPECT_EQ(reportedErrors, expected) << toUtf8(member);
  }
}

TEST_F(AFailingDefinition, InInitLeavesWhatWasSetUp) {
  with(u"Init", [&] {
    EXPECT_EQ(form().Caption(), u"Zahlungsbedingungen bearbeiten");
    EXPECT_EQ(text(u"txtKey"), u"14");
    press(key::Escape);
  });
}

TEST_F(AFailingDefinition, InReadDataLeavesTheFieldsAsTheyWere) {
  with(u"ReadData", [&] {
    put(u"tdbnNettoTage", u"77");
    mark(2);
    EXPECT_EQ(text(u"txtKey"), u"S1");
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(77.0));
  });
}

TEST_F(AFailingDefinition, InInitDataLeavesTheFieldsOfANewRecordFilledUnderTheBlankKey) {
  with(u"InitData", [&] {
    click(u"cmdNew");
    EXPECT_EQ(text(u"txtKey"), u"");
    EXPECT_EQ(focus(), u"txtKey");
    EXPECT_FALSE(enabled(u"cmdOK"));
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(14.0));
  });
}

TEST_F(AFailingDefinition, InKeyDoesNotKeepAPickFromShowingItsRow) {
  for (const StringView member : {u"Key let", u"Key get"}) {
    with(member, [&] {
      doubleClick(2, u"tdblShow");
      EXPECT_EQ(text(u"txtKey"), u"S1") << toUtf8(member);
    });
  }
  EXPECT_THAT(picked, ElementsAre(Variant(u"14"))) << "the key stayed what it was; without one, no report";
}

TEST_F(AFailingDefinition, InKeyDoesNotKeepAPickFromClosingTheForm) {
  with(u"Key let", [&] {
    dynamic_cast<frmDialog&>(form()).Multiselect = false;
    doubleClick(2, u"tdblShow");
    EXPECT_FALSE(form().Visible());
  });
  EXPECT_THAT(picked, IsEmpty());
}

TEST_F(AFailingDefinition, InKeyGoesToWhoeverAsksTheFormForIt) {
  frmDialog form;
  form.Init(connection, u"14", std::make_unique<FailingDefinition>(u"Key get"));
  EXPECT_EQ(errorNumberOf([&] { return form.Key(); }), failure);
}

TEST_F(AFailingDefinition, InWriteDataIsNotToldAndNothingIsStored) {
  with(u"WriteData", [&] {
    enter(u"N1");
    press(key::F9);
    EXPECT_EQ(focus(), u"tdblShow");
  });
  EXPECT_THAT(keys(), ElementsAre(u"00", u"14", u"S1"));
}

TEST_F(AFailingDefinition, InDeleteDataIsToldOnTheButtonAndSkippedOnTheKey) {
  expectError(u"cmdDelete_Click", failure);
  with(u"DeleteData", [&] {
    deleteMarked();
    EXPECT_EQ(text(u"txtKey"), u"14") << "the steps behind it did not run";
    expectDeleteQuestion(MsgBoxResult::Yes);
    form().control(u"tdblShow").SetFocus();
    press(key::Delete);
  });
  EXPECT_THAT(keys(), ElementsAre(u"00", u"14", u"S1"));
}

TEST_F(AFailingDefinition, InTheListsQueryLeavesAnEmptyList) {
  for (const StringView member : {u"GetRecordsetForShow", u"ShowData"}) {
    with(member, [&] {
      EXPECT_THAT(listRows(u"tdblShow"), IsEmpty());
      EXPECT_EQ(text(u"txtKey"), u"14");
      EXPECT_EQ(number(u"tdbnNettoTage"), Variant(14.0)) << "its row is read all the same";
    });
  }
}

TEST_F(AFailingDefinition, InTheRowsQueryShowsEmptyFields) {
  with(u"GetRecordsetForReadWrite", [&] {
    mark(2);
    EXPECT_EQ(text(u"txtKey"), u"S1");
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(0.0));
    press(key::F9);
  });
}

TEST_F(AFailingDefinition, InFindCriteriaLeavesTheListOnItsFirstRow) {
  with(u"FindCriteria", [&] {
    EXPECT_EQ(text(u"txtKey"), u"00");
    put(u"txtKey", u"S1");
    press(key::Tab);
    EXPECT_EQ(get(u"tdblShow", u"Row"), Variant(std::int32_t{0}));
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(30.0)) << "the fields follow the key";
  });
}

// ---- what each action costs

class StatementsOfTheGenericForm : public PaymentTerms {
 protected:
  /// Opens, executions and requeries of what `act` does.
  std::vector<std::ptrdiff_t> costOf(const std::function<void()>& act) {
    operations.clear();
    act();
    std::vector<std::ptrdiff_t> counts;
    for (const ado::Operation kind :
         {ado::Operation::Open, ado::Operation::Execute, ado::Operation::Requery}) {
      counts.push_back(std::ranges::count(operations, kind, &std::pair<ado::Operation, String>::first));
    }
    return counts;
  }
};

TEST_F(StatementsOfTheGenericForm, AreAsFewAsTheStepsTell) {
  show(3, {u"14"}, [&] {
    EXPECT_EQ(statements(ado::Operation::Open).size(), 3u) << "the list, and the row for key and mark";
    form().control(u"tdblShow").SetFocus();
    EXPECT_THAT(costOf([&] { press(key::Down); }), ElementsAre(1, 0, 0));
    EXPECT_THAT(costOf([&] { press(key::Down); }), ElementsAre(0, 0, 0)) << "the end of the list";
    EXPECT_THAT(costOf([&] { type(u"00"); }), ElementsAre(1, 0, 0));
    EXPECT_THAT(costOf([&] { press(key::Tab); }), ElementsAre(0, 0, 0)) << "into the key field";
    EXPECT_THAT(costOf([&] { press(key::Tab); }), ElementsAre(1, 0, 0)) << "and out again";
    EXPECT_THAT(costOf([&] { type(u"12"); }), ElementsAre(0, 0, 0));
    EXPECT_THAT(costOf([&] { press(key::F9); }), ElementsAre(2, 0, 1))
        << "to write, and to read the marked row";
    EXPECT_THAT(costOf([&] { press(key::F6); }), ElementsAre(0, 0, 0));
    expectDeleteQuestion(MsgBoxResult::No);
    EXPECT_THAT(costOf([&] { click(u"cmdDelete"); }), ElementsAre(1, 0, 0)) << "leaving the key field";
    expectDeleteQuestion(MsgBoxResult::Yes);
    EXPECT_THAT(costOf([&] { click(u"cmdDelete"); }), ElementsAre(1, 1, 1));
    EXPECT_THAT(costOf([&] { doubleClick(0, u"tdblShow"); }), ElementsAre(1, 0, 0));
  });
}

}  // namespace
}  // namespace zqn::testing
