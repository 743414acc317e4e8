// SPDX-License-Identifier: MIT
//
// A text that is being edited: the text itself, what of it is selected, and the edits that can be undone.
// Nothing here knows of fields, keys or events:
//
//     TextEditor editor(u"10");
//     editor.select(0, 2);
//     editor.edit({u"7", 1, 1}, TextEditor::Step::Typing);
//     editor.undo();  // "10", selected
#pragma once

#include <vector>

#include "runtime/string.h"

namespace zqn {

/// A text and its selection: from the anchor, which stays where it is, to the caret, which moves. The two are
/// equal when nothing is selected. Positions count UTF-16 units.
struct TextState {
  String text;
  int anchor = 0;
  int caret = 0;
};

/// Where two texts differ, and what stands there in each; nothing when they are the same.
struct TextDifference {
  int at;
  StringView left, right;
};
TextDifference differenceBetween(StringView left, StringView right) noexcept;

class TextEditor {
 public:
  /// Typing goes on with the typing right before it: both are undone at once.
  enum class Step { Typing, Other };

  explicit TextEditor(StringView text) : state_{String(text)} {}

  const String& text() const noexcept { return state_.text; }
  int anchor() const noexcept { return state_.anchor; }
  int caret() const noexcept { return state_.caret; }
  int selStart() const noexcept;
  int selLength() const noexcept;
  StringView selected() const noexcept;
  /// The state with this text in the place of another, which lies inside; the caret behind it.
  TextState replaced(int start, int length, StringView text) const;

  /// Another text that no edit has led to: the caret goes to its front, nothing can be undone.
  void assign(StringView text);
  /// Positions beyond the text are its end. True when it selects something else, which ends a run of typing.
  bool select(int anchor, int caret);
  /// A person's edit has led to this state.
  void edit(TextState next, Step step);
  /// What has been edited so far cannot be undone any more.
  void forget() noexcept;

  bool canUndo() const noexcept { return !done_.empty(); }
  bool canRedo() const noexcept { return !undone_.empty(); }
  /// Takes the last edit back, selection included, or does it again; nothing when there is none.
  void undo() { move(done_, undone_); }
  void redo() { move(undone_, done_); }

 private:
  /// One edit, the two states reduced to where their texts differ.
  struct Edit {
    std::size_t at;
    String before, behind;
    int anchorBefore, caretBefore, anchorBehind, caretBehind;
  };

  void move(std::vector<Edit>& from, std::vector<Edit>& to);

  TextState state_;
  std::vector<Edit> done_, undone_;
  /// The last edit was typing, and nothing has come between.
  bool typing_ = false;
};

}  // namespace zqn
