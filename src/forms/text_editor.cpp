// SPDX-License-Identifier: MIT
#include "forms/text_editor.h"

#include <algorithm>
#include <utility>

namespace zqn {

TextDifference differenceBetween(StringView left, StringView right) noexcept {
  const std::size_t shorter = std::min(left.size(), right.size());
  const auto at = static_cast<std::size_t>(std::ranges::mismatch(left, right).in1 - left.begin());
  std::size_t tail = 0;
  while (tail < shorter - at && left[left.size() - 1 - tail] == right[right.size() - 1 - tail]) ++tail;
  return {static_cast<int>(at), left.substr(at, left.size() - at - tail),
          right.substr(at, right.size() - at - tail)};
}

int TextEditor::selStart() const noexcept { return std::min(state_.anchor, state_.caret); }

int TextEditor::selLength() const noexcept { return std::max(state_.anchor, state_.caret) - selStart(); }

StringView TextEditor::selected() const noexcept {
  return StringView(state_.text)
      .substr(static_cast<std::size_t>(selStart()), static_cast<std::size_t>(selLength()));
}

TextState TextEditor::replaced(int start, int length, StringView text) const {
  TextState next{state_.text, 0, 0};
  next.text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(length), text);
  next.anchor = next.caret = start + static_cast<int>(text.size());
  return next;
}

void TextEditor::assign(StringView text) {
  state_ = {String(text), 0, 0};
  forget();
}

bool TextEditor::select(int anchor, int caret) {
  const int size = static_cast<int>(state_.text.size());
  anchor = std::clamp(anchor, 0, size);
  caret = std::clamp(caret, 0, size);
  if (state_.anchor == anchor && state_.caret == caret) return false;
  typing_ = false;
  state_.anchor = anchor;
  state_.caret = caret;
  return true;
}

void TextEditor::edit(TextState next, Step step) {
  const bool differs = state_.text != next.text;
  const bool goesOn = typing_ && step == Step::Typing;
  typing_ = step == Step::Typing && (goesOn || differs);
  if (differs) undone_.clear();
  if (goesOn) {
    // The run's one edit leads from where it began to the new text.
    Edit& run = done_.back();
    String first = state_.text;
    first.replace(run.at, run.behind.size(), run.before);
    const TextDifference all = differenceBetween(first, next.text);
    run = {static_cast<std::size_t>(all.at),
           String(all.left),
           String(all.right),
           run.anchorBefore,
           run.caretBefore,
           next.anchor,
           next.caret};
  } else if (differs) {
    const TextDifference change = differenceBetween(state_.text, next.text);
    done_.push_back({static_cast<std::size_t>(change.at), String(change.left), String(change.right),
                     state_.anchor, state_.caret, next.anchor, next.caret});
  }
  state_ = std::move(next);
}

void TextEditor::forget() noexcept {
  done_.clear();
  undone_.clear();
  typing_ = false;
}

void TextEditor::move(std::vector<Edit>& from, std::vector<Edit>& to) {
  if (from.empty()) return;
  Edit edit = std::move(from.back());
  from.pop_back();
  state_.text.replace(edit.at, edit.behind.size(), edit.before);
  state_.anchor = edit.anchorBefore;
  state_.caret = edit.caretBefore;
  typing_ = false;
  // Seen from the other side it leads back.
  std::swap(edit.before, edit.behind);
  std::swap(edit.anchorBefore, edit.anchorBehind);
  std::swap(edit.caretBefore, edit.caretBehind);
  to.push_back(std::move(edit));
}

}  // namespace zqn
