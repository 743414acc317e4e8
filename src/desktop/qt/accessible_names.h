// SPDX-License-Identifier: MIT
//
// What a screen reader says when it comes to a control: its own caption; for a field or a list the label that
// stands to its left or above it; for a grid and the field over its cells what the grid says; else the
// control's name.
#pragma once

#include <QString>

#include "forms/control.h"

namespace zqn::qt {

QString accessibleNameOf(const Control& control);

/// A caption without the mark of its access key: "&Neu" is "Neu", "A && B" is "A & B".
QString withoutAccessKey(const QString& caption);

}  // namespace zqn::qt
