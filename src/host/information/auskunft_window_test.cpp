// SPDX-License-Identifier: MIT
//
// The information dialogs as a person sees them, over the sample.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QTemporaryDir>

#include "host/database/database.h"
#include "host/information/auskunft_form.h"
#include "testing/qt/form_checks.h"
#include "testing/qt/windows.h"

namespace zqn::host {
namespace {

using ::testing::IsEmpty;

class AuskunftWindow : public ::testing::TestWithParam<const char16_t*> {
 protected:
  AuskunftWindow() {
    createTables(file(), {.sample = true});
    connection = openDatabase(file());
  }
  ~AuskunftWindow() override { connection->Close(); }
  DatabaseAddress file() const {
    return DatabaseAddress::ofFile(folder.filePath("waren.sqlite").toStdString());
  }
  QTableView& list() {
    return dynamic_cast<QTableView&>(*person.desktop.widgetOf(form->control(u"TDBList1")));
  }

  QTemporaryDir folder;
  Ref<ado::Connection> connection;
  qt::testing::Person person;
  std::unique_ptr<frmAuskunft> form;
};

TEST_P(AuskunftWindow, ShowsEveryTextOfTheSampleWhole) {
  form = std::make_unique<frmAuskunft>(*auskunftSubject(GetParam()), connection);
  person.at(*form, {[&] {
    const QAbstractItemModel& rows = *list().model();
    ASSERT_GT(rows.rowCount(), 8);
    for (int column = 0; column < rows.columnCount(); ++column) {
      const std::string caption = rows.headerData(column, Qt::Horizontal).toString().toStdString();
      const int width = list().columnWidth(column);
      EXPECT_LE(list().horizontalHeader()->sectionSizeHint(column), width) << caption;
      for (int row = 0; row < rows.rowCount(); ++row) {
        const QModelIndex cell = rows.index(row, column);
        EXPECT_LE(list().fontMetrics().horizontalAdvance(cell.data().toString()) + 8, width)
            << cell.data().toString().toStdString();
      }
    }
    EXPECT_EQ(list().horizontalScrollBar()->maximum(), 0) << "nothing stands behind the edge";
  }});
}

TEST_P(AuskunftWindow, KeepsTheColumnsThatAPersonHasDragged) {
  form = std::make_unique<frmAuskunft>(*auskunftSubject(GetParam()), connection);
  int dragged = 0;
  person.at(*form, {[&] {
                      list().horizontalHeader()->resizeSection(0, 150);
                      dragged = list().columnWidth(0);
                      person.type(u"2");
                    },
                    [&] { EXPECT_EQ(list().columnWidth(0), dragged); }});
}

TEST_P(AuskunftWindow, LooksWellAndShowsWhereOneTypes) {
  form = std::make_unique<frmAuskunft>(*auskunftSubject(GetParam()), connection);
  EXPECT_THAT(qt::findingsIn(*form), IsEmpty());
  EXPECT_THAT(qt::tabOrder(*form), ::testing::ElementsAre("txtSuche", "TDBList1", "btnTake", "btnCancel"));
  QImage typing, walking;
  person.at(*form, {[&] {
                      EXPECT_EQ(form->ActiveControl()->Name(), u"txtSuche");
                      typing = person.desktop.windowOf(*form)->grab().toImage();
                      form->control(u"TDBList1").SetFocus();
                    },
                    [&] { walking = person.desktop.windowOf(*form)->grab().toImage(); }});
  int different = 0;
  for (int y = 0; y < typing.height(); ++y)
    for (int x = 0; x < typing.width(); ++x) different += typing.pixel(x, y) != walking.pixel(x, y);
  EXPECT_GT(different, 80) << "the focus can be seen";
}

INSTANTIATE_TEST_SUITE_P(Both, AuskunftWindow,
                         ::testing::Values(u"AUSK_Kundenauskunft", u"AUSK_Angebotsauskunft"),
                         [](const auto& name) { return name.index == 0 ? "Customers" : "Offers"; });

}  // namespace
}  // namespace zqn::host
