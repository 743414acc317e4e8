// SPDX-License-Identifier: MIT
#include "desktop/qt/text_box.h"

namespace zqn::qt {

namespace {

Qt::Alignment toQt(zqn::Alignment alignment) {
  switch (alignment) {
    case zqn::Alignment::Right:
      return Qt::AlignRight | Qt::AlignVCenter;
    case zqn::Alignment::Center:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    case zqn::Alignment::Left:
      break;
  }
  return Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace

TextBox::TextBox(zqn::TextBox& model, QWidget* parent) : TextEntry(model, parent), model_(model) {
  setFrame(!model.design().other.Flat);
}

void TextBox::draw() {
  if (alignment() != toQt(model_.Alignment())) setAlignment(toQt(model_.Alignment()));
  TextEntry::draw();
}

void TextBox::compare(Differences& found) const {
  TextEntry::compare(found);
  found.expect("Alignment", static_cast<int>(alignment()), static_cast<int>(toQt(model_.Alignment())));
}

}  // namespace zqn::qt
