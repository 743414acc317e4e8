// SPDX-License-Identifier: MIT
//
// A grid in a window: where it draws, what the mouse does to it, how an entry field lies over a cell.
#include "desktop/qt/flex_grid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <optional>

#include "desktop/qt/text.h"
#include "forms/picture_box.h"
#include "runtime/convert.h"
#include "testing/qt/windows.h"

namespace zqn::qt::testing {

namespace {

using ::testing::ElementsAre;

constexpr PicturePoint square[] = {{2, 2}, {12, 2}, {12, 12}, {2, 12}};
constexpr PictureShape shapes[] = {{0x000000, square}};
constexpr zqn::Picture mark{u"mark", 14, 14, shapes};

constexpr ControlDesign roster[] = {
    {u"Editor", ControlKind::TextBox, u"", 0, 4300, 825, 285, {.Flat = true, .Overlaps = true}},
    {u"Grid", ControlKind::MSHFlexGrid, u"", 90, 45, 4985, 4125},
    {u"Other", ControlKind::TextBox, u"", 1000, 4300, 825, 285},
    {u"pic", ControlKind::PictureBox, u"", 2000, 4300, 210, 210},
};
constexpr FormDesign design{u"frmGrid", u"Gitter", 5300, 4800, roster};

class GridForm : public Form {
 public:
  explicit GridForm(int rows = 5) : Form(design) {
    Grid.Cols(5);
    Grid.ColWidth(0, 250);
    for (int col = 1; col < 5; ++col) Grid.ColWidth(col, 1000 + 33 * col);
    Grid.Rows(rows);
    for (int row = 0; row < rows; ++row) {
      for (int col = 1; col < 5; ++col) {
        Grid.TextMatrix(row, col, u"Zelle " + fromUtf8(std::to_string(10 * row + col)));
      }
    }
    Editor.Visible(false);
  }

  /// Lays the editor over the cell at the cursor, as a form does.
  void placeEditor(const Desktop& desktop) {
    const double x = desktop.TwipsPerPixelX();
    const double y = desktop.TwipsPerPixelY();
    Editor.Left(Grid.Left() + Grid.CellLeft() + qRound(3 * x));
    Editor.Top(Grid.Top() + Grid.CellTop() + qRound(y));
    Editor.Width(Grid.CellWidth() - qRound(3 * x));
    Editor.Height(Grid.CellHeight() - qRound(y));
    Editor.Visible(true);
  }

  zqn::FlexGrid& Grid = Get<zqn::FlexGrid>(u"Grid");
  zqn::TextBox& Editor = Get<zqn::TextBox>(u"Editor");
  zqn::TextBox& Other = Get<zqn::TextBox>(u"Other");
  zqn::PictureBox& pic = Get<zqn::PictureBox>(u"pic");
};

class Grids : public ::testing::Test {
 protected:
  FlexGrid& widget() { return dynamic_cast<FlexGrid&>(*person.desktop.widgetOf(form.Grid)); }
  QPoint placeOf(int row, int col) { return widget().placeOf({row, col}).value_or(QPoint(-1, -1)); }
  QWindow& window() { return *widget().window()->windowHandle(); }
  QPoint inWindow(QPoint place) { return widget().viewport()->mapTo(widget().window(), place); }
  void click(int row, int col, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers held = {}) {
    QTest::mouseClick(&window(), button, held, inWindow(placeOf(row, col)));
  }
  std::string selection() {
    return toUtf8(CStr(std::int32_t{form.Grid.Row()}) + u"," + CStr(std::int32_t{form.Grid.Col()}) + u"-" +
                  CStr(std::int32_t{form.Grid.RowSel()}) + u"," + CStr(std::int32_t{form.Grid.ColSel()}));
  }
  QImage look() { return widget().window()->grab().toImage(); }
  /// The inside of a cell, without its line, in the picture of the window.
  QRect insideOf(int row, int col) {
    const QRect cell = widget().visualRect(widget().model()->index(row, col)).adjusted(0, 0, -1, -1);
    const QRect place(inWindow(cell.topLeft()), cell.size());
    const double factor = widget().devicePixelRatioF();
    return {QPointF(place.topLeft() * factor).toPoint(), (QSizeF(place.size()) * factor).toSize()};
  }

