// SPDX-License-Identifier: MIT
#include "host/command/show_command.h"

#include <fstream>
#include <iostream>
#include <memory>

#include "frontend/kinds.h"
#include "host/database/messages.h"
#include "host/information/auskunft.h"
#include "host/script/outside_of_host.h"
#include "host/script/scripted_auskunft.h"
#include "host/script/scripted_user.h"
#include "host/session/host.h"
#include "host/session/show_call.h"

namespace zqn::host {

namespace {

namespace fs = std::filesystem;
using script::ScriptedUser;

/// The transcript of a person's work.
class Recorder : public DesktopListener {
 public:
  Recorder(Desktop& desktop, std::ostream& transcript) : desktop_(desktop), transcript_(transcript) {
    desktop_.addListener(this);
  }
  ~Recorder() override { desktop_.removeListener(this); }

  void formShown(Form& form) override { write(script::shownLine(form)); }
  void formClosed(Form& form) override { write(script::closedLine(form)); }
  void messageBoxOpened(const MessageBox& box) override { write(script::messageBoxLine(box)); }
  void popupMenuOpened(const Menu& menu) override { write(script::popupLine(menu)); }
  bool runtimeErrorRaised(Form&, StringView procedure, const RuntimeError& failure) override {
    write(script::errorLine(procedure, failure));
    return false;
  }
  void failurePassedOver(Form&, StringView procedure, const RuntimeError& failure) override {
    write(script::passedOverLine(script::Json::array({script::failureEntry(procedure, failure)})));
  }
  void write(const script::Json& line) { transcript_ << line.dump() << std::endl; }

 private:
  Desktop& desktop_;
  std::ostream& transcript_;
};

std::unique_ptr<std::ifstream> openScript(const fs::path& file) {
  auto stream = std::make_unique<std::ifstream>(file, std::ios::binary);
  if (!*stream || fs::is_directory(file))
    throw CommandFailure(ExitStatus::WrongUsage, "--script '" + file.string() +
                                                     "' cannot be read; name a file with one action a line");
  return stream;
}

/// Opening the transcript empties it.
void requireAnotherFile(const fs::path& transcript, const fs::path& used, const std::string& what) {
  std::error_code failure;
  if (!fs::is_regular_file(transcript, failure) || !fs::equivalent(transcript, used, failure)) return;
  throw CommandFailure(ExitStatus::WrongUsage,
                       "--transcript '" + transcript.string() + "' is " + what + "; name another file");
}

void requireOwnFile(const fs::path& transcript, const ShowOptions& request, const DatabaseAddress& database) {
  if (request.script)
    requireAnotherFile(transcript, *request.script == "-" ? "/dev/stdin" : *request.script, "the script");
  if (database.isServer()) return;
  for (const char* suffix : {"", "-wal", "-shm", "-journal"})
    requireAnotherFile(transcript, database.file().string() + suffix, "the database");
}

std::unique_ptr<std::ofstream> openTranscript(const fs::path& file) {
  auto stream = std::make_unique<std::ofstream>(file, std::ios::binary);
  if (!*stream)
    throw CommandFailure(
        ExitStatus::WrongUsage,
        "--transcript '" + file.string() + "' cannot be written; name a file in a folder that exists");
  return stream;
}

/// The disk may have been full.
void requireWhole(std::ofstream* transcript, const ShowOptions& request) {
  if (transcript == nullptr || transcript->flush()) return;
  throw CommandFailure(ExitStatus::CannotOpen,
                       "--transcript '" + request.transcript->string() + "' cannot be written any further");
}

void printKey(const Variant& key) {
  if (!isKey(key)) return;
  const script::Json json = script::jsonValue(key);
  std::cout << (json.is_string() ? json.get<std::string>() : json.dump()) << std::endl;
}

/// Says beforehand why nothing opens; the call itself goes on as any other.
void warnOfMissingForm(const Options& options) {
  const std::int32_t kind = options.show.kind;
  if (findKind(kind) == nullptr || isOffered(kind) || options.host.generic) return;
  tell("kind " + std::to_string(kind) +
       " is not part of this version; 'zqn-dialog kinds' lists those that are");
}

/// The keys on standard output, which is the transcript's alone where that goes there: each pick when it comes, and
/// without Multiselect the one that Show returned.
class KeyPrinter {
 public:
  KeyPrinter(bool prints, bool multiselect) : prints_(prints), multiselect_(multiselect) {}

  void picked(const Variant& key) const {
    if (prints_ && multiselect_) printKey(key);
  }
  void returned(const Variant& key) const {
    if (prints_ && !multiselect_) printKey(key);
  }

 private:
  bool prints_, multiselect_;
};

ExitStatus statusOf(const ShowOutcome& outcome) {
  return isKey(outcome.returned) ? ExitStatus::Done : ExitStatus::NoKey;
}

}  // namespace

ExitStatus showDialog(const Options& options, Desktop& desktop, script::UserInput& input) {
  warnOfMissingForm(options);
  const ShowOptions& request = options.show;
  std::unique_ptr<std::ifstream> scriptFile;
  if (request.script && *request.script != "-") scriptFile = openScript(*request.script);

  const Locale::Scope locale(localeOf(options.host));
  const Host host(options.host);
  offerCompanions(options.host);
  std::unique_ptr<std::ofstream> transcriptFile;
  if (request.transcript) {
    requireOwnFile(*request.transcript, request, host.address());
    transcriptFile = openTranscript(*request.transcript);
  }

  const Desktop::Scope scope(desktop);
  ORBDialog dialog;
  host.equip(dialog);
  const KeyPrinter printer(!request.script || transcriptFile, options.host.multiselect);

  if (!request.script) {
    offerAuskunft(host.connection());
    std::unique_ptr<Recorder> recorder;
    if (transcriptFile) recorder = std::make_unique<Recorder>(desktop, *transcriptFile);
    dialog.DblClick = [&](const Variant& key) {
      if (recorder) recorder->write(script::eventLine(u"DblClick", key));
      printer.picked(key);
    };
    const ShowOutcome outcome = callShow(dialog, request.kind, request.param, options.host.generic);
    if (recorder) recorder->write(script::resultLine(outcome));
    requireWhole(transcriptFile.get(), request);
    printer.returned(outcome.returned);
    return statusOf(outcome);
  }

  script::FaultInjector faults;
  host.connection()->observer(&faults);
  std::istream& script = scriptFile ? *scriptFile : std::cin;
  std::ostream& transcript = transcriptFile ? *transcriptFile : std::cout;
  ScriptedUser user(desktop, input, script::outsideOf(host), faults, script, transcript);
  dialog.DblClick = [&](const Variant& key) {
    user.writeEvent(u"DblClick", key);
    printer.picked(key);
  };
  const script::ScriptedAuskunft auskunft(user);
  ShowOutcome outcome;
  user.prepare();
  if (!user.failed()) outcome = callShow(dialog, request.kind, request.param, options.host.generic);
  user.finish();
  user.writeResult(outcome);
  host.connection()->observer(nullptr);
  requireWhole(transcriptFile.get(), request);
  printer.returned(outcome.returned);
  return user.failed() ? ExitStatus::ScriptError : statusOf(outcome);
}

}  // namespace zqn::host
