// SPDX-License-Identifier: MIT
#include "forms/desktop.h"

#include <algorithm>
#include <array>
#include <utility>

#include "forms/form.h"
#include "forms/menu.h"
#include "forms/names.h"
#include "forms/timer.h"
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

/// The message box or the menu that is open; they nest.
template <class Opened>
class Open {
 public:
  Open(const Opened*& current, const Opened& opened)
      : current_(current), outer_(std::exchange(current, &opened)) {}
  ~Open() { current_ = outer_; }
  Open(const Open&) = delete;
  Open& operator=(const Open&) = delete;

 private:
  const Opened*& current_;
  const Opened* outer_;
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
  const Open open(box_, box);
  for (DesktopListener* listener : listeners_) listener->messageBoxOpened(box);
  return runMessageBox(box);
}

void Desktop::popupMenu(Menu& menu) {
  Menu* taken = nullptr;
  {
    const Open open(popup_, menu);
    for (DesktopListener* listener : listeners_) listener->popupMenuOpened(menu);
    taken = runPopupMenu(menu);
  }
  if (taken != nullptr) taken->clicked();
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

void Desktop::failurePassedOver(Form& form, StringView procedure, const RuntimeError& failure) {
  for (DesktopListener* listener : listeners_) listener->failurePassedOver(form, procedure, failure);
  // The first failure is the cause; those that follow from it say less.
  if (!form.Visible() || !form.Notice().empty()) return;
  const StringView words = failure.description();
  form.Notice(u"Fehler " + CStr(failure.number()) + u": " +
              String(words.substr(0, words.find_first_of(u"\r\n"))));
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
  if (queue_.empty() || box_ != nullptr || popup_ != nullptr) return false;
  stroke = queue_.front();
  queue_.pop_front();
  return true;
}

void Desktop::hourglass(bool shown) {
  if (std::exchange(hourglass_, shown) != shown) pointerChanged();
}

// ---- timers

std::chrono::milliseconds Desktop::now() const {
  using namespace std::chrono;
  return clock_ ? clock_() : duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
}

Timer* Desktop::nextTimer() {
  const std::chrono::milliseconds present = now();
  Timer* next = nullptr;
  for (Form* form : forms_) {
    if (!form->Visible()) continue;
    for (const auto& control : form->controls()) {
      auto* timer = dynamic_cast<Timer*>(control.get());
      if (timer == nullptr || !timer->due(present)) continue;
      if (next == nullptr || *timer->due(present) < *next->due(present)) next = timer;
    }
  }
  return next;
}

std::optional<std::chrono::milliseconds> Desktop::timeToTick() {
  Timer* const timer = nextTimer();
  if (timer == nullptr) return std::nullopt;
  return std::max(*timer->due(now()) - now(), std::chrono::milliseconds(0));
}

bool Desktop::tickTimer() {
  Timer* const timer = nextTimer();
  if (timer == nullptr || *timer->due(now()) > now()) return false;
  timer->tick(now());
  return true;
}

}  // namespace zqn
