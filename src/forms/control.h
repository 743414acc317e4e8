// SPDX-License-Identifier: MIT
//
// What all controls have in common: a name, a place, whether they can be seen, used and reached, and the
// events of focus, keys and mouse. A control holds the whole state and every rule; a toolkit draws the state
// and reports raw input.
//
// Properties are overloaded accessors under the contract's names: `Schluessel.Text()` reads,
// `Schluessel.Text(u"10")` assigns and raises what the platform raises. Scripts reach them by name:
// `control.Property(u"Text")`.
#pragma once

#include <optional>
#include <span>

#include "forms/event.h"
#include "forms/keys.h"
#include "forms/roster.h"
#include "runtime/variant.h"

namespace zqn {

class Form;
class Control;

/// One property that automation reaches by name. A read-only one has no setter.
struct PropertyEntry {
  const char16_t* name;                   ///< As automation writes it; case does not count.
  Variant (*get)(const Control&);         ///< Reads it.
  void (*set)(Control&, const Variant&);  ///< Assigns it, converted; nullptr for a read-only one.
};

/// How the focus came to a control.
enum class FocusCause { Code, Tab, Mouse };

/// 32-bit colours; with the top bit set it is a system colour.
namespace colour {
constexpr std::uint32_t ButtonFace = 0x8000000F;
constexpr std::uint32_t WindowBackground = 0x80000005;
constexpr std::uint32_t WindowText = 0x80000008;
constexpr std::uint32_t Highlight = 0x8000000D;
constexpr std::uint32_t HighlightText = 0x8000000E;
}  // namespace colour

class Control : public EventOwner {
 public:
  Control(Form& form, const ControlDesign& design, int tabIndex);  ///< Made by its form, from the roster.
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  /// Name without index, and the index in the control array, -1 when it is no element of one.
  const String& Name() const noexcept { return name_; }
  int Index() const noexcept { return index_; }
  /// "Label1(0)" for an element of an array, else the name.
  String fullName() const;
  ControlKind kind() const noexcept { return kind_; }  ///< As the roster says.
  Form& form() const noexcept { return form_; }        ///< Where it stands.
  /// The control it stands in; nullptr when it stands on the form.
  Control* container() const noexcept { return container_; }
  const ControlDesign& design() const noexcept { return design_; }  ///< Its row of the roster.

  // ---- place, in twips, relative to the container

  /// In twips, relative to the container.
  int Left() const noexcept { return left_; }
  int Top() const noexcept { return top_; }
  int Width() const noexcept { return width_; }
  int Height() const noexcept { return height_; }
  void Left(int twips);
  void Top(int twips);
  void Width(int twips);
  void Height(int twips);

  // ---- whether it can be seen, used, reached

  /// As assigned to itself; see isShown and isUsable.
  bool Visible() const noexcept { return visible_; }
  bool Enabled() const noexcept { return enabled_; }
  /// Hiding or disabling the control with the focus moves the focus to the next one in the tab order.
  void Visible(bool visible);
  void Enabled(bool enabled);
  bool TabStop() const noexcept { return tabStop_; }  ///< Whether Tab stops here.
  void TabStop(bool tabStop);
  /// Tab comes by here.
  virtual bool isTabStop() const { return tabStop_; }
  int TabIndex() const noexcept { return tabIndex_; }  ///< Its place in the tab order.
  /// Taking the focus validates the control that loses it.
  bool CausesValidation() const noexcept { return causesValidation_; }
  void CausesValidation(bool causes) { causesValidation_ = causes; }
  const String& ToolTipText() const noexcept { return toolTipText_; }  ///< What the pointer over it shows.
  void ToolTipText(StringView text);
  /// Behind the text and of the text: 32 bits, see namespace colour.
  std::uint32_t BackColor() const noexcept { return backColor_; }
  std::uint32_t ForeColor() const noexcept { return foreColor_; }
  void BackColor(std::uint32_t colour);
  void ForeColor(std::uint32_t colour);

  /// Itself and all it stands in are visible.
  bool isShown() const noexcept;
  /// Shown, and itself and all it stands in are enabled: a person can act on it.
  bool isUsable() const noexcept;
  /// The kind takes the focus at all; a label and a frame never do.
  virtual bool takesFocus() const noexcept { return true; }
  /// The kind stands somewhere on the form; a timer and a menu do not.
  virtual bool isDrawn() const noexcept { return true; }

  /// Moves the focus here: LostFocus of the old control, GotFocus of this one, no Validate. Nothing when it
  /// has the focus already. Error 5 when the form is not shown or the control cannot be used.
  void SetFocus();

  // ---- events

  Event<> GotFocus{*this, u"GotFocus"};    ///< The focus has come.
  Event<> LostFocus{*this, u"LostFocus"};  ///< The focus has gone.
  /// Before the focus leaves by Tab or mouse; setting Cancel keeps it.
  Event<bool&> Validate{*this, u"Validate"};
  /// The key code, which the handler may set to 0, and the shift bits.
  Event<int&, int> KeyDown{*this, u"KeyDown"};
  /// The character that is typed, which the handler may change; 0 takes it away.
  Event<int&> KeyPress{*this, u"KeyPress"};
  Event<int, int> KeyUp{*this, u"KeyUp"};  ///< Key code and shift bits of a key that is let go.
  Event<> Click{*this, u"Click"};          ///< Clicked, or chosen by a key, as the kind says.
  Event<> DblClick{*this, u"DblClick"};    ///< Clicked twice.

  // ---- for toolkits

  /// The control's own effect of a key, after all events let it pass: typing, moving in a list, pressing a
  /// button. True when it did something.
  virtual bool ownKey(const KeyStroke& stroke);
  /// A key before form and control hear of it: an open list takes it. True when the key is over; then no
  /// event tells of it, nor of its release.
  virtual bool takesKeyFirst(const KeyStroke&) { return false; }
  /// Enter belongs to the control before the form sees it.
  virtual bool wantsEnter() const noexcept { return false; }
  /// A complete click of the left button, after the focus has moved here.
  virtual void clicked();
  /// The focus has come here, or has left: what the kind itself does, before GotFocus and LostFocus.
  virtual void focusEntered() {}
  virtual void focusLeft() {}
  /// The focus has come here and GotFocus is over.
  virtual void focusSettled(FocusCause) {}

  // ---- for automation

  /// Value of a property by its name, without regard to case, also "Columns(1).Caption". Error 438 for a name
  /// it does not have.
  virtual Variant Property(StringView name) const;
  /// Assigns, with the events of the assignment. Error 438 unknown, 383 read-only, 13 and 94 for the value.
  void Property(StringView name, const Variant& value);
  /// What it says: caption, text, or the text of its marked row.
  virtual String content() const { return {}; }

  void eventFailed(StringView event, const RuntimeError& failure) override;

 protected:
  /// The entry of a property, looked up in the class and then in its base.
  virtual const PropertyEntry* findProperty(StringView name) const;
  static const PropertyEntry* findIn(std::span<const PropertyEntry> entries, StringView name);
  /// Something that is drawn has changed: the view, if there is one, draws it anew.
  void changed();

 private:
  friend class Form;

  Form& form_;
  const ControlDesign& design_;
  String name_;
  int index_ = -1;
  ControlKind kind_;
  Control* container_ = nullptr;
  int left_, top_, width_, height_;
  bool visible_, enabled_, tabStop_;
  bool causesValidation_ = true;
  int tabIndex_;
  String toolTipText_;
  std::uint32_t backColor_ = colour::WindowBackground;
  std::uint32_t foreColor_ = colour::WindowText;
};

}  // namespace zqn
