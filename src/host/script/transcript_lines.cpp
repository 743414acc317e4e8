// SPDX-License-Identifier: MIT
#include "host/script/transcript_lines.h"

#include "forms/menu.h"

namespace zqn::script {

namespace {

const char* buttonsOf(const MessageBox& box) {
  switch (box.style & 0xF) {
    case msgbox::OKCancel:
      return "okcancel";
    case msgbox::YesNoCancel:
      return "yesnocancel";
    case msgbox::YesNo:
      return "yesno";
    default:
      return "okonly";
  }
}

const char* iconOf(const MessageBox& box) {
  switch (box.style & 0xF0) {
    case msgbox::Critical:
      return "critical";
    case msgbox::Question:
      return "question";
    case msgbox::Exclamation:
      return "exclamation";
    case msgbox::Information:
      return "information";
    default:
      return "none";
  }
}

}  // namespace

Json shownLine(const Form& form) {
  return {{"shown", jsonText(form.Name())}, {"caption", jsonText(form.Caption())}};
}

Json closedLine(const Form& form) { return {{"closed", jsonText(form.Name())}}; }

Json messageBoxLine(const MessageBox& box) {
  const Json entry{{"text", jsonText(box.text)},
                   {"title", jsonText(box.title)},
                   {"buttons", buttonsOf(box)},
                   {"icon", iconOf(box)},
                   {"default", box.defaultButton()}};
  return {{"msgbox", entry}};
}

Json popupLine(const Menu& menu) {
  Json items = Json::array();
  for (const Menu* item : menu.items()) {
    Json entry{{"name", jsonText(item->fullName())},
               {"caption", jsonText(item->Caption())},
               {"enabled", item->Enabled()}};
    items.push_back(std::move(entry));
  }
  return {{"popup", jsonText(menu.fullName())}, {"items", std::move(items)}};
}

Json failureEntry(StringView procedure, const RuntimeError& failure) {
  return {{"in", jsonText(procedure)},
          {"number", failure.number()},
          {"description", jsonText(failure.description())}};
}

Json errorLine(StringView procedure, const RuntimeError& failure) {
  return {{"error", failureEntry(procedure, failure)}};
}

Json passedOverLine(Json entries) { return {{"passedOver", std::move(entries)}}; }

Json eventLine(StringView event, const Variant& result) {
  return {{"event", jsonText(event)}, {"result", jsonValue(result)}};
}

Json auskunftLine(StringView name, StringView title) {
  const Json entry{{"name", jsonText(name)}, {"title", jsonText(title)}};
  return {{"auskunft", entry}};
}

Json refusedLine(const std::string& reason, const Json& action) {
  return {{"refused", reason}, {"action", action}};
}

Json resultLine(const host::ShowOutcome& outcome) {
  Json param = Json::array();
  for (const Variant& element : outcome.param.elements()) param.push_back(jsonValue(element));
  const Json entry{{"return", jsonValue(outcome.returned)},
                   {"param", std::move(param)},
                   {"allowChanges", outcome.allowChanges},
                   {"dialogResult", jsonValue(outcome.dialogResult)}};
  return {{"result", entry}};
}

}  // namespace zqn::script
