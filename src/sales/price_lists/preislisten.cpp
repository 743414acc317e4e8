// SPDX-License-Identifier: MIT
#include "sales/price_lists/preislisten.h"

#include "forms/message_box.h"
#include "runtime/convert.h"
#include "sales/basics/ask_auskunft.h"
#include "sales/basics/pictures.h"

namespace zqn {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"TDBList1",          TDBList,       u"",                            120,  120, 6135, 2415},
    {u"txtSchluessel",     Label,         u"Preisliste",                  120, 2640,  855,  255},
    {u"Schluessel",        TextBox,       u"",                            120, 2880, 1395,  285, {.MaxLength = 5}},
    {u"txtKurztext",       Label,         u"Bezeichnung",                1680, 2640, 1275,  255},
    {u"Langtext",          TextBox,       u"",                           1680, 2880, 3945,  285, {.MaxLength = 30}},
    {u"chkGlobalePreisliste", CheckBox,   u"Aktionspreisliste",           120, 3300, 3885,  315},
    {u"lblGueltivVon",     Label,         u"gültig von:",                 390, 3675,  825,  240},
    {u"txtDatumVon",       DateInput,     u"",                           1260, 3630, 1185,  315},
    {u"lblGueltigBis",     Label,         u"bis:",                       2520, 3690,  330,  240},
    {u"txtDatumBis",       DateInput,     u"",                           2880, 3645, 1185,  315},
    {u"lblGueltigFuer",    Label,         u"gültig für:",                 390, 3960,  825,  270},
    {u"optGueltigFuer(0)", OptionButton,  u"Alle Kunden",                 630, 4230, 2115,  285, {.Value = true}},
    {u"optGueltigFuer(1)", OptionButton,  u"Alle Kunden mit Preisliste",  630, 4590, 2115,  285},
    {u"optGueltigFuer(2)", OptionButton,  u"nur für Kunde",               630, 4950, 1305,  285},
    {u"cboPreisliste",     zqCombo,       u"",                           2790, 4575, 3465,  330, {.rowsourcetype = 9, .maxrows = 4}},
    {u"txtKundennummer",   TextBox,       u"",                           1950, 4950, 1005,  285, {.MaxLength = 10}},
    {u"btnKundenauskunft", CommandButton, u"",                           2970, 4965,  225,  285, {.ToolTipText = u"Kundenauskunft (F4)"}},
    {u"txtKunBez",         TextBox,       u"",                           3240, 4950, 3015,  285, {.Locked = true}},
    {u"btnOK",             CommandButton, u"Speichern",                  3705, 5475, 1215,  315},
    {u"btnCancel",         CommandButton, u"Schließen",                  5025, 5475, 1215,  315, {.Cancel = true}},
    {u"btnNew",            CommandButton, u"Neu",                         105, 5475, 1215,  315},
    {u"btnDelete",         CommandButton, u"Löschen",                    1425, 5475, 1215,  315},
};
// clang-format on

constexpr FormDesign form{u"frmPreislisten", u"Preislisten", 6420, 5895, roster};

}  // namespace plan

constexpr std::uint32_t darkBlue = 0x00800000;
/// What reading takes for an open start or end, and what writing stores for an open end.
constexpr StringView noStart = u"00000000000000";
constexpr StringView noEnd = u"99991231999999";
constexpr StringView openEnd = u"99999999999999";

}  // namespace

frmPreislisten::frmPreislisten() : CatalogueForm(plan::form, {u"Preislistenkopf", u"Preisliste"}) {
  for (TextBox* each : {&Schluessel, &Langtext, &txtKundennummer}) each->ForeColor(darkBlue);
  txtKunBez.BackColor(colour::ButtonFace);
  btnKundenauskunft.Picture(&pictures::magnifier);
  Langtext.GotFocus = [this] { SelectActiveText(); };
  chkGlobalePreisliste.Click = [this] { UpdateEnabled(); };
  txtDatumVon.ValueChange = [this] { UpdateEnabled(); };
  txtDatumBis.ValueChange = [this] { UpdateEnabled(); };
  for (const int i : {AllCustomers, CustomersOfList, OneCustomer})
    optGueltigFuer(i).Click = [this] { UpdateEnabled(); };
  cboPreisliste.Click = [this] { optGueltigFuer(CustomersOfList).Value(true); };
  txtKundennummer.GotFocus = [this] { txtKundennummer_GotFocus(); };
  txtKundennummer.LostFocus = [this] { txtKundennummer_LostFocus(); };
  txtKundennummer.KeyDown = [this](int& KeyCode, int Shift) {
    if (KeyCode == key::F4 && Shift == shift::None) btnKundenauskunft_Click();
  };
  btnKundenauskunft.Click = [this] { btnKundenauskunft_Click(); };
}

void frmPreislisten::beforeList() { cboPreisliste.Connection(Connection); }

ado::sql::Text frmPreislisten::listStatement() const {
  return u"SELECT Preisliste, Langtext as Bezeichnung FROM Preislistenkopf Where Preisliste<>'-' ORDER BY "
         u"Preisliste";
}

