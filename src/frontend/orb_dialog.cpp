// SPDX-License-Identifier: MIT
#include "frontend/orb_dialog.h"

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <utility>
#include <vector>

#include "catalogues/crm_kategorien.h"
#include "catalogues/keywords.h"
#include "catalogues/kuendigungsgruende.h"
#include "catalogues/selection_list_values.h"
#include "catalogues/selektionskriterien_vertrag.h"
#include "catalogues/vertriebsstati.h"
#include "catalogues/vt_status_grund.h"
#include "definitions/definitions.h"
#include "dialog/frm_dialog.h"
#include "frontend/basics/bas_basis.h"
#include "frontend/kinds.h"
#include "runtime/convert.h"
#include "runtime/resume_next.h"
#include "sales/layouts/omr_code.h"
#include "sales/offers/offer_templates.h"
#include "sales/offers/save_offer_template.h"
#include "sales/payment_types/zahlungsarten.h"
#include "sales/price_lists/preislisten.h"
#include "split/frm_aufteilung_snch.h"

namespace zqn {

/// A new form in the member that bears its name, for as long as it is open. The form of a Show that is still
/// running comes back afterwards.
template <class Form>
class Held {
 public:
  explicit Held(std::unique_ptr<Form>& member)
      : member_(member), outer_(std::exchange(member, std::make_unique<Form>())) {}
  ~Held() { member_ = std::move(outer_); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  std::unique_ptr<Form>& member_;
  std::unique_ptr<Form> outer_;
};

/// The road of a form through Show. Every statement stands by itself: one that fails is skipped.
class ShowSteps {
 public:
  ShowSteps(ORBDialog& dialog, VariantArray& param) : dialog_(dialog), param_(param) {}

  Variant vertriebsstati() { return catalogue(dialog_.frmVStati, &ORBDialog::frmVStati_DblClick); }
  Variant crmKategorien() { return catalogue(dialog_.frmCRM, &ORBDialog::frmCRM_DblClick); }
  Variant selektionskriterien() {
    return catalogue(dialog_.frmSelkritVertrag, &ORBDialog::frmSelkritVertrag_DblClick);
  }

  /// GrundArt is 1 for reasons of customers, 2 for those of contracts. Nobody hears of picks.
  template <std::int16_t GrundArt>
  Variant reasons() {
    return dedicated<frmKuendigungsgruende>(
        [this](ResumeNext& step, frmKuendigungsgruende& form) {
          takesHost(step, form);
          step([&] { form.GrundArt = GrundArt; });
        },
        {&frmKuendigungsgruende::SelectedKey}, 1);
  }

  Variant selectionListValues() {
    using Form = frmSelectionListValues;
    return dedicated<Form>([this](ResumeNext& step, Form& form) { takesHost(step, form); },
                           {&Form::SelectedKey, &Form::ReferenceType, &Form::FieldID, &Form::FormCaption}, 4);
  }

  /// The section does not come back.
  Variant keywords() {
    using Form = frmKeywords;
    return dedicated<Form>([this](ResumeNext& step, Form& form) { takesHost(step, form); },
                           {&Form::SelectedKey, &Form::Section}, 1);
  }

  /// Neither Connection nor Multiselect: there is nothing to read and nothing to pick.
  Variant statusReason() {
    return dedicated<frmVTStatusGrund>([](ResumeNext&, frmVTStatusGrund&) {},
                                       {&frmVTStatusGrund::SelectedKey}, 1);
  }

  /// The quantity split: what was divided is the result.
  Variant quantitySplit() {
    ResumeNext step;
    std::unique_ptr<frmAufteilungSNCH> form;
    Variant returned;
    step([&] { form = std::make_unique<frmAufteilungSNCH>(); });
    step([&] { form->Connection = dialog_.Connection(); });
    step([&] { form->Aufteilung = param_.at(0); });
    step([&] { form->Gmenge = param_.at(1); });
    step([&] { form->ME = param_.at(2); });
    step([&] { form->Aufteilungsart = param_.at(3); });
    step([&] { form->VerfalldatumPflicht = CBool(param_.at(4)); });
    step([&] { form->ShowData(); });
    step([&] { param_.at(0) = form->Aufteilung; });
    step([&] { param_.at(1) = form->Gmenge; });
    step([&] { returned = form->Aufteilung; });
    return returned;
  }

