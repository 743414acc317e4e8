// SPDX-License-Identifier: MIT
//
// What the designs of the sales dialogs say beyond what is seen at once: the order of Tab, tool tips, limits,
// the buttons of Esc and Enter, hidden controls, colours, pictures.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/headless/headless_desktop.h"
#include "forms/command_button.h"
#include "forms/date_input.h"
#include "forms/form.h"
#include "forms/menu.h"
#include "forms/picture_box.h"
#include "forms/timer.h"
#include "forms/zq_combo.h"
#include "frontend/kinds.h"
#include "testing/runtime.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAreArray;
using Names = std::vector<String>;

constexpr std::uint32_t darkBlue = 0x00800000;

class SalesDesigns : public ::testing::Test {
 protected:
  const Form& form(std::int32_t kind) {
    auto& form = forms[kind];
    if (!form) form = makeForm(kind);
    return *form;
  }
  Control& control(std::int32_t kind, StringView name) { return *form(kind).findControl(name); }
  Variant get(std::int32_t kind, StringView name, StringView property) {
    return control(kind, name).Property(property);
  }
  /// Left, top, width, height.
  std::vector<int> place(std::int32_t kind, StringView name) {
    const Control& there = control(kind, name);
    return {there.Left(), there.Top(), there.Width(), there.Height()};
  }

  headless::HeadlessDesktop desktop;
  Desktop::Scope scope{desktop};
  std::map<std::int32_t, std::unique_ptr<Form>> forms;
};

TEST_F(SalesDesigns, NumberTheirControlsInTheOrderOfTab) {
  const std::map<std::int32_t, Names> orders{
      {1,
       {u"TDBList1",
        u"txtSchluessel",
        u"Schluessel",
        u"lblKurztext",
        u"txtKurztext",
        u"Label1",
        u"ZahlungsartFibu",
        u"lblLangtext",
        u"txtLangtext",
        u"lblWoDrucken",
        u"tglDruckAN",
        u"tglDruckAB",
        u"tglDruckLS",
        u"tglDruckRG",
        u"tglDruckGS",
        u"tglDruckAF",
        u"tglDruckBS",
        u"tglDruckLM",
        u"chkDefaultZahlungsbedSchl",
        u"DefaultZahlungsbedSchl",
        u"chkOhneDruckSkonto",
        u"chkOhneFibu",
        u"btnOK",
        u"btnCancel",
        u"btnNew",
        u"btnDelete",
        u"lblSk(2)",
        u"lblSkTage(2)",
        u"lblPercent(2)"}},
      {16,
       {u"TDBList1",
        u"txtSchluessel",
        u"Schluessel",
        u"txtKurztext",
        u"Langtext",
        u"chkGlobalePreisliste",
        u"lblGueltivVon",
        u"txtDatumVon",
        u"lblGueltigBis",
        u"txtDatumBis",
        u"lblGueltigFuer",
        u"optGueltigFuer(0)",
        u"optGueltigFuer(1)",
        u"optGueltigFuer(2)",
        u"cboPreisliste",
        u"txtKundennummer",
        u"btnKundenauskunft",
        u"txtKunBez",
        u"btnOK",
        u"btnCancel",
        u"btnNew",
        u"btnDelete"}},
      {29,
       {u"optAuswahl(0)", u"optAuswahl(1)", u"optAuswahl(2)", u"MSFlexGrid1", u"Angebotsnummer", u"btnOK",
        u"btnCancel", u"picNew", u"picOpen", u"Picture1", u"Label1", u"btnAngebotsAuskunft", u"btnDelete"}},
      {30, {u"Label1", u"VorlagenName", u"btnCancel", u"btnOK", u"picOpen"}},
      {31,
       {u"lstBelegarten", u"cboLayout", u"chkOption(0)", u"cboOption(0)", u"chkOption(1)", u"cboOption(1)",
        u"chkOption(2)", u"cboOption(2)", u"chkOption(3)", u"cboOption(3)", u"chkOption(4)", u"cboOption(4)",
        u"btnCancel", u"btnOK", u"btnSave", u"btnSelectAll"}},
  };
  for (const auto& [kind, order] : orders) {
    for (std::size_t i = 0; i < order.size(); ++i) {
      SCOPED_TRACE(toUtf8(order[i]) + " of kind " + std::to_string(kind));
      EXPECT_EQ(get(kind, order[i], u"TabIndex"), Variant(static_cast<std::int32_t>(i)));
    }
  }
}