int frmPreislisten::validity() const {
  for (const int i : {AllCustomers, CustomersOfList, OneCustomer}) {
    if (optGueltigFuer(i).Value()) return i;
  }
  return -1;
}

// ---- reading

void frmPreislisten::ClearFields() {
  // The dates stay as they are: they show again when the box is ticked.
  Langtext.Text(u"");
  chkGlobalePreisliste.Value(0);
  optGueltigFuer(AllCustomers).Value(true);
  cboPreisliste.Value(Null);
  txtKundennummer.Text(u"");
  CheckCustomer(u"");
  UpdateEnabled();
}

void frmPreislisten::ReadRecord() {
  ResumeNext step;
  ado::Recordset rs;
  step([&] { rs.Open(readStatement(), Connection, ado::adOpenKeyset, ado::adLockOptimistic); });
  step([&] { cboPreisliste.Value(Null); });
  step([&] { txtKundennummer.Text(u""); });
  if (step.test([&] { return rs.IsEOF(); })) {
    step([&] { ClearFields(); });
  } else {
    readFields(rs);
  }
  step([&] { rs.Close(); });
}

void frmPreislisten::readFields(ado::Recordset& rs) {
  ResumeNext step;
  step([&] { Schluessel.Text(concatenate(rs.Fields(u"Preisliste").Value())); });
  step([&] { Langtext.Text(concatenate(rs.Fields(u"Langtext").Value())); });
  const auto isPromotion = [&] {
    const Variant flag = rs.Fields(u"GlobalePreisliste").Value();
    return !flag.isNull() && CBool(flag);
  };
  if (step.test(isPromotion)) {
    readPromotion(rs);
  } else {
    step([&] { txtDatumVon.Value(Null); });
    step([&] { txtDatumBis.Value(Null); });
    step([&] { cboPreisliste.Value(Null); });
    step([&] { txtKundennummer.Text(u""); });
    step([&] { chkGlobalePreisliste.Value(0); });
  }
  // The customer wins where both are filled.
  const bool hasCustomer = !Trim(txtKundennummer.Text()).empty();
  const bool hasList = !Trim(concatenate(cboPreisliste.Value())).empty();
  step([&] {
    optGueltigFuer(hasCustomer ? OneCustomer : hasList ? CustomersOfList : AllCustomers).Value(true);
  });
  step([&] { CheckCustomer(txtKundennummer.Text()); });
  step([&] { UpdateEnabled(); });
}

void frmPreislisten::readPromotion(ado::Recordset& rs) {
  ResumeNext step;
  step([&] { chkGlobalePreisliste.Value(1); });
  step([&] {
    const Variant start = rs.Fields(u"GültigVon").Value();
    txtDatumVon.Value(concatenate(start) <= noStart ? Variant(Null) : start);
  });
  step([&] {
    const Variant end = rs.Fields(u"GültigBis").Value();
    txtDatumBis.Value(concatenate(end) >= noEnd ? Variant(Null) : end);
  });
  step([&] { cboPreisliste.Value(rs.Fields(u"FuerPreisliste").Value()); });
  step([&] { txtKundennummer.Text(concatenate(rs.Fields(u"FuerKunde").Value())); });
}

// ---- writing and deleting

void frmPreislisten::WriteRecord() {
  ResumeNext step;
  ado::Recordset rs;
  step([&] { rs.Open(writeStatement(), Connection, ado::adOpenKeyset, ado::adLockOptimistic); });
  if (step.test([&] { return rs.IsEOF(); })) {
    step([&] { rs.AddNew(); });
    step([&] { rs.Fields(u"Preisliste").Value(Schluessel.Text()); });
    step([&] {
      rs.Fields(u"Währung")
          .Value(Session->GetSetting(u"Allgemein", u"Landeswährung", u"EUR", zqnGetGlobalSettingsOnly));
    });
  }
  writeFields(step, rs);
  step([&] { rs.Update(); });
  step([&] { rs.Close(); });
}

void frmPreislisten::writeFields(ResumeNext& step, ado::Recordset& rs) {
  const bool promotion = chkGlobalePreisliste.Value() == 1;
  const auto day = [&](const DateInput& input, const Variant& open) {
    return promotion && !Trim(concatenate(input.Value())).empty() ? NullIfEmpty(input.Value()) : open;
  };
  step([&] { rs.Fields(u"Preisliste").Value(Schluessel.Text()); });
  step([&] { rs.Fields(u"Langtext").Value(NullIfEmpty(Langtext.Text())); });
  step([&] { rs.Fields(u"GlobalePreisliste").Value(promotion); });
  step([&] { UpdateEnabled(); });
  step([&] { rs.Fields(u"GültigVon").Value(day(txtDatumVon, Null)); });
  step([&] { rs.Fields(u"GültigBis").Value(day(txtDatumBis, openEnd)); });
  const int holdsFor = validity();
  if (holdsFor < 0) return;
  const Variant list = holdsFor == CustomersOfList ? NullIfEmpty(cboPreisliste.Value()) : Variant(Null);
  const Variant customer = holdsFor == OneCustomer ? NullIfEmpty(txtKundennummer.Text()) : Variant(Null);
  step([&] { rs.Fields(u"FuerPreisliste").Value(list); });
  step([&] { rs.Fields(u"FuerKunde").Value(customer); });
}

