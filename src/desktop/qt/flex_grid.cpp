// SPDX-License-Identifier: MIT
#include "desktop/qt/flex_grid.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "desktop/qt/accessible_names.h"
#include "desktop/qt/flex_grid_painter.h"
#include "desktop/qt/key_events.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"
#include "forms/form.h"

namespace zqn::qt {

namespace {

constexpr double twipsPerInch = 1440;

/// A scroll bar as wide as the layout has room for.
class GridScrollBar : public QScrollBar {
 public:
  using QScrollBar::QScrollBar;
  QSize sizeHint() const override {
    const QSize hint = QScrollBar::sizeHint();
    const bool upright = orientation() == Qt::Vertical;
    const double dpi = upright ? logicalDpiX() : logicalDpiY();
    const int wide = qRound(FlexGridLayout::scrollBar * dpi / twipsPerInch);
    return upright ? QSize(wide, hint.height()) : QSize(hint.width(), wide);
  }
};

int buttonOf(const QMouseEvent& event) {
  return event.button() == Qt::LeftButton ? 1 : event.button() == Qt::RightButton ? 2 : 4;
}

GridPlace pointerOf(const QMouseEvent& event) {
  const QPoint place = event.position().toPoint();
  return {place.x(), place.y()};
}

/// Draws anew only what differs: a bar tells of each change.
void setBar(QScrollBar& bar, int first, int last, int value, int page) {
  if (bar.minimum() != first || bar.maximum() != last) bar.setRange(first, last);
  if (bar.pageStep() != page) bar.setPageStep(page);
  if (bar.value() != value) bar.setValue(value);
}

}  // namespace

FlexGrid::FlexGrid(zqn::FlexGrid& model, QWidget* parent)
    : QTableView(parent),
      ControlWidget(model, *this, {QPalette::Base, QPalette::Text, colour::WindowBackground}),
      model_(model),
      cells_(model) {
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setLineWidth(FlexGridLayout::frame);
  QPalette frame;
  frame.setColor(QPalette::WindowText, frame.color(QPalette::Mid));
  setPalette(frame);
  setVerticalScrollBar(new GridScrollBar(Qt::Vertical, this));
  setHorizontalScrollBar(new GridScrollBar(Qt::Horizontal, this));
  horizontalHeader()->hide();
  verticalHeader()->hide();
  // The button where the headers would meet stands over the first cells otherwise.
  for (auto* corner : findChildren<QAbstractButton*>()) corner->hide();
  setModel(&cells_);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setAutoScroll(false);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { scrolled(); });
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { scrolled(); });
}

FlexGridLayout FlexGrid::layout() const {
  return model_.layout(twipsPerInch / logicalDpiX(), twipsPerInch / logicalDpiY());
}

// ---- drawing

void FlexGrid::draw() {
  drawBars();
  viewport()->update();
  if (std::exchange(settling_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        const Drawing drawing(*this);
        settle();
      },
      Qt::QueuedConnection);
}

void FlexGrid::drawBars() {
  const FlexGridLayout place = layout();
  const auto policy = [](bool there) { return there ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff; };
  if (verticalScrollBarPolicy() != policy(place.hasVerticalBar()))
    setVerticalScrollBarPolicy(policy(place.hasVerticalBar()));
  if (horizontalScrollBarPolicy() != policy(place.hasHorizontalBar()))
    setHorizontalScrollBarPolicy(policy(place.hasHorizontalBar()));
  const int rowsInSight = static_cast<int>(place.rows().size()) - model_.FixedRows();
  const int columnsInSight = static_cast<int>(place.columns().size()) - model_.FixedCols();
  setBar(*verticalScrollBar(), model_.FixedRows(), place.lastTopRow(), model_.TopRow(),
         std::max(1, rowsInSight));
  setBar(*horizontalScrollBar(), model_.FixedCols(), place.lastLeftCol(), model_.LeftCol(),
         std::max(1, columnsInSight));
}

void FlexGrid::settle() {
  settling_ = false;
  cells_.follow();
  const QModelIndex cursor = cells_.index(model_.Row(), model_.Col());
  const QModelIndex corner = cells_.index(model_.RowSel(), model_.ColSel());
  const QItemSelection wanted(
      cells_.index(std::min(cursor.row(), corner.row()), std::min(cursor.column(), corner.column())),
      cells_.index(std::max(cursor.row(), corner.row()), std::max(cursor.column(), corner.column())));
  if (wanted != selectionModel()->selection())
    selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
  if (currentIndex() != cursor) selectionModel()->setCurrentIndex(cursor, QItemSelectionModel::NoUpdate);
  nameEditor();
}

void FlexGrid::nameEditor() {
  if (model_.Editor() == nullptr) return;
  const QString editor = toQt(model_.Editor()->fullName());
  auto* const field = parentWidget()->findChild<QWidget*>(editor, Qt::FindDirectChildrenOnly);
  const QString name = accessibleNameOf(*model_.Editor());
  if (field != nullptr && field->accessibleName() != name) field->setAccessibleName(name);
}

void FlexGrid::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  // What is told of cells that nobody is at would drown what is told of the field that has the focus.
  if (hasFocus()) {
    QTableView::selectionChanged(selected, deselected);
  } else {
    QAbstractItemView::selectionChanged(selected, deselected);
  }
  if (!isDrawing()) selectedByAssistance(selected);
}

void FlexGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  if (hasFocus()) {
    QTableView::currentChanged(current, previous);
  } else {
    QAbstractItemView::currentChanged(current, previous);
  }
}

void FlexGrid::selectedByAssistance(const QItemSelection& selected) {
  const QModelIndex cell = selected.indexes().value(0);
  if (cell.isValid()) {
    shielded(model_, u"MouseDown", [&] {
      if (!model_.form().mousePressed(model_)) return;
      model_.userPressed({cell.row(), cell.column()}, 1, shift::None);
      model_.userReleased({cell.row(), cell.column()}, 1, shift::None);
    });
  }
  // Whatever came of it, the view shows what the model says.
  sync();
}

void FlexGrid::updateGeometries() {
  const Drawing drawing(*this);
  drawBars();
}

void FlexGrid::compare(Differences& found) const {
  const FlexGridLayout place = layout();
  found.expect("TopRow", verticalScrollBar()->value(), model_.TopRow());
  found.expect("LeftCol", horizontalScrollBar()->value(), model_.LeftCol());
  if (!isVisible()) return;
  found.expect("width for cells", viewport()->width(), place.clientWidth());
  found.expect("height for cells", viewport()->height(), place.clientHeight());
  // Only what is on the screen counts: what waits to be painted is painted, and nothing else.
  QCoreApplication::sendPostedEvents(window(), QEvent::UpdateRequest);
  if (painted_) found.expect("the picture", painted_->differenceFrom({model_, place}), QString());
}

void FlexGrid::paintEvent(QPaintEvent*) {
  painted_.emplace(model_, layout());
  FlexGridPainter(*this, *viewport()).paint(*painted_, hasFocus());
}

void FlexGrid::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
  update();
}

void FlexGrid::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
  update();
}

// ---- places

QRect FlexGrid::visualRect(const QModelIndex& index) const {
  const FlexGridLayout place = layout();
  const auto row = place.row(index.row());
  const auto column = place.column(index.column());
  return row && column ? QRect(column->start, row->start, column->length, row->length) : QRect();
}

QModelIndex FlexGrid::indexAt(const QPoint& place) const {
  const GridSpot spot = layout().spotAt({place.x(), place.y()});
  return cells_.index(spot.row, spot.col);
}

GridSpot FlexGrid::spotAt(const QMouseEvent& event) const { return layout().spotAt(pointerOf(event)); }

void FlexGrid::scrollToCell(GridSpot cell) {
  if (cell.row >= 0) verticalScrollBar()->setValue(layout().topRowShowing(cell.row));
  if (cell.col >= 0) horizontalScrollBar()->setValue(layout().leftColShowing(cell.col));
}

std::optional<QPoint> FlexGrid::placeOf(GridSpot cell) const {
  const std::optional<GridPlace> place = layout().placeOf(cell);
  return place ? std::optional(QPoint(place->x, place->y)) : std::nullopt;
}

QPoint FlexGrid::middle() const {
  const GridPlace place = layout().middle();
  return {place.x, place.y};
}

// ---- input

void FlexGrid::scrolled() {
  if (isDrawing()) return;
  shielded(model_, u"Scroll",
           [this] { model_.userScrolled(verticalScrollBar()->value(), horizontalScrollBar()->value()); });
}

bool FlexGrid::pressed(const QMouseEvent& event, bool) {
  model_.userPressed(spotAt(event), buttonOf(event), shiftOf(event.modifiers()));
  return false;
}

bool FlexGrid::pressedTwice(const QMouseEvent& event) {
  model_.userPressed(spotAt(event), buttonOf(event), shiftOf(event.modifiers()), Press::SecondOfDoubleClick);
  return false;
}

void FlexGrid::mousePressEvent(QMouseEvent* event) {
  // The left button has come by pressed().
  if (event->button() != Qt::LeftButton) shielded(model_, u"MouseDown", [&] { pressed(*event, false); });
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) shielded(model_, u"MouseDown", [&] { pressedTwice(*event); });
}

void FlexGrid::mouseMoveEvent(QMouseEvent* event) {
  shielded(model_, u"Scroll", [&] { model_.userDragged(layout().draggedTo(pointerOf(*event))); });
}

void FlexGrid::mouseReleaseEvent(QMouseEvent* event) {
  shielded(model_, u"MouseUp",
           [&] { model_.userReleased(spotAt(*event), buttonOf(*event), shiftOf(event->modifiers())); });
}

void FlexGrid::wheelEvent(QWheelEvent* event) {
  const QPoint turned = event->angleDelta();
  shielded(model_, u"Scroll", [&] { model_.userTurnedWheel(turned.y(), turned.x()); });
  event->accept();
}

bool FlexGrid::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const QModelIndex cell = indexAt(help.pos());
  const QRect place = visualRect(cell);
  const QString text = cell.data().toString();
  const bool cut = FlexGridPainter::isCut(fontMetrics().horizontalAdvance(text), place.width());
  const QString tip = cut ? text : toQt(model_.ToolTipText());
  if (tip.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(help.globalPos(), plainTip(tip), viewport(), place);
  }
  return true;
}

}  // namespace zqn::qt
