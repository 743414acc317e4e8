// SPDX-License-Identifier: MIT
#include "forms/form.h"

#include <algorithm>
#include <utility>

#include "forms/command_button.h"
#include "forms/control_kinds.h"
#include "forms/desktop.h"
#include "forms/menu.h"
#include "forms/names.h"
#include "runtime/convert.h"
#include "runtime/resume_next.h"

namespace zqn {

namespace {

/// The stroke of the character that a KeyPress handler put in the place of another.
KeyStroke typing(int character, int shift) {
  if (character < u' ') return KeyStroke::ofCode(character);
  return KeyStroke::ofCharacter(static_cast<char16_t>(character), shift & shift::Shift);
}

}  // namespace

Form::Form(const FormDesign& design)
    : name_(design.name), caption_(design.caption), scaleWidth_(design.width), scaleHeight_(design.height) {
  controls_.reserve(design.roster.size());
  for (const ControlDesign& row : design.roster) {
    controls_.push_back(makeControl(*this, row, static_cast<int>(controls_.size())));
  }
  for (const auto& control : controls_) {
    const StringView container = control->design().other.Container;
    if (!container.empty()) control->container_ = findControl(container);
  }
}

Form::~Form() = default;

void Form::Caption(StringView caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  if (view_ != nullptr) view_->formChanged();
}

void Form::Notice(StringView text) {
  if (notice_ == text) return;
  notice_ = text;
  if (view_ != nullptr) view_->noticeChanged();
}

void Form::Width(int twips) {
  scaleWidth_ = twips - (Width() - scaleWidth_);
  if (view_ != nullptr) view_->formChanged();
}

void Form::Height(int twips) {
  scaleHeight_ = twips - (Height() - scaleHeight_);
  if (view_ != nullptr) view_->formChanged();
}

// ---- controls

Control& Form::control(StringView name, int index) const {
  for (const auto& control : controls_) {
    if (control->Index() == index && sameName(control->Name(), name)) return *control;
  }
  throw RuntimeError(error::NoSuchControl);
}

Control* Form::findControl(StringView fullName) const noexcept {
  const ControlName wanted = splitName(fullName);
  for (const auto& control : controls_) {
    if (control->Index() == wanted.index && sameName(control->Name(), wanted.name)) return control.get();
  }
  return nullptr;
}

Control& Form::requireActiveControl() const {
  if (active_ == nullptr) throw RuntimeError(error::ObjectNotSet);
  return *active_;
}

void Form::SelectActiveText() {
  ResumeNext step;
  step([&] { requireActiveControl().Property(u"SelStart", std::int32_t{0}); });
  step([&] {
    Control& active = requireActiveControl();
    active.Property(u"SelLength", static_cast<std::int32_t>(active.content().size()));
  });
}

// ---- life

void Form::ensureLoaded() {
  if (loaded_) return;
  loaded_ = true;
  Load.raise();
}

void Form::Show() {
  if (visible_) throw RuntimeError(error::FormAlreadyDisplayed);
  ensureLoaded();
  if (!loaded_) throw RuntimeError(error::ObjectUnloaded);
  Desktop::current().showModal(*this);
}

void Form::UnloadMe() { unload(UnloadMode::Code); }

void Form::PopupMenu(Menu& menu) { Desktop::current().popupMenu(menu); }

/// An unload whose handlers are being asked.
class Form::Asking {
 public:
  explicit Asking(Form& form) : form_(form), outer_(std::exchange(form.asking_, this)) {}
  ~Asking() { form_.asking_ = outer_; }
  Asking(const Asking&) = delete;
  Asking& operator=(const Asking&) = delete;

  /// The handler may unload by itself: it has refused, and is not such an unload's already.
  bool mayUnload() const noexcept { return cancel != 0 && outer_ == nullptr; }

  int cancel = 0;

