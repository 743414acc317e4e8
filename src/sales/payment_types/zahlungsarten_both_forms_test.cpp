// SPDX-License-Identifier: MIT
//
// The generic form and the one of their own read and write the same payment types.
#include "forms/text_box.h"
#include "testing/zahlungsarten.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

/// A side of the payment types with the toggles that both forms show for it.
struct BothForms {
  std::int32_t kind;
  const char16_t *table, *code;
  const char *dedicated, *generic;
};

class ZahlungsartenInBothForms : public Zahlungsarten, public ::testing::WithParamInterface<BothForms> {};

TEST_P(ZahlungsartenInBothForms, ReadAndWriteTheSameRows) {
  const BothForms& side = GetParam();
  show(side.kind, {u""}, [&] {
    enter(u"GEM");
    type(u"Gemeinsam");
    form().control(u"ZahlungsartFibu").SetFocus();
    type(side.code);
    form().control(u"txtLangtext").SetFocus();
    type(u"Aus dem einen Dialog.");
    click(side.kind == 1 ? u"tglDruckAB" : u"tglDruckBS");
    click(u"btnOK");
    EXPECT_EQ(toggles(), side.dedicated);
  });
  const auto inGenericForm = [&] {
    EXPECT_EQ(form().Name(), u"frmDialog");
    EXPECT_EQ(text(u"txtKeyText"), u"Gemeinsam");
    EXPECT_EQ(text(u"txtZusatz"), side.code);
    EXPECT_EQ(text(u"txtLangtext"), u"Aus dem einen Dialog.");
    EXPECT_EQ(toggles(), side.generic);
    form().Get<TextBox>(u"txtKeyText").Text(u"Geändert");
    form().Get<TextBox>(u"txtZusatz").Text(u"-");
    form().Get<TextBox>(u"txtLangtext").Text(u"Aus dem anderen.");
    click(side.kind == 1 ? u"tglDruckAB" : u"tglDruckBS");
    click(u"cmdOK");
  };
  show(side.kind, {u"GEM"}, inGenericForm, Through::GenericForm);
  show(side.kind, {u"GEM"}, [&] {
    EXPECT_EQ(text(u"txtKurztext"), u"Geändert");
    EXPECT_EQ(text(u"ZahlungsartFibu"), u"");
    EXPECT_EQ(number(u"chkOhneFibu"), 1) << "a hyphen is no transfer here on either side";
    EXPECT_EQ(text(u"txtLangtext"), u"Aus dem anderen.");
    EXPECT_EQ(toggles(), side.kind == 1 ? "AN AB LS RG" : "AF BS LM");
    expectDeleteQuestion();
    click(u"btnDelete");
  });
  EXPECT_EQ(row(side.table, u"GEM"), u"(fehlt)");
  EXPECT_THAT(blocks(u"GEM"), ElementsAre());
}

INSTANTIATE_TEST_SUITE_P(Sides, ZahlungsartenInBothForms,
                         ::testing::Values(BothForms{1, u"Zahlungsarten", u"G1", "AN LS RG", "AN LS RG"},
                                           BothForms{2, u"ZahlungsartenEK", u"G2", "AF LM", "AF LM"}),
                         [](const auto& side) { return "Kind" + std::to_string(side.param.kind); });

}  // namespace
}  // namespace zqn::testing
