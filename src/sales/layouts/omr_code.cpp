// SPDX-License-Identifier: MIT
#include "sales/layouts/omr_code.h"

#include <algorithm>
#include <utility>

#include "contract/object_factory.h"
#include "contract/ws_profile.h"
#include "forms/desktop.h"
#include "forms/writing_procedure.h"
#include "runtime/convert.h"
#include "runtime/resume_next.h"
#include "sales/layouts/omr_code_roster.h"

namespace zqn {

namespace {

constexpr StringView settings = u"Belegdruck";
constexpr StringView none = u"NONE";
constexpr StringView byDefault = u"DEFAULT";
/// An option may offer so many pages; a definition with more is cut.
constexpr std::size_t mostPages = 101;

constexpr std::array<std::pair<StringView, StringView>, frmOMRCode::documentKinds> kinds{
    {{u"AN", u"Angebot"},
     {u"AB", u"Auftragsbestätigung"},
     {u"LS", u"Lieferschein"},
     {u"RG", u"Rechnung"},
     {u"VR", u"Vertragsrechnung"},
     {u"GS", u"Gutschrift"},
     {u"VG", u"Vertragsgutschrift"},
     {u"BS", u"Bestellung"}}};

bool same(StringView left, StringView right) { return UCase(left) == UCase(right); }

String number(int value) { return CStr(std::int32_t{value}); }

String layoutKey(int kind) { return u"OMRLayout" + String(kinds[static_cast<std::size_t>(kind)].first); }
String optionKey(int option, int kind) {
  return u"OMROption" + number(option) + String(kinds[static_cast<std::size_t>(kind)].first);
}
String pageKey(int option, int kind) {
  return u"OMROption" + number(option) + u"Page" + String(kinds[static_cast<std::size_t>(kind)].first);
}

/// What a page code is called in the list; "" for a text that is not one.
String pageCaption(StringView code) {
  if (same(code, u"ALL")) return u"Alle Seiten";
  if (same(code, u"BOC")) return u"Erste Seite";
  if (same(code, u"EOC")) return u"Letzte Seite";
  const bool isNumber =
      code.find_first_not_of(u"0123456789.") == StringView::npos && std::ranges::count(code, u'.') <= 1;
  if (!isNumber || Val(code) <= 0) return {};
  return u"Seite " + CStr(Val(code));
}

}  // namespace

frmOMRCode::frmOMRCode() : Form(omrCodeDesign()) {
  lstBelegarten.Click = [this] { lstBelegarten_Click(); };
  cboLayout.Click = [this] { cboLayout_Click(); };
  for (int i = 0; i < options; ++i) {
    chkOption(i).Click = [this, i] { chkOption_Click(i); };
    cboOption(i).Click = [this, i] { cboOption_Click(i); };
  }
  btnCancel.Click = [this] { UnloadMe(); };
  btnOK.Click = [this] { btnOK_Click(); };
  btnSave.Click = [this] { SaveAll(); };
  btnSelectAll.Click = [this] { btnSelectAll_Click(); };
  Timer1.Tick = [this] { Timer1_Timer(); };
}

void frmOMRCode::ShowData() {
  ResumeNext step;
  step([&] { ensureLoaded(); });
  lLastLayout = -1;
  String sAppPath;
  step([&] { sAppPath = ObjectFactory::current().create<WSProfile>(u"zqWSPro.WSProfile")->GetAppPath(); });
  step([&] { folder_ = LayoutFolder(sAppPath); });
  step([&] { LoadLayouts(); });
  step([&] { lstBelegarten.Clear(); });
  String wanted;
  step([&] { wanted = concatenate(SelectedKey); });
  int chosen = -1;
  for (int kind = 0; kind < documentKinds; ++kind) {
    const auto& [code, name] = kinds[static_cast<std::size_t>(kind)];
    step([&, text = name] { lstBelegarten.AddItem(text); });
    readAssignment(kind);
    if (same(wanted, code)) chosen = kind;
  }
  if (chosen >= 0) {
    step([&] { lstBelegarten.ListIndex(chosen); });
    step([&] { lstBelegarten.Selected(chosen, true); });
  }
  SelectedKey = false;
  step([&] { Show(); });
}

// ---- layouts and settings

void frmOMRCode::LoadLayouts() {
  layouts_ = {{String(none), u"Deaktiviert"},
              {String(byDefault), folder_.profile(byDefault, u"Description", u"")}};
  for (const String& name : folder_.names()) {
    if (!same(name, none) && !same(name, byDefault))
      layouts_.push_back({name, folder_.profile(name, u"Description", u"")});
  }
  cboLayout.Clear();
  for (const Layout& each : layouts_) cboLayout.AddItem(each.description);
}

void frmOMRCode::readAssignment(int kind) {
  ResumeNext step;
  Assignment& read = assignments_[static_cast<std::size_t>(kind)];
  const auto setting = [&](StringView key, StringView otherwise) {
    String value;
    step([&] { value = Session->GetSetting(settings, key, otherwise, zqnGetUserSettingsOnly); });
    return value;
  };
  read.layout = setting(layoutKey(kind), u"Default");
  if (Trim(read.layout).empty()) read.layout = none;
  for (int option = 0; option < options; ++option) {
    const auto i = static_cast<std::size_t>(option);
    read.on[i] = setting(optionKey(option, kind), u"0") == u"1";
    read.page[i] = setting(pageKey(option, kind), u"");
  }
}

void frmOMRCode::SaveAll() {
  const WritingProcedure writing(*this, u"SaveAll");
  ResumeNext step;
  step([&] { Desktop::current().hourglass(true); });
  const auto save = [&](StringView key, StringView value) {
    step([&] { Session->SaveSetting(settings, key, value, Missing, zqnSaveAsUserSetting); });
  };
  for (int kind = 0; kind < documentKinds; ++kind) {
    const Assignment& kept = assignments_[static_cast<std::size_t>(kind)];
    save(layoutKey(kind), same(kept.layout, none) ? StringView() : StringView(kept.layout));
    for (int option = 0; option < options; ++option) {
      const auto i = static_cast<std::size_t>(option);
      save(optionKey(option, kind), kept.on[i] ? u"1" : u"0");
      save(pageKey(option, kind), kept.page[i]);
    }
  }
  SelectedKey = true;
  step([&] { Desktop::current().hourglass(false); });
}

// ---- from the assignments to the controls

std::vector<int> frmOMRCode::selectedKinds() const {
  std::vector<int> selected;
  for (int i = 0; i < lstBelegarten.ListCount(); ++i) {
    if (lstBelegarten.Selected(i)) selected.push_back(i);
  }
  return selected;
}

void frmOMRCode::ShowSelection() {
  ResumeNext step;
  bLoading = true;
  const std::vector<int> selected = selectedKinds();
  int row = -1;
  if (!selected.empty()) {
    const auto layoutOf = [this](int kind) { return assignments_[static_cast<std::size_t>(kind)].layout; };
    const String common = layoutOf(selected.front());
    const bool agreed = std::ranges::all_of(selected, [&](int kind) { return same(layoutOf(kind), common); });
    const auto found =
        std::ranges::find_if(layouts_, [&](const Layout& each) { return same(each.file, common); });
    // A layout whose file is gone shows no row.
    if (agreed && found != layouts_.end()) row = static_cast<int>(found - layouts_.begin());
  }
  step([&] { cboLayout.ListIndex(row); });
  step([&] { ShowOptions(); });
  bLoading = false;
}

void frmOMRCode::ShowOptions() {
  ResumeNext step;
  bLoading = true;
  const int row = cboLayout.ListIndex();
  for (int option = 0; option < options; ++option) {
    CheckBox& check = chkOption(option);
    ComboBox& pages = cboOption(option);
    const auto profile = [&](StringView key) {
      String value;
      step([&] {
        value =
            folder_.profile(layouts_[static_cast<std::size_t>(row)].file, String(key) + number(option), u"");
      });
      return value;
    };
    const String name = row > 0 ? profile(u"OptionName") : String();
    step([&] { pages.Clear(); });
    pages_[static_cast<std::size_t>(option)].clear();
    if (name.empty()) {
      step([&] { check.Value(0); });
      step([&] { check.Caption(u"Zusatzoption " + number(option + 1)); });
      step([&] { check.Enabled(false); });
      step([&] { pages.Enabled(false); });
      continue;
    }
    step([&] { check.Caption(name); });
    step([&] { check.Enabled(true); });
    step([&] { LoadPages(option, profile(u"OptionPage")); });
    step([&] { pages.Enabled(pages.ListCount() >= 2); });
  }
  for (int option = 0; option < options; ++option) showOption(option);
  bLoading = false;
}

void frmOMRCode::LoadPages(int option, StringView definition) {
  std::vector<Page>& pages = pages_[static_cast<std::size_t>(option)];
  pages.clear();
  for (const String& item : Split(definition, u",")) {
    const String code = Trim(item);
    String caption = pageCaption(code);
    if (!caption.empty() && pages.size() < mostPages) pages.push_back({code, std::move(caption)});
  }
  if (pages.empty()) pages.push_back({u"ALL", u"Alle Seiten"});
  for (const Page& page : pages) cboOption(option).AddItem(page.caption);
}

void frmOMRCode::showOption(int option) {
  constexpr StringView firstItem = u"FIRSTITEM";
  constexpr int grey = 2;
  ResumeNext step;
  int value = grey;
  String page;
  bool first = true;
  for (const int kind : selectedKinds()) {
    const Assignment& assigned = assignments_[static_cast<std::size_t>(kind)];
    const auto i = static_cast<std::size_t>(option);
    const int on = assigned.on[i] ? 1 : 0;
    const String code = assigned.page[i].empty() ? String(firstItem) : assigned.page[i];
    if (std::exchange(first, false)) {
      value = on;
      page = code;
      continue;
    }
    if (on != value) value = grey;
    if (!same(code, page)) page.clear();
  }
  ComboBox& combo = cboOption(option);
  if (page == firstItem) {
    // Of no use where the layout lacks the option: the combo has no entries.
    step([&] { combo.ListIndex(0); });
  } else {
    const std::vector<Page>& pages = pages_[static_cast<std::size_t>(option)];
    const auto found = std::ranges::find_if(pages, [&](const Page& each) { return same(each.code, page); });
    const bool offered = !page.empty() && found != pages.end();
    step([&] { combo.ListIndex(offered ? static_cast<int>(found - pages.begin()) : -1); });
  }
  step([&] { chkOption(option).Value(value); });
}

// ---- from the controls to the assignments

void frmOMRCode::TakeSelection() {
  ResumeNext step;
  const int row = cboLayout.ListIndex();
  if (row == -1) return;
  for (const int kind : selectedKinds()) {
    Assignment& taking = assignments_[static_cast<std::size_t>(kind)];
    taking.layout = layouts_[static_cast<std::size_t>(row)].file;
    for (int option = 0; option < options; ++option) {
      const auto i = static_cast<std::size_t>(option);
      const int value = chkOption(option).Value();
      if (value != 2) taking.on[i] = value == 1;
      const int page = cboOption(option).ListIndex();
      if (page != -1) taking.page[i] = pages_[i][static_cast<std::size_t>(page)].code;
    }
  }
}

// ---- events

void frmOMRCode::lstBelegarten_Click() {
  if (!bSelectingAll) ShowSelection();
  bSelectingAll = false;
}

void frmOMRCode::cboLayout_Click() {
  ResumeNext step;
  if (!bLoading) {
    step([&] { ShowOptions(); });
    if (cboLayout.ListIndex() != lLastLayout) {
      for (int option = 0; option < options; ++option) {
        ComboBox& pages = cboOption(option);
        step([&] { pages.ListIndex(pages.ListCount() > 0 ? 0 : -1); });
        step([&] { chkOption(option).Value(0); });
      }
      step([&] { TakeSelection(); });
    }
  }
  lLastLayout = cboLayout.ListIndex();
}

void frmOMRCode::cboOption_Click(int Index) {
  if (bLoading) return;
  ResumeNext step;
  step([&] { chkOption(Index).Value(1); });
  step([&] { TakeSelection(); });
}

void frmOMRCode::chkOption_Click(int Index) {
  if (bLoading) return;
  ResumeNext step;
  const bool lacksPage = chkOption(Index).Value() == 1 && cboOption(Index).ListIndex() == -1;
  if (lacksPage) step([&] { cboOption(Index).ListIndex(0); });
  step([&] { TakeSelection(); });
}

void frmOMRCode::btnSelectAll_Click() {
  ResumeNext step;
  const auto quietly = [&](auto&& change) {
    bSelectingAll = true;
    step(change);
  };
  for (int i = 0; i < lstBelegarten.ListCount(); ++i) quietly([&] { lstBelegarten.Selected(i, true); });
  quietly([&] { lstBelegarten.ListIndex(0); });
  bSelectingAll = false;
  step([&] { ShowSelection(); });
}

void frmOMRCode::btnOK_Click() {
  ResumeNext step;
  step([&] { UnloadMe(); });
  step([&] { SaveAll(); });
}

void frmOMRCode::Timer1_Timer() {
  ResumeNext step;
  step([&] { Timer1.Enabled(false); });
  if (lstBelegarten.SelCount() > 0) step([&] { cboLayout.SetFocus(); });
}

}  // namespace zqn