  /// A form that takes the session, too. What the settings of layouts give back is no key.
  template <class Form, std::size_t comeBack = 1>
  Variant withSession() {
    return dedicated<Form>(
        [this](ResumeNext& step, Form& form) {
          step([&] { form.Connection = dialog_.Connection(); });
          step([&] { form.Session = dialog_.Session(); });
          if constexpr (requires { form.Multiselect; })
            step([&] { form.Multiselect = dialog_.Multiselect(); });
        },
        {&Form::SelectedKey}, comeBack);
  }

  /// Nobody hears of picks.
  template <bool purchase>
  Variant paymentTypes() {
    return dedicated<frmZahlungsarten>(
        [this](ResumeNext& step, frmZahlungsarten& form) {
          step([&] { form.Connection = dialog_.Connection(); });
          step([&] { form.Bereich = purchase ? u"EK" : u"VK"; });
          step([&] { form.Multiselect = dialog_.Multiselect(); });
        },
        {&frmZahlungsarten::SelectedKey}, 1);
  }

  /// The generic form. All of Init is one statement: when it fails the form stands empty.
  Variant generic(std::int32_t kind) {
    ResumeNext step;
    const Held held(dialog_.frm);
    frmDialog& frm = *dialog_.frm;
    Variant returned;
    hear(frm, &ORBDialog::frm_DblClick);
    step([&] { frm.Init(dialog_.Connection(), param_.at(0), kind); });
    step([&] { frm.Multiselect = dialog_.Multiselect(); });
    step([&] { frm.ShowData(); });
    step([&] { param_.at(0) = frm.Key(); });
    step([&] { returned = frm.Key(); });
    return returned;
  }

 private:
  using Sink = void (ORBDialog::*)(const Variant& Result);

  template <class Form>
  void hear(Form& form, Sink sink) {
    form.DblClick = [this, sink](const Variant& Result) { (dialog_.*sink)(Result); };
  }

  /// The road of a catalogue whose picks the host hears of.
  template <class Form>
  Variant catalogue(std::unique_ptr<Form>& member, Sink sink) {
    const Held held(member);
    hear(*member, sink);
    return through<Form>(
        *member, [this](ResumeNext& step, Form& form) { takesHost(step, form); }, {&Form::SelectedKey}, 1);
  }

  /// The road of a form that nobody hears of.
  template <class Form>
  Variant dedicated(const std::function<void(ResumeNext&, Form&)>& setFirst,
                    std::initializer_list<Variant Form::*> members, std::size_t comeBack) {
    Form form;
    return through<Form>(form, setFirst, members, comeBack);
  }

  /// The road of either: `setFirst` sets what the kind needs; element i of Param goes into
  /// member i, and the first `comeBack` members go back; member 0 is what Show returns. An element that is
  /// not there leaves its member Empty.
  template <class Form>
  Variant through(Form& form, const std::function<void(ResumeNext&, Form&)>& setFirst,
                  std::initializer_list<Variant Form::*> members, std::size_t comeBack) {
    ResumeNext step;
    setFirst(step, form);
    const std::vector<Variant Form::*> member(members);
    for (std::size_t i = 0; i < member.size(); ++i) step([&] { form.*member[i] = param_.at(i); });
    step([&] { form.ShowData(); });
    for (std::size_t i = 0; i < comeBack; ++i) step([&] { param_.at(i) = form.*member[i]; });
    return form.*member.front();
  }

  template <class Form>
  void takesHost(ResumeNext& step, Form& form) {
    step([&] { form.Connection = dialog_.Connection(); });
    step([&] { form.Multiselect = dialog_.Multiselect(); });
  }

