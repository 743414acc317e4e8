// SPDX-License-Identifier: MIT
#include "desktop/qt/label.h"

#include <algorithm>

#include "desktop/qt/accessible_names.h"
#include "desktop/qt/text.h"
#include "forms/form.h"

namespace zqn::qt {

namespace {

constexpr int natural = 100;  // percent
/// Below this a narrower caption is worse than a covered one.
constexpr int leastStretch = 90;
/// Designs let neighbouring rows meet in a line of pixels.
constexpr int tolerated = 15;

}  // namespace

Label::Label(zqn::Label& model, QWidget* parent)
    : QLabel(parent),
      ControlWidget(model, *this, {QPalette::Window, QPalette::WindowText, colour::ButtonFace}),
      model_(model) {
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignTop | (isRightAligned() ? Qt::AlignRight : Qt::AlignLeft));
  setFont(fontStretched(natural));
  setTextInteractionFlags(Qt::NoTextInteraction);
}

bool Label::isRightAligned() const { return model_.design().other.Alignment == Alignment::Right; }

QFont Label::fontStretched(int percent) const {
  QFont font;
  if (model_.design().other.Bold) font.setBold(true);
  if (percent != natural) font.setStretch(percent);
  return font;
}

QString Label::words() const { return withoutAccessKey(toQt(model_.Caption())); }

bool Label::breaksLines() const { return Scale(*this).y(model_.Height()) >= 2 * fontMetrics().height(); }

int Label::room() const {
  const Control* const container = model_.container();
  int end = container != nullptr ? container->Width() : model_.form().ScaleWidth();
  for (const auto& other : model_.form().controls()) {
    const bool sameRow = other->Top() + tolerated < model_.Top() + model_.Height() &&
                         model_.Top() + tolerated < other->Top() + other->Height();
    if (other->container() == container && other->Visible() && sameRow && other->Left() > model_.Left())
      end = std::min(end, other->Left());
  }
  return Scale(*this).x(end - model_.Left());
}

int Label::stretch() const {
  if (breaksLines()) return natural;
  const QFont font = fontStretched(natural).resolve(parentWidget()->font());
  const int width = QFontMetrics(font, this).horizontalAdvance(words());
  const int fitting = width > 0 ? natural * room() / width : natural;
  return fitting >= natural || fitting < leastStretch ? natural : fitting;
}

QRect Label::place() const {
  QRect rect = ControlWidget::place();
  if (breaksLines()) return rect;
  const int wider = std::max(0, fontMetrics().horizontalAdvance(words()) - rect.width());
  return isRightAligned() ? rect.adjusted(-wider, 0, 0, 0) : rect.adjusted(0, 0, wider, 0);
}

void Label::draw() {
  if (text() != words()) setText(words());
  if (wordWrap() != breaksLines()) setWordWrap(breaksLines());
  const int wanted = stretch();
  if (wanted == drawnStretch_) return;
  drawnStretch_ = wanted;
  setFont(fontStretched(wanted));
  setGeometry(place());
}

void Label::compare(Differences& found) const { found.expect("Caption", text(), words()); }

}  // namespace zqn::qt
