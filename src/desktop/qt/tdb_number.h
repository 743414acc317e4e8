// SPDX-License-Identifier: MIT
//
// Draws a TDBNumber: a field of one line whose text stands at the right.
#pragma once

#include "desktop/qt/text_entry.h"
#include "forms/tdb_number.h"

namespace zqn::qt {

class TDBNumber : public TextEntry {
 public:
  TDBNumber(zqn::TDBNumber& model, QWidget* parent) : TextEntry(model, parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }
};

}  // namespace zqn::qt
