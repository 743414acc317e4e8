// SPDX-License-Identifier: MIT
//
// All definition classes together: each kind has one of its own, and its form comes up whatever is missing.
#include <set>
#include <string>
#include <typeindex>

#include "definitions/coded_catalogues.h"
#include "dialog/frm_dialog.h"
#include "frontend/kinds.h"
#include "testing/generic_form.h"

namespace zqn::testing {
namespace {

using ::testing::HasSubstr;

std::vector<std::int32_t> kindsWithDefinition() {
  std::vector<std::int32_t> kinds;
  for (std::int32_t kind = -1; kind <= 40; ++kind) {
    if (hasDefinition(kind)) kinds.push_back(kind);
  }
  return kinds;
}

TEST(Definitions, AreTwentyFourClassesOfTheirOwn) {
  std::set<std::type_index> classes;
  for (const std::int32_t kind : kindsWithDefinition()) {
    const auto definition = makeDefinition(kind);
    const clsBasisDialog& object = *definition;
    classes.insert(typeid(object));
    EXPECT_THAT(typeid(object).name(), HasSubstr(toUtf8(findKind(kind)->definition))) << kind;
  }
  EXPECT_EQ(kindsWithDefinition().size(), 24u);
  EXPECT_EQ(classes.size(), 24u);
  for (const std::int32_t kind : {0, 16, 21, 25, 26, 28, 36, 38})
    EXPECT_EQ(makeDefinition(kind), nullptr) << kind;
}

TEST(Definitions, AreObjectsWithAKeyOfTheirOwn) {
  for (const std::int32_t kind : kindsWithDefinition()) {
    const auto one = makeDefinition(kind);
    const auto other = makeDefinition(kind);
    one->Key(u"A");
    other->Key(u"B");
    EXPECT_EQ(one->Key(), Variant(u"A")) << kind;
    EXPECT_EQ(other->Key(), Variant(u"B")) << kind;
  }
}

TEST(Definitions, WithoutTheFormTheirControlsAreNotThere) {
  for (const std::int32_t kind : kindsWithDefinition()) {
    const auto definition = makeDefinition(kind);
    EXPECT_EQ(errorNumberOf([&] { definition->Init(u"A", nothing); }), error::ObjectNotSet) << kind;
  }
}

// ---- one more

constexpr CodedValues furtherCatalogues[] = {
    {u"clsLagerorte",
     {u"Lagerorte", u"Lagerort", true},
     u"Bezeichnung",
     15,
     50,
     u"Lagerorte bearbeiten",
     u"Lagerort"},
};

class clsLagerorte final : public CodedCatalogue {
 public:
  clsLagerorte() : CodedCatalogue(valuesOf(furtherCatalogues, u"clsLagerorte")) {}
};

class AFurtherCatalogue : public GenericFormTest {};

TEST_F(AFurtherCatalogue, IsARowOfValuesAndAShortClass) {
  execute(
      u"CREATE TABLE Lagerorte (Lagerort VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Bezeichnung "
      u"VARCHAR(50));INSERT INTO Lagerorte VALUES ('-', 'System'), ('H1', 'Halle 1')");
  frmDialog places;
  places.Init(connection, u"H1", std::make_unique<clsLagerorte>());
  during([&] { places.ShowData(); },
         [&] {
           EXPECT_EQ(form().Caption(), u"Lagerorte bearbeiten");
           EXPECT_EQ(text(u"txtKeyText"), u"Halle 1");
           enter(u"H2");
           type(u"Halle 2");
           press(key::F9);
           EXPECT_THAT(listRows(u"tdblShow"), ::testing::ElementsAre(u"H1|Halle 1", u"H2|Halle 2"));
         });
  EXPECT_EQ(places.Key(), u"H2");
}

class EveryDefinition : public GenericFormTest, public ::testing::WithParamInterface<std::int32_t> {
 protected:
  /// Presses whatever key does something, on the list and off it; the form must stand and close by Esc.
  void pressEverything() {
    EXPECT_NE(form().Caption(), u"Form1");
    EXPECT_TRUE(listRows(u"tdblShow").empty());
    for (int i = 0; i < 25; ++i) press(key::Tab);
    for (const int code : {key::F6, key::F9, key::Delete, key::Enter}) press(code);
    press(key::Escape);
  }
};

// Kind 27 goes on without a key: what it was opened with is an origin.
TEST_P(EveryDefinition, WithoutItsTablesTheFormStandsAndReturnsItsKey) {
  EXPECT_EQ(show(
                GetParam(), {u"X"}, [&] { press(key::Escape); }, Through::GenericForm),
            Variant(GetParam() == 27 ? u"" : u"X"));
  show(
      GetParam(), {u"X"}, [&] { pressEverything(); }, Through::GenericForm);
  EXPECT_EQ(connection->openRecordsets(), 0u);
}

TEST_P(EveryDefinition, WithoutAConnectionTheFormStandsAndReturnsItsKey) {
  dialog.Connection(nothing);
  EXPECT_EQ(show(
                GetParam(), {u"X"}, [&] { press(key::Escape); }, Through::GenericForm),
            Variant(GetParam() == 27 ? u"" : u"X"));
  show(
      GetParam(), {u"X"}, [&] { pressEverything(); }, Through::GenericForm);
}

INSTANTIATE_TEST_SUITE_P(All, EveryDefinition, ::testing::ValuesIn(kindsWithDefinition()),
                         ::testing::PrintToStringParamName());

}  // namespace
}  // namespace zqn::testing
