// SPDX-License-Identifier: MIT
#include "desktop/qt/flex_grid.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "desktop/qt/flex_grid_painter.h"
#include "desktop/qt/key_events.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"

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
  cells_.follow();
  drawBars();
  drawSelection();
  viewport()->update();
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

void FlexGrid::drawSelection() {
  const QModelIndex cursor = cells_.index(model_.Row(), model_.Col());
  const QModelIndex corner = cells_.index(model_.RowSel(), model_.ColSel());
  const QItemSelection wanted(
      cells_.index(std::min(cursor.row(), corner.row()), std::min(cursor.column(), corner.column())),
      cells_.index(std::max(cursor.row(), corner.row()), std::max(cursor.column(), corner.column())));
  if (wanted != drawnSelection_) {
    drawnSelection_ = wanted;
    selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
  }
  if (currentIndex() != cursor) selectionModel()->setCurrentIndex(cursor, QItemSelectionModel::NoUpdate);
}

void FlexGrid::updateGeometries() {
  const Drawing drawing(*this);
  drawBars();
}

void FlexGrid::compare(Differences& found) const {
  const FlexGridLayout place = layout();
  found.expect("Rows", cells_.rowCount(), model_.Rows());
  found.expect("Cols", cells_.columnCount(), model_.Cols());
  if (model_.Rows() > 0 && model_.Cols() > 0) {
    found.expect("Row", currentIndex().row(), model_.Row());
    found.expect("Col", currentIndex().column(), model_.Col());
  }
  found.expect("TopRow", verticalScrollBar()->value(), model_.TopRow());
  found.expect("LeftCol", horizontalScrollBar()->value(), model_.LeftCol());
  if (!isVisible()) return;
  found.expect("width for cells", viewport()->width(), place.clientWidth());
  found.expect("height for cells", viewport()->height(), place.clientHeight());
}

void FlexGrid::paintEvent(QPaintEvent*) {
  const FlexGridLayout place = layout();
  FlexGridPainter(model_, place, *this, *viewport()).paint(hasFocus());
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
  const GridSpot spot = layout().spotAt(place.x(), place.y());
  return cells_.index(spot.row, spot.col);
}

GridSpot FlexGrid::spotAt(const QMouseEvent& event) const {
  const QPoint place = event.position().toPoint();
  return layout().spotAt(place.x(), place.y());
}

GridSpot FlexGrid::spotNear(const QMouseEvent& event) const {
  const FlexGridLayout place = layout();
  const QPoint at = event.position().toPoint();
  GridSpot spot = place.spotAt(std::clamp(at.x(), 0, std::max(0, place.clientWidth() - 1)),
                               std::clamp(at.y(), 0, std::max(0, place.clientHeight() - 1)));
  // Above and below the edge is the next row that is out of sight.
  if (at.y() < 0) spot.row = std::max(model_.TopRow() - 1, model_.FixedRows());
  if (at.y() >= place.clientHeight() && spot.row >= 0) spot.row = std::min(spot.row + 1, model_.Rows() - 1);
  return spot;
}

void FlexGrid::scrollToCell(GridSpot cell) {
  if (cell.row >= 0) verticalScrollBar()->setValue(layout().topRowShowing(cell.row));
  if (cell.col >= 0) horizontalScrollBar()->setValue(layout().leftColShowing(cell.col));
}

std::optional<QPoint> FlexGrid::placeOf(GridSpot cell) const {
  const FlexGridLayout place = layout();
  const auto x = place.xOf(cell.col);
  const auto y = place.yOf(cell.row);
  return x && y ? std::optional(QPoint(*x, *y)) : std::nullopt;
}

// ---- input

void FlexGrid::scrolled() {
  if (isDrawing()) return;
  shielded(model_, u"Scroll",
           [this] { model_.userScrolled(verticalScrollBar()->value(), horizontalScrollBar()->value()); });
}

bool FlexGrid::pressed(const QMouseEvent& event, bool) {
  twice_ = false;
  model_.userPressed(spotAt(event), 1, shiftOf(event.modifiers()));
  return false;
}

bool FlexGrid::pressedTwice(const QMouseEvent& event) {
  twice_ = true;
  model_.userPressedTwice(spotAt(event));
  return false;
}

void FlexGrid::mousePressEvent(QMouseEvent* event) {
  // The left button has come by pressed().
  if (event->button() == Qt::LeftButton) return;
  shielded(model_, u"MouseDown",
           [&] { model_.userPressed(spotAt(*event), buttonOf(*event), shiftOf(event->modifiers())); });
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void FlexGrid::mouseMoveEvent(QMouseEvent* event) {
  if (!(event->buttons() & Qt::LeftButton)) return;
  shielded(model_, u"Scroll", [&] { model_.userDragged(spotNear(*event)); });
}

void FlexGrid::mouseReleaseEvent(QMouseEvent* event) {
  shielded(model_, u"MouseUp",
           [&] { model_.userReleased(spotAt(*event), buttonOf(*event), shiftOf(event->modifiers())); });
  const bool inside = viewport()->rect().contains(event->position().toPoint());
  if (event->button() == Qt::LeftButton && inside && !twice_) userClicked();
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
