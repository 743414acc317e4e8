// SPDX-License-Identifier: MIT
//
// What all fields with a text and a caret share: the text, the selection, and what typing does to them.
// Positions and lengths count UTF-16 units. A derived kind says which texts a person may make of it (accepts)
// and what follows an edit (edited).
//
// A toolkit that edits natively reports what came of it through userEdited and userSelected; the headless
// desktop lets ownKey edit.
#pragma once

#include "forms/control.h"

namespace zqn {

/// The front of a text, at most so many units, and never half a character or half a line break.
StringView cutToLength(StringView text, int units);
/// The text with each of its line breaks (CR LF, CR or LF) written like this.
String withBreaks(StringView text, StringView lineBreak);

class TextEntry : public Control {
 public:
  const String& Text() const noexcept { return text_; }

  int SelStart() const noexcept { return selStart_; }
  int SelLength() const noexcept { return selLength_; }
  /// Beyond the end: at the end. Error 380 when negative. Assigning SelStart empties the selection.
  void SelStart(int start);
  void SelLength(int length);

  /// The text has become another one, by code or by typing.
  Event<> Change{*this, u"Change"};
  /// A person pastes this text, by key or menu. Whoever does something else with it sets the second argument,
  /// and then nothing goes in.
  Event<StringView, bool&> Paste{*this, u"Paste"};

  // ---- for toolkits

  /// Longest text that typing reaches, in UTF-16 units; 0 is no limit.
  int lengthLimit() const noexcept { return lengthLimit_; }
  /// A person's edit may lead to this text; one that does not changes nothing.
  virtual bool accepts(StringView) const { return true; }
  /// A person can mark and copy, not edit.
  virtual bool isReadOnly() const noexcept { return false; }
  /// What a typed character stands for in this field.
  virtual char16_t typedAs(char16_t character) const { return character; }
  /// What of a pasted text goes in: of several lines the words, blanks between them.
  virtual String pastedAs(StringView text) const;
  /// A person has edited: the whole text as it is now. Raises Change when it differs. A text that is not
  /// accepted changes nothing, and the view draws the old one again.
  virtual void userEdited(StringView text, int selStart, int selLength);
  /// A person has moved the caret or the selection.
  void userSelected(int selStart, int selLength);
  /// A person pastes; the part that the limit leaves room for goes in, unless Paste takes the text.
  void userPasted(StringView text);
  /// Raises Paste. True when the text is taken: a toolkit that pastes natively leaves it then.
  bool pasteTaken(StringView text);
  bool ownKey(const KeyStroke& stroke) override;
  String content() const override { return text_; }

 protected:
  TextEntry(Form& form, const ControlDesign& design, int tabIndex);

  /// Code assigns: the caret goes to the front, nothing is selected, and edited follows when the text
  /// differs.
  void assignText(StringView text);
  /// The text is another one. Raises Change; a derived kind may do more.
  virtual void edited() { Change.raise(); }
  void limitLength(int units) { lengthLimit_ = units; }
  /// Where the caret stands: the end of the selection that moves.
  int caret() const noexcept { return caretAtStart_ ? selStart_ : selStart_ + selLength_; }
  void moveCaret(int position, bool extend);
  /// A person's edit: the text takes the place of what is selected, as far as the limit leaves room.
  void replaceSelection(StringView text);
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  bool ownControlKey(const KeyStroke& stroke);

  String text_;
  int lengthLimit_ = 0;
  int selStart_ = 0;
  int selLength_ = 0;
  /// The end of the selection that arrow keys with Shift move.
  bool caretAtStart_ = false;
  /// The first unit of a character that comes as two key strokes; 0 for none.
  char16_t firstHalf_ = u'\0';
};

}  // namespace zqn