  Person person;
  GridForm form;
};

TEST_F(Grids, DrawEveryCellInSight) {
  person.at(form, {[&] {
              EXPECT_EQ(widget().model()->index(4, 2).data().toString(), QStringLiteral("Zelle 42"));
              const QImage image = look();
              for (int row = 1; row < 5; ++row) {
                const QImage cell = image.copy(insideOf(row, 1));
                int dark = 0;
                for (int y = 0; y < cell.height(); ++y) {
                  for (int x = 0; x < cell.width(); ++x) dark += cell.pixelColor(x, y).lightness() < 128;
                }
                EXPECT_GT(dark, 20) << row;
              }
            }});
}

TEST_F(Grids, AnEntryFieldCoversItsCellExactly) {
  person.at(form, {[&] {
                     form.Other.SetFocus();
                     form.Grid.Row(2);
                     form.Grid.Col(3);
                     form.placeEditor(person.desktop);
                   },
                   [&] {
                     const QRect cell = widget().visualRect(widget().model()->index(2, 3));
                     const QRect field = person.desktop.widgetOf(form.Editor)->geometry();
                     EXPECT_EQ(field.left(), inWindow(cell.topLeft()).x() + FlexGridLayout::textMargin);
                     EXPECT_EQ(field.top(), inWindow(cell.topLeft()).y());
                     EXPECT_EQ(field.right() + 1, inWindow(cell.bottomRight()).x()) << "up to the line";
                     EXPECT_EQ(field.bottom() + 1, inWindow(cell.bottomRight()).y());
                     const QWidget* const onTop = widget().window()->childAt(field.center());
                     EXPECT_EQ(onTop, person.desktop.widgetOf(form.Editor)) << "no other widget covers it";
                   }});
}

TEST_F(Grids, ATextLooksTheSameInTheCellAndInTheFieldOverIt) {
  QImage plain;
  form.Grid.Row(2);
  for (const int alignment : {1, 7}) {
    form.Grid.Col(alignment == 1 ? 3 : 2);
    form.Grid.CellAlignment(alignment);
  }
  const auto look = [this](int col) { return this->look().copy(insideOf(2, col)); };
  const auto edit = [this](int col, Alignment alignment) {
    form.Grid.Col(col);
    form.placeEditor(person.desktop);
    form.Editor.Alignment(alignment);
    form.Editor.Text(form.Grid.Text());
  };
  person.at(form, {[&] {
                     form.Other.SetFocus();
                     plain = look(3);
                     edit(3, Alignment::Left);
                   },
                   [&] {
                     EXPECT_EQ(look(3), plain);
                     form.Editor.Visible(false);
                   },
                   [&] {
                     plain = look(2);
                     edit(2, Alignment::Right);
                   },
                   [&] { EXPECT_EQ(look(2), plain); }});
}

TEST_F(Grids, TheMouseMovesTheCursorAndExtendsTheSelection) {
  std::vector<std::string> events;
  form.Grid.MouseDown = [&](int button, int shift) {
    events.push_back("down" + std::to_string(button) + "/" + std::to_string(shift));
  };
  form.Grid.MouseUp = [&](int button, int) { events.push_back("up" + std::to_string(button)); };
  form.Grid.Click = [&] { events.push_back("click"); };
  form.Grid.DblClick = [&] { events.push_back("double " + std::to_string(form.Grid.MouseRow())); };
  person.at(form, {[&] { click(2, 3); },
                   [&] {
                     EXPECT_EQ(selection(), "2,3-2,3");
                     EXPECT_EQ(form.ActiveControl(), &form.Grid);
                     EXPECT_THAT(events, ElementsAre("down1/0", "up1", "click"));
                     events.clear();
                     click(4, 4, Qt::LeftButton, Qt::ShiftModifier);
                   },
                   [&] {
                     EXPECT_EQ(selection(), "2,3-4,4");
                     EXPECT_EQ(events.front(), "down1/1");
                     events.clear();
                     click(1, 1, Qt::RightButton);
                   },
                   [&] {
                     EXPECT_EQ(selection(), "2,3-4,4");
                     EXPECT_THAT(events, ElementsAre("down2/0", "up2"));
                     events.clear();
                     QTest::mouseDClick(&window(), Qt::LeftButton, {}, inWindow(placeOf(3, 2)));
                   },
                   [&] {
                     EXPECT_THAT(events,
                                 ElementsAre("down1/0", "up1", "click", "down1/0", "double 3", "up1"));
                     events.clear();
                     click(-1, 2);
                   },
                   [&] {
                     EXPECT_EQ(form.Grid.MouseRow(), -1);
                     EXPECT_EQ(form.Grid.MouseCol(), 2);
                     EXPECT_EQ(selection(), "3,2-3,2");
                   }});
}

TEST_F(Grids, DraggingFromTheFirstColumnTakesRows) {
  std::vector<std::string> events;
  form.Grid.SelChange = [&] { events.push_back(selection()); };
  person.at(form, {[&] {
                     QTest::mousePress(&window(), Qt::LeftButton, {}, inWindow(placeOf(1, 0)));
                     QMouseEvent move(QEvent::MouseMove, placeOf(3, 0),
                                      widget().viewport()->mapToGlobal(placeOf(3, 0)), Qt::NoButton,
                                      Qt::LeftButton, Qt::NoModifier);
                     QCoreApplication::sendEvent(widget().viewport(), &move);
                     EXPECT_EQ(selection(), "1,1-3,4");
                     QTest::mouseRelease(&window(), Qt::LeftButton, {}, inWindow(placeOf(3, 0)));
                   },
                   [&] { EXPECT_THAT(events, ElementsAre("1,1-1,4", "1,1-3,4")); }});
}

TEST_F(Grids, ADisabledGridTakesNoClick) {
  form.Grid.Enabled(false);
  person.at(form, {[&] { click(2, 3); }, [&] { EXPECT_EQ(selection(), "1,1-1,1"); }});
}

TEST(LongGrids, ScrollByBarWheelAndKeys) {
  Person person;
  GridForm form(200);
  int scrolls = 0;
  form.Grid.Scroll = [&] { ++scrolls; };
  const auto bar = [&]() -> QScrollBar& {
    return *dynamic_cast<FlexGrid&>(*person.desktop.widgetOf(form.Grid)).verticalScrollBar();
  };
  person.at(form, {[&] {
                     EXPECT_TRUE(bar().isVisible());
                     EXPECT_EQ(bar().maximum(), form.Grid.layout().lastTopRow());
                     bar().setValue(50);
                   },
                   [&] {
                     EXPECT_EQ(form.Grid.TopRow(), 50);
                     EXPECT_EQ(scrolls, 1);
                     form.Grid.TopRow(20);
                   },
                   [&] {
                     EXPECT_EQ(bar().value(), 20);
                     EXPECT_EQ(scrolls, 2) << "what code scrolls comes back no second time";
                     form.Grid.SetFocus();
                     person.key(Qt::Key_Down);
                   },
                   [&] {
                     EXPECT_EQ(form.Grid.Row(), 2);
                     EXPECT_EQ(form.Grid.TopRow(), 2);
                     form.Grid.Rows(3);
                   },
                   [&] {
                     EXPECT_FALSE(bar().isVisible());
                     EXPECT_EQ(form.Grid.TopRow(), 1);
                   }});
}

TEST_F(Grids, WithoutHeadingsShowTheFirstRowOnTop) {
  form.Grid.Rows(0);
  form.Grid.FixedCols(0);
  form.Grid.Rows(3);
  form.Grid.SelectionMode(zqn::FlexGrid::ByRow);
  person.at(form, {[&] { click(0, 1); },
                   [&] {
                     EXPECT_EQ(selection(), "0,0-0,4");
                     const QRect cell = insideOf(0, 1);
                     const QColor back = look().pixelColor(cell.center());
                     EXPECT_EQ(back, widget().palette().color(QPalette::Active, QPalette::Highlight));
                     form.Grid.Rows(0);
                   },
                   [&] { EXPECT_EQ(widget().model()->rowCount(), 0); }});
}

TEST_F(Grids, PicturesAreDrawnAsFineAsTheScreenIs) {
  form.Grid.Row(2);
  form.Grid.Col(0);
  form.Grid.CellPicture(&mark);
  form.Grid.CellPictureAlignment(cell_alignment::CenterCenter);
  form.pic.Picture(&mark);
  form.Activate = [&] { form.Other.SetFocus(); };
  const auto black = [](const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y).lightness() < 100;
    }
    return count;
  };
  person.at(form, {[&] {
              const double factor = widget().devicePixelRatioF() * widget().logicalDpiX() / 96.0;
              const double area = 100 * factor * factor;
              EXPECT_NEAR(black(look().copy(insideOf(2, 0))), area, 0.2 * area);
              const QImage box = person.desktop.widgetOf(form.pic)->grab().toImage();
              EXPECT_NEAR(black(box), area, 0.2 * area);
            }});
}

