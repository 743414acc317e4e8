// SPDX-License-Identifier: MIT
#include "sales/offers/offer_templates.h"

#include <cmath>
#include <limits>

#include "ado/recordset.h"
#include "ado/sql.h"
#include "forms/message_box.h"
#include "forms/writing_procedure.h"
#include "runtime/convert.h"
#include "runtime/resume_next.h"
#include "sales/basics/ask_auskunft.h"
#include "sales/basics/pictures.h"

namespace zqn {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"optAuswahl(0)",  OptionButton,  u"&Neues Angebot erstellen",             720,  240, 2535,  255, {.Value = true}},
    {u"optAuswahl(1)",  OptionButton,  u"Neues Angebot aus &Vorlage erstellen", 720,  900, 3015,  255, {.Enabled = false}},
    {u"optAuswahl(2)",  OptionButton,  u"Vorhandenes Angebot &kopieren",        720, 4410, 3045,  255},
    {u"MSFlexGrid1",    MSFlexGrid,    u"",                                     960, 1260, 4155, 2445},
    {u"Angebotsnummer", TextBox,       u"",                                    2370, 4740, 1455,  315},
    {u"btnOK",          CommandButton, u"OK",                                  2805, 5415, 1125,  345, {.Default = true}},
    {u"btnCancel",      CommandButton, u"Abbrechen",                           4005, 5415, 1125,  345},
    {u"picNew",         PictureBox,    u"",                                     120,  120,  480,  480},
    {u"picOpen",        PictureBox,    u"",                                     120,  780,  480,  480},
    {u"Picture1",       PictureBox,    u"",                                     120, 4290,  480,  480},
    {u"Label1",         Label,         u"Angebotsnummer:",                      960, 4770, 1395,  285},
    {u"btnAngebotsAuskunft", CommandButton, u"",                               3870, 4740,  225,  315, {.ToolTipText = u"Angebotsauskunft (F4)"}},
    {u"btnDelete",      CommandButton, u"Aus Vorlagen entfernen",              3210, 3780, 1905,  345, {.Cancel = true, .Enabled = false}},
    {u"mnuPopup",       Menu,          u"Popup",                                  0,    0,    0,    0, {.Visible = false}},
    {u"mnuDelete",      Menu,          u"&Aus Vorlagen entfernen",                0,    0,    0,    0, {.Container = u"mnuPopup"}},
};
// clang-format on

constexpr FormDesign form{u"frmOfferTemplates", u"Angebot erstellen", 5265, 5895, roster};

}  // namespace plan

constexpr std::uint32_t darkBlue = 0x00800000;

/// What the list calls the current offer.
String nameOf(ado::Recordset& rs) {
  String name = concatenate(rs.Fields(u"Vorlage").Value());
  return Trim(name).empty() ? u"Angebot " + concatenate(rs.Fields(u"Angebotsnummer").Value()) : name;
}

/// The number that a text begins with, as whole as the numbers of offers are; one beyond 32 bits stays as it
/// is, one beyond a Double is infinite.
double numberIn(StringView text) {
  using Limits = std::numeric_limits<std::int32_t>;
  ResumeNext step;
  double number = std::numeric_limits<double>::infinity();
  step([&] { number = Val(text); });
  const bool fits = number >= Limits::min() && number <= Limits::max();
  return fits ? CLng(Variant(number)) : number;
}

}  // namespace

frmOfferTemplates::frmOfferTemplates() : Form(plan::form) {
  Angebotsnummer.ForeColor(darkBlue);
  MSFlexGrid1.FixedRows(0);
  MSFlexGrid1.FixedCols(0);
  MSFlexGrid1.AccessibleName(u"Vorlagen");
  Get<PictureBox>(u"picNew").Picture(&pictures::newSheet);
  Get<PictureBox>(u"picOpen").Picture(&pictures::folder);
  Get<PictureBox>(u"Picture1").Picture(&pictures::twoSheets);
  btnAngebotsAuskunft.Picture(&pictures::magnifier);
  for (const int i : {NewOffer, FromTemplate, CopyOffer})
    optAuswahl(i).Click = [this, i] { optAuswahl_Click(i); };
  MSFlexGrid1.Click = [this] { optAuswahl(FromTemplate).Value(true); };
  MSFlexGrid1.DblClick = [this] { MSFlexGrid1_DblClick(); };
  MSFlexGrid1.MouseUp = [this](int Button, int) { MSFlexGrid1_MouseUp(Button); };
  Angebotsnummer.GotFocus = [this] { Angebotsnummer_GotFocus(); };
  Angebotsnummer.LostFocus = [this] { settleNumber(); };
  Angebotsnummer.KeyDown = [this](int& KeyCode, int Shift) {
    if (KeyCode == key::F4 && Shift == shift::None) btnAngebotsAuskunft_Click();
  };
  btnAngebotsAuskunft.Click = [this] { btnAngebotsAuskunft_Click(); };
  btnDelete.Click = [this] { mnuDelete_Click(); };
  mnuDelete.Click = [this] { mnuDelete_Click(); };
  btnOK.Click = [this] { btnOK_Click(); };
  btnCancel.Click = [this] { UnloadMe(); };
}

