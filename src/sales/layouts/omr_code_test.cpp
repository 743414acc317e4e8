// SPDX-License-Identifier: MIT
//
// The settings of printed documents: several kinds of documents edited together over layout files.
#include "sales/layouts/omr_code.h"

#include "testing/omr_code.h"

namespace zqn::testing {
namespace {

// ---- opening

TEST_F(OmrSettings, ListTheEightKindsOfDocuments) {
  EXPECT_EQ(show(31, {u""},
                 [&] {
                   std::vector<String> names;
                   for (int i = 0; i < documents().ListCount(); ++i) names.push_back(documents().List(i));
                   EXPECT_THAT(names,
                               ::testing::ElementsAre(u"Angebot", u"Auftragsbestätigung", u"Lieferschein",
                                                      u"Rechnung", u"Vertragsrechnung", u"Gutschrift",
                                                      u"Vertragsgutschrift", u"Bestellung"));
                   EXPECT_EQ(documents().SelCount(), 0);
                   EXPECT_EQ(form().Caption(), u"OMR/OME-Einstellungen");
                 }),
            Variant(false));
}

TEST_F(OmrSettings, WithoutLayoutFilesOfferNoneAndTheNamelessDefault) {
  show(31, {u"RG"}, [&] {
    EXPECT_EQ(number(u"cboLayout", u"ListCount"), 2);
    EXPECT_EQ(get(u"cboLayout", u"List(0)"), Variant(u"Deaktiviert"));
    EXPECT_EQ(get(u"cboLayout", u"List(1)"), Variant(u""));
    EXPECT_EQ(layoutRow(), 1) << "a layout read as Default is the default layout";
    EXPECT_EQ(option(0), "-0 Zusatzoption 1 []-");
  });
}

TEST_F(OmrSettings, LayoutsComeByNameWithTheirDescriptions) {
  twoLayouts();
  layout("default.OMR", "Description=Standard\r\n");
  layout("None.omr", "Description=Nie\r\n");
  layout(" .omr", "Description=Blank\r\n");
  layout("ohne.omr", "");
  layout("andere.txt", "Description=Text\r\n");
  std::filesystem::create_directories(folder / "ordner.omr");
  show(31, {u""}, [&] {
    std::vector<String> rows;
    for (int i = 0; i < number(u"cboLayout", u"ListCount"); ++i)
      rows.push_back(form().Get<ComboBox>(u"cboLayout").List(i));
    EXPECT_THAT(rows,
                ::testing::ElementsAre(u"Deaktiviert", u"Standard", u"Blaues Papier", u"Gelbes Papier", u""));
  });
}

TEST_F(OmrSettings, AFileWhoseNameIsNotValidTextIsPassedOver) {
  twoLayouts();
  layout("K\xF6nig.omr", "Description=In einer anderen Kodierung\r\n");
  layout("\xFF\xFE.OMR", "Description=Gar keine\r\n");
  show(31, {u"RG"}, [&] { EXPECT_EQ(number(u"cboLayout", u"ListCount"), 4); });
}

TEST_F(OmrSettings, AFolderWhoseNameIsNotValidTextHasNoLayouts) {
  ObjectFactory::current().offer(u"zqWSPro.WSProfile",
                                 [] { return std::make_shared<Profile>(String(1, char16_t{0xD800})); });
  show(31, {u"RG"}, [&] { EXPECT_EQ(number(u"cboLayout", u"ListCount"), 2); });
}

TEST_F(OmrSettings, TheEncodingOfALayoutFollowsFromItsMark) {
  const auto described = [&](const std::string& name, const std::string& bytes) {
    std::ofstream(folder / name, std::ios::binary) << bytes;
  };
  described("A.omr", "[Common]\r\nDescription=Gr\xFC\x6E\r\n");
  described("B.omr", "\xEF\xBB\xBF[Common]\r\nDescription=Gelb \xE2\x82\xAC\r\n");
  std::string wide = "\xFF\xFE";
  for (const char16_t unit : StringView(u"[Common]\r\nDescription=Rot Ω\r\n"))
    for (const int half : {unit & 0xFF, unit >> 8}) wide += static_cast<char>(half);
  described("C.omr", wide);
  show(31, {u""}, [&] {
    const auto& layouts = form().Get<ComboBox>(u"cboLayout");
    std::vector<String> offered;
    for (int i = 2; i < layouts.ListCount(); ++i) offered.push_back(layouts.List(i));
    EXPECT_THAT(offered, ::testing::ElementsAre(u"Grün", u"Gelb €", u"Rot Ω"));
  });
}

TEST_F(OmrSettings, ACodeInAnyCaseIsSelectedAndTheTimerPutsTheFocusOnItsLayout) {
  int milliseconds = 0;
  desktop.clock([&] { return std::chrono::milliseconds(milliseconds++); });
  show(31, {u"gs"}, [&] {
    EXPECT_EQ(documents().ListIndex(), 5);
    EXPECT_TRUE(documents().Selected(5));
    EXPECT_EQ(documents().SelCount(), 1);
    EXPECT_EQ(focus(), u"lstBelegarten");
    // The clock moves on with each look at it.
    desktop.whenIdle([&] {
      if (milliseconds < 60) return;
      EXPECT_EQ(focus(), u"cboLayout");
      EXPECT_FALSE(enabled(u"Timer1"));
      form().closeBox();
    });
  });
}

TEST_F(OmrSettings, WithoutACodeTheFocusStaysInTheList) {
  int milliseconds = 0;
  desktop.clock([&] { return std::chrono::milliseconds(milliseconds++); });
  show(31, {u"XY"}, [&] {
    desktop.whenIdle([&] {
      if (milliseconds < 60) return;
      EXPECT_EQ(focus(), u"lstBelegarten");
      EXPECT_FALSE(enabled(u"Timer1"));
      form().closeBox();
    });
  });
}

TEST_F(OmrSettings, WithoutAProfileTheRootIsSearchedAndNothingIsSaid) {
  ObjectFactory::current().withdraw(u"zqWSPro.WSProfile");
  // Not the folder that the process stands in.
  layout("Blau.omr", "Description=Blaues Papier\r\n");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder);
  show(31, {u"AN"}, [&] {
    const auto& layouts = form().Get<ComboBox>(u"cboLayout");
    ASSERT_GE(layouts.ListCount(), 2);
    for (int i = 0; i < layouts.ListCount(); ++i) EXPECT_NE(layouts.List(i), u"Blaues Papier");
  });
  std::filesystem::current_path(before);
}

TEST_F(OmrSettings, WithoutASessionNothingIsReadOrSaved) {
  frmOMRCode settings;
  settings.SelectedKey = u"AN";
  desktop.whenIdle([&] {
    EXPECT_EQ(layoutRow(), 0);
    EXPECT_TRUE(documents().Selected(0));
    click(u"btnOK");
  });
  settings.ShowData();
  EXPECT_EQ(settings.SelectedKey, Variant(true));
}

// ---- what a selection shows

TEST_F(OmrSettings, ASelectionShowsItsLayoutAndOptions) {
  twoLayouts();
  keep(u"OMRLayoutRG", u"blau");
  keep(u"OMROption0RG", u"1");
  keep(u"OMROption0PageRG", u"eoc");
  show(31, {u"RG"}, [&] {
    EXPECT_EQ(layoutRow(), 2);
    EXPECT_EQ(option(0), "1 Kopie [Seite 1|Seite 2|Letzte Seite]Letzte Seite");
    EXPECT_EQ(option(1), "0 Heftung [Alle Seiten]Alle Seiten-") << "one page alone cannot be chosen";
    EXPECT_EQ(option(2), "-0 Zusatzoption 3 []-");
  });
}

TEST_F(OmrSettings, DifferentLayoutsShowNone) {
  twoLayouts();
  keep(u"OMRLayoutAN", u"Blau");
  keep(u"OMRLayoutAB", u"Gelb");
  keep(u"OMRLayoutLS", u"");
  show(31, {u"AN"}, [&] {
    selectDocuments({0, 1});
    EXPECT_EQ(layoutRow(), -1);
    EXPECT_EQ(option(0), "-0 Zusatzoption 1 []-");
    selectDocuments({2});
    EXPECT_EQ(layoutRow(), 0);
  });
}

TEST_F(OmrSettings, DifferentOptionsShowGreyAndAClickThatLeavesItGreyChangesNothing) {
  twoLayouts();
  for (const StringView kind : {u"AN", u"AB"}) keep(u"OMRLayout" + String(kind), u"Blau");
  keep(u"OMROption0AN", u"1");
  keep(u"OMROption0PageAN", u"1");
  keep(u"OMROption0PageAB", u"2");
  show(31, {u""}, [&] {
    selectDocuments({0, 1});
    EXPECT_EQ(layoutRow(), 2);
    EXPECT_EQ(option(0), "2 Kopie [Seite 1|Seite 2|Letzte Seite]");
    click(u"chkOption(1)");
    click(u"btnSave");
  });
  EXPECT_EQ(kept(u"OMROption0AN"), u"1");
  EXPECT_EQ(kept(u"OMROption0AB"), u"0");
  EXPECT_EQ(kept(u"OMROption0PageAN"), u"1");
  EXPECT_EQ(kept(u"OMROption0PageAB"), u"2");
  EXPECT_EQ(kept(u"OMROption1AN"), u"1");
  EXPECT_EQ(kept(u"OMROption1AB"), u"1");
}

TEST_F(OmrSettings, ALaterKindThatAgreesDoesNotUndoTheGrey) {
  twoLayouts();
  for (const StringView kind : {u"AN", u"AB", u"LS"}) keep(u"OMRLayout" + String(kind), u"Blau");
  keep(u"OMROption0AB", u"1");
  keep(u"OMROption0PageAB", u"2");
  show(31, {u""}, [&] {
    selectDocuments({0, 1, 2});
    EXPECT_EQ(option(0), "2 Kopie [Seite 1|Seite 2|Letzte Seite]");
  });
}

TEST_F(OmrSettings, WithoutASelectionTheOptionsAreGreyAndNothingIsTaken) {
  twoLayouts();
  keep(u"OMRLayoutAN", u"Blau");
  show(31, {u"AN"}, [&] {
    ASSERT_TRUE(documents().userPressed(0, shift::Ctrl));
    form().mouseReleased(documents());
    EXPECT_EQ(documents().SelCount(), 0);
    EXPECT_EQ(layoutRow(), -1);
    EXPECT_EQ(option(0), "-2 Zusatzoption 1 []-");
    choose(u"cboLayout", 3);
    EXPECT_EQ(option(0), "0 Beileger [Alle Seiten|Erste Seite]Alle Seiten");
    click(u"btnOK");
  });
  EXPECT_EQ(kept(u"OMRLayoutAN"), u"Blau");
}

TEST_F(OmrSettings, FlagsAndPagesAreComparedSeparately) {
  twoLayouts();
  for (const StringView kind : {u"AN", u"AB"}) keep(u"OMRLayout" + String(kind), u"Blau");
  keep(u"OMROption0AN", u"1");
  keep(u"OMROption0PageAN", u"2");
  keep(u"OMROption0PageAB", u"2");
  show(31, {u""}, [&] {
    selectDocuments({0, 1});
    EXPECT_EQ(option(0), "2 Kopie [Seite 1|Seite 2|Letzte Seite]Seite 2");
  });
}

TEST_F(OmrSettings, PagesAgreeInAnyCase) {
  twoLayouts();
  for (const StringView kind : {u"AN", u"AB"}) keep(u"OMRLayout" + String(kind), u"Blau");
  keep(u"OMROption0PageAN", u"EOC");
  keep(u"OMROption0PageAB", u"eoc");
  show(31, {u""}, [&] {
    selectDocuments({0, 1});
    EXPECT_EQ(option(0), "0 Kopie [Seite 1|Seite 2|Letzte Seite]Letzte Seite");
  });
}

TEST_F(OmrSettings, TheSameLayoutAgainLeavesTheOptions) {
  twoLayouts();
  show(31, {u"RG"}, [&] {
    choose(u"cboLayout", 2);
    choose(u"cboOption(0)", 1);
    form().Get<ComboBox>(u"cboLayout").Click.raise();
    EXPECT_EQ(option(0), "1 Kopie [Seite 1|Seite 2|Letzte Seite]Seite 2");
  });
}

TEST_F(OmrSettings, ALayoutWhoseFileIsGoneShowsNoRowAndIsSavedBack) {
  keep(u"OMRLayoutRG", u"Verloren");
  keep(u"OMROption0RG", u"1");
  show(31, {u"RG"}, [&] {
    EXPECT_EQ(layoutRow(), -1);
    EXPECT_FALSE(enabled(u"chkOption(0)"));
    click(u"btnOK");
  });
  EXPECT_EQ(kept(u"OMRLayoutRG"), u"Verloren");
  EXPECT_EQ(kept(u"OMROption0RG"), u"1");
}

TEST_F(OmrSettings, APageThatTheLayoutLacksShowsNoEntry) {
  twoLayouts();
  keep(u"OMRLayoutRG", u"Blau");
  keep(u"OMROption0PageRG", u"9");
  show(31, {u"RG"}, [&] { EXPECT_EQ(option(0), "0 Kopie [Seite 1|Seite 2|Letzte Seite]"); });
}

// ---- pages of a definition

TEST_F(OmrSettings, PagesAreNumbersAndThreeWords) {
  layout("Test.omr",
         "OptionName0=A\r\nOptionPage0=7,x,EOC\r\nOptionName1=B\r\nOptionPage1=1.5, 2a ,0,-3,boc\r\n"
         "OptionName2=C\r\nOptionPage2=,,\r\nOptionName3=D\r\nOptionPage3= all , 007\r\n");
  keep(u"OMRLayoutAN", u"Test");
  show(31, {u"AN"}, [&] {
    EXPECT_EQ(option(0), "0 A [Seite 7|Letzte Seite]Seite 7");
    EXPECT_EQ(option(1), "0 B [Seite 1,5|Erste Seite]Seite 1,5");
    EXPECT_EQ(option(2), "0 C [Alle Seiten]Alle Seiten-");
    EXPECT_EQ(option(3), "0 D [Alle Seiten|Seite 7]Alle Seiten");
    click(u"chkOption(1)");
    click(u"chkOption(3)");
    choose(u"cboOption(3)", 1);
    click(u"btnOK");
  });
  EXPECT_EQ(kept(u"OMROption1PageAN"), u"1.5") << "the code is stored as the layout has it";
  EXPECT_EQ(kept(u"OMROption3PageAN"), u"007");
}

TEST_F(OmrSettings, ADefinitionWithMorePagesThanTheTableHoldsIsCut) {
  std::string pages;
  for (int page = 1; page <= 150; ++page) pages += std::to_string(page) + ",";
  layout("Test.omr", "OptionName0=A\r\nOptionPage0=" + pages + "\r\n");
  keep(u"OMRLayoutAN", u"Test");
  show(31, {u"AN"}, [&] { EXPECT_EQ(number(u"cboOption(0)", u"ListCount"), 101); });
}

// ---- changes

TEST_F(OmrSettings, AnotherLayoutStartsWithAllOptionsOffOnTheirFirstPage) {
  twoLayouts();
  keep(u"OMRLayoutRG", u"Blau");
  keep(u"OMROption0RG", u"1");
  keep(u"OMROption0PageRG", u"2");
  show(31, {u"RG"}, [&] {
    choose(u"cboLayout", 3);
    EXPECT_EQ(option(0), "0 Beileger [Alle Seiten|Erste Seite]Alle Seiten");
    click(u"btnSave");
  });
  EXPECT_EQ(kept(u"OMRLayoutRG"), u"Gelb");
  EXPECT_EQ(kept(u"OMROption0RG"), u"0");
  EXPECT_EQ(kept(u"OMROption0PageRG"), u"ALL");
}

TEST_F(OmrSettings, ChoosingAPageTicksTheOption) {
  twoLayouts();
  keep(u"OMRLayoutRG", u"Blau");
  show(31, {u"RG"}, [&] {
    choose(u"cboOption(0)", 1);
    EXPECT_EQ(option(0), "1 Kopie [Seite 1|Seite 2|Letzte Seite]Seite 2");
    click(u"btnOK");
  });
  EXPECT_EQ(kept(u"OMROption0RG"), u"1");
  EXPECT_EQ(kept(u"OMROption0PageRG"), u"2");
}

TEST_F(OmrSettings, ChoosingThePageThatIsShownTicksTheOptionToo) {
  twoLayouts();
  keep(u"OMRLayoutRG", u"Gelb");
  show(31, {u"RG"}, [&] {
    EXPECT_EQ(option(0), "0 Beileger [Alle Seiten|Erste Seite]Alle Seiten");
    choose(u"cboOption(0)", 0);
    EXPECT_EQ(option(0), "1 Beileger [Alle Seiten|Erste Seite]Alle Seiten");
    click(u"btnOK");
  });
  EXPECT_EQ(kept(u"OMROption0RG"), u"1");
  EXPECT_EQ(kept(u"OMROption0PageRG"), u"ALL");
}

TEST_F(OmrSettings, TakingThePageThatIsShownTicksTheOptionToo) {
  twoLayouts();
  keep(u"OMRLayoutRG", u"Gelb");
  show(31, {u"RG"}, [&] {
    EXPECT_EQ(option(0), "0 Beileger [Alle Seiten|Erste Seite]Alle Seiten");
    choose(u"cboOption(0)", 0);
    EXPECT_EQ(option(0), "1 Beileger [Alle Seiten|Erste Seite]Alle Seiten");
    click(u"btnOK");
  });
  EXPECT_EQ(kept(u"OMROption0RG"), u"1");
  EXPECT_EQ(kept(u"OMROption0PageRG"), u"ALL");
}

TEST_F(OmrSettings, TickingAnOptionWithoutAPageTakesItsFirst) {
  twoLayouts();
  for (const StringView kind : {u"AN", u"AB"}) keep(u"OMRLayout" + String(kind), u"Blau");
  keep(u"OMROption0PageAN", u"1");
  keep(u"OMROption0PageAB", u"2");
  show(31, {u""}, [&] {
    selectDocuments({0, 1});
    click(u"chkOption(0)");
    EXPECT_EQ(option(0), "1 Kopie [Seite 1|Seite 2|Letzte Seite]Seite 1");
    click(u"btnOK");
  });
  EXPECT_EQ(kept(u"OMROption0PageAB"), u"1");
}

TEST_F(OmrSettings, WithOnePageTheTickedOptionStoresIt) {
  twoLayouts();
  keep(u"OMRLayoutRG", u"Blau");
  show(31, {u"RG"}, [&] {
    click(u"chkOption(1)");
    click(u"btnOK");
  });
  EXPECT_EQ(kept(u"OMROption1RG"), u"1");
  EXPECT_EQ(kept(u"OMROption1PageRG"), u"ALL");
}

TEST_F(OmrSettings, SelectAllEditsAllKindsTogether) {
  twoLayouts();
  show(31, {u"VG"}, [&] {
    click(u"btnSelectAll");
    EXPECT_EQ(documents().SelCount(), 8);
    EXPECT_EQ(documents().ListIndex(), 0);
    EXPECT_EQ(layoutRow(), 1);
    choose(u"cboLayout", 2);
    click(u"btnOK");
  });
  for (const StringView kind : {u"AN", u"AB", u"LS", u"RG", u"VR", u"GS", u"VG", u"BS"})
    EXPECT_EQ(kept(u"OMRLayout" + String(kind)), u"Blau");
}

TEST_F(OmrSettings, SelectAllShowsTheSelectionOnce) {
  twoLayouts();
  keep(u"OMRLayoutAN", u"Blau");
  show(31, {u""}, [&] {
    int shown = 0;
    form().Get<ComboBox>(u"cboLayout").Click = [&] { ++shown; };
    // Row by row the layout of the first kind would come and go.
    click(u"btnSelectAll");
    EXPECT_EQ(shown, 0);
    EXPECT_EQ(layoutRow(), -1);
  });
}

TEST_F(OmrSettings, AfterSelectAllAClickInTheListShowsTheSelectionAgain) {
  twoLayouts();
  keep(u"OMRLayoutAN", u"Blau");
  show(31, {u""}, [&] {
    click(u"btnSelectAll");
    EXPECT_EQ(layoutRow(), -1);
    selectDocuments({0});
    EXPECT_EQ(layoutRow(), 2);
  });
}

}  // namespace
}  // namespace zqn::testing
