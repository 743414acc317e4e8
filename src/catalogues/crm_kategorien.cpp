// SPDX-License-Identifier: MIT
#include "catalogues/crm_kategorien.h"

namespace zqn {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"TDBList1",          TDBList,       u"",                                     120,  120, 6135, 2415},
    {u"txtSchluessel",     Label,         u"Kategorie",                            120, 2640,  855,  255},
    {u"Schluessel",        TextBox,       u"",                                     120, 2880, 1455,  285, {.MaxLength = 15}},
    {u"txtKurztext",       Label,         u"Kurztext",                            1680, 2640,  855,  255},
    {u"Kurztext",          TextBox,       u"",                                    1680, 2880, 3165,  285, {.MaxLength = 30}},
    {u"Historie",          CheckBox,      u"",                                    5040, 2910,  255,  255},
    {u"HelpDesk",          CheckBox,      u"",                                    5730, 2910,  255,  255},
    {u"Label3",            Label,         u"Bei Aufgaben dieser Kategorie",        900, 3300, 3285,  255},
    {u"Status",            CheckBox,      u"Status auf",                          1020, 3630, 1095,  255},
    {u"VertriebsStatus",   zqCombo,       u"",                                    2280, 3585, 3135,  315, {.rowsourcetype = 2, .maxrows = 5, .allowedit = true, .Enabled = false}},
    {u"Label4",            Label,         u"setzen.",                             5490, 3630,  735,  255},
    {u"Herkunft",          CheckBox,      u"Herkunft auf",                        1020, 3960, 1200,  255},
    {u"Adressherkunft",    zqCombo,       u"",                                    2280, 3930, 3135,  315, {.rowsourcetype = 4, .maxrows = 5, .allowedit = true, .Enabled = false}},
    {u"Label5",            Label,         u"setzen.",                             5490, 3960,  735,  255},
    {u"AktLetzterKontakt", CheckBox,      u"Datum letzter Kontakt aktualisieren", 1020, 4290, 3435,  255},
    {u"AktLetzterBesuch",  CheckBox,      u"Datum letzter Besuch aktualisieren",  1020, 4620, 3435,  255},
    {u"btnOK",             CommandButton, u"Speichern",                           3705, 5355, 1215,  315},
    {u"btnCancel",         CommandButton, u"Schließen",                           5025, 5355, 1215,  315, {.Cancel = true}},
    {u"btnNew",            CommandButton, u"Neu",                                  105, 5355, 1215,  315},
    {u"btnDelete",         CommandButton, u"Löschen",                             1425, 5355, 1215,  315},
    {u"Label1",            Label,         u"Historie",                            4890, 2610,  615,  255},
    {u"Label2",            Label,         u"HelpDesk",                            5550, 2610,  735,  255},
};
// clang-format on

constexpr FormDesign form{u"frmCRMKategorien", u"Kategorien", 6420, 5805, roster};

}  // namespace plan

bool isBlank(const Variant& value) { return Trim(concatenate(value)).empty(); }

/// The box says whether the drop-down holds a key, and whether a person can choose one.
void followBox(const CheckBox& box, zqCombo& combo) {
  const bool ticked = box.Value() != 0;
  if (!ticked) combo.Value(Null);
  combo.Enabled(ticked);
  combo.TabStop(ticked);
}

/// A key has been read: box and tab stop say whether there is one.
void followKey(CheckBox& box, zqCombo& combo) {
  const bool hasKey = !isBlank(combo.Value());
  box.Value(hasKey ? 1 : 0);
  combo.TabStop(hasKey);
}

void empty(zqCombo& combo) {
  combo.Value(Null);
  combo.TabStop(false);
}

Variant keyOrNull(const zqCombo& combo) {
  const Variant& key = combo.Value();
  if (isBlank(key)) return Null;
  return key;
}

}  // namespace

frmCRMKategorien::frmCRMKategorien() : CatalogueForm(plan::form, {u"Kontaktgruppen", u"Kontaktgruppe"}) {
  Kurztext.GotFocus = [this] { SelectActiveText(); };
  Historie.Click = [this] { Historie_Click(); };
  HelpDesk.Click = [this] { HelpDesk_Click(); };
  Status.Click = [this] { followBox(Status, VertriebsStatus); };
  Herkunft.Click = [this] { followBox(Herkunft, Adressherkunft); };
}

void frmCRMKategorien::beforeShow() {
  VertriebsStatus.Connection(Connection);
  Adressherkunft.Connection(Connection);
}

ado::sql::Text frmCRMKategorien::listStatement() const {
  return u"SELECT Kontaktgruppe, Bezeichnung FROM Kontaktgruppen Where Kontaktgruppe<>'-' ORDER BY "
         u"Kontaktgruppe";
}

void frmCRMKategorien::ClearFields() {
  Kurztext.Text(u"");
  for (CheckBox* each : {&Historie, &HelpDesk, &Status, &Herkunft}) each->Value(0);
  empty(VertriebsStatus);
  empty(Adressherkunft);
  AktLetzterKontakt.Value(0);
  AktLetzterBesuch.Value(0);
}

void frmCRMKategorien::readFields(ado::Recordset& rs) {
  Schluessel.Text(concatenate(rs.Fields(u"Kontaktgruppe").Value()));
  Kurztext.Text(concatenate(rs.Fields(u"Bezeichnung").Value()));
  Historie.Value(absolute(rs.Fields(u"Historie").Value()));
  HelpDesk.Value(absolute(rs.Fields(u"HelpDesk").Value()));
  VertriebsStatus.Value(concatenate(rs.Fields(u"VertriebsStatus").Value()));
  Adressherkunft.Value(concatenate(rs.Fields(u"Adressherkunft").Value()));
  followKey(Status, VertriebsStatus);
  followKey(Herkunft, Adressherkunft);
  AktLetzterKontakt.Value(absolute(rs.Fields(u"AktLetzterKontakt").Value()));
  AktLetzterBesuch.Value(absolute(rs.Fields(u"AktLetzterBesuch").Value()));
}

void frmCRMKategorien::writeFields(ResumeNext& step, ado::Recordset& rs) {
  const auto write = [&](StringView column, const CheckBox& box) {
    step([&] { rs.Fields(column).Value(std::int32_t{box.Value()}); });
  };
  step([&] { rs.Fields(u"Kontaktgruppe").Value(Schluessel.Text()); });
  step([&] { rs.Fields(u"Bezeichnung").Value(NullIfEmpty(Kurztext.Text())); });
  write(u"Historie", Historie);
  write(u"HelpDesk", HelpDesk);
  step([&] { rs.Fields(u"VertriebsStatus").Value(keyOrNull(VertriebsStatus)); });
  step([&] { rs.Fields(u"Adressherkunft").Value(keyOrNull(Adressherkunft)); });
  write(u"AktLetzterKontakt", AktLetzterKontakt);
  write(u"AktLetzterBesuch", AktLetzterBesuch);
}

void frmCRMKategorien::HelpDesk_Click() {
  if (HelpDesk.Value() == 1) Historie.Value(1);
}

void frmCRMKategorien::Historie_Click() {
  if (Historie.Value() == 0) HelpDesk.Value(0);
}

}  // namespace zqn