void frmOfferTemplates::ShowData() {
  ensureLoaded();
  SelectedKey = Null;
  LoadTemplates();
  Show();
}

// ---- the list of templates

void frmOfferTemplates::LoadTemplates() {
  ResumeNext step;
  step([&] { MSFlexGrid1.Rows(0); });
  step([&] { MSFlexGrid1.Cols(1); });
  step([&] { MSFlexGrid1.Visible(false); });
  step([&] { MSFlexGrid1.ColWidth(0, MSFlexGrid1.Width()); });
  aNummern.clear();
  step.Clear();
  ado::Recordset rs;
  step([&] {
    rs.Open(u"Select Angebotsnummer, Vorlage From Angebotskopf Where Vorlage>'' Order by Vorlage", Connection,
            ado::adOpenKeyset, ado::adLockReadOnly);
  });
  // The row whose reading fails is the last one: it stands there as far as it could be read.
  while (step.Number() == 0 && !rs.IsEOF()) {
    step([&] { MSFlexGrid1.Rows(MSFlexGrid1.Rows() + 1); });
    step([&] { MSFlexGrid1.Row(MSFlexGrid1.Rows() - 1); });
    aNummern.push_back(0);
    step([&] { aNummern.back() = CLng(rs.Fields(u"Angebotsnummer").Value()); });
    step([&] { MSFlexGrid1.Text(nameOf(rs)); });
    step([&] { MSFlexGrid1.CellAlignment(cell_alignment::LeftCenter); });
    step([&] { rs.MoveNext(); });
  }
  if (MSFlexGrid1.Rows() > 0) {
    step([&] { MSFlexGrid1.Row(1); });
    step([&] { MSFlexGrid1.Col(0); });
    step([&] { MSFlexGrid1.ColSel(2); });
    step([&] { optAuswahl(FromTemplate).Enabled(true); });
    step([&] { MSFlexGrid1.Enabled(true); });
  }
  step([&] { MSFlexGrid1.Row(0); });
  step([&] { MSFlexGrid1.Visible(true); });
  step([&] { rs.Close(); });
  step([&] { updateDelete(); });
}

void frmOfferTemplates::updateDelete() {
  btnDelete.Enabled(optAuswahl(FromTemplate).Value() && MSFlexGrid1.Rows() > 0);
}

std::int32_t frmOfferTemplates::templateNumber() const {
  const auto row = static_cast<std::size_t>(MSFlexGrid1.Row());
  return row < aNummern.size() ? aNummern[row] : 0;
}

void frmOfferTemplates::ShowPopup() {
  ResumeNext step;
  step([&] { MSFlexGrid1.SetFocus(); });
  step([&] { mnuDelete.Enabled(MSFlexGrid1.Rows() > 0); });
  step([&] { PopupMenu(mnuPopup); });
}

void frmOfferTemplates::mnuDelete_Click() {
  const std::int32_t number = templateNumber();
  if (number == 0) return;
  ResumeNext step;
  String question = u"Möchten Sie die Vorlage '";
  step([&] { question += MSFlexGrid1.Text(); });
  question += u"' (Angebot " + CStr(number) + u") aus der Liste der Vorlagen entfernen?";
  const int style = msgbox::YesNo | msgbox::Question | msgbox::DefaultButton2;
  if (MsgBox(question, style, u"Aus Vorlagen entfernen?") != MsgBoxResult::Yes) return;
  takeFromTemplates(number);
  step([&] { LoadTemplates(); });
  if (MSFlexGrid1.Rows() > 0) return;
  step([&] { optAuswahl(NewOffer).Value(true); });
  step([&] { optAuswahl(FromTemplate).Enabled(false); });
  step([&] { MSFlexGrid1.Enabled(false); });
}

void frmOfferTemplates::takeFromTemplates(std::int32_t number) {
  const WritingProcedure writing(*this, u"mnuDelete_Click");
  ResumeNext step;
  ado::Recordset rs;
  step([&] {
    rs.Open(u"Select Vorlage from Angebotskopf Where Angebotsnummer=" + ado::sql::number(Variant(number)),
            Connection, ado::adOpenKeyset, ado::adLockOptimistic);
  });
  if (rs.State() != ado::adStateClosed && !rs.IsEOF()) {
    step([&] { rs.Fields(u"Vorlage").Value(Null); });
    step([&] { rs.Update(); });
  }
  step([&] { rs.Close(); });
}

