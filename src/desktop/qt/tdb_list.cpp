// SPDX-License-Identifier: MIT
#include "desktop/qt/tdb_list.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <chrono>

#include "desktop/qt/colours.h"
#include "desktop/qt/row_mark.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/style.h"
#include "desktop/qt/text.h"
#include "forms/form.h"

namespace zqn::qt {

namespace {

using namespace std::chrono_literals;

/// Reading on: so many keys at a time, for so long, with such pauses for drawing and typing between.
constexpr int keysPerStep = 10'000;
constexpr std::chrono::milliseconds readFor = 8ms;
constexpr std::chrono::milliseconds pause = 4ms;

}  // namespace

TDBList::TDBList(zqn::TDBList& model, QWidget* parent)
    : QTableView(parent),
      ControlWidget(model, *this, {QPalette::Base, QPalette::Text, colour::WindowBackground}),
      model_(model),
      rows_(model) {
  setModel(&rows_);
  // The row as a whole has the focus, no cell of it.
  cells_ = new PaintedCells(*this, PaintedCells::CellFocus::Hidden);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setSelectionBehavior(SelectRows);
  setTabKeyNavigation(false);
  setAutoScroll(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);

  QHeaderView& lines = *verticalHeader();
  lines.hide();
  lines.setMinimumSectionSize(1);
  lines.setSectionResizeMode(QHeaderView::Fixed);
  QHeaderView& captions = *horizontalHeader();
  captions.setHighlightSections(false);
  captions.setSectionsClickable(false);
  captions.setMinimumSectionSize(1);
  captions.setFocusPolicy(Qt::NoFocus);
  connect(&captions, &QHeaderView::sectionResized, this,
          [this](int column, int, int pixels) { columnDragged(column, pixels); });

  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this](const QItemSelection& selected) { assisted(selected); });
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
    if (!isDrawing()) sync();
  });

  reading_.setInterval(pause);
  connect(&reading_, &QTimer::timeout, this, [this] { readOn(); });
}

// ---- drawing

void TDBList::draw() {
  const Scale scale(*this);
  if (verticalHeader()->defaultSectionSize() != scale.y(zqn::TDBList::rowHeight))
    verticalHeader()->setDefaultSectionSize(scale.y(zqn::TDBList::rowHeight));
  if (horizontalHeader()->maximumHeight() != scale.y(zqn::TDBList::headerHeight))
    horizontalHeader()->setFixedHeight(scale.y(zqn::TDBList::headerHeight));
  if (horizontalHeader()->isHidden() == model_.ColumnHeaders())
    horizontalHeader()->setVisible(model_.ColumnHeaders());

  const bool anew = rows_.follow();
  drawColumns();
  drawRowStyle();
  if (model_.rowsComplete()) {
    reading_.stop();
  } else if (anew) {
    reading_.start();
  }

  showMark(*this, model_.Row(), firstShownColumn());
  if (anew || drawnRow_ != model_.Row()) showMarkedRow();
  // A row that is read again may say something else.
  viewport()->update();
}

void TDBList::showMarkedRow() {
  drawnRow_ = model_.Row();
  const QModelIndex marked = rows_.index(drawnRow_, 0);
  if (!marked.isValid()) return;
  executeDelayedItemsLayout();
  const int left = horizontalScrollBar()->value();
  scrollTo(marked);
  horizontalScrollBar()->setValue(left);
}

int TDBList::firstShownColumn() const {
  int first = 0;
  while (first + 1 < rows_.columnCount() && model_.drawnWidth(first) <= 0) ++first;
  return first;
}

int TDBList::lastShownColumn() const {
  int last = -1;
  for (int i = 0; i < rows_.columnCount(); ++i) {
    if (model_.drawnWidth(i) > 0) last = i;
  }
  return last;
}

int TDBList::widthOf(int column) const { return Scale(*this).x(model_.drawnWidth(column)); }

void TDBList::drawColumns() {
  QHeaderView& header = *horizontalHeader();
  const int last = lastShownColumn();
  int used = 0;
  for (int i = 0; i < rows_.columnCount(); ++i) {
    const int width = widthOf(i);
    const auto mode = model_.Columns(i).AllowSizing() ? QHeaderView::Interactive : QHeaderView::Fixed;
    if (header.sectionResizeMode(i) != mode) header.setSectionResizeMode(i, mode);
    if (isColumnHidden(i) != (width <= 0)) setColumnHidden(i, width <= 0);
    if (width <= 0) continue;
    // The last column reaches to the edge, whatever room frame and scroll bar leave.
    const int drawn = i == last ? std::max(width, viewport()->width() - used) : width;
    if (columnWidth(i) != drawn) setColumnWidth(i, drawn);
    used += drawn;
  }
}

