// SPDX-License-Identifier: MIT
//
// The generic form as it is designed, and as it comes up.
#include "definitions/coded_catalogues.h"
#include "dialog/frm_dialog.h"
#include "frontend/kinds.h"
#include "runtime/convert.h"
#include "testing/payment_terms.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class OpeningTheGenericForm : public PaymentTerms {};

// ---- design

TEST(GenericFormDesign, HoldsAllFieldsInvisibleInTheirTabOrder) {
  frmDialog form;
  ASSERT_EQ(form.controls().size(), 50u);
  EXPECT_EQ(form.ScaleWidth(), 6465);
  EXPECT_EQ(form.ScaleHeight(), 5235);
  EXPECT_EQ(form.Caption(), u"Form1");
  for (const auto& control : form.controls()) EXPECT_EQ(control->Visible(), control->Name() == u"lblFra");
  EXPECT_EQ(form.control(u"lblFra").container(), &form.control(u"fra"));
  EXPECT_FALSE(form.control(u"lblFra").isShown());
  EXPECT_TRUE(form.Get<CommandButton>(u"cmdCancel").Cancel());
  for (const auto& control : form.controls()) {
    EXPECT_EQ(control->TabStop(), control->kind() != ControlKind::ToggleButton) << toUtf8(control->Name());
  }
}

TEST(GenericFormDesign, PurchaseTogglesRepeatTheTipsOfTheSalesGroup) {
  frmDialog form;
  for (const auto& [purchase, sales] :
       {std::pair{u"tglDruckAF", u"tglDruckLS"}, std::pair{u"tglDruckBS", u"tglDruckRG"},
        std::pair{u"tglDruckLM", u"tglDruckGS"}}) {
    EXPECT_EQ(form.control(purchase).ToolTipText(), form.control(sales).ToolTipText());
    EXPECT_EQ(form.control(purchase).Left(), form.control(sales).Left());
  }
  for (const auto& [toggle, tip] : {std::pair{u"tglDruckAN", u"Text wird auf Angebot gedruckt"},
                                    std::pair{u"tglDruckAB", u"Text wird auf Auftragsbestätigung gedruckt"},
                                    std::pair{u"tglDruckLS", u"Text wird auf Lieferschein gedruckt"},
                                    std::pair{u"tglDruckRG", u"Text wird auf Rechnung gedruckt"},
                                    std::pair{u"tglDruckGS", u"Text wird auf Gutschrift gedruckt"}}) {
    EXPECT_EQ(form.control(toggle).ToolTipText(), tip);
  }
}

TEST(GenericFormDesign, WithoutACatalogueInitFailsAtOnce) {
  for (const std::int32_t kind : {-1, 0, 16, 21, 28, 38}) {
    frmDialog form(makeDefinition);
    EXPECT_EQ(errorNumberOf([&] { form.Init(nothing, u"", kind); }), error::ObjectNotSet) << kind;
    EXPECT_EQ(errorNumberOf([&] { return form.Key(); }), error::ObjectNotSet);
  }
}

// ---- opening

TEST_F(OpeningTheGenericForm, OpensOnTheListRowOfTheKey) {
  show(3, {u"14"}, [&] {
    EXPECT_EQ(get(u"tdblShow", u"Row"), Variant(std::int32_t{1}));
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(14.0));
    EXPECT_EQ(focus(), u"tdbnSkTage(0)") << "with the key text disabled, the first number takes the focus";
    EXPECT_TRUE(enabled(u"cmdOK"));
    EXPECT_TRUE(enabled(u"cmdDelete"));
  });
}

TEST_F(OpeningTheGenericForm, ComesUpWithItsListInTheLookWithoutTheFocus) {
  show(3, {u"14"}, [&] {
    EXPECT_EQ(CDbl(get(u"tdblShow", u"HighlightRowStyle.BackColor")), 1.0 * colour::ButtonFace);
    EXPECT_EQ(CDbl(get(u"tdblShow", u"HighlightRowStyle.ForeColor")), 1.0 * colour::WindowText);
  });
}

