// SPDX-License-Identifier: MIT
//
// Draws a TDBDate or a DateInput: its caption, a field behind it, and a button that opens a calendar where
// there is room for one. F4 opens the calendar, too.
#pragma once

#include <QCalendarWidget>
#include <memory>

#include "desktop/qt/field_button.h"
#include "desktop/qt/text_entry.h"
#include "forms/day_entry.h"

namespace zqn::qt {

class DayEntry : public TextEntry {
 public:
  DayEntry(zqn::DayEntry& model, QWidget* parent);
  ~DayEntry() override;

  void ownKey(const KeyStroke& stroke) override;
  /// The calendar, when it is open.
  QCalendarWidget* calendar() const {
    return calendar_ && calendar_->isVisible() ? calendar_.get() : nullptr;
  }

 protected:
  void draw() override;

  void initStyleOption(QStyleOptionFrame* option) const override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QString caption() const;
  int captionWidth() const;
  void placeButton();
  void openCalendar();
  void choose(const QDate& day);

  zqn::DayEntry& model_;
  FieldButton button_{*this, model_, QStringLiteral("Kalender"), [this] { openCalendar(); }};
  std::unique_ptr<QCalendarWidget> calendar_;
};

}  // namespace zqn::qt
