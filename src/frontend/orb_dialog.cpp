// SPDX-License-Identifier: MIT
#include "frontend/orb_dialog.h"

#include "frontend/basics/bas_basis.h"
#include "frontend/show_steps.h"
#include "runtime/convert.h"
#include "runtime/resume_next.h"

namespace zqn {

ORBDialog::ORBDialog() = default;
ORBDialog::~ORBDialog() = default;

void ORBDialog::Session(Ref<zqn::Session> session) {
  session_ = std::move(session);
  connection_ = session_->SessionConnection();
}

Variant ORBDialog::Show(std::int32_t zqnDataType, VariantArray& Param) {
  evaluateAccess(zqnDataType);
  ShowSteps steps(*this, zqnDataType, Param);
  return (steps.*roadOf(zqnDataType))();
}

Variant ORBDialog::ShowGeneric(std::int32_t zqnDataType, VariantArray& Param) {
  evaluateAccess(zqnDataType);
  return ShowSteps(*this, zqnDataType, Param).generic();
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
