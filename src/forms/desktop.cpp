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

/// Names of keys between braces, as queued keys write them; F1 to F12 follow a rule.
constexpr std::array<std::pair<StringView, int>, 13> keyNames{{{u"Tab", key::Tab},
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
                                                               {u"PgDn", key::PageDown}}};

KeyStroke namedKey(StringView name) {
  for (const auto& [known, code] : keyNames) {
    if (sameName(known, name)) return KeyStroke::ofCode(code);
  }
  for (int number = 1; number <= 12; ++number) {
    if (sameName(u"F" + CStr(std::int32_t{number}), name)) return KeyStroke::ofCode(key::F1 + number - 1);
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

/// The message box that waits for an answer; boxes nest.
class OpenBox {
 public:
  OpenBox(const MessageBox*& current, const MessageBox& box)
      : current_(current), outer_(std::exchange(current, &box)) {}
  ~OpenBox() { current_ = outer_; }
  OpenBox(const OpenBox&) = delete;
  OpenBox& operator=(const OpenBox&) = delete;

 private:
  const MessageBox*& current_;
  const MessageBox* outer_;
};

}  // namespace

Desktop& Desktop::current() {
  if (currentDesktop == nullptr) throw RuntimeError(error::CannotCreateObject);
  return *currentDesktop;
}

Desktop::Scope::Scope(Desktop& desktop) noexcept : former_(std::exchange(currentDesktop, &desktop)) {}
Desktop::Scope::~Scope() { currentDesktop = former_; }

void Desktop::showModal(Form& form) {
  {
    const OpenForm open(forms_, form);
    openWindow(form);
    form.opened();
    if (form.Visible()) {
      for (DesktopListener* listener : listeners_) listener->formShown(form);
      runLoop([&form] { return !form.Visible(); });
    }
    closeWindow(form);
    for (DesktopListener* listener : listeners_) listener->formClosed(form);
  }
  if (forms_.empty()) {
    queue_.clear();
  } else if (activeForm()->Visible()) {
    activeForm()->Activate.raise();
  }
}

MsgBoxResult Desktop::messageBox(const MessageBox& box) {
  ++boxCount_;
  const OpenBox open(box_, box);
  for (DesktopListener* listener : listeners_) listener->messageBoxOpened(box);
  return runMessageBox(box);
}

void Desktop::runtimeErrorRaised(Form& form, StringView procedure, const RuntimeError& failure) {
  bool dealtWith = false;
  for (DesktopListener* listener : listeners_) {
    dealtWith = listener->runtimeErrorRaised(form, procedure, failure) || dealtWith;
  }
  if (dealtWith) {
    // Whoever dealt with it stood in for the person, who would have closed a box.
    ++boxCount_;
    return;
  }
  MsgBox(u"Laufzeitfehler '" + CStr(failure.number()) + u"':\n\n" + failure.description(), msgbox::Critical,
         u"TALVEX Software");
}

void Desktop::sendKeys(StringView keys) {
  std::vector<KeyStroke> strokes;
  while (!keys.empty()) {
    if (keys.front() != u'{') {
      strokes.push_back(KeyStroke::ofCharacter(keys.front()));
      keys.remove_prefix(1);
      continue;
    }
    const auto close = keys.find(u'}');
    if (close == StringView::npos) throw RuntimeError(error::InvalidProcedureCall);
    strokes.push_back(namedKey(keys.substr(1, close - 1)));
    keys.remove_prefix(close + 1);
  }
  queue_.insert(queue_.end(), strokes.begin(), strokes.end());
}

bool Desktop::nextQueuedKey(KeyStroke& stroke) {
  if (queue_.empty() || box_ != nullptr) return false;
  stroke = queue_.front();
  queue_.pop_front();
  return true;
}

}  // namespace zqn
