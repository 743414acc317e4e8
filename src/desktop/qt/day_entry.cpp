// SPDX-License-Identifier: MIT
#include "desktop/qt/day_entry.h"

#include <QPainter>
#include <QScreen>
#include <QStyleOptionFrame>
#include <algorithm>

#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"
#include "forms/form.h"
#include "runtime/convert.h"

namespace zqn::qt {

namespace {

constexpr int gapBehindCaption = 45;  // twips

QDate toQt(Date date) {
  const CivilDate day = civil(date);
  return {day.year, day.month, day.day};
}

}  // namespace

DayEntry::DayEntry(zqn::DayEntry& model, QWidget* parent) : TextEntry(model, parent), model_(model) {}

DayEntry::~DayEntry() = default;

// ---- drawing

QString DayEntry::caption() const { return qt::toQt(model_.Caption()); }

int DayEntry::captionWidth() const {
  if (caption().isEmpty()) return 0;
  return fontMetrics().horizontalAdvance(caption()) + Scale(*this).x(gapBehindCaption);
}

void DayEntry::initStyleOption(QStyleOptionFrame* option) const {
  TextEntry::initStyleOption(option);
  // Frame, text and caret are the field's alone.
  option->rect.setLeft(captionWidth());
}

void DayEntry::placeButton() {
  const int text = fontMetrics().horizontalAdvance(qt::toQt(zqn::DayEntry::emptyMask));
  const int button = button_.wantedWidth();
  button_.place(width() - captionWidth() >= text + button + button * 2 / 3);
}

void DayEntry::draw() {
  placeButton();
  TextEntry::draw();
}

void DayEntry::resizeEvent(QResizeEvent* event) {
  TextEntry::resizeEvent(event);
  placeButton();
}

void DayEntry::paintEvent(QPaintEvent* event) {
  TextEntry::paintEvent(event);
  if (caption().isEmpty()) return;
  QPainter painter(this);
  style()->drawItemText(&painter, QRect(0, 0, captionWidth(), height()), Qt::AlignLeft | Qt::AlignVCenter,
                        palette(), isEnabled(), caption(), QPalette::WindowText);
}

// ---- the calendar

void DayEntry::ownKey(const KeyStroke& stroke) {
  if (stroke.shift == shift::None && stroke.code == key::F4) {
    openCalendar();
  } else {
    TextEntry::ownKey(stroke);
  }
}

void DayEntry::openCalendar() {
  calendar_ = std::make_unique<QCalendarWidget>(this);
  calendar_->setWindowFlag(Qt::Popup);
  calendar_->setLocale(QLocale(QLocale::German, QLocale::Germany));
  calendar_->setFirstDayOfWeek(Qt::Monday);
  calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar_->setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
  const Variant day = model_.day();
  calendar_->setSelectedDate(toQt(day.isNull() ? Today() : *day.as<Date>()));
  connect(calendar_.get(), &QCalendarWidget::activated, this, &DayEntry::choose);
  connect(calendar_.get(), &QCalendarWidget::clicked, this, &DayEntry::choose);

  const QRect room = screen()->availableGeometry();
  const QSize size = calendar_->sizeHint();
  QPoint place = mapToGlobal(QPoint(captionWidth(), height()));
  if (place.y() + size.height() > room.bottom()) place.ry() -= size.height() + height();
  place.setX(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - size.width())));
  calendar_->move(place);
  // Before it is shown: the field keeps the focus, the calendar hears the keys.
  calendar_->setFocus();
  calendar_->show();
}

void DayEntry::choose(const QDate& day) {
  if (!calendar()) return;
  calendar_->hide();
  shielded(model_, u"Change", [&] { model_.userChose(dateSerial(day.year(), day.month(), day.day())); });
}

}  // namespace zqn::qt