TEST_F(SalesDesigns, LimitWhatCanBeTyped) {
  const std::tuple<std::int32_t, StringView, std::int32_t> limits[] = {
      {1, u"Schluessel", 3},      {1, u"txtKurztext", 30},  {1, u"txtLangtext", 0},
      {16, u"Schluessel", 5},     {16, u"Langtext", 30},    {16, u"txtKundennummer", 10},
      {29, u"Angebotsnummer", 0}, {30, u"VorlagenName", 50}};
  for (const auto& [kind, name, limit] : limits)
    EXPECT_EQ(get(kind, name, u"MaxLength"), Variant(limit)) << toUtf8(name) << " of kind " << kind;
  EXPECT_TRUE(control(1, u"txtLangtext").design().other.MultiLine);
  EXPECT_TRUE(control(16, u"txtKunBez").design().other.Locked);
}

TEST_F(SalesDesigns, NameTheDocumentsOfTheSalesSideOnTheTogglesOfBoth) {
  const std::pair<StringView, StringView> tips[] = {
      {u"tglDruckAN", u"Text wird auf Angebot gedruckt"},
      {u"tglDruckAB", u"Text wird auf Auftragsbestätigung gedruckt"},
      {u"tglDruckLS", u"Text wird auf Lieferschein gedruckt"},
      {u"tglDruckRG", u"Text wird auf Rechnung gedruckt"},
      {u"tglDruckGS", u"Text wird auf Gutschrift gedruckt"},
      {u"tglDruckAF", u"Text wird auf Lieferschein gedruckt"},
      {u"tglDruckBS", u"Text wird auf Rechnung gedruckt"},
      {u"tglDruckLM", u"Text wird auf Gutschrift gedruckt"}};
  for (const auto& [name, tip] : tips) EXPECT_EQ(get(1, name, u"ToolTipText"), Variant(tip));
  EXPECT_EQ(place(1, u"tglDruckAF"), place(1, u"tglDruckLS"));
  EXPECT_EQ(place(1, u"tglDruckBS"), place(1, u"tglDruckRG"));
  EXPECT_EQ(place(1, u"tglDruckLM"), place(1, u"tglDruckGS"));
}

TEST_F(SalesDesigns, HaveTheirButtonsForEscAndEnter) {
  struct Buttons {
    std::int32_t kind;
    Names cancel, byDefault;
  };
  const Buttons all[] = {{1, {u"btnCancel"}, {}},
                         {16, {u"btnCancel"}, {}},
                         {29, {u"btnDelete"}, {u"btnOK"}},
                         {30, {u"btnCancel"}, {u"btnOK"}},
                         {31, {}, {}}};
  for (const Buttons& expected : all) {
    Names cancel, byDefault;
    for (const auto& each : form(expected.kind).controls()) {
      const auto* button = dynamic_cast<const CommandButton*>(each.get());
      if (button == nullptr) continue;
      if (button->Cancel()) cancel.push_back(button->Name());
      if (button->Default()) byDefault.push_back(button->Name());
    }
    EXPECT_EQ(cancel, expected.cancel) << expected.kind;
    EXPECT_EQ(byDefault, expected.byDefault) << expected.kind;
  }
}

TEST_F(SalesDesigns, HideWhatNoCodeTouches) {
  const std::tuple<StringView, StringView, std::vector<int>> labels[] = {
      {u"lblSk(2)", u"3:", {2220, 3990, 165, 255}},
      {u"lblSkTage(2)", u"Tage", {3000, 3990, 465, 255}},
      {u"lblPercent(2)", u"%", {4230, 3990, 165, 255}}};
  for (const auto& [name, caption, there] : labels) {
    EXPECT_FALSE(control(1, name).Visible());
    EXPECT_EQ(control(1, name).content(), caption);
    EXPECT_EQ(place(1, name), there);
  }
  EXPECT_EQ(control(29, u"mnuPopup").content(), u"Popup");
  EXPECT_FALSE(control(29, u"mnuPopup").Visible());
  EXPECT_EQ(control(29, u"mnuDelete").content(), u"&Aus Vorlagen entfernen");
}

TEST_F(SalesDesigns, StartWithTheFirstChoiceAndWithNothingToRemove) {
  for (const auto& [kind, group] : {std::pair{16, u"optGueltigFuer"}, {29, u"optAuswahl"}}) {
    EXPECT_EQ(get(kind, String(group) + u"(0)", u"Value"), Variant(true));
    EXPECT_EQ(get(kind, String(group) + u"(1)", u"Value"), Variant(false));
    EXPECT_EQ(get(kind, String(group) + u"(2)", u"Value"), Variant(false));
  }
  EXPECT_FALSE(control(29, u"optAuswahl(1)").Enabled());
  EXPECT_FALSE(control(29, u"btnDelete").Enabled());
  EXPECT_TRUE(control(29, u"MSFlexGrid1").Enabled());
}