TEST_F(Grids, AreReadOutCellByCell) {
  form.Grid.Row(3);
  form.Grid.Col(0);
  form.Grid.CellPicture(&mark);
  form.Grid.wordsForPicture(mark, u"neue Zeile");
  form.Grid.Col(2);
  person.at(form, {[&] {
              QAccessibleInterface* grid = QAccessible::queryAccessibleInterface(&widget());
              ASSERT_NE(grid, nullptr);
              QAccessibleTableInterface* table = grid->tableInterface();
              ASSERT_NE(table, nullptr);
              EXPECT_EQ(table->rowCount(), 5);
              EXPECT_EQ(table->cellAt(3, 2)->text(QAccessible::Name), QStringLiteral("Zelle 32"));
              EXPECT_EQ(table->cellAt(3, 0)->text(QAccessible::Name), QStringLiteral("neue Zeile"));
              EXPECT_EQ(table->cellAt(3, 2)->text(QAccessible::Description),
                        QStringLiteral("Zelle 2, Zeile 3"));
              EXPECT_TRUE(table->cellAt(3, 2)->state().selected);
            }});
}

// ---- what assistive technology hears and does

TEST_F(Grids, MoveTheirCurrentCellOnceAKey) {
  form.Grid.RowColChange = [&] {
    if (form.Grid.Row() == 3) form.Grid.Col(3);  // a form moves it further
  };
  std::optional<QSignalSpy> moves;
  person.at(form, {[&] {
                     form.Grid.SetFocus();
                     form.Grid.Row(2);
                   },
                   [&] {
                     moves.emplace(widget().selectionModel(), &QItemSelectionModel::currentChanged);
                     person.key(Qt::Key_Down);
                   },
                   [&] {
                     EXPECT_EQ(moves->size(), 1);
                     EXPECT_EQ(widget().currentIndex().row(), 3);
                     EXPECT_EQ(widget().currentIndex().column(), 3);
                   }});
}

