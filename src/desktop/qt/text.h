// SPDX-License-Identifier: MIT
//
// Texts between the dialogs and Qt. Both are UTF-16, so nothing is converted but the type:
//
//     setText(toQt(model.Caption()));
//     model.userPasted(fromQt(text));
#pragma once

#include <QString>
#include <QTextDocument>

#include "runtime/string.h"

namespace zqn::qt {

inline QString toQt(StringView text) {
  return QString::fromUtf16(text.data(), static_cast<int>(text.size()));
}

/// A view of the text, valid as long as the text.
inline StringView fromQt(const QString& text) {
  return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

/// A tool tip that says exactly this, even where it looks like markup.
inline QString plainTip(const QString& text) {
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

}  // namespace zqn::qt