// ---- list and options

void frmOfferTemplates::optAuswahl_Click(int Index) {
  ResumeNext step;
  step([&] { MSFlexGrid1.TabStop(Index == FromTemplate); });
  step([&] { Angebotsnummer.TabStop(Index == CopyOffer); });
  step([&] { MSFlexGrid1.SelectionMode(Index == FromTemplate ? FlexGrid::ByRow : FlexGrid::ByColumn); });
  step([&] { updateDelete(); });
}

void frmOfferTemplates::MSFlexGrid1_DblClick() {
  if (MSFlexGrid1.MouseRow() < 0) return;
  ResumeNext step;
  step([&] { MSFlexGrid1.Row(MSFlexGrid1.MouseRow()); });
  step([&] { MSFlexGrid1.Col(0); });
  step([&] { MSFlexGrid1.ColSel(0); });
  step([&] { btnOK_Click(); });
}

void frmOfferTemplates::MSFlexGrid1_MouseUp(int Button) {
  constexpr int rightButton = 2;
  if (MSFlexGrid1.MouseRow() < 0) return;
  ResumeNext step;
  step([&] { MSFlexGrid1.Row(MSFlexGrid1.MouseRow()); });
  step([&] { MSFlexGrid1.Col(0); });
  step([&] { MSFlexGrid1.ColSel(2); });
  if (Button == rightButton) step([&] { ShowPopup(); });
}

// ---- the number of an offer

void frmOfferTemplates::Angebotsnummer_GotFocus() {
  ResumeNext step;
  step([&] { optAuswahl(CopyOffer).Value(true); });
  step([&] { SelectActiveText(); });
}

double frmOfferTemplates::settleNumber() {
  ResumeNext step;
  const double number = numberIn(Angebotsnummer.Text());
  if (std::isfinite(number)) step([&] { Angebotsnummer.Text(number == 0 ? String() : CStr(number)); });
  return number;
}

bool frmOfferTemplates::OfferExists(std::int32_t number) {
  ResumeNext step;
  ado::Recordset rs;
  step([&] {
    rs.Open(
        u"Select Angebotsnummer from Angebotskopf Where Angebotsnummer=" + ado::sql::number(Variant(number)),
        Connection, ado::adOpenKeyset, ado::adLockReadOnly);
  });
  return rs.State() != ado::adStateClosed && !rs.IsEOF();
}

String frmOfferTemplates::AskOffer() {
  const Ref<AuskunftObject> auskunft = createAuskunft();
  addTake(*auskunft);
  auskunft->Show(Session, u"AUSK_Angebotsauskunft", u"Angebotsauskunft");
  return hasTaken(*auskunft) ? concatenate(auskunft->ResultDataItems(u"Belegnummer")) : String();
}

void frmOfferTemplates::btnAngebotsAuskunft_Click() {
  optAuswahl(CopyOffer).Value(true);
  const String number = AskOffer();
  if (!number.empty()) Angebotsnummer.Text(number);
  Angebotsnummer.SetFocus();
  SelectActiveText();
}

// ---- OK

void frmOfferTemplates::say(StringView text, StringView title) { MsgBox(text, msgbox::Exclamation, title); }

void frmOfferTemplates::btnOK_Click() {
  ResumeNext step;
  std::int32_t number = -1;
  if (optAuswahl(FromTemplate).Value() && MSFlexGrid1.Rows() > 0) {
    number = templateNumber();
    if (number == 0) {
      say(u"Sie müssen eine Vorlage ausgewählen!", u"Vorlage");
      return step([&] { MSFlexGrid1.SetFocus(); });
    }
  }
  if (optAuswahl(CopyOffer).Value()) {
    using Limits = std::numeric_limits<std::int32_t>;
    const double typed = settleNumber();
    if (typed == 0) {
      say(u"Sie müssen eine Angebotsnummer angeben!", u"Angebotsnummer");
      return step([&] { Angebotsnummer.SetFocus(); });
    }
    const bool fits = typed >= Limits::min() && typed <= Limits::max();
    if (fits) number = CLng(Variant(typed));
    if (!fits || !OfferExists(number)) {
      say(u"Das angegebene Angebot existiert nicht!", u"Angebot nicht vorhanden");
      step([&] { Angebotsnummer.SetFocus(); });
      return step([&] { SelectActiveText(); });
    }
  }
  SelectedKey = number;
  step([&] { UnloadMe(); });
}

}  // namespace zqn
