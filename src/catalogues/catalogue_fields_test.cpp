// SPDX-License-Identifier: MIT
//
// What the fields and buttons of the catalogue forms are made to do: how much goes in, which button Esc
// presses.
#include "forms/text_box.h"
#include "testing/catalogue.h"

namespace zqn::testing {
namespace {

struct FieldsCase {
  const char* name;
  std::int32_t kind;
  /// Each text field and how many characters it takes; 0 is any number.
  std::vector<std::pair<StringView, int>> longest;
};

void PrintTo(const FieldsCase& form, std::ostream* out) { *out << form.name; }

/// Without tables: the forms come up all the same, empty.
class CatalogueFields : public CatalogueTest, public ::testing::WithParamInterface<FieldsCase> {};

TEST_P(CatalogueFields, TakeSoManyCharacters) {
  show(GetParam().kind, {u""}, [&] {
    for (const auto& [field, characters] : GetParam().longest)
      EXPECT_EQ(number(field, u"MaxLength"), characters) << toUtf8(field);
  });
}

INSTANTIATE_TEST_SUITE_P(
    Catalogues, CatalogueFields,
    ::testing::Values(
        FieldsCase{"frmVertriebsstati", 21, {{u"Schluessel", 3}, {u"Kurztext", 30}, {u"Gewichtung", 0}}},
        FieldsCase{"frmCRMKategorien", 25, {{u"Schluessel", 15}, {u"Kurztext", 30}}},
        FieldsCase{"frmSelektionskriterienVertrag", 26, {{u"Schluessel", 30}}},
        FieldsCase{"frmSelectionListValues", 28, {{u"Schluessel", 255}}},
        FieldsCase{"frmKuendigungsgruende", 32, {{u"Schluessel", 15}, {u"Text", 50}}},
        FieldsCase{"frmKeywords", 35, {{u"Schluessel", 30}}}),
    [](const auto& info) { return info.param.name; });

class CatalogueButtons : public CatalogueTest, public ::testing::WithParamInterface<std::int32_t> {};

TEST_P(CatalogueButtons, CloseByEscapeByF10AndByClick) {
  const std::vector<std::function<void()>> ways{[&] { press(key::Escape); }, [&] { press(key::F10); },
                                                [&] { click(u"btnCancel"); }};
  for (const auto& closes : ways) {
    EXPECT_EQ(show(GetParam(), {u"alt"},
                   [&] {
                     press(key::Tab);
                     closes();
                     EXPECT_FALSE(form().Visible());
                   }),
              Variant(u"alt"));
  }
}

INSTANTIATE_TEST_SUITE_P(Catalogues, CatalogueButtons, ::testing::Values(21, 25, 26, 28, 32, 33, 35),
                         [](const auto& info) { return "Kind" + std::to_string(info.param); });

TEST_F(CatalogueTest, ProgressStandsAtTheRightOfItsFieldAndOtherTextsAtTheLeft) {
  show(21, {u""}, [&] {
    EXPECT_EQ(form().Get<TextBox>(u"Gewichtung").Alignment(), Alignment::Right);
    EXPECT_EQ(form().Get<TextBox>(u"Kurztext").Alignment(), Alignment::Left);
  });
}

TEST_F(CatalogueTest, KeysOfOtherCataloguesAreTypedOrChosenFromFiveLines) {
  show(25, {u""}, [&] {
    for (const StringView combo : {u"VertriebsStatus", u"Adressherkunft"}) {
      EXPECT_EQ(number(combo, u"maxrows"), 5);
      EXPECT_EQ(get(combo, u"allowedit"), Variant(true));
    }
  });
}

}  // namespace
}  // namespace zqn::testing