TEST_F(SalesDesigns, TellTheirCombosWhatToOffer) {
  const auto& terms = form(1).Get<zqCombo>(u"DefaultZahlungsbedSchl");
  EXPECT_EQ(terms.design().other.rowsourcetype, 7);
  EXPECT_EQ(terms.maxrows(), 5);
  EXPECT_TRUE(terms.allowedit());
  EXPECT_FALSE(terms.Enabled());
  EXPECT_FALSE(terms.EntryEnabled());
  const auto& lists = form(16).Get<zqCombo>(u"cboPreisliste");
  EXPECT_EQ(lists.design().other.rowsourcetype, 9);
  EXPECT_EQ(lists.maxrows(), 4);
  EXPECT_TRUE(lists.Enabled());
}

TEST_F(SalesDesigns, WriteKeysAndNumbersInDarkBlue) {
  for (const StringView name : {u"Schluessel", u"Langtext", u"txtKundennummer"})
    EXPECT_EQ(control(16, name).ForeColor(), darkBlue) << toUtf8(name);
  EXPECT_EQ(control(29, u"Angebotsnummer").ForeColor(), darkBlue);
  EXPECT_EQ(control(16, u"txtKunBez").BackColor(), colour::ButtonFace) << "it looks like a button";
}

TEST_F(SalesDesigns, ShowAMagnifierWhereARecordCanBeLookedUp) {
  for (const auto& [kind, name] : {std::pair{16, u"btnKundenauskunft"}, {29, u"btnAngebotsAuskunft"}}) {
    const Picture* picture = form(kind).Get<CommandButton>(name).Picture();
    ASSERT_NE(picture, nullptr) << kind;
    EXPECT_EQ(StringView(picture->name), u"search");
    EXPECT_EQ(picture->width, 8);
    EXPECT_EQ(picture->height, 8);
  }
}

TEST_F(SalesDesigns, SetAPictureBeforeEachWayToAnOffer) {
  const std::pair<StringView, StringView> pairs[] = {
      {u"picNew", u"optAuswahl(0)"}, {u"picOpen", u"optAuswahl(1)"}, {u"Picture1", u"optAuswahl(2)"}};
  for (const auto& [name, option] : pairs) {
    const Picture* picture = form(29).Get<PictureBox>(name).Picture();
    ASSERT_NE(picture, nullptr) << toUtf8(name);
    EXPECT_EQ(picture->width, 32);
    EXPECT_EQ(picture->height, 32);
    const Control& box = control(29, name);
    const Control& way = control(29, option);
    EXPECT_LE(box.Left() + box.Width(), way.Left());
    EXPECT_LT(box.Top(), way.Top() + way.Height());
    EXPECT_GT(box.Top() + box.Height(), way.Top());
  }
}

TEST_F(SalesDesigns, RunATimerAndDrawALineFourteenTimes) {
  EXPECT_EQ(form(31).Get<Timer>(u"Timer1").Interval(), 10);
  EXPECT_TRUE(control(31, u"Timer1").Enabled());
  for (int i = 0; i < 14; ++i) {
    const Control& line = form(31).control(u"Shape1", i);
    EXPECT_EQ(line.Left(), 6000);
    EXPECT_EQ(line.Top(), 3510 + 150 * i);
  }
  EXPECT_EQ(form(31).findControl(u"Shape1(14)"), nullptr);
}

TEST_F(SalesDesigns, HaveTheirCaptionsAndTheSizeOfThePaymentTypes) {
  const std::pair<std::int32_t, StringView> captions[] = {{1, u"Zahlungsarten"},
                                                          {2, u"Zahlungsarten"},
                                                          {16, u"Preislisten"},
                                                          {29, u"Angebot erstellen"},
                                                          {30, u"Angebot als Vorlage speichern"},
                                                          {31, u"OMR/OME-Einstellungen"}};
  for (const auto& [kind, caption] : captions) EXPECT_EQ(form(kind).Caption(), caption);
  EXPECT_EQ(form(1).ScaleWidth(), 6420);
  EXPECT_EQ(form(1).ScaleHeight(), 6435);
}

}  // namespace
}  // namespace zqn::testing
