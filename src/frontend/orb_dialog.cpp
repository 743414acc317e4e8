// SPDX-License-Identifier: MIT
#include "frontend/orb_dialog.h"

#include <array>

#include "catalogues/vertriebsstati.h"
#include "frontend/bas_basis.h"
#include "frontend/kinds.h"
#include "runtime/convert.h"
#include "runtime/resume_next.h"

namespace zqn {

/// The road of a dedicated form through Show. Every statement stands by itself: one that fails is skipped.
class DedicatedShow {
 public:
  DedicatedShow(ORBDialog& dialog, VariantArray& param) : dialog_(dialog), param_(param) {}

  /// A catalogue that takes Connection, Multiselect and a key, gives the key back, and reports picks to the
  /// host.
  template <class Form>
  Variant catalogue() {
    ResumeNext step;
    std::unique_ptr<Form> form;
    Variant returned;
    step([&] { form = std::make_unique<Form>(); });
    step([&] { form->DblClick = [this](const Variant& Result) { reported(Result); }; });
    step([&] { form->Connection = dialog_.Connection(); });
    step([&] { form->Multiselect = dialog_.Multiselect(); });
    step([&] { form->SelectedKey = param_.at(0); });
    step([&] { form->ShowData(); });
    step([&] { param_.at(0) = form->SelectedKey; });
    step([&] { returned = form->SelectedKey; });
    return returned;
  }

 private:
  void reported(const Variant& Result) {
    ResumeNext step;
    step([&] { dialog_.Result(Result); });
    step([&] { dialog_.DblClick.raise(Result); });
  }

  ORBDialog& dialog_;
  VariantArray& param_;
};

namespace {

/// What Show opens, and how. A kind gets its form by one row here.
struct Dispatch {
  std::int32_t kind;
  Variant (DedicatedShow::*show)();
  RegisteredForm form;
};

template <class F>
std::unique_ptr<Form> make() {
  return std::make_unique<F>();
}

constexpr std::array dispatch{
    Dispatch{
        21, &DedicatedShow::catalogue<frmVertriebsstati>, {u"frmVertriebsstati", make<frmVertriebsstati>}},
};

const Dispatch* findDispatch(std::int32_t kind) noexcept {
  for (const Dispatch& row : dispatch) {
    if (row.kind == kind) return &row;
  }
  return nullptr;
}

}  // namespace

bool isOffered(std::int32_t number) noexcept { return findDispatch(number) != nullptr; }

std::span<const RegisteredForm> registeredForms() noexcept {
  static constexpr auto forms = [] {
    std::array<RegisteredForm, dispatch.size()> all{};
    for (std::size_t i = 0; i < dispatch.size(); ++i) all[i] = dispatch[i].form;
    return all;
  }();
  return forms;
}

void ORBDialog::Session(Ref<zqn::Session> session) {
  session_ = std::move(session);
  connection_ = session_->SessionConnection();
}

Variant ORBDialog::Show(std::int32_t zqnDataType, VariantArray& Param) {
  evaluateAccess(zqnDataType);
  const Dispatch* row = findDispatch(zqnDataType);
  if (row == nullptr) return {};
  DedicatedShow show(*this, Param);
  return (show.*row->show)();
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

void ORBDialog::eventFailed(StringView, const RuntimeError&) {
  // Errors of the host's handler stay with the statement that raised the event, and that one is skipped.
}

}  // namespace zqn
