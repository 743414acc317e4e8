// SPDX-License-Identifier: MIT
#include "host/script/scripted_user.h"

#include <algorithm>
#include <ostream>
#include <utility>

#include "desktop/headless/headless_desktop.h"
#include "host/script/script_error.h"
#include "runtime/convert.h"

namespace zqn::script {

namespace {

MsgBoxResult defaultAnswer(const MessageBox& box) {
  return box.buttons().at(static_cast<std::size_t>(box.defaultButton() - 1));
}

}  // namespace

ScriptedUser::ScriptedUser(Desktop& desktop, UserInput& input, OutsideAccess outside, FaultInjector& faults,
                           std::istream& script, std::ostream& transcript)
    : desktop_(desktop),
      input_(input),
      outside_(std::move(outside)),
      gestures_(desktop, input),
      context_{desktop, input,     gestures_,   outside_,
               faults,  auskunft_, passedOver_, [this](const Json& line) { write(line); }},
      reader_(script),
      transcript_(transcript) {
  desktop_.addListener(this);
  desktop_.whenIdle([this] { step(); });
  desktop_.clock([this] { return gestures_.time(); });
}

ScriptedUser::~ScriptedUser() {
  desktop_.whenIdle({});
  desktop_.clock({});
  desktop_.removeListener(this);
}

// ---- the script

void ScriptedUser::prepare() {
  while (std::optional<PendingLine> pending = nextLine()) {
    if (pending->kind->group != LineGroup::Outside) {
      ahead_ = std::move(pending);
      return;
    }
    run(*pending);
  }
}

void ScriptedUser::finish() {
  while (const std::optional<PendingLine> pending = nextLine()) run(*pending);
}

void ScriptedUser::step() {
  if (gestures_.letGo()) return;
  if (failed_) return closeWhatIsOpen();
  if (gestures_.restOn() || gestures_.typeOn()) return;
  if (const std::optional<PendingLine> pending = nextLine()) return run(*pending);
  closeWhatIsOpen();
}

std::optional<ScriptedUser::PendingLine> ScriptedUser::nextLine() {
  if (failed_) return std::nullopt;
  if (ahead_) return std::exchange(ahead_, std::nullopt);
  try {
    std::optional<ScriptLine> line = reader_.next();
    if (!line) return std::nullopt;
    const LineKind& kind = kindOfLine(line->json);
    return PendingLine{std::move(*line), &kind};
  } catch (const ScriptError& wrong) {
    fail(reader_.lineNumber(), wrong.what());
    return std::nullopt;
  }
}

void ScriptedUser::run(const PendingLine& pending) {
  const ScriptLine& line = pending.line;
  try {
    pending.kind->run(context_, Arguments(line.json));
  } catch (const Refusal& refusal) {
    write(refusedLine(refusal.what(), line.json));
  } catch (const ScriptError& wrong) {
    fail(line.number, wrong.what());
  } catch (const RuntimeError& failure) {
    fail(line.number, std::string("a run-time error left the desktop: ") + failure.what());
  }
}

// ---- the end of the script

void ScriptedUser::closeWhatIsOpen() {
  if (const MessageBox* box = desktop_.openMessageBox())
    return input_.answer(failed_ ? box->buttons().back() : defaultAnswer(*box));
  if (desktop_.openPopupMenu() != nullptr) return input_.closeMenu();
  Form* form = desktop_.activeForm();
  if (form == nullptr || !form->Visible()) return;
  if (failed_) return closeWithoutAsking(*form);
  switch (closings_[form]++) {
    case 0:
      return input_.closeBox(*form);
    case 1:
      if (Control* button = headless::cancelButton(*form)) return gestures_.click({*button});
      [[fallthrough]];
    default:
      return fail(reader_.lineNumber(), toUtf8(form->Name()) + " refuses to close");
  }
}

void ScriptedUser::closeWithoutAsking(Form& form) {
  form.QueryUnload = nullptr;
  form.Unload = nullptr;
  form.UnloadMe();
}

// ---- the transcript

void ScriptedUser::fail(int lineNumber, const std::string& reason) {
  if (failed_) return;
  failed_ = true;
  put({{"scriptError", "line " + std::to_string(lineNumber) + ": " + reason}});
}

void ScriptedUser::write(const Json& line) {
  if (failed_) return;
  put(line);
  std::string differing;
  for (Form* form : open_) {
    if (!form->Visible()) continue;
    for (const String& difference : input_.differences(*form))
      differing += (differing.empty() ? "" : "; ") + toUtf8(difference);
  }
  if (!differing.empty()) fail(reader_.lineNumber(), "the window differs from the form: " + differing);
}

void ScriptedUser::put(const Json& line) {
  transcript_ << line.dump() << '\n' << std::flush;
  if (!transcript_) failed_ = true;
}

void ScriptedUser::writeResult(const host::ShowOutcome& outcome) { write(resultLine(outcome)); }

void ScriptedUser::writeEvent(StringView event, const Variant& result) { write(eventLine(event, result)); }

void ScriptedUser::writeAuskunft(StringView name, StringView title) { write(auskunftLine(name, title)); }

void ScriptedUser::formShown(Form& form) {
  gestures_.somethingOpened();
  open_.push_back(&form);
  write(shownLine(form));
}

void ScriptedUser::formClosed(Form& form) {
  gestures_.formClosed(form);
  std::erase(open_, &form);
  closings_.erase(&form);
  write(closedLine(form));
}

void ScriptedUser::messageBoxOpened(const MessageBox& box) {
  gestures_.somethingOpened();
  write(messageBoxLine(box));
}

void ScriptedUser::popupMenuOpened(const Menu& menu) {
  gestures_.somethingOpened();
  write(popupLine(menu));
}

bool ScriptedUser::runtimeErrorRaised(Form&, StringView procedure, const RuntimeError& failure) {
  write(errorLine(procedure, failure));
  return true;
}

void ScriptedUser::failurePassedOver(Form&, StringView procedure, const RuntimeError& failure) {
  passedOver_.push_back(failureEntry(procedure, failure));
}

}  // namespace zqn::script
