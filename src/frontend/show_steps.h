// SPDX-License-Identifier: MIT
//
// The roads of the forms through Show: what goes in, what comes back, and who hears of picks. A form that no
// other is like gets a road of its own here, and its kind names that road in the table of kinds (kinds.cpp):
//
//     ShowSteps steps(dialog, 21, param);
//     return (steps.*roadOf(21))();
//
// Every statement stands by itself: one that fails is skipped.
#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

#include "catalogues/crm_kategorien.h"
#include "catalogues/keywords.h"
#include "catalogues/kuendigungsgruende.h"
#include "catalogues/selection_list_values.h"
#include "catalogues/selektionskriterien_vertrag.h"
#include "catalogues/vertriebsstati.h"
#include "catalogues/vt_status_grund.h"
#include "dialog/frm_dialog.h"
#include "frontend/kinds.h"
#include "frontend/orb_dialog.h"
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
  template <class... Args>
  explicit Held(Form*& member, Args... args)
      : form(args...), member_(member), outer_(std::exchange(member, &form)) {}
  ~Held() { member_ = outer_; }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

  Form form;

 private:
  Form*& member_;
  Form* outer_;
};

class ShowSteps {
 public:
  /// One way through Show; it gives what Show returns.
  using Road = Variant (ShowSteps::*)();

  ShowSteps(ORBDialog& dialog, std::int32_t kind, VariantArray& param)
      : dialog_(dialog), kind_(kind), param_(param) {}

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

  /// A form that takes the session, too. What the settings of layouts give back is not a key.
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
  Variant generic() {
    ResumeNext step;
    const Held held(dialog_.frm, makeDefinition);
    frmDialog& frm = *dialog_.frm;
    Variant returned;
    hear(frm, &ORBDialog::frm_DblClick);
    step([&] { frm.Init(dialog_.Connection(), param_.at(0), kind_); });
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
  Variant catalogue(Form*& member, Sink sink) {
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
  std::int32_t kind_;
  VariantArray& param_;
};

/// The road of a kind; that of the generic form for a number that is not one of a kind.
ShowSteps::Road roadOf(std::int32_t kind) noexcept;

}  // namespace zqn
