// SPDX-License-Identifier: MIT
//
// A person who acts by a script, and the transcript of what happens. The script is read line by line, one
// line each time the desktop has nothing left to do, so each action sees what the one before has come to.
//
//     ScriptedUser user(desktop, input, outside, faults, script, transcript);
//     user.prepare();
//     if (!user.failed()) dialog.Show(kind, param);
//     user.finish();
//     user.writeResult({...});
//     return user.failed() ? 4 : status;
//
// At the end of the script open forms are closed by their close box and message boxes get their default
// answer. When the script cannot go on, the transcript ends with the line scriptError, message boxes are
// answered in the negative, and forms close without being asked.
#pragma once

#include <iosfwd>
#include <map>
#include <optional>
#include <vector>

#include "forms/desktop.h"
#include "host/script/fault_injector.h"
#include "host/script/gestures.h"
#include "host/script/line_context.h"
#include "host/script/line_kinds.h"
#include "host/script/outside_access.h"
#include "host/script/script_reader.h"
#include "host/script/transcript_lines.h"

namespace zqn::script {

class ScriptedUser : public DesktopListener {
 public:
  /// Takes over the desktop's idle step until the end of its own life. The references must outlive it;
  /// `faults` is to watch the connection of the dialogs. All functions of `outside` must be set.
  ScriptedUser(Desktop& desktop, UserInput& input, OutsideAccess outside, FaultInjector& faults,
               std::istream& script, std::ostream& transcript);
  ~ScriptedUser() override;
  ScriptedUser(const ScriptedUser&) = delete;
  ScriptedUser& operator=(const ScriptedUser&) = delete;

  /// Before Show: runs the lines about what lies outside the dialog, up to the first user action or probe.
  void prepare();
  /// After Show: runs what is left of the script; nothing is open, so user actions are refused.
  void finish();
  /// The last line; not written when the script could not go on.
  void writeResult(const host::ShowOutcome& outcome);
  /// The dialog raised an event to its host.
  void writeEvent(StringView event, const Variant& result);
  /// An information dialog was asked for.
  void writeAuskunft(StringView name, StringView title);

  /// What information dialogs are to answer at present.
  const AuskunftAnswer& auskunft() const noexcept { return auskunft_; }
  /// The script could not go on, or the transcript cannot be written.
  bool failed() const noexcept { return failed_; }

  void formShown(Form& form) override;
  void formClosed(Form& form) override;
  void messageBoxOpened(const MessageBox& box) override;
  void popupMenuOpened(const Menu& menu) override;
  bool runtimeErrorRaised(Form& form, StringView procedure, const RuntimeError& failure) override;
  void failurePassedOver(Form& form, StringView procedure, const RuntimeError& failure) override;

 private:
  struct PendingLine {
    ScriptLine line;
    const LineKind* kind;
  };

  void step();
  std::optional<PendingLine> nextLine();
  void run(const PendingLine& pending);
  void closeWhatIsOpen();
  void closeWithoutAsking(Form& form);
  void write(const Json& line);
  void put(const Json& line);
  void fail(int lineNumber, const std::string& reason);

  Desktop& desktop_;
  UserInput& input_;
  OutsideAccess outside_;
  Gestures gestures_;
  AuskunftAnswer auskunft_;
  /// Since the script asked last.
  Json passedOver_ = Json::array();
  LineContext context_;
  ScriptReader reader_;
  std::ostream& transcript_;
  /// Read by prepare, to be run when the form stands open.
  std::optional<PendingLine> ahead_;
  /// From the bottom to the top.
  std::vector<Form*> open_;
  /// How often the end of the script has tried to close a form.
  std::map<const Form*, int> closings_;
  bool failed_ = false;
};

}  // namespace zqn::script
