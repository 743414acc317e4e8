// SPDX-License-Identifier: MIT
#include "forms/desktop.h"

#include <array>
#include <utility>

#include "forms/form.h"
#include "forms/names.h"
#include "runtime/convert.h"

namespace zqn {

namespace {

Desktop* currentDesktop = nullptr;

/// Names of keys between braces, as queued keys write them.
constexpr std::array<std::pair<StringView, int>, 18> keyNames{{{u"Tab", key::Tab},
                                                               {u"Enter", key::Enter},
                                                               {u"Esc", key::Escape},
                                                               {u"Backspace", key::Backspace},
                                                               {u"Delete", key::Delete},
                                                               {u"Home", key::Home},
                                                               {u"End", key::End},
                                                               {u"Left", key::Left},
                                                               {u"Up", key::Up},
                                                               {u"Right", key::Right},
                                                               {u"Down", key::Down},
                                                               {u"PgUp", key::PageUp},
                                                               {u"PgDn", key::PageDown},
                                                               {u"F2", key::F2},
                                                               {u"F4", key::F4},
                                                               {u"F6", key::F6},
                                                               {u"F9", key::F9},
                                                               {u"F10", key::F10}}};

KeyStroke namedKey(StringView name) {
  for (const auto& [known, code] : keyNames) {
    if (sameName(known, name)) return KeyStroke::ofCode(code);
  }
  throw RuntimeError(error::InvalidProcedureCall);
}

/// The form whose modal loop runs, on the stack of open forms for as long as it does.
class OpenForm {
 public:
  OpenForm(std::vector<Form*>& forms, Form& form) : forms_(forms) { forms_.push_back(&form); }
  ~OpenForm() { forms_.pop_back(); }
  OpenForm(const OpenForm&) = delete;
  OpenForm& operator=(const OpenForm&) = delete;

 private:
  std::vector<Form*>& forms_;
};

}  // namespace

Desktop& Desktop::current() {
  if (currentDesktop == nullptr) throw RuntimeError(error::CannotCreateObject);
  return *currentDesktop;
}

Desktop::Scope::Scope(Desktop& desktop) noexcept : former_(std::exchange(currentDesktop, &desktop)) {}
Desktop::Scope::~Scope() { currentDesktop = former_; }

void Desktop::showModal(Form& form) {
  const OpenForm open(forms_, form);
  openWindow(form);
  form.opened();
  if (form.Visible()) {
    for (DesktopListener* listener : listeners_) listener->formShown(form);
    runLoop([&form] { return !form.Visible(); });
  }
  closeWindow(form);
  if (forms_.size() == 1) queue_.clear();
  for (DesktopListener* listener : listeners_) listener->formClosed(form);
}

MsgBoxResult Desktop::messageBox(const MessageBox& box) {
  ++boxCount_;
  const MessageBox* const outer = std::exchange(box_, &box);
  for (DesktopListener* listener : listeners_) listener->messageBoxOpened(box);
  const MsgBoxResult answer = runMessageBox(box);
  box_ = outer;
  return answer;
}

void Desktop::runtimeErrorRaised(Form& form, StringView procedure, const RuntimeError& failure) {
  bool dealtWith = false;
  for (DesktopListener* listener : listeners_) {
    dealtWith = listener->runtimeErrorRaised(form, procedure, failure) || dealtWith;
  }
  if (dealtWith) return;
  MsgBox(u"Laufzeitfehler '" + CStr(failure.number()) + u"':\n\n" + failure.description(), msgbox::Critical,
         u"TALVEX Software");
}

void Desktop::sendKeys(StringView keys) {
  while (!keys.empty()) {
    if (keys.front() != u'{') {
      queue_.push_back(KeyStroke::ofCharacter(keys.front()));
      keys.remove_prefix(1);
      continue;
    }
    const auto close = keys.find(u'}');
    if (close == StringView::npos) throw RuntimeError(error::InvalidProcedureCall);
    queue_.push_back(namedKey(keys.substr(1, close - 1)));
    keys.remove_prefix(close + 1);
  }
}

bool Desktop::nextQueuedKey(KeyStroke& stroke) {
  if (queue_.empty() || box_ != nullptr) return false;
  stroke = queue_.front();
  queue_.pop_front();
  return true;
}

}  // namespace zqn
