// SPDX-License-Identifier: MIT
#include "host/information/auskunft_form.h"

#include <algorithm>
#include <array>
#include <utility>

#include "ado/sql.h"
#include "forms/names.h"
#include "runtime/convert.h"
#include "runtime/resume_next.h"

namespace zqn::host {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"lblSuche",   Label,         u"Suche nach Nummer oder Name:",  120,  150, 2500, 255},
    {u"txtSuche",   TextBox,       u"",                             2700,  120, 8580, 285},
    {u"TDBList1",   TDBList,       u"",                              120,  540, 11160, 3600},
    {u"lblTreffer", Label,         u"",                              120, 4290, 3000, 255},
    {u"btnTake",    CommandButton, u"Über&nehmen",                  8745, 4260, 1215, 315, {.Default = true}},
    {u"btnCancel",  CommandButton, u"Schließen",                   10065, 4260, 1215, 315, {.Cancel = true}},
};
// clang-format on

constexpr FormDesign form{u"frmAuskunft", u"Auskunft", 11400, 4695, roster};

}  // namespace plan

const std::array<std::pair<StringView, AuskunftSubject>, 2>& subjects() {
  static const std::array<std::pair<StringView, AuskunftSubject>, 2> all{
      {{u"AUSK_Kundenauskunft",
        {.select = u"SELECT Kundennummer, Bez1 AS Name, Bez2 AS Zusatz, PLZ, Ort FROM Kundenstamm",
         .number = u"Kundennummer",
         .names = {u"Bez1", u"Bez2", u"Ort"},
         .widths = {1350, 4350, 2100, 900, 1800},
         .item = u"Kundennummer"}},
       {u"AUSK_Angebotsauskunft",
        {.select = u"SELECT Angebotskopf.Angebotsnummer AS Belegnummer, Betreff, Kundenstamm.Bez1 AS Kunde, "
                   u"Vorlage FROM Angebotskopf LEFT JOIN Kundenstamm ON "
                   u"Kundenstamm.Kundennummer=Angebotskopf.Kundennummer",
         .number = u"Angebotsnummer",
         .names = {u"Betreff", u"Bez1", u"Vorlage"},
         .widths = {1200, 2520, 3075, 3900},
         .item = u"Belegnummer"}}}};
  return all;
}

/// What was typed as a pattern: signs with a meaning of their own, and the apostrophe, stand for any one
/// character.
String pattern(StringView typed) {
  String text = Trim(typed);
  for (char16_t& each : text) {
    if (each == u'\'' || each == u'%' || each == u'*' || each == u'[' || each == u'?') each = u'_';
  }
  return text;
}

}  // namespace

const AuskunftSubject* auskunftSubject(StringView name) noexcept {
  const auto found =
      std::ranges::find_if(subjects(), [&](const auto& each) { return sameName(each.first, name); });
  return found != subjects().end() ? &found->second : nullptr;
}

frmAuskunft::frmAuskunft(const AuskunftSubject& subject, Ref<ado::Connection> connection)
    : Form(plan::form), subject_(subject), connection_(std::move(connection)) {
  Load = [this] { search(); };
  Activate = [this] { txtSuche.SetFocus(); };
  Unload = [this](int&) {
    ResumeNext step;
    step([&] { found_->Close(); });
  };
  txtSuche.Change = [this] { search(); };
  txtSuche.KeyDown = [this](int& KeyCode, int) {
    // The list is walked through while one goes on typing.
    if (KeyCode != key::Up && KeyCode != key::Down && KeyCode != key::PageUp && KeyCode != key::PageDown)
      return;
    TDBList1.ownKey(KeyStroke::ofCode(KeyCode));
    KeyCode = 0;
  };
  TDBList1.DblClick = [this] { takeMarked(); };
  btnTake.Click = [this] { takeMarked(); };
  btnCancel.Click = [this] { UnloadMe(); };
}

ado::sql::Text frmAuskunft::statement() const {
  const String typed = pattern(txtSuche.Text());
  ado::sql::Text text(String(subject_.select));
  if (!typed.empty()) {
    text += u" WHERE (" + String(subject_.number) + u" LIKE ";
    text += ado::sql::value(typed + u"%");
    for (const StringView column : subject_.names) {
      text += u" OR " + String(column) + u" LIKE ";
      text += ado::sql::value(u"%" + typed + u"%");
    }
    text += u")";
  }
  text += u" ORDER BY " + String(subject_.number);
  return text;
}

void frmAuskunft::search() {
  ResumeNext step;
  found_ = Ref<ado::Recordset>::make();
  step([&] { found_->CursorLocation(ado::adUseServer); });
  step([&] { found_->Open(statement(), connection_, ado::adOpenKeyset, ado::adLockReadOnly); });
  show();
  const bool some = found_->State() != ado::adStateClosed && found_->RecordCount() > 0;
  lblTreffer.Caption(some ? CStr(found_->RecordCount()) + u" gefunden" : String(u"nichts gefunden"));
  btnTake.Enabled(some);
}

/// Shows what was found in the columns as a person left them.
void frmAuskunft::show() {
  ResumeNext step;
  const bool hasColumns = TDBList1.columnCount() > 0;
  TDBList1.HoldFields();
  step([&] { TDBList1.DataSource(found_); });
  step([&] { TDBList1.ReBind(); });
  if (hasColumns) return;
  for (int i = 0; i < TDBList1.columnCount(); ++i)
    TDBList1.Columns(i).Width(subject_.widths.at(static_cast<std::size_t>(i)));
}

void frmAuskunft::takeMarked() {
  const String number = TDBList1.Text();
  if (Trim(number).empty()) return;
  value_ = number;
  UnloadMe();
}

}  // namespace zqn::host
