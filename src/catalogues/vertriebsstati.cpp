// SPDX-License-Identifier: MIT
#include "catalogues/vertriebsstati.h"

namespace zqn {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"TDBList1",      TDBList,       u"",                                          120,  120, 6135, 2415},
    {u"txtSchluessel", Label,         u"Status",                                    120, 2640,  855,  255},
    {u"Schluessel",    TextBox,       u"",                                          120, 2880, 1455,  285, {.MaxLength = 3}},
    {u"txtKurztext",   Label,         u"Kurztext",                                 1680, 2640,  855,  255},
    {u"Kurztext",      TextBox,       u"",                                         1680, 2880, 3855,  285, {.MaxLength = 30}},
    {u"Label1(0)",     Label,         u"Fortschritt bei Erreichen dieses Status:", 1680, 3285, 2895,  225, {.Overlaps = true}},
    {u"Gewichtung",    TextBox,       u"0",                                        4425, 3255,  405,  285, {.Alignment = Alignment::Right, .Overlaps = true}},
    {u"Label1(1)",     Label,         u"%",                                        4890, 3300,  345,  225},
    {u"AutoOverwrite", CheckBox,      u"Meilenstein",                              1680, 3600, 1455,  255},
    {u"Label2",        Label,         u"Dieser Status kann bei einer entsprechenden Aktion auch dann gesetzt werden, "
                                      u"wenn bereits ein höherer Status erreicht wurde.",
                                                                                   1935, 3855, 4320,  720},
    {u"btnOK",         CommandButton, u"Speichern",                                3705, 4725, 1215,  315},
    {u"btnCancel",     CommandButton, u"Schließen",                                5025, 4725, 1215,  315, {.Cancel = true}},
    {u"btnNew",        CommandButton, u"Neu",                                       105, 4725, 1215,  315},
    {u"btnDelete",     CommandButton, u"Löschen",                                  1425, 4725, 1215,  315},
};
// clang-format on

constexpr FormDesign form{u"frmVertriebsstati", u"Vertriebsstati", 6420, 5145, roster};

}  // namespace plan

}  // namespace

frmVertriebsstati::frmVertriebsstati() : CatalogueForm(plan::form, {u"Vertriebsstati", u"Status"}) {
  Kurztext.GotFocus = [this] { SelectActiveText(); };
  Gewichtung.GotFocus = [this] { SelectActiveText(); };
  Gewichtung.LostFocus = [this] { Gewichtung_LostFocus(); };
}

ado::sql::Text frmVertriebsstati::listStatement() const {
  return u"SELECT Status, Bezeichnung FROM Vertriebsstati Where Status<>'-' ORDER BY Status";
}

void frmVertriebsstati::ClearFields() {
  Kurztext.Text(u"");
  Gewichtung.Text(u"0");
  AutoOverwrite.Value(0);
}

void frmVertriebsstati::readFields(ado::Recordset& rs) {
  Schluessel.Text(concatenate(rs.Fields(u"Status").Value()));
  Kurztext.Text(concatenate(rs.Fields(u"Bezeichnung").Value()));
  AutoOverwrite.Value(absolute(rs.Fields(u"AutoOverwrite").Value()));
  const Variant progress = rs.Fields(u"Gewichtung").Value();
  Gewichtung.Text(progress.isNull() ? u"0" : CStr(progress));
  Gewichtung_LostFocus();
}

void frmVertriebsstati::writeFields(ResumeNext& step, ado::Recordset& rs) {
  step([&] { rs.Fields(u"Status").Value(Schluessel.Text()); });
  step([&] { rs.Fields(u"Bezeichnung").Value(NullIfEmpty(Kurztext.Text())); });
  step([&] { rs.Fields(u"AutoOverwrite").Value(std::int32_t{AutoOverwrite.Value()}); });
  step([&] { Gewichtung_LostFocus(); });
  step([&] { rs.Fields(u"Gewichtung").Value(Abs(Int(Val(Gewichtung.Text())))); });
}

void frmVertriebsstati::Gewichtung_LostFocus() {
  ResumeNext step;
  step([&] { Gewichtung.Text(CStr(Abs(Int(Val(Gewichtung.Text()))))); });
  if (step.test([&] { return CDbl(Gewichtung.Text()) > 100; })) step([&] { Gewichtung.Text(u"100"); });
}

}  // namespace zqn
