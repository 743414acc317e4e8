// SPDX-License-Identifier: MIT
#include "sales/payment_types/zahlungsarten.h"

#include <array>

#include "runtime/convert.h"

namespace zqn {

using basGeneral::PrintMarks;

namespace {

namespace plan {

using enum ControlKind;

constexpr const char16_t* onOffer = u"Text wird auf Angebot gedruckt";
constexpr const char16_t* onConfirmation = u"Text wird auf Auftragsbestätigung gedruckt";
constexpr const char16_t* onDelivery = u"Text wird auf Lieferschein gedruckt";
constexpr const char16_t* onInvoice = u"Text wird auf Rechnung gedruckt";
constexpr const char16_t* onCreditNote = u"Text wird auf Gutschrift gedruckt";

// The toggles of the purchase side stand where some of the sales side do, and have their tips.
// clang-format off
constexpr ControlDesign roster[] = {
    {u"TDBList1",      TDBList,      u"",             120,  120, 6135, 2415},
    {u"txtSchluessel", Label,        u"Status",       120, 2640,  855,  255},
    {u"Schluessel",    TextBox,      u"",             120, 2880, 1455,  315, {.MaxLength = 3}},
    {u"lblKurztext",   Label,        u"Kurztext",    1680, 2640,  855,  255},
    {u"txtKurztext",   TextBox,      u"",            1680, 2880, 3855,  315, {.MaxLength = 30}},
    {u"Label1",        Label,        u"KZ Fibu",     5640, 2640,  645,  255},
    {u"ZahlungsartFibu", ComboBox,   u"",            5610, 2880,  705,  315, {.allowedit = true}},
    {u"lblLangtext",   Label,        u"Langtext",     120, 3420,  855,  255},
    {u"txtLangtext",   TextBox,      u"",             120, 3660, 6195,  713, {.MultiLine = true}},
    {u"lblWoDrucken",  Label,        u"Wo Drucken?", 3045, 3390, 1065,  240, {.Alignment = Alignment::Right}},
    {u"tglDruckAN",    ToggleButton, u"AN",          4320, 3270,  405,  375, {.Overlaps = true, .ToolTipText = onOffer}},
    {u"tglDruckAB",    ToggleButton, u"AB",          4725, 3270,  405,  375, {.Overlaps = true, .ToolTipText = onConfirmation}},
    {u"tglDruckLS",    ToggleButton, u"LS",          5130, 3270,  405,  375, {.Overlaps = true, .ToolTipText = onDelivery}},
    {u"tglDruckRG",    ToggleButton, u"RG",          5535, 3270,  405,  375, {.Overlaps = true, .ToolTipText = onInvoice}},
    {u"tglDruckGS",    ToggleButton, u"GS",          5940, 3270,  405,  375, {.Overlaps = true, .ToolTipText = onCreditNote}},
    {u"tglDruckAF",    ToggleButton, u"AF",          5130, 3270,  405,  375, {.Overlaps = true, .ToolTipText = onDelivery}},
    {u"tglDruckBS",    ToggleButton, u"BS",          5535, 3270,  405,  375, {.Overlaps = true, .ToolTipText = onInvoice}},
    {u"tglDruckLM",    ToggleButton, u"LM",          5940, 3270,  405,  375, {.Overlaps = true, .ToolTipText = onCreditNote}},
    {u"chkDefaultZahlungsbedSchl", CheckBox, u"Standard-Zahlungsbedingungen bei dieser Zahlungsart:",
                                                      180, 4500, 4395,  255},
    {u"DefaultZahlungsbedSchl", zqCombo, u"",         450, 4770, 4155,  345,
     {.rowsourcetype = 7, .maxrows = 5, .allowedit = true, .Enabled = false}},
    {u"chkOhneDruckSkonto", CheckBox, u"Andruck Zahlungsbedingungen (Skonto) bei dieser Zahlungsart unterdrücken",
                                                      180, 5160, 6045,  255},
    {u"chkOhneFibu",   CheckBox,     u"Ohne Fibu-Übergabe (z.B. Barverkauf)",
                                                      180, 5460, 3165,  255},
    {u"btnOK",         CommandButton, u"Speichern",  3705, 6015, 1215,  315},
    {u"btnCancel",     CommandButton, u"Schließen",  5025, 6015, 1215,  315, {.Cancel = true}},
    {u"btnNew",        CommandButton, u"Neu",         105, 6015, 1215,  315},
    {u"btnDelete",     CommandButton, u"Löschen",    1425, 6015, 1215,  315},
    {u"lblSk(2)",      Label,        u"3:",          2220, 3990,  165,  255, {.Visible = false}},
    {u"lblSkTage(2)",  Label,        u"Tage",        3000, 3990,  465,  255, {.Visible = false}},
    {u"lblPercent(2)", Label,        u"%",           4230, 3990,  165,  255, {.Visible = false}},
};
// clang-format on

constexpr FormDesign form{u"frmZahlungsarten", u"Zahlungsarten", 6420, 6435, roster};

}  // namespace plan

/// A toggle, its mark in the text block, and the side that shows it.
struct Toggle {
  StringView name;
  PrintMarks::Mark PrintMarks::*mark;
  bool purchase;
};

constexpr std::array<Toggle, 8> toggles{{{u"tglDruckAN", &PrintMarks::AN, false},
                                         {u"tglDruckAB", &PrintMarks::AB, false},
                                         {u"tglDruckLS", &PrintMarks::LS, false},
                                         {u"tglDruckRG", &PrintMarks::RG, false},
                                         {u"tglDruckGS", &PrintMarks::GS, false},
                                         {u"tglDruckAF", &PrintMarks::AF, true},
                                         {u"tglDruckBS", &PrintMarks::BS, true},
                                         {u"tglDruckLM", &PrintMarks::LM, true}}};

/// Stored in place of an accounting code: nothing goes to the accounts.
constexpr StringView withoutTransfer = u"-";

}  // namespace

struct frmZahlungsarten::Side {
  StringView table, textKind;
  bool purchase;
};

frmZahlungsarten::frmZahlungsarten() : CatalogueForm(plan::form, {u"Zahlungsarten", u"Zahlungsart"}) {
  txtKurztext.GotFocus = [this] { SelectActiveText(); };
  chkDefaultZahlungsbedSchl.Click = [this] {
    DefaultZahlungsbedSchl.EntryEnabled(chkDefaultZahlungsbedSchl.Value() == 1);
  };
  chkOhneFibu.Click = [this] { ZahlungsartFibu.Enabled(chkOhneFibu.Value() != 1); };
}

const frmZahlungsarten::Side& frmZahlungsarten::side() const {
  static constexpr Side sales{u"Zahlungsarten", u"ZAA", false};
  static constexpr Side purchase{u"ZahlungsartenEK", u"EZA", true};
  return UCase(Bereich) == u"EK" ? purchase : sales;
}

void frmZahlungsarten::beforeList() {
  ResumeNext step;
  step([&] { DefaultZahlungsbedSchl.Connection(Connection); });
  step([&] { ZahlungsartFibu.AddItem(u"E"); });
}

void frmZahlungsarten::beforeShow() {
  for (const Toggle& each : toggles) {
    if (each.purchase != side().purchase) Get<ToggleButton>(each.name).Visible(false);
  }
}

// ---- statements

ado::sql::Text frmZahlungsarten::listStatement() const {
  return u"SELECT Zahlungsart, Kurztext FROM " + String(side().table) +
         u" Where Zahlungsart<>'-' ORDER BY Zahlungsart";
}

ado::sql::Text frmZahlungsarten::readStatement() const {
  return u"SELECT * FROM " + String(side().table) + u" WHERE Zahlungsart =" +
         ado::sql::value(Schluessel.Text());
}

ado::sql::Text frmZahlungsarten::deleteStatement() const {
  return u"DELETE FROM " + String(side().table) + u" WHERE Zahlungsart =" +
         ado::sql::value(Schluessel.Text());
}

/// The language-independent main text of the present key.
ado::sql::Text frmZahlungsarten::textBlock(StringView front) const {
  using ado::sql::value;
  return String(front) + value(side().textKind) + u" AND TextNummer =" + value(Schluessel.Text()) +
         u" AND ZusatztextNummer =" + value(basGeneral::mainText) + u" AND SprachKZ =" +
         value(basGeneral::languageIndependent);
}

// ---- fields

void frmZahlungsarten::ClearFields() {
  txtKurztext.Text(u"");
  ZahlungsartFibu.Text(u"");
  txtLangtext.Text(u"");
  // Printed everywhere but on credit notes.
  setToggles(
      {.AN = true, .AB = true, .LS = true, .RG = true, .GS = false, .AF = true, .BS = true, .LM = true});
  chkDefaultZahlungsbedSchl.Value(0);
  DefaultZahlungsbedSchl.Value(Null);
  chkOhneDruckSkonto.Value(0);
  chkOhneFibu.Value(0);
}

void frmZahlungsarten::readFields(ado::Recordset& rs) {
  Schluessel.Text(concatenate(rs.Fields(u"Zahlungsart").Value()));
  txtKurztext.Text(concatenate(rs.Fields(u"Kurztext").Value()));
  const String code = concatenate(rs.Fields(u"ZahlungsartFibu").Value());
  const bool transferred = Trim(code) != withoutTransfer;
  chkOhneFibu.Value(transferred ? 0 : 1);
  ZahlungsartFibu.Text(transferred ? StringView(code) : StringView());
  const Variant terms = rs.Fields(u"DefaultZahlungsbedSchl").Value();
  const bool hasTerms = !Trim(concatenate(terms)).empty();
  chkDefaultZahlungsbedSchl.Value(hasTerms ? 1 : 0);
  DefaultZahlungsbedSchl.Value(hasTerms ? terms : Variant(Null));
  chkOhneDruckSkonto.Value(Val(concatenate(rs.Fields(u"OhneDruckSkonto").Value())) != 0 ? 1 : 0);
  readTextBlock();
}

void frmZahlungsarten::readTextBlock() {
  String number = Schluessel.Text();
  basGeneral::TextBlock block;
  basGeneral::ReadTextBlock(Connection, side().textKind, number, u"", u"", block);
  txtLangtext.Text(block.Langtext);
  setToggles(basGeneral::SplitWoDrucken(block.WoDrucken));
}

void frmZahlungsarten::setToggles(const PrintMarks& marks) {
  for (const Toggle& each : toggles) Get<ToggleButton>(each.name).Value((marks.*each.mark).value_or(false));
}

/// What is ticked on this side; the other side's places stay clear.
PrintMarks frmZahlungsarten::marks() const {
  PrintMarks marks;
  for (const Toggle& each : toggles)
    marks.*each.mark = each.purchase == side().purchase && Get<ToggleButton>(each.name).Value();
  return marks;
}

// ---- writing and deleting

void frmZahlungsarten::writeFields(ResumeNext& step, ado::Recordset& rs) {
  const bool transferred = chkOhneFibu.Value() != 1;
  step([&] { rs.Fields(u"Zahlungsart").Value(Schluessel.Text()); });
  step([&] { rs.Fields(u"Kurztext").Value(NullIfEmpty(txtKurztext.Text())); });
  step([&] { rs.Fields(u"OhneFibu").Value(!transferred); });
  step([&] {
    const Variant code = transferred ? NullIfEmpty(ZahlungsartFibu.Text()) : Variant(withoutTransfer);
    rs.Fields(u"ZahlungsartFibu").Value(code);
  });
  step([&] {
    const bool hasTerms = chkDefaultZahlungsbedSchl.Value() == 1;
    const Variant terms = hasTerms ? NullIfEmpty(DefaultZahlungsbedSchl.Value()) : Variant(Null);
    rs.Fields(u"DefaultZahlungsbedSchl").Value(terms);
  });
  step([&] { rs.Fields(u"OhneDruckSkonto").Value(std::int32_t{chkOhneDruckSkonto.Value() == 1 ? -1 : 0}); });
}

void frmZahlungsarten::WriteRecord() {
  CatalogueForm::WriteRecord();
  writeTextBlock();
}

void frmZahlungsarten::writeTextBlock() {
  ResumeNext step;
  ado::Recordset rs;
  const auto set = [&](StringView field, const Variant& value) {
    step([&] { rs.Fields(field).Value(value); });
  };
  step([&] {
    rs.Open(textBlock(u"Select * From Textbausteine Where Textart ="), Connection, ado::adOpenKeyset,
            ado::adLockOptimistic);
  });
  if (step.test([&] { return rs.IsEOF(); })) {
    step([&] { rs.AddNew(); });
    set(u"Textart", side().textKind);
    set(u"TextNummer", Schluessel.Text());
    set(u"ZusatztextNummer", basGeneral::mainText);
    set(u"SprachKZ", basGeneral::languageIndependent);
  }
  set(u"Kurztext", txtKurztext.Text());
  set(u"Langtext", txtLangtext.Text());
  set(u"Schriftart", u"Arial");
  set(u"Schriftgröße", std::int32_t{10});
  set(u"Schriftstil", u"---L");
  set(u"WoDrucken", basGeneral::BuildWoDrucken(marks()));
  step([&] { rs.Update(); });
  step([&] { rs.Close(); });
}

void frmZahlungsarten::DeleteRecord() {
  Connection->Execute(deleteStatement());
  Connection->Execute(textBlock(u"DELETE FROM Textbausteine Where Textart ="));
}

}  // namespace zqn