TEST_F(Grids, ACellThatAssistiveTechnologySelectsIsClickedOn) {
  form.Grid.Click = [&] { form.Grid.TextMatrix(0, 0, u"geklickt"); };
  person.at(form, {[&] {
                     form.Other.SetFocus();
                     auto* table = QAccessible::queryAccessibleInterface(&widget())->tableInterface();
                     auto* cell = table->cellAt(4, 2);
                     cell->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
                   },
                   [&] {
                     EXPECT_EQ(selection(), "4,2-4,2");
                     EXPECT_EQ(form.Grid.TextMatrix(0, 0), u"geklickt");
                     EXPECT_EQ(form.ActiveControl(), &form.Grid);
                     EXPECT_EQ(widget().selectionModel()->selectedIndexes().size(), 1);
                     form.Grid.Enabled(false);
                     form.Other.SetFocus();
                     widget().selectionModel()->select(widget().model()->index(1, 1),
                                                       QItemSelectionModel::ClearAndSelect);
                   },
                   [&] {
                     EXPECT_EQ(selection(), "4,2-4,2") << "refused";
                     ASSERT_EQ(widget().selectionModel()->selectedIndexes().size(), 1);
                     EXPECT_EQ(widget().selectionModel()->selectedIndexes().at(0).row(), 4);
                   }});
}

// ---- the check of window against form

TEST_F(Grids, ThatPaintSomethingElseThanTheFormSaysAreFoundOut) {
  const auto differences = [&] { return person.desktop.differences(form).toStdString(); };
  person.at(form, {[&] { EXPECT_EQ(differences(), ""); },
                   [&] {
                     form.Grid.TextMatrix(2, 2, u"neu");
                     EXPECT_EQ(differences(), "") << "what waits to be painted is painted first";
                     // The window does not hear of what follows.
                     FormView* const view = form.view();
                     form.attach(nullptr);
                     form.Grid.TextMatrix(2, 3, u"still");
                     EXPECT_THAT(differences(),
                                 ::testing::HasSubstr("Grid: the picture is \"shows cell 2,3"));
                     form.Grid.TextMatrix(2, 3, u"Zelle 23");
                     EXPECT_EQ(differences(), "");
                     form.Grid.setPicture(1, 0, &mark);
                     EXPECT_THAT(differences(), ::testing::HasSubstr("mark"));
                     form.Grid.setPicture(1, 0, nullptr);
                     form.Grid.ColSel(2);
                     EXPECT_THAT(differences(), ::testing::HasSubstr("selected"));
                     form.Grid.Col(form.Grid.Col());
                     form.attach(view);
                     EXPECT_EQ(differences(), "");
                   }});
}

TEST_F(Grids, AnEntryFieldThatIsCoveredIsFoundOut) {
  person.at(form, {[&] {
                     form.Other.SetFocus();
                     form.placeEditor(person.desktop);
                   },
                   [&] {
                     EXPECT_EQ(person.desktop.differences(form), QString());
                     widget().raise();
                     EXPECT_EQ(person.desktop.differences(form), QStringLiteral("Editor is covered"));
                     person.desktop.widgetOf(form.Editor)->raise();
                   }});
}

TEST(LongGrids, ScrollThreeRowsANotchOfTheWheel) {
  Person person;
  GridForm form(200);
  const auto turn = [&](int angle) {
    QWidget& area = *person.desktop.mouseAreaOf(form.Grid);
    const QPoint place = area.rect().center();
    QWheelEvent event(place, area.mapToGlobal(place), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&area, &event);
  };
  person.at(form, {[&] { turn(-120); },
                   [&] {
                     EXPECT_EQ(form.Grid.TopRow(), 4);
                     turn(-60);
                     turn(-60);
                   },
                   [&] { EXPECT_EQ(form.Grid.TopRow(), 7); }});
}

}  // namespace

}  // namespace zqn::qt::testing
