// SPDX-License-Identifier: MIT
//
// The one marked row of a view: its current row, and alone selected.
#pragma once

class QAbstractItemView;

namespace zqn::qt {

/// Row -1 is no mark.
bool showsMark(const QAbstractItemView& view, int row);
/// The cell in `column` is the current one, which assistive technology reads out. Changes nothing that is right
/// already; scrolls nothing where the view does not scroll by itself.
void showMark(QAbstractItemView& view, int row, int column = 0);

}  // namespace zqn::qt