TEST_F(OpeningTheGenericForm, TheFirstNumberTakesTheFocusOnceWhatWaitsHasReachedTheSaveButton) {
  frmDialog terms(makeDefinition);
  terms.Init(connection, u"14", 3);
  std::vector<String> order;
  terms.control(u"cmdOK").GotFocus = [&] {
    order.push_back(u"cmdOK");
    desktop.sendKeys(u"x");
  };
  terms.control(u"cmdOK").KeyPress = [&](int& KeyAscii) { order.emplace_back(1, char16_t(KeyAscii)); };
  terms.control(u"tdbnSkTage", 0).GotFocus = [&] { order.push_back(u"tdbnSkTage"); };
  during([&] { terms.ShowData(); }, [&] { EXPECT_THAT(order, ElementsAre(u"cmdOK", u"x", u"tdbnSkTage")); });
}

/// Competitors whose name nobody can type.
class Unnamed final : public CodedCatalogue {
 public:
  Unnamed() : CodedCatalogue(valuesOf(codedCatalogues, u"clsMitbewerber")) {}

 protected:
  void setUp() override {
    CodedCatalogue::setUp();
    controls().txtKeyText().Enabled(false);
  }
};

TEST_F(OpeningTheGenericForm, WithoutATextAndANumberTheFirstControlKeepsTheFocus) {
  execute(
      u"CREATE TABLE Mitbewerber (Mitbewerber VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Bezeichnung "
      u"VARCHAR(50));INSERT INTO Mitbewerber VALUES ('A', 'Adler')");
  frmDialog competitors;
  competitors.Init(connection, u"A", std::make_unique<Unnamed>());
  bool saveWasReached = false;
  competitors.control(u"cmdOK").GotFocus = [&] { saveWasReached = true; };
  during([&] { competitors.ShowData(); }, [&] { EXPECT_EQ(focus(), u"tdblShow"); });
  EXPECT_FALSE(saveWasReached);
}

TEST_F(OpeningTheGenericForm, AKeyThatIsNotInTheListGetsTheFocusAndCannotBeDeleted) {
  show(3, {u"X9"}, [&] {
    EXPECT_EQ(text(u"txtKey"), u"X9");
    EXPECT_EQ(focus(), u"txtKey");
    EXPECT_FALSE(enabled(u"cmdDelete"));
    EXPECT_TRUE(enabled(u"cmdOK"));
    EXPECT_EQ(number(u"tdbnSkTage(0)"), Variant(0.0));
  });
}

TEST_F(OpeningTheGenericForm, TheKeyIsComparedWithTheListWithoutRegardToCase) {
  show(3, {u"s1"}, [&] {
    EXPECT_EQ(text(u"txtKey"), u"S1") << "the key takes its stored form";
    EXPECT_TRUE(enabled(u"cmdDelete"));
  });
}

TEST_F(OpeningTheGenericForm, AnEmptyCatalogueDisablesTheListAndDelete) {
  execute(u"DELETE FROM Zahlungsbedingungen");
  show(3, {u""}, [&] {
    EXPECT_FALSE(enabled(u"tdblShow"));
    EXPECT_FALSE(enabled(u"cmdDelete"));
    EXPECT_FALSE(enabled(u"cmdOK"));
    EXPECT_EQ(focus(), u"tdbnSkTage(0)") << "the empty key equals the empty list";
  });
}

TEST_F(OpeningTheGenericForm, AListThatFailsToOpenLeavesTheFormUp) {
  fail(ado::Operation::Open, u"ORDER BY", error::ProviderFailure);
  show(3, {u"14"}, [&] {
    EXPECT_THAT(listRows(u"tdblShow"), IsEmpty());
    EXPECT_EQ(text(u"txtKey"), u"14");
  });
}

}  // namespace
}  // namespace zqn::testing
