// SPDX-License-Identifier: MIT
#include "desktop/qt/decoration.h"

#include <QPainter>

namespace zqn::qt {

namespace {

constexpr ColourRoles roles{QPalette::Window, QPalette::WindowText, colour::ButtonFace};

}  // namespace

Shape::Shape(zqn::Shape& model, QWidget* parent)
    : QFrame(parent), ControlWidget(model, *this, {roles.back, roles.fore, colour::WindowBackground}) {}

void Shape::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), palette().color(roles.fore)); }

Undrawn::Undrawn(Control& model, QWidget* parent) : QWidget(parent), ControlWidget(model, *this, roles) {}

}  // namespace zqn::qt
