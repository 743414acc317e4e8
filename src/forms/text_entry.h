// SPDX-License-Identifier: MIT
//
// What all fields with a text and a caret share: the text, the selection, and what keys, clicks, clipboard and
// undo do to them, on every desktop alike. Positions and lengths count UTF-16 units.
//
// A toolkit reports strokes (ownKey), the place of a press (userPressed, ...) and what assistive technology
// writes (userReplaced), and draws the text, the selection and the caret that come of it.
//
// A derived kind says which texts a person may make of it (accepts) and what follows an edit (edited).
#pragma once

#include "forms/control.h"
#include "forms/text_editor.h"
#include "forms/text_places.h"

namespace zqn {

class TextEntry : public Control {
 public:
  const String& Text() const noexcept { return editor_.text(); }

  int SelStart() const noexcept { return editor_.selStart(); }
  int SelLength() const noexcept { return editor_.selLength(); }
  /// Beyond the end: at the end. Error 380 when negative. Assigning SelStart empties the selection.
  void SelStart(int start);
  void SelLength(int length);

  /// The text has become another one, by code or by typing.
  Event<> Change{*this, u"Change"};
  /// A person pastes this text, by key or menu. Whoever does something else with it sets the second argument,
  /// and then nothing goes in.
  Event<StringView, bool&> Paste{*this, u"Paste"};

  // ---- for toolkits: what is drawn

  /// Where the selection begins and where its moving end, the caret, stands.
  int anchor() const noexcept { return editor_.anchor(); }
  int caret() const noexcept { return editor_.caret(); }
  /// A person can mark and copy, not edit.
  virtual bool isReadOnly() const noexcept { return false; }
  /// A person can put a caret into the text.
  virtual bool hasCaret() const noexcept { return true; }
  /// Lines are drawn below each other.
  virtual bool hasLines() const noexcept { return false; }
  /// What stands in the field stands for nothing, and will be gone when the focus leaves.
  virtual bool isInvalid() const { return false; }
  bool canUndo() const noexcept { return editor_.canUndo() && !isReadOnly(); }
  bool canRedo() const noexcept { return editor_.canRedo() && !isReadOnly(); }

  // ---- for toolkits: what a person does

  /// Longest text that typing reaches, in UTF-16 units; 0 is no limit.
  int lengthLimit() const noexcept { return lengthLimit_; }
  /// A person's edit may lead to this text; one that does not changes nothing.
  virtual bool accepts(StringView) const { return true; }
  /// What a typed character stands for in this field.
  virtual char16_t typedAs(char16_t character) const { return character; }
  /// What of a pasted text goes in: of several lines the words, blanks between them.
  virtual String pastedAs(StringView text) const;
  /// All editing keys: caret, selection, deleting, clipboard, undo, and characters. Those of two units come
  /// as two strokes.
  bool ownKey(const KeyStroke& stroke) override;
  /// The left button went down at this position; `focusCame`: that press brought the focus, and what GotFocus
  /// has selected stays. `extend`: from the anchor to there. A position inside a character is its beginning.
  void userPressed(int position, bool focusCame, bool extend = false);
  /// The pointer has come here, the button still down: selects from where it went down.
  void userDragged(int position);
  /// The second press of a double click: selects the word.
  void userPressedTwice(int position);
  /// A key that follows drawn lines, which the toolkit knows, leads here.
  void userMoved(int position, bool extend);
  /// Assistive technology selects.
  void userSelected(int anchor, int caret);
  /// Assistive technology, or an input method that mends what it wrote, puts a text in the place of a part.
  /// Nothing changes in a field that a person cannot use.
  void userReplaced(int start, int length, StringView text);
  /// A person has made this of the text. Raises Change when it differs. A text that is not accepted changes
  /// nothing.
  void userEdited(StringView text, int selStart, int selLength);
  /// The entries of the context menu, and what the keys for them do.
  void userUndid();
  void userRedid();
  void userCut();
  void userCopied();
  void userPasted();
  void userDeleted();
  void userSelectedAll();
  /// A person pastes this; the part that the limit leaves room for goes in, unless Paste takes the text.
  void userPasted(StringView text);

  void focusEntered() override;
  String content() const override { return Text(); }

 protected:
  TextEntry(Form& form, const ControlDesign& design, int tabIndex);

  /// Code assigns: the caret goes to the front, nothing is selected, nothing can be undone, and edited follows
  /// when the text differs.
  void assignText(StringView text);
  void selectAll() { select(0, static_cast<int>(Text().size())); }
  /// The text is another one. Raises Change; a derived kind may do more.
  virtual void edited() { Change.raise(); }
  /// A kind that completes what is typed puts the rest behind it and selects that.
  virtual void complete(TextState& /*next*/) const {}
  void limitLength(int units) { lengthLimit_ = units; }
  /// The caret goes there, to the next place where it can stand.
  void moveCaret(int position, bool extend);
  /// A person's edit: the text takes the place of what is selected, as far as the limit leaves room.
  void replaceSelection(StringView text, TextEditor::Step step = TextEditor::Step::Other) {
    replace(SelStart(), SelLength(), text, step);
  }
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  void select(int anchor, int caret);
  void replace(int start, int length, StringView text, TextEditor::Step step);
  void makeEdit(TextState next, TextEditor::Step step);
  /// Undo and redo, which lead to texts that have stood there.
  void travel(void (TextEditor::*where)());
  bool clipboardKey(const KeyStroke& stroke);
  bool caretKey(const KeyStroke& stroke);
  bool deletingKey(const KeyStroke& stroke);
  bool typingKey(const KeyStroke& stroke, char16_t firstHalf);

  TextEditor editor_;
  int lengthLimit_ = 0;
  /// Where the button went down, and from where on a drag selects.
  int pressed_ = 0, dragsFrom_ = 0;
  bool dragging_ = false;
  /// The first unit of a character that comes as two key strokes; 0 for none.
  char16_t firstHalf_ = u'\0';
};

}  // namespace zqn