void TDBList::drawRowStyle() {
  const QColor back = qt::toQt(model_.HighlightRowStyle().BackColor, QPalette());
  const QColor fore = qt::toQt(model_.HighlightRowStyle().ForeColor, QPalette());
  QPalette rows = palette();
  if (rows.color(QPalette::Inactive, QPalette::Highlight) == back &&
      rows.color(QPalette::Active, QPalette::Highlight) == back &&
      rows.color(QPalette::Active, QPalette::HighlightedText) == fore)
    return;
  // A row stays marked in its colours while the focus is elsewhere.
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    rows.setColor(group, QPalette::Highlight, back);
    rows.setColor(group, QPalette::HighlightedText, fore);
  }
  setPalette(rows);
}

void TDBList::compare(Differences& found) const {
  found.expect("Row", currentIndex().row(), model_.Row());
  found.expect("selection", showsMark(*this, model_.Row()), true);
  // The list may have come to know more rows, by a search, than it has shown so far.
  if (rows_.rowCount() > model_.knownRows()) found.expect("rows", rows_.rowCount(), model_.knownRows());
  found.expect("columns", rows_.columnCount(), model_.columnCount());
  found.expect("ColumnHeaders", !horizontalHeader()->isHidden(), model_.ColumnHeaders());
  zqn::TDBList& list = model_;
  const int last = lastShownColumn();
  for (int i = 0; i < std::min(rows_.columnCount(), list.columnCount()); ++i) {
    found.expect("Caption", rows_.headerData(i, Qt::Horizontal, Qt::DisplayRole).toString(),
                 qt::toQt(list.Columns(i).Caption()));
    found.expect("Visible", !isColumnHidden(i), widthOf(i) > 0);
    if (widthOf(i) > 0 && i != last) found.expect("Width", columnWidth(i), widthOf(i));
  }
  if (!cells_->bringUpToDate()) return;
  const int top = std::max(rowAt(0), 0);
  const int bottom = rowAt(viewport()->height() - 1);
  for (int row = top; row <= (bottom < 0 ? rows_.rowCount() - 1 : bottom); ++row) {
    for (int i = 0; i < rows_.columnCount(); ++i) {
      if (!isColumnHidden(i))
        cells_->compare(found, rows_.index(row, i), qt::toQt(list.cellText(row, i)), row == list.Row());
    }
  }
}

void TDBList::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(viewport());
  const int row = model_.Row();
  const QColor colour = palette().color(QPalette::Active, QPalette::HighlightedText);
  if (row < 0) {
    drawFocusFrame(painter, viewport()->rect(), palette().color(QPalette::Active, QPalette::Highlight));
  } else {
    drawFocusFrame(painter, QRect(0, rowViewportPosition(row), viewport()->width(), rowHeight(row) - 1),
                   colour);
  }
}

void TDBList::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  const Drawing drawing(*this);
  drawColumns();
  showMarkedRow();
}

void TDBList::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  update();
}

void TDBList::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  update();
}

// ---- input

bool TDBList::reportPress(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return ControlWidget::reportPress(event);
  const int row = rowAt(event.position().toPoint().y());
  return event.type() == QEvent::MouseButtonDblClick ? model_.userPressedAgain(row) : model_.userPressed(row);
}

bool TDBList::pressed(const QMouseEvent&, bool) { return true; }

void TDBList::assisted(const QItemSelection& selected) {
  if (isDrawing()) return;
  // Assistive technology has selected: undone, and done again as a person's click.
  const int row = selected.isEmpty() ? -1 : selected.first().top();
  sync();
  if (row < 0) return;
  shielded(model_, u"MouseDown", [&] {
    if (model_.userPressed(row)) model_.form().mouseReleased(model_);
  });
}

void TDBList::columnDragged(int column, int pixels) {
  if (isDrawing() || column >= model_.columnCount()) return;
  // The last column is as wide as the rest leaves, unless it is drawn wider than that.
  model_.Columns(column).Width(Scale(*this).twipsX(pixels));
}

void TDBList::readOn() {
  QElapsedTimer since;
  since.start();
  try {
    while (!model_.rowsComplete() && since.elapsed() < readFor.count()) model_.fetchRows(keysPerStep);
  } catch (const RuntimeError&) {
    // What is known stays in sight. A key that needs more rows asks again, and then the person is told.
    reading_.stop();
  }
}

// ---- tool tips

bool TDBList::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const QModelIndex cell = indexAt(help.pos());
  const QString tip = tipFor(cell);
  if (tip.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(help.globalPos(), plainTip(tip), viewport(),
                       cell.isValid() ? visualRect(cell) : QRect());
  }
  return true;
}

QString TDBList::tipFor(const QModelIndex& cell) const {
  const QString ofList = qt::toQt(model_.ToolTipText());
  if (!cell.isValid()) return ofList;
  const QString text = cell.data().toString();
  const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
  const int room = columnWidth(cell.column()) - 2 * margin - (showGrid() ? 1 : 0);
  return fontMetrics().horizontalAdvance(text) > room ? text : ofList;
}

}  // namespace zqn::qt
