// SPDX-License-Identifier: MIT
//
// The entry schemes, kinds 15 and 17: a list to choose from.
#include "testing/generic_form.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

class EntrySchemes : public GenericFormTest, public ::testing::WithParamInterface<std::int32_t> {
 protected:
  EntrySchemes() {
    for (const StringView name : {u"Erfassungsschema", u"ErfassungsschemaEK"}) {
      execute(u"CREATE TABLE " + String(name) +
              u" (ErfSchema VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Bezeichnung VARCHAR(50), "
              u"Beschreibung "
              u"VARCHAR(255))");
    }
    execute(u"INSERT INTO " + table() +
            u" VALUES ('01', 'Standard', 'Artikel, Menge und Preis.');INSERT INTO " + table() +
            u" VALUES ('02', 'Kurz', NULL);INSERT INTO " + table() + u" VALUES ('-', 'Ohne', 'Kein Schema')");
  }
  String table() const { return GetParam() == 15 ? u"Erfassungsschema" : u"ErfassungsschemaEK"; }
  Variant showThis(VariantArray param, const std::function<void()>& acts) {
    return show(GetParam(), std::move(param), acts);
  }
};

TEST_P(EntrySchemes, ShowTheListWithTheDescriptionOfTheMarkedOne) {
  showThis({u"01"}, [&] {
    EXPECT_EQ(form().Caption(), u"Erfassungsschema");
    EXPECT_EQ(form().Height(), 4770 + 345 + 600) << "from where the button was designed";
    EXPECT_THAT(shownControls(),
                ElementsAre(u"tdblShow", u"lblKey", u"cmdOK", u"cmdCancel", u"fra", u"lblFra"));
    EXPECT_EQ(get(u"lblKey", u"Caption"), Variant(u"Erfassungsschema:"));
    EXPECT_EQ(get(u"fra", u"Caption"), Variant(u"Beschreibung"));
    EXPECT_EQ(get(u"lblFra", u"Caption"), Variant(u"Artikel, Menge und Preis."));
    EXPECT_EQ(focus(), u"tdblShow");
  });
  EXPECT_EQ(statements(ado::Operation::Open).front(),
            u"SELECT ErfSchema, Bezeichnung FROM " + table() + u" ORDER BY ErfSchema");
  EXPECT_EQ(statements(ado::Operation::Open).back(),
            u"SELECT * FROM " + table() + u" WHERE ErfSchema = '01'");
}

TEST_P(EntrySchemes, PutTheButtonsBesideTheList) {
  showThis({u"01"}, [&] {
    const auto place = [&](StringView control) {
      const Control& c = form().control(control);
      return std::vector{c.Left(), c.Top(), c.Width(), c.Height()};
    };
    EXPECT_THAT(place(u"lblKey"), ElementsAre(120, 120, 1395, 255));
    EXPECT_THAT(place(u"tdblShow"), ElementsAre(120, 360, 4845, 2415));
    EXPECT_THAT(place(u"fra"), ElementsAre(120, 2850, 6195, 1725));
    EXPECT_THAT(place(u"cmdOK"), ElementsAre(5100, 330, 1215, 345));
    EXPECT_THAT(place(u"cmdCancel"), ElementsAre(5100, 780, 1215, 345));
  });
}

TEST_P(EntrySchemes, TheListHasOneVisibleColumnAndNoHeader) {
  showThis({u"01"}, [&] {
    EXPECT_EQ(get(u"tdblShow", u"ColumnHeaders"), Variant(false));
    EXPECT_EQ(get(u"tdblShow", u"Columns(0).Visible"), Variant(false));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).Visible"), Variant(true));
    EXPECT_EQ(get(u"tdblShow", u"Text"), Variant(u"01")) << "the key, though hidden";
    EXPECT_THAT(listRows(u"tdblShow"), ElementsAre(u"-|Ohne", u"01|Standard", u"02|Kurz"))
        << "\"-\" is no secret";
  });
}

TEST_P(EntrySchemes, ADescriptionOfNullEmptiesTheFrame) {
  showThis({u"01"}, [&] {
    mark(2);
    EXPECT_EQ(get(u"lblFra", u"Caption"), Variant(u""));
    mark(0);
    EXPECT_EQ(get(u"lblFra", u"Caption"), Variant(u"Kein Schema"));
  });
}

TEST_P(EntrySchemes, ArePickedByEnterAndByTheButton) {
  EXPECT_EQ(showThis({u"01"},
                     [&] {
                       press(key::Down);
                       press(key::Enter);
                     }),
            Variant(u"02"));
  EXPECT_EQ(showThis({u"01"},
                     [&] {
                       mark(2);
                       click(u"cmdOK");
                       click(u"cmdCancel");
                     }),
            Variant(u"02"));
  EXPECT_EQ(showThis({u"01"}, [&] { mark(2); }), Variant(u"01")) << "marking alone takes nothing";
}

TEST_P(EntrySchemes, NothingCanBeAddedOrDeleted) {
  const auto before = rows(u"SELECT * FROM " + table());
  showThis({u"99"}, [&] {
    EXPECT_FALSE(form().control(u"cmdNew").isShown());
    EXPECT_FALSE(form().control(u"cmdDelete").isShown());
    click(u"cmdOK");
    mark(1);
    press(key::Delete);
    press(key::F6);
    desktop.press(KeyStroke::ofCharacter(u'l', shift::Ctrl));
    EXPECT_EQ(text(u"txtKey"), u"01") << "F6 has blanked nothing";
  });
  EXPECT_EQ(rows(u"SELECT * FROM " + table()), before);
  EXPECT_TRUE(statements(ado::Operation::Execute).empty());
  EXPECT_TRUE(statements(ado::Operation::Update).empty());
}

TEST_P(EntrySchemes, AnEmptyTableLeavesTheFormUp) {
  execute(u"DELETE FROM " + table());
  EXPECT_EQ(showThis({u"01"},
                     [&] {
                       EXPECT_FALSE(enabled(u"tdblShow"));
                       press(key::Escape);
                     }),
            Variant(u"01"));
}

INSTANTIATE_TEST_SUITE_P(All, EntrySchemes, ::testing::Values(15, 17), ::testing::PrintToStringParamName());

}  // namespace
}  // namespace zqn::testing
