// SPDX-License-Identifier: MIT
#include "workplace.h"

#include <algorithm>
#include <stdexcept>

#include "ado/odbc/odbc.h"
#include "forms/form.h"
#include "host/session/host_session.h"

namespace zqn::load {

namespace {

bool isQuestion(const MessageBox& box) {
  const auto buttons = box.buttons();
  return std::ranges::find(buttons, MsgBoxResult::Yes) != buttons.end();
}

}  // namespace

Workplace::Workplace(const String& connectionString, const String& user, Tally& tally) : tally_(tally) {
  const ado::OdbcOptions options{
      .runs = [this](StringView statement, std::span<const ado::Value> parameters) {
        record(statement, parameters);
      }};
  connection_ = Ref<ado::Connection>::make(watched(ado::odbcProvider(connectionString, options), watch_));
  auto session = std::make_shared<host::HostSession>(connection_, user, true);
  dialog_.Session(Ref<Session>(std::shared_ptr<Session>(std::move(session))));
  desktop_.addListener(this);
  desktop_.whenIdle([this] { idle(); });
}

Workplace::~Workplace() { desktop_.removeListener(this); }

void Workplace::record(StringView statement, std::span<const ado::Value> parameters) {
  Run& run = recording_.emplace_back(Run{String(statement), {}});
  for (const ado::Value& value : parameters)
    run.arguments.push_back({value.kind, value.integer, value.real, String(value.text)});
}

Variant Workplace::show(std::int32_t kind, VariantArray param, std::function<void()> acts) {
  acts_ = std::move(acts);
  dialog_.Show(kind, param);
  acts_ = nullptr;
  return param.at(0);
}

void Workplace::idle() {
  if (const MessageBox* box = desktop_.openMessageBox()) {
    const auto byDefault = static_cast<std::size_t>(box->defaultButton() - 1);
    desktop_.answer(isQuestion(*box) ? MsgBoxResult::Yes : box->buttons().at(byDefault));
    return;
  }
  if (acts_) return std::exchange(acts_, nullptr)();
  Form* form = desktop_.activeForm();
  form->closeBox();
  if (!form->Visible()) return;
  if (Control* button = headless::cancelButton(*form)) desktop_.click(*button);
}

void Workplace::messageBoxOpened(const MessageBox& box) {
  if (!isQuestion(box)) tally_.count("shown.box: " + toUtf8(box.text));
}

bool Workplace::runtimeErrorRaised(Form& form, StringView procedure, const RuntimeError& failure) {
  tally_.count("shown." + toUtf8(form.Name()) + "." + toUtf8(procedure) + ": " +
               std::to_string(failure.number()));
  return true;
}

void Workplace::click(StringView control) {
  Form* form = desktop_.activeForm();
  Control* found = form == nullptr ? nullptr : form->findControl(control);
  if (found == nullptr) throw std::logic_error("no control " + toUtf8(control));
  desktop_.click(*found);
}

void Workplace::press(int code, int times) {
  for (; times > 0; --times) {
    desktop_.press(KeyStroke::ofCode(code));
    desktop_.pressQueuedKeys();
  }
}

void Workplace::type(StringView text) {
  for (const char16_t character : text) desktop_.press(KeyStroke::ofCharacter(character));
}

}  // namespace zqn::load