  ORBDialog& dialog_;
  VariantArray& param_;
};

namespace {

/// The kinds with a form of their own. Such a kind gets its form by one row here.
struct Dispatch {
  std::int32_t kind;
  Variant (ShowSteps::*show)();
  std::unique_ptr<Form> (*make)();
};

template <class F>
std::unique_ptr<Form> make() {
  return std::make_unique<F>();
}

constexpr Dispatch dispatch[] = {
    {1, &ShowSteps::paymentTypes<false>, make<frmZahlungsarten>},
    {2, &ShowSteps::paymentTypes<true>, make<frmZahlungsarten>},
    {16, &ShowSteps::withSession<frmPreislisten>, make<frmPreislisten>},
    {21, &ShowSteps::vertriebsstati, make<frmVertriebsstati>},
    {25, &ShowSteps::crmKategorien, make<frmCRMKategorien>},
    {26, &ShowSteps::selektionskriterien, make<frmSelektionskriterienVertrag>},
    {28, &ShowSteps::selectionListValues, make<frmSelectionListValues>},
    {29, &ShowSteps::withSession<frmOfferTemplates>, make<frmOfferTemplates>},
    {30, &ShowSteps::withSession<frmSaveOfferTemplate>, make<frmSaveOfferTemplate>},
    {31, &ShowSteps::withSession<frmOMRCode, 0>, make<frmOMRCode>},
    {32, &ShowSteps::reasons<1>, make<frmKuendigungsgruende>},
    {33, &ShowSteps::reasons<2>, make<frmKuendigungsgruende>},
    {34, &ShowSteps::quantitySplit, make<frmAufteilungSNCH>},
    {35, &ShowSteps::keywords, make<frmKeywords>},
    {36, &ShowSteps::statusReason, make<frmVTStatusGrund>},
};

const Dispatch* findDispatch(std::int32_t kind) noexcept {
  const Dispatch* row = std::ranges::find(dispatch, kind, &Dispatch::kind);
  return row != std::end(dispatch) ? row : nullptr;
}

}  // namespace

bool isOffered(std::int32_t number) noexcept {
  return findDispatch(number) != nullptr || hasDefinition(number);
}

std::unique_ptr<Form> makeForm(std::int32_t number) {
  if (const Dispatch* row = findDispatch(number)) return row->make();
  return makeGenericForm(number);
}

std::unique_ptr<Form> makeGenericForm(std::int32_t number) {
  ResumeNext step;
  auto form = std::make_unique<frmDialog>();
  // Without a connection a class may fail to fill its drop-downs, the last thing it does.
  step([&] { form->Init(nothing, u"", number); });
  return form;
}

ORBDialog::ORBDialog() = default;
ORBDialog::~ORBDialog() = default;

void ORBDialog::Session(Ref<zqn::Session> session) {
  session_ = std::move(session);
  connection_ = session_->SessionConnection();
}

Variant ORBDialog::Show(std::int32_t zqnDataType, VariantArray& Param) {
  evaluateAccess(zqnDataType);
  ShowSteps steps(*this, Param);
  if (const Dispatch* row = findDispatch(zqnDataType)) return (steps.*row->show)();
  return steps.generic(zqnDataType);
}

Variant ORBDialog::ShowGeneric(std::int32_t zqnDataType, VariantArray& Param) {
  evaluateAccess(zqnDataType);
  return ShowSteps(*this, Param).generic(zqnDataType);
}

void ORBDialog::evaluateAccess(std::int32_t kind) {
  ResumeNext step;
  bool adminsOnly = false;
  step([&] {
    adminsOnly = CBool(session_->GetSetting(u"ZQNComDlg", u"AdminsOnly", u"0", zqnGetGlobalSettingsOnly));
  });
  basBasis::bAllowChanges = true;
  if (session_.isNothing()) return;
  if (step.test([&] { return session_->UserIsAdmin() || !adminsOnly; })) return;
  String list;
  step([&] { list = session_->GetSetting(u"ZQNComDlg", u"AllowVPSave", u"7;", zqnGetUserSettingsFirst); });
  basBasis::bAllowChanges = listAllows(list, kind);
}

bool ORBDialog::listAllows(StringView list, std::int32_t kind) {
  if (InStr(list, u";") == String::npos) return false;
  ResumeNext step;
  for (const String& part : Split(list, u";")) {
    if (!IsNumeric(part)) continue;
    // A number beyond 16 bits makes the test fail, and a test that fails counts as a match.
    if (step.test([&] { return CInt(part) == kind; })) return true;
  }
  return false;
}

void ORBDialog::report(const Variant& Result) {
  ResumeNext step;
  step([&] { result_ = Result; });
  step([&] { DblClick.raise(Result); });
}

void ORBDialog::eventFailed(StringView, const RuntimeError&) {
  // Errors of the host's handler stay with the statement that raised the event, and that one is skipped.
}

}  // namespace zqn
