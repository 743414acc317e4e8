// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableView>
#include <QToolTip>

#include "desktop/qt/text.h"
#include "testing/qt/windows.h"

namespace zqn::qt::testing {

namespace {

QTableView& viewOf(const Person& person, TDBList& list) {
  return dynamic_cast<QTableView&>(*person.desktop.widgetOf(list));
}

bool isInSight(const QTableView& view, int row) {
  const QRect place = view.visualRect(view.model()->index(row, 0));
  return place.isValid() && view.viewport()->rect().contains(QPoint(1, place.top())) &&
         view.viewport()->rect().contains(QPoint(1, place.bottom()));
}

TEST(Lists, ShowTheRowsAndCaptionsOfTheRecordset) {
  Person person;
  StatiForm form;
  person.at(form, {[&] {
              const QAbstractItemModel& rows = *viewOf(person, form.TDBList1).model();
              EXPECT_EQ(rows.rowCount(), 40);
              EXPECT_EQ(rows.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Bezeichnung"));
              EXPECT_EQ(rows.index(39, 1).data().toString(), QStringLiteral("Stufe 40"));
            }});
}

TEST(Lists, MarkTheRowOfAClickAndScrollItIntoView) {
  Person person;
  StatiForm form;
  int changes = 0;
  form.TDBList1.RowColChange = [&] { ++changes; };
  person.at(form, {[&] { person.clickRow(form.TDBList1, 3); },
                   [&] {
                     EXPECT_EQ(form.TDBList1.Row(), 3);
                     EXPECT_EQ(form.TDBList1.Text(), u"004");
                     EXPECT_EQ(changes, 1);
                     person.clickRow(form.TDBList1, 3);
                   },
                   [&] {
                     EXPECT_EQ(changes, 1);
                     person.click(form.TDBList1,
                                  QPoint(20, viewOf(person, form.TDBList1).viewport()->height() - 1));
                   },
                   [&] {
                     EXPECT_GT(form.TDBList1.Row(), 6);
                     EXPECT_TRUE(isInSight(viewOf(person, form.TDBList1), form.TDBList1.Row()));
                   }});
}

TEST(Lists, ReportOneClickAndOneDoubleClick) {
  Person person;
  StatiForm form;
  std::vector<std::string> events;
  form.TDBList1.Click = [&] { events.push_back("click"); };
  form.TDBList1.DblClick = [&] { events.push_back("double " + toUtf8(form.TDBList1.Text())); };
  person.at(form, {[&] { person.doubleClickRow(form.TDBList1, 2); }});
  EXPECT_THAT(events, ::testing::ElementsAre("double 003"));
}

TEST(Lists, OpenTheRowUnderADoubleClickEvenWhenTheFirstPressScrolls) {
  Person person;
  StatiForm form;
  int row = -1;
  form.TDBList1.DblClick = [&] { row = form.TDBList1.Row(); };
  int lowest = -1;
  person.at(form, {[&] {
              const QTableView& view = viewOf(person, form.TDBList1);
              lowest = view.rowAt(view.viewport()->height() - 1);
              EXPECT_FALSE(isInSight(view, lowest));
              person.doubleClickRow(form.TDBList1, lowest);
            }});
  EXPECT_EQ(row, lowest);
}

TEST(Lists, OpenTheRowThatWasUnderThePointerBeforeTheFocusMovedAndTheRowsScrolled) {
  Person person;
  StatiForm form;
  std::vector<std::string> taken;
  form.TDBList1.DblClick = [&] { taken.push_back(toUtf8(form.TDBList1.Text())); };
  form.Schluessel.LostFocus = [&] { form.TDBList1.Bookmark(form.rsListe->bookmarkOf(24)); };
  person.at(form, {[&] { form.Schluessel.SetFocus(); }, [&] { person.doubleClickRow(form.TDBList1, 2); }});
  EXPECT_THAT(taken, ::testing::ElementsAre("003"));
}

TEST(Lists, ShowARowThatIsGoneAsAnEmptyLineAndAChangedOneAsItIsNow) {
  Person person;
  StatiForm form;
  const auto shown = [&](int row) {
    return viewOf(person, form.TDBList1).model()->index(row, 1).data().toString().toStdString();
  };
  person.at(form, {[&] {
                     form.connection->Execute(u"DELETE FROM Stati WHERE Status='003'");
                     form.connection->Execute(u"UPDATE Stati SET Bezeichnung='neu' WHERE Status='005'");
                     person.clickRow(form.TDBList1, 2);
                   },
                   [&] {
                     EXPECT_EQ(form.TDBList1.Text(), u"");
                     EXPECT_EQ(shown(2), "");
                     EXPECT_EQ(shown(4), "Stufe 5") << "drawn before";
                     person.clickRow(form.TDBList1, 4);
                   },
                   [&] {
                     EXPECT_EQ(form.TDBList1.Columns(1).Value(), Variant(u"neu"));
                     EXPECT_EQ(shown(4), "neu");
                   }});
}

TEST(Lists, AreEmptyAtOnceWhenTheirRecordsetCloses) {
  Person person;
  StatiForm form;
  person.at(form, {[&] {
                     form.connection->Execute(u"ALTER TABLE Stati RENAME TO Fort");
                     EXPECT_THROW(form.rsListe->Requery(), RuntimeError);
                     EXPECT_EQ(viewOf(person, form.TDBList1).model()->rowCount(), 0);
                     EXPECT_FALSE(viewOf(person, form.TDBList1).currentIndex().isValid());
                   },
                   [&] { EXPECT_EQ(form.TDBList1.Row(), -1); }});
}

// ---- assistive technology

QAccessibleTableInterface& tableOf(const Person& person, TDBList& list) {
  return *QAccessible::queryAccessibleInterface(&viewOf(person, list))->tableInterface();
}

TEST(Lists, AreSelectedInByAScreenReaderAsByAClick) {
  Person person;
  StatiForm form;
  std::vector<std::string> events;
  form.TDBList1.RowColChange = [&] { events.push_back(toUtf8(form.TDBList1.Text())); };
  form.Schluessel.LostFocus = [&] { events.emplace_back("LostFocus"); };
  person.at(
      form,
      {[&] { form.Schluessel.SetFocus(); }, [&] { tableOf(person, form.TDBList1).selectRow(5); },
       [&] {
         EXPECT_THAT(events, ::testing::ElementsAre("LostFocus", "006"));
         EXPECT_EQ(form.TDBList1.Row(), 5);
         EXPECT_EQ(form.rsListe->currentRow(), 5);
         EXPECT_EQ(form.ActiveControl(), &form.TDBList1);
         EXPECT_TRUE(tableOf(person, form.TDBList1).isRowSelected(5));
         EXPECT_FALSE(tableOf(person, form.TDBList1).isRowSelected(0));
         viewOf(person, form.TDBList1).setCurrentIndex(viewOf(person, form.TDBList1).model()->index(8, 1));
       },
       [&] { EXPECT_EQ(form.TDBList1.Row(), 8); }});
}

TEST(Lists, RefuseAScreenReaderWhatTheyRefuseAClick) {
  Person person;
  StatiForm form;
  form.Schluessel.Validate = [](bool& cancel) { cancel = true; };
  const auto stays = [&] {
    EXPECT_EQ(form.TDBList1.Row(), 0);
    EXPECT_TRUE(tableOf(person, form.TDBList1).isRowSelected(0));
    EXPECT_FALSE(tableOf(person, form.TDBList1).isRowSelected(5));
    EXPECT_EQ(viewOf(person, form.TDBList1).currentIndex().row(), 0);
  };
  person.at(form, {[&] { form.Schluessel.SetFocus(); }, [&] { tableOf(person, form.TDBList1).selectRow(5); },
                   stays, [&] { tableOf(person, form.TDBList1).unselectRow(0); }, stays,
                   [&] { viewOf(person, form.TDBList1).clearSelection(); }, stays,
                   [&] {
                     const QModelIndex other = viewOf(person, form.TDBList1).model()->index(5, 0);
                     viewOf(person, form.TDBList1)
                         .selectionModel()
                         ->setCurrentIndex(other, QItemSelectionModel::NoUpdate);
                   },
                   stays});
}

// ---- what the window shows, held against the form

TEST(Lists, ThatShowAnotherMarkDifferFromTheForm) {
  Person person;
  StatiForm form;
  person.at(form, {[&] {
              QItemSelectionModel& selection = *viewOf(person, form.TDBList1).selectionModel();
              const auto marks = selection.selection();
              {
                const QSignalBlocker silently(selection);
                selection.select(selection.model()->index(3, 0),
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
              }
              EXPECT_TRUE(person.desktop.differences(form).contains(QLatin1String("selection")));
              selection.select(marks, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
            }});
}

TEST(Lists, ThatHaveNotPaintedWhatTheyHoldDifferFromTheForm) {
  Person person;
  StatiForm form;
  person.at(form, {[&] {
              form.connection->Execute(u"UPDATE Stati SET Bezeichnung='neu' WHERE Status='003'");
              form.rsListe->refreshRow(2);
              EXPECT_EQ(person.desktop.differences(form),
                        QStringLiteral("TDBList1: cell 2,1 is \"Stufe 3\", not \"neu\""));
              viewOf(person, form.TDBList1).viewport()->update();
            }});
}

TEST(Lists, IgnoreAClickBelowTheRows) {
  Person person;
  StatiForm form(2);
  person.at(form,
            {[&] { person.click(form.Schluessel); }, [&] { person.click(form.TDBList1, QPoint(20, 120)); },
             [&] {
               EXPECT_EQ(form.ActiveControl(), &form.TDBList1);
               EXPECT_EQ(form.TDBList1.Row(), 0);
             }});
}

TEST(Lists, MoveByArrowsPagesHomeAndEnd) {
  Person person;
  StatiForm form;
  const auto after = [&](int key, int row) {
    return [&person, &form, key, row] {
      person.key(key);
      EXPECT_EQ(form.TDBList1.Row(), row);
      EXPECT_TRUE(isInSight(viewOf(person, form.TDBList1), row));
    };
  };
  const int page = form.TDBList1.rowsPerPage();
  person.at(form, {after(Qt::Key_Down, 1), after(Qt::Key_PageDown, 1 + page), after(Qt::Key_Up, page),
                   after(Qt::Key_End, 39), after(Qt::Key_PageUp, 39 - page), after(Qt::Key_Home, 0)});
}

TEST(Lists, FindTheRowWhoseKeyIsTyped) {
  Person person;
  StatiForm form;
  int changes = 0;
  form.TDBList1.RowColChange = [&] { ++changes; };
  person.at(form, {[&] { person.type(u"03"); },
                   [&] {
                     EXPECT_EQ(form.TDBList1.Row(), 29);
                     EXPECT_TRUE(isInSight(viewOf(person, form.TDBList1), 29));
                   }});
  EXPECT_GT(changes, 0);
}

TEST(Lists, CopyTheMarkedRow) {
  Person person;
  StatiForm form;
  person.at(form,
            {[&] { person.clickRow(form.TDBList1, 1); }, [&] { person.key(Qt::Key_C, Qt::ControlModifier); },
             [&] { EXPECT_EQ(person.desktop.clipboardText(), u"002\tStufe 2"); }});
}

TEST(Lists, KeepEnterWhereTheyShould) {
  Person person;
  StatiForm form;
  std::vector<std::string> seen;
  form.KeyPress = [&](int& KeyAscii) {
    if (KeyAscii == key::Enter) seen.push_back("form");
  };
  form.TDBList1.KeyPress = [&](int& KeyAscii) {
    if (KeyAscii == key::Enter) seen.push_back("list");
  };
  person.at(form, {[&] { person.key(Qt::Key_Return); },
                   [&] {
                     form.TDBList1.keepsEnter(true);
                     person.key(Qt::Key_Return);
                   }});
  EXPECT_THAT(seen, ::testing::ElementsAre("form", "list", "list"));
}

TEST(Lists, FollowBookmarkAndANewBinding) {
  Person person;
  StatiForm form;
  person.at(form, {[&] {
                     form.rsListe->MoveLast();
                     EXPECT_EQ(form.TDBList1.Row(), 0);
                     form.TDBList1.Bookmark(form.rsListe->Bookmark());
                   },
                   [&] {
                     EXPECT_TRUE(isInSight(viewOf(person, form.TDBList1), 39));
                     form.connection->Execute(u"DELETE FROM Stati WHERE Status > '010'");
                     form.TDBList1.HoldFields();
                     form.rsListe->Requery();
                     form.TDBList1.ReBind();
                   },
                   [&] {
                     const QTableView& view = viewOf(person, form.TDBList1);
                     EXPECT_EQ(view.model()->rowCount(), 10);
                     EXPECT_EQ(view.currentIndex().row(), 0);
                     EXPECT_TRUE(isInSight(view, 0));
                   }});
}

TEST(Lists, WithoutRowsShowNoMark) {
  Person person;
  StatiForm form;
  person.at(form, {[&] {
                     form.connection->Execute(u"DELETE FROM Stati");
                     form.rsListe->Requery();
                     form.TDBList1.ReBind();
                   },
                   [&] {
                     EXPECT_EQ(viewOf(person, form.TDBList1).model()->rowCount(), 0);
                     EXPECT_FALSE(viewOf(person, form.TDBList1).currentIndex().isValid());
                     person.key(Qt::Key_Down);
                     form.TDBList1.DataSource(nothing);
                   },
                   [&] { EXPECT_EQ(viewOf(person, form.TDBList1).model()->columnCount(), 0); }});
}

TEST(Lists, DrawColumnsAsTheyAreSetUp) {
  Person person;
  StatiForm form;
  form.TDBList1.Columns(0).Caption(u"Schlüssel");
  form.TDBList1.Columns(0).Width(3000);
  form.TDBList1.Columns(0).AllowSizing(false);
  person.at(form, {[&] {
                     const QTableView& view = viewOf(person, form.TDBList1);
                     EXPECT_EQ(view.model()->headerData(0, Qt::Horizontal).toString(),
                               QStringLiteral("Schlüssel"));
                     EXPECT_EQ(view.columnWidth(0), qRound(3000 / person.desktop.TwipsPerPixelX()));
                     EXPECT_EQ(view.columnWidth(0) + view.columnWidth(1), view.viewport()->width());
                     EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
                     EXPECT_EQ(view.horizontalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
                     EXPECT_EQ(view.horizontalHeader()->sectionResizeMode(1), QHeaderView::Interactive);
                     EXPECT_FALSE(view.horizontalHeader()->highlightSections());
                     form.TDBList1.Columns(0).Visible(false);
                     form.TDBList1.ColumnHeaders(false);
                   },
                   [&] {
                     const QTableView& view = viewOf(person, form.TDBList1);
                     EXPECT_TRUE(view.isColumnHidden(0));
                     EXPECT_TRUE(view.horizontalHeader()->isHidden());
                     form.TDBList1.Columns(0).Visible(true);
                     form.TDBList1.Columns(0).Width(0);
                   },
                   [&] { EXPECT_TRUE(viewOf(person, form.TDBList1).isColumnHidden(0)); }});
}

TEST(Lists, TellTheModelWhenAPersonSizesAColumn) {
  Person person;
  StatiForm form;
  person.at(form, {[&] { viewOf(person, form.TDBList1).horizontalHeader()->resizeSection(0, 60); },
                   [&] {
                     EXPECT_EQ(form.TDBList1.Columns(0).Width(),
                               qRound(60 * person.desktop.TwipsPerPixelX()));
                     EXPECT_EQ(viewOf(person, form.TDBList1).columnWidth(0), 60);
                   }});
}

TEST(Lists, MarkTheRowInTheColoursOfHighlightRowStyle) {
  Person person;
  StatiForm form;
  form.TDBList1.HighlightRowStyle({0x00C00000, 0x0000FFFF});
  // In the marked row, behind its texts.
  const auto colour = [&] {
    const QImage image = viewOf(person, form.TDBList1).viewport()->grab().toImage();
    return image.pixelColor(image.width() - 30, 8);
  };
  person.at(form, {[&] {
                     EXPECT_EQ(colour(), QColor(0, 0, 0xC0));
                     person.click(form.Schluessel);
                   },
                   [&] { EXPECT_EQ(colour(), QColor(0, 0, 0xC0)); }});
}

TEST(Lists, ShowTheFocusOnTheMarkedRow) {
  Person person;
  StatiForm form;
  QImage with;
  QImage without;
  const auto grab = [&] { return viewOf(person, form.TDBList1).viewport()->grab().toImage(); };
  int rowHeight = 0;
  person.at(form, {[&] {
                     const QTableView& view = viewOf(person, form.TDBList1);
                     rowHeight = qRound(view.rowHeight(0) * view.devicePixelRatioF());
                     with = grab();
                     person.click(form.Schluessel);
                   },
                   [&] { without = grab(); }});
  const int width = with.width();
  EXPECT_NE(with.copy(0, 0, width, rowHeight), without.copy(0, 0, width, rowHeight));
  EXPECT_EQ(with.copy(0, rowHeight, width, 50), without.copy(0, rowHeight, width, 50));
}

TEST(Lists, TellACutTextInATip) {
  Person person;
  StatiForm form;
  form.connection->Execute(
      u"UPDATE Stati SET Bezeichnung = 'So lang, dass es in keine Spalte von dieser Breite passen kann' "
      u"WHERE "
      u"Status = '002'");
  form.TDBList1.Columns(0).Width(4000);
  const auto hover = [&](int row) {
    const QTableView& view = viewOf(person, form.TDBList1);
    const QPoint place = view.visualRect(view.model()->index(row, 1)).center();
    QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(view.viewport(), &event);
    return QToolTip::text();
  };
  person.at(form, {[&] { EXPECT_EQ(hover(0), QString()); },
                   [&] {
                     EXPECT_TRUE(hover(1).startsWith(QStringLiteral("So lang")));
                     QToolTip::hideText();
                   }});
}

TEST(Lists, ReadTheKeysOfALargeTableOnWhileNothingElseHappens) {
  Person person;
  StatiForm form(50'000);
  form.Activate = [&] { EXPECT_LT(form.TDBList1.knownRows(), 2000); };
  const auto rows = [&] { return viewOf(person, form.TDBList1).model()->rowCount(); };
  int waited = 0;
  person.at(form, {[&] {
              for (; rows() < 50'000 && waited < 200; ++waited) person.wait(10);
              EXPECT_EQ(rows(), 50'000);
            }});
}

TEST(Lists, DescribeACellByTheRestOfItsRow) {
  Person person;
  StatiForm form;
  person.at(form, {[&] {
                     EXPECT_EQ(tableOf(person, form.TDBList1).cellAt(1, 0)->text(QAccessible::Description),
                               QStringLiteral("Stufe 2"));
                     form.TDBList1.Columns(0).Visible(false);
                   },
                   [&] {
                     person.key(Qt::Key_Down);
                     EXPECT_EQ(viewOf(person, form.TDBList1).currentIndex().column(), 1)
                         << "what is read out can be seen";
                   }});
}

TEST(Lists, AreNamedByTheirFormWhereNoLabelStandsBesideThem) {
  Person person;
  StatiForm form;
  person.at(form,
            {[&] { EXPECT_EQ(viewOf(person, form.TDBList1).accessibleName(), QStringLiteral("Stati")); }});
}

TEST(Lists, ReadOutTheirCells) {
  Person person;
  StatiForm form;
  person.at(form, {[&] {
              QAccessibleInterface* list =
                  QAccessible::queryAccessibleInterface(&viewOf(person, form.TDBList1));
              ASSERT_NE(list, nullptr);
              QAccessibleTableInterface* table = list->tableInterface();
              ASSERT_NE(table, nullptr);
              EXPECT_EQ(table->rowCount(), 40);
              EXPECT_EQ(table->cellAt(4, 1)->text(QAccessible::Name), QStringLiteral("Stufe 5"));
              EXPECT_EQ(table->columnDescription(0), QStringLiteral("Status"));
              EXPECT_TRUE(table->isRowSelected(0));
            }});
}

}  // namespace

}  // namespace zqn::qt::testing
