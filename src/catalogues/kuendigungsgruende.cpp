// SPDX-License-Identifier: MIT
#include "catalogues/kuendigungsgruende.h"

#include "forms/message_box.h"

namespace zqn {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"TDBList1",      TDBList,       u"",              120,  120, 6135, 2415},
    {u"txtSchluessel", Label,         u"Schlüssel",     120, 2640,  855,  255},
    {u"Schluessel",    TextBox,       u"",              120, 2880, 1455,  285, {.MaxLength = 15}},
    {u"txtKurztext",   Label,         u"Text",         1680, 2640,  855,  255},
    {u"Text",          TextBox,       u"",             1680, 2880, 4545,  285, {.MaxLength = 50}},
    {u"btnOK",         CommandButton, u"Speichern",    3720, 4725, 1215,  315},
    {u"btnCancel",     CommandButton, u"Schließen",    5025, 4725, 1215,  315, {.Cancel = true}},
    {u"btnNew",        CommandButton, u"Neu",           105, 4725, 1215,  315},
    {u"btnDelete",     CommandButton, u"Löschen",      1425, 4725, 1215,  315},
    {u"Anzeigetyp",    ComboBox,      u"3",            2910, 3330, 3315,  315},
    {u"Label1",        Label,         u"Wo Anzeigen?", 1680, 3360, 1125,  255},
};
// clang-format on

constexpr FormDesign form{u"frmKuendigungsgruende", u"Kuendigungsgruende", 6420, 5145, roster};

}  // namespace plan

/// The number that a reason has for its entry of the drop-down.
int displayType(const ComboBox& box) { return box.ListIndex() + 1; }

constexpr int forCustomers = 1;
constexpr int forBoth = 3;

}  // namespace

frmKuendigungsgruende::frmKuendigungsgruende()
    : CatalogueForm(plan::form, {u"Kuendigungsgruende", u"GrundVerlorenSchl"}) {
  Text.GotFocus = [this] { SelectActiveText(); };
}

void frmKuendigungsgruende::beforeList() {
  Anzeigetyp.Clear();
  for (const StringView entry : {u"Kundenstamm", u"Verträge", u"Kundenstamm und Verträge"})
    Anzeigetyp.AddItem(entry);
}

ado::sql::Text frmKuendigungsgruende::listStatement() const {
  return u"SELECT GrundVerlorenSchl, Text FROM Kuendigungsgruende ORDER BY GrundVerlorenSchl";
}

void frmKuendigungsgruende::ClearFields() {
  Text.Text(u"");
  Anzeigetyp.ListIndex(forBoth - 1);
}

void frmKuendigungsgruende::readFields(ado::Recordset& rs) {
  Schluessel.Text(concatenate(rs.Fields(u"GrundVerlorenSchl").Value()));
  Text.Text(concatenate(rs.Fields(u"Text").Value()));
  const int entry = CLng(Val(rs.Fields(u"Anzeigetyp").Value())) - 1;
  Anzeigetyp.ListIndex(entry < Anzeigetyp.ListCount() ? entry : -1);
}

void frmKuendigungsgruende::writeFields(ResumeNext& step, ado::Recordset& rs) {
  step([&] { rs.Fields(u"GrundVerlorenSchl").Value(Schluessel.Text()); });
  step([&] { rs.Fields(u"Text").Value(NullIfEmpty(Text.Text())); });
  step([&] { rs.Fields(u"Anzeigetyp").Value(std::int32_t{displayType(Anzeigetyp)}); });
}

bool frmKuendigungsgruende::CheckAnzeigetyp() {
  ResumeNext step;
  if (displayType(Anzeigetyp) == forBoth) return true;
  if (step.test([&] { return displayType(Anzeigetyp) == CLng(GrundArt); })) return true;
  const bool customer = step.test([&] { return CLng(GrundArt) == forCustomers; });
  step([&] {
    MsgBox(customer ? u"Der ausgewählte Kündigungsgrund ist nicht als Grund für die Kündigung eines Kunden "
                      u"gekennzeichnet."
                    : u"Der ausgewählte Kündigungsgrund ist nicht als Grund für die Kündigung von Verträgen "
                      u"gekennzeichnet.",
           msgbox::Information, u"Übernahme nicht möglich");
  });
  return false;
}

}  // namespace zqn