void frmPreislisten::DeleteRecord() {
  Connection->Execute(u"Delete FROM Staffelpreise WHERE Preisliste =" + ado::sql::value(Schluessel.Text()));
  Connection->Execute(u"Delete FROM Preislistenkopf WHERE Preisliste =" + ado::sql::value(Schluessel.Text()));
}

String frmPreislisten::deleteQuestion() const {
  return u"Möchten Sie die Preisliste '" + Schluessel.Text() + u"' wirklich löschen?";
}

bool frmPreislisten::refuse(StringView text, StringView title, Control& where) {
  MsgBox(text, msgbox::Exclamation, title);
  // A field that cannot take the focus leaves it where it is.
  if (where.isUsable()) where.SetFocus();
  return false;
}

bool frmPreislisten::maySave() {
  const String start = concatenate(txtDatumVon.Value());
  const String end = concatenate(txtDatumBis.Value());
  if (chkGlobalePreisliste.Value() == 1 && start > end)
    return refuse(u"Bis-Datum kann nicht kleiner als das Von-Datum sein. ", u"Ungültige Eingabe",
                  txtDatumBis);
  if (validity() == CustomersOfList && Trim(concatenate(cboPreisliste.Value())).empty())
    return refuse(u"Bitte geben Sie eine Preisliste an.", u"Fehlende Eingabe", cboPreisliste);
  if (validity() == OneCustomer && Trim(txtKundennummer.Text()).empty())
    return refuse(u"Bitte geben Sie eine Kundennummer an.", u"Fehlende Eingabe", txtKundennummer);
  return true;
}

// ---- the rule for whom it holds

void frmPreislisten::UpdateEnabled() {
  ResumeNext step;
  const bool promotion = chkGlobalePreisliste.Value() == 1;
  for (Control* each : std::initializer_list<Control*>{
           &txtDatumVon, &txtDatumBis, &optGueltigFuer(AllCustomers), &optGueltigFuer(CustomersOfList),
           &optGueltigFuer(OneCustomer), &txtKundennummer, &btnKundenauskunft, &txtKunBez}) {
    step([&] { each->Enabled(promotion); });
  }
  step([&] { cboPreisliste.Enabled(promotion); });
  step([&] { txtKundennummer.BackColor(promotion ? Langtext.BackColor() : colour::ButtonFace); });
  if (!promotion) return;
  step([&] { cboPreisliste.TabStop(optGueltigFuer(CustomersOfList).Value()); });
  step([&] { txtKundennummer.TabStop(optGueltigFuer(OneCustomer).Value()); });
}

bool frmPreislisten::CheckCustomer(StringView number) {
  ResumeNext step;
  if (Trim(number).empty()) {
    step([&] { txtKunBez.Text(u""); });
    return true;
  }
  ado::Recordset rs;
  step([&] {
    rs.Open(u"Select Bez1 from Kundenstamm Where Kundennummer=" + ado::sql::value(txtKundennummer.Text()),
            Connection, ado::adOpenKeyset, ado::adLockReadOnly);
  });
  // A query that failed has found nobody.
  if (rs.State() == ado::adStateClosed || rs.IsEOF()) return false;
  step([&] { txtKunBez.Text(concatenate(rs.Fields(u"Bez1").Value())); });
  step([&] { rs.Close(); });
  return true;
}

void frmPreislisten::txtKundennummer_GotFocus() {
  ResumeNext step;
  step([&] { optGueltigFuer(OneCustomer).Value(true); });
  step([&] { SelectActiveText(); });
}

void frmPreislisten::txtKundennummer_LostFocus() {
  ResumeNext step;
  if (CheckCustomer(txtKundennummer.Text())) return;
  step([&] {
    MsgBox(u"Kundenstammsatz '" + txtKundennummer.Text() + u"' nicht angelegt.", msgbox::Exclamation,
           u"Ungültige Kundennummer");
  });
  step([&] { txtKundennummer.Text(u""); });
  step([&] { txtKundennummer.SetFocus(); });
}

void frmPreislisten::btnKundenauskunft_Click() {
  ResumeNext step;
  step([&] { txtKundennummer.SetFocus(); });
  step([&] { optGueltigFuer(OneCustomer).Value(true); });
  Ref<AuskunftObject> auskunft;
  step([&] { auskunft = createAuskunft(); });
  if (auskunft.isNothing()) return;
  step([&] { addTake(*auskunft); });
  step([&] { auskunft->Show(Session, u"AUSK_Kundenauskunft", u"Kundenauskunft"); });
  if (!step.test([&] { return hasTaken(*auskunft); })) return;
  step([&] { txtKundennummer.Text(concatenate(auskunft->ResultDataItems(u"Kundennummer"))); });
  step([&] { txtKundennummer_LostFocus(); });
}

}  // namespace zqn