 private:
  Form& form_;
  const Asking* outer_;
};

void Form::unload(UnloadMode mode) {
  if (!loaded_ || (asking_ != nullptr && !asking_->mayUnload())) return;
  {
    Asking asking(*this);
    QueryUnload.raise(asking.cancel, static_cast<int>(mode));
    if (asking.cancel != 0 || !loaded_) return;
    Unload.raise(asking.cancel);
    if (asking.cancel != 0 || !loaded_) return;
  }
  loaded_ = visible_ = false;
  notice_.clear();
  active_ = entered_ = nullptr;
}

void Form::opened() {
  visible_ = true;
  Activate.raise();
  if (!visible_ || active_ != nullptr) return;
  const auto first = std::ranges::find_if(
      controls_, [](const auto& control) { return control->takesFocus() && control->isUsable(); });
  if (first != controls_.end()) moveFocus(**first, FocusCause::Code);
}

// ---- focus

Control* Form::nextInTabOrder(const Control* from, bool backward) const {
  const int count = static_cast<int>(controls_.size());
  int position = from != nullptr ? from->TabIndex() : (backward ? 0 : -1);
  for (int i = 0; i < count; ++i) {
    position = (position + (backward ? count - 1 : 1)) % count;
    Control& candidate = *controls_[static_cast<std::size_t>(position)];
    if (&candidate != from && candidate.takesFocus() && candidate.isTabStop() && candidate.isUsable())
      return &candidate;
  }
  return nullptr;
}

bool Form::moveFocus(Control& target, FocusCause cause) {
  if (active_ == &target) return true;
  if (cause != FocusCause::Code && active_ != nullptr && target.CausesValidation()) {
    Control* const validated = active_;
    bool cancel = false;
    validated->Validate.raise(cancel);
    if (cancel || !visible_ || !target.isUsable()) return false;
    if (active_ != validated) return active_ == &target;
  }
  Control* const left = entered_;
  entered_ = nullptr;
  active_ = &target;
  if (view_ != nullptr) view_->focusChanged();
  if (left != nullptr) leave(*left);
  if (active_ == &target && entered_ != &target) {
    entered_ = &target;
    target.focusEntered();
    target.GotFocus.raise();
    if (active_ == &target) target.focusSettled(cause);
  }
  return active_ == &target;
}

void Form::leaveUnusable() {
  if (!visible_ || active_ == nullptr || active_->isUsable()) return;
  if (Control* next = nextInTabOrder(active_, false)) {
    moveFocus(*next, FocusCause::Code);
    return;
  }
  Control* const left = entered_;
  active_ = entered_ = nullptr;
  if (view_ != nullptr) view_->focusChanged();
  if (left != nullptr) leave(*left);
}

void Form::leave(Control& left) {
  left.focusLeft();
  left.LostFocus.raise();
}

void Form::focusMovedTo(Control& control) {
  if (visible_ && control.takesFocus() && control.isUsable()) moveFocus(control, FocusCause::Tab);
  if (view_ != nullptr && active_ != &control) view_->focusChanged();
}

// ---- keys

CommandButton* Form::buttonFor(int code) const {
  for (const auto& control : controls_) {
    auto* button = dynamic_cast<CommandButton*>(control.get());
    if (button == nullptr || !button->isUsable()) continue;
    if (code == key::Escape ? button->Cancel() : button->Default()) return button;
  }
  return nullptr;
}

bool Form::pressesButton(const KeyStroke& stroke) {
  if (stroke.shift != shift::None || (stroke.code != key::Enter && stroke.code != key::Escape)) return false;
  auto* button = dynamic_cast<CommandButton*>(active_);
  if (stroke.code == key::Escape || button == nullptr) button = buttonFor(stroke.code);
  if (button == nullptr) return false;
  button->clicked();
  return true;
}

bool Form::pressesAccessKey(const KeyStroke& stroke) {
  if (stroke.shift != shift::Alt || stroke.code == 0) return false;
  for (const auto& control : controls_) {
    const bool hasCaption = control->kind() == ControlKind::CommandButton ||
                            control->kind() == ControlKind::CheckBox ||
                            control->kind() == ControlKind::OptionButton;
    if (!hasCaption || !control->isUsable() || accessKey(control->content()) != stroke.code) continue;
    if (moveFocus(*control, FocusCause::Tab)) control->clicked();
    return true;
  }
  return false;
}

KeyOutcome Form::keyPressed(KeyStroke stroke) {
  KeyOutcome outcome{false, stroke};
  if (!visible_) return outcome;
  Notice(u"");
  silentKey_ = 0;
  if (active_ != nullptr && active_->takesKeyFirst(stroke)) {
    silentKey_ = stroke.code;
    return outcome;
  }
  if (pressesAccessKey(stroke)) {
    silentKey_ = stroke.code;
    return outcome;
  }
  Control* next = nullptr;
  if (stroke.code == key::Tab && (stroke.shift & (shift::Ctrl | shift::Alt)) == 0)
    next = nextInTabOrder(active_, (stroke.shift & shift::Shift) != 0);
  if (next != nullptr) {
    silentKey_ = stroke.code;
    moveFocus(*next, FocusCause::Tab);
    return outcome;
  }
  Control* target = active_;
  const bool controlFirst = stroke.code == key::Enter && target != nullptr && target->wantsEnter();
  if (!controlFirst && pressesButton(stroke)) return outcome;

  const bool formSees = keyPreview_ && !controlFirst;
  int code = stroke.code;
  if (code != 0 && formSees) KeyDown.raise(code, stroke.shift);
  // Where nobody had the focus, the form may have given it to somebody just now.
  if (target == nullptr) target = active_;
  if (code != 0 && visible_ && target != nullptr) target->KeyDown.raise(code, stroke.shift);
  int character = stroke.character;
  if (character != 0 && visible_ && formSees) KeyPress.raise(character);
  if (character != 0 && visible_ && target != nullptr) target->KeyPress.raise(character);

  // What a key types has its effect by KeyPress, whatever KeyDown did; all other keys by KeyDown.
  const bool dropped = stroke.character != 0 ? character == 0 : code == 0;
  if (stroke.character == 0) outcome.stroke.code = code;
  if (character != stroke.character) outcome.stroke = typing(character, stroke.shift);
  outcome.own = !dropped && visible_ && target != nullptr && target == active_ && target->isUsable();
  return outcome;
}

void Form::keyReleased(int code, int shift) {
  if (!visible_ || code == 0) return;
  if (code == silentKey_) {
    silentKey_ = 0;
    return;
  }
  Control* const target = active_;
  if (keyPreview_) KeyUp.raise(code, shift);
  if (visible_ && target != nullptr) target->KeyUp.raise(code, shift);
}

// ---- mouse

bool Form::mousePressed(Control& control) {
  const Desktop& desktop = Desktop::current();
  // A screen reader reaches what stands behind another window, too.
  if (desktop.activeForm() != this || desktop.openMessageBox() != nullptr) return false;
  if (!visible_ || !control.isUsable()) return false;
  const int boxes = desktop.messageBoxCount();
  if (control.takesFocus() && !moveFocus(control, FocusCause::Mouse)) return false;
  const bool swallowed = desktop.messageBoxCount() != boxes;
  return !swallowed && visible_ && control.isUsable();
}

void Form::mouseReleased(Control& control) {
  if (visible_ && control.isUsable()) control.clicked();
}

// ---- automation and errors

Variant Form::Property(StringView name) const {
  if (sameName(name, u"Name")) return name_;
  if (sameName(name, u"Caption")) return caption_;
  if (sameName(name, u"Width")) return std::int32_t{Width()};
  if (sameName(name, u"Height")) return std::int32_t{Height()};
  if (sameName(name, u"ScaleWidth")) return std::int32_t{scaleWidth_};
  if (sameName(name, u"ScaleHeight")) return std::int32_t{scaleHeight_};
  if (sameName(name, u"Visible")) return visible_;
  if (sameName(name, u"ActiveControl"))
    return active_ != nullptr ? Variant(active_->fullName()) : Variant(Null);
  throw RuntimeError(error::NoSuchMember);
}

void Form::eventFailed(StringView event, const RuntimeError& failure) {
  Desktop::current().runtimeErrorRaised(*this, u"Form_" + String(event), failure);
}

}  // namespace zqn
