// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

#include "desktop/headless/headless_desktop.h"
#include "forms/form.h"
#include "frontend/kinds.h"
#include "host/database/database.h"
#include "host/desk/desk_window.h"
#include "host/desk/dialog_titles.h"
#include "host/desk/settings_dialog.h"
#include "runtime/convert.h"

namespace zqn::host {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

template <class Widget>
Widget& named(QWidget& window, const QString& accessibleName) {
  for (Widget* widget : window.findChildren<Widget*>())
    if (widget->accessibleName() == accessibleName) return *widget;
  throw std::logic_error("no such widget: " + accessibleName.toStdString());
}

QStringList visibleDialogs(QTreeWidget& tree) {
  QStringList titles;
  for (QTreeWidgetItem* item = tree.topLevelItem(0); item; item = tree.itemBelow(item))
    if (item->parent() && !item->isHidden() && !item->parent()->isHidden()) titles += item->text(0);
  return titles;
}

QAction& actionOf(QWidget& window, const QString& text) {
  for (QAction* action : window.findChildren<QAction*>())
    if (action->text() == text) return *action;
  throw std::logic_error("no such action: " + text.toStdString());
}

QStringList labelsOf(QWidget& window) {
  QStringList labels;
  for (const QLabel* label : window.findChildren<QLabel*>()) labels += label->text();
  return labels;
}

/// Reads the message box that stands open, and takes it away.
QString textOfTheBox() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  if (box == nullptr) return {};
  box->accept();
  return box->text();
}

/// Types a text into the question that comes next, and takes it; `then` runs over the window behind it.
void answerInput(const QString& text, const std::function<void()>& then = {}) {
  QTimer::singleShot(0, [text, then] {
    auto* question = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
    if (question == nullptr) return;
    if (then) QTimer::singleShot(0, then);
    question->setTextValue(text);
    question->accept();
  });
}

class List : public ::testing::Test {
 protected:
  List() {
    list.opened = [this](const DialogTitle& dialog) { opened.push_back(dialog.kind); };
    list.show();
  }
  QLineEdit& search() { return named<QLineEdit>(list, "Dialog suchen"); }
  QTreeWidget& tree() { return named<QTreeWidget>(list, "Dialoge"); }
  /// The kind of the marked dialog, 0 when none is.
  std::int32_t kind() const { return list.dialog() ? list.dialog()->kind : 0; }

  DialogList list;
  std::vector<std::int32_t> opened;
};

/// A database with the sample in a folder of its own.
class DeskWindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
    createTables(DatabaseAddress::ofFile(file()), {.sample = true});
  }
  std::string file() const { return folder.filePath("waren.sqlite").toStdString(); }
  HostOptions options() const {
    HostOptions options;
    options.database = "sqlite:" + file();
    options.user = u"anna";
    return options;
  }

  QTemporaryDir folder;
};

}  // namespace

TEST(DialogTitles, AreThoseOfAllKindsOnce) {
  std::vector<std::int32_t> kinds;
  for (const DialogTitle& title : dialogTitles())
    if (!title.generic) kinds.push_back(title.kind);
  std::ranges::sort(kinds);
  ASSERT_EQ(kinds.size(), dialogKinds().size());
  for (const KindInfo& kind : dialogKinds()) EXPECT_EQ(kinds.at(kind.number - 1u), kind.number);
}

TEST(DialogTitles, SayWhatGoesInAndWhatComesOut) {
  EXPECT_THAT(paramNames(1), ElementsAre(u"Schlüssel"));
  EXPECT_EQ(resultName(1), u"Schlüssel");
  EXPECT_THAT(paramNames(27), ElementsAre(u"Herkunft"));
  EXPECT_EQ(paramNames(28).size(), 4u);
  EXPECT_THAT(paramNames(29), ElementsAre(u"Beliebig"));
  EXPECT_EQ(resultName(29), u"Angebotsnummer, -1 für ein neues Angebot, Null nach Abbruch");
  EXPECT_THAT(paramNames(30), ElementsAre(u"Angebotsnummer"));
  EXPECT_EQ(resultName(30), u"Angebotsnummer");
  EXPECT_THAT(paramNames(31), ElementsAre(u"Belegart"));
  EXPECT_EQ(resultName(31), u"ob gespeichert wurde");
  EXPECT_EQ(paramNames(34).size(), 5u);
  EXPECT_THAT(paramNames(35), ElementsAre(u"Schlagwort", u"Abschnitt"));
}

TEST(DialogTitles, OfOneSubjectStandTogether) {
  std::vector<String> subjects;
  for (const DialogTitle& title : dialogTitles())
    if (subjects.empty() || subjects.back() != title.subject) subjects.emplace_back(title.subject);
  std::ranges::sort(subjects);
  EXPECT_EQ(std::ranges::adjacent_find(subjects), subjects.end());
}

TEST_F(List, ShowsTheOfferedKindsAndNoOthers) {
  QStringList offered;
  for (const DialogTitle& title : dialogTitles())
    if (title.generic || isOffered(title.kind)) offered += QString::fromUtf16(title.title);
  EXPECT_EQ(visibleDialogs(tree()), offered);
}

TEST_F(List, IsNarrowedByTitleNumberFormAndTable) {
  for (const char* typed :
       {"vertriebsstati 21", "21", "frmVertriebsstati", "zqnCommonDialogVertriebsStati"}) {
    search().setText(typed);
    EXPECT_EQ(visibleDialogs(tree()), QStringList("Vertriebsstati")) << typed;
    EXPECT_EQ(kind(), 21) << typed;
  }
  // A table is found with every dialog that uses it.
  search().setText("stati");
  EXPECT_EQ(visibleDialogs(tree()), QStringList({"Vertriebsstati", "CRM-Kategorien"}));
}

TEST_F(List, OffersThePaymentTypesOnTheGenericFormToo) {
  QStringList numbers;
  search().setText("generic form");
  for (QTreeWidgetItem* item = tree().topLevelItem(0); item; item = tree().itemBelow(item))
    if (item->parent() && !item->isHidden() && !item->parent()->isHidden()) numbers += item->text(1);
  EXPECT_EQ(numbers, QStringList({"1 (generic form)", "2 (generic form)"}));
  ASSERT_NE(list.dialog(), nullptr);
  EXPECT_TRUE(list.dialog()->generic);
}

TEST_F(List, OpensWhatIsMarkedByEnterFromTheSearchBox) {
  QTest::keyClicks(&search(), "stati");
  QTest::keyClick(&search(), Qt::Key_Return);
  EXPECT_THAT(opened, ElementsAre(21));
}

TEST_F(List, OpensNothingWhenNothingIsFound) {
  QTest::keyClicks(&search(), "gibt es nicht");
  EXPECT_EQ(kind(), 0);
  QTest::keyClick(&search(), Qt::Key_Return);
  EXPECT_THAT(opened, IsEmpty());
}

TEST_F(List, IsWalkedByTheArrowKeysFromTheSearchBox) {
  const std::int32_t first = kind();
  QTest::keyClick(&search(), Qt::Key_Down);
  EXPECT_NE(kind(), first);
  EXPECT_NE(kind(), 0);
  QTest::keyClick(&search(), Qt::Key_Up);
  EXPECT_EQ(kind(), first);
  QTest::keyClick(&search(), Qt::Key_Up);
  EXPECT_EQ(kind(), first);
}

TEST_F(DeskWindowTest, WritesDownWhatShowReturned) {
  headless::HeadlessDesktop desktop;
  const Desktop::Scope scope(desktop);
  DeskWindow desk(options());
  named<QLineEdit>(desk, "Dialog suchen").setText("stati");
  named<QLineEdit>(desk, "Schlüssel").setText("10");
  QTest::keyClick(&named<QLineEdit>(desk, "Schlüssel"), Qt::Key_Return);

  QTreeWidget& log = named<QTreeWidget>(desk, "Aufrufe");
  ASSERT_EQ(log.topLevelItemCount(), 1);
  const QTreeWidgetItem& call = *log.topLevelItem(0);
  EXPECT_EQ(call.text(0), "Show(21)");
  QStringList lines;
  for (int i = 0; i < call.childCount(); ++i) lines += call.child(i)->text(0) + " " + call.child(i)->text(1);
  EXPECT_EQ(lines, QStringList({"Param vorher (\"10\")", "Rückgabe \"10\"", "Param nachher (\"10\")",
                                "Result Empty", "Änderungen erlaubt"}));
}

TEST_F(DeskWindowTest, OpensPaymentTypesOnTheGenericForm) {
  headless::HeadlessDesktop desktop;
  const Desktop::Scope scope(desktop);
  DeskWindow desk(options());
  String form;
  desktop.whenIdle([&] {
    form = desktop.activeForm()->Name();
    desktop.press(KeyStroke::ofCode(key::F9));
  });
  named<QLineEdit>(desk, "Dialog suchen").setText("generic verkauf");
  named<QLineEdit>(desk, "Schlüssel").setText("las");
  QTest::keyClick(&named<QLineEdit>(desk, "Schlüssel"), Qt::Key_Return);
  EXPECT_EQ(form, u"frmDialog");
  QTreeWidget& log = named<QTreeWidget>(desk, "Aufrufe");
  ASSERT_EQ(log.topLevelItemCount(), 1);
  EXPECT_EQ(log.topLevelItem(0)->child(1)->text(1), "\"LAS\"");
}

TEST_F(DeskWindowTest, WritesDownEachPickAsItComes) {
  headless::HeadlessDesktop desktop;
  const Desktop::Scope scope(desktop);
  HostOptions several = options();
  several.multiselect = true;
  DeskWindow desk(several);
  QTreeWidget& log = named<QTreeWidget>(desk, "Aufrufe");
  int step = 0;
  desktop.whenIdle([&] {
    const auto lines = [&] { return log.topLevelItem(0)->childCount(); };
    switch (step++) {
      case 0:
        EXPECT_EQ(lines(), 1);
        desktop.press(KeyStroke::ofCode(key::F9));
        EXPECT_EQ(lines(), 2);
        EXPECT_EQ(log.topLevelItem(0)->child(1)->text(0), "DblClick");
        break;
      default:
        desktop.activeForm()->closeBox();
    }
  });
  named<QLineEdit>(desk, "Dialog suchen").setText("stati");
  QTest::keyClick(&named<QLineEdit>(desk, "Dialog suchen"), Qt::Key_Return);
  EXPECT_GE(step, 2);
}

TEST_F(DeskWindowTest, WritesDownWhatAProcedureThatWritesHasPassedOver) {
  headless::HeadlessDesktop desktop;
  const Desktop::Scope scope(desktop);
  DeskWindow desk(options());
  desktop.whenIdle([&] {
    Form& form = *desktop.activeForm();
    desktop.failurePassedOver(form, u"WriteRecord", RuntimeError(error::RowConflict, u"Satz gesperrt"));
    form.closeBox();
  });
  named<QLineEdit>(desk, "Dialog suchen").setText("stati");
  QTest::keyClick(&named<QLineEdit>(desk, "Dialog suchen"), Qt::Key_Return);
  const QTreeWidgetItem& line = *named<QTreeWidget>(desk, "Aufrufe").topLevelItem(0)->child(1);
  EXPECT_EQ(line.text(0), "Übergangen");
  EXPECT_EQ(line.text(1), "WriteRecord: -2147217864 Satz gesperrt");
}

TEST_F(DeskWindowTest, WritesTheSameCallForAProgramAndAShell) {
  DeskWindow desk(options());
  named<QLineEdit>(desk, "Dialog suchen").setText("stati");
  named<QLineEdit>(desk, "Schlüssel").setText("2 0");
  named<QPushButton>(desk, "C++ kopieren").click();
  EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("param{u\"2 0\"};"));
  named<QPushButton>(desk, "Shell kopieren").click();
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
            "zqn-dialog show 21 --db sqlite:" + file() + " -- '2 0'");
}

TEST_F(DeskWindowTest, OffersTheImages) {
  DeskWindow desk(options());
  QString title;
  QTimer::singleShot(0, [&] {
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr) return;
    title = window->windowTitle();
    window->close();
  });
  actionOf(desk, "&Bilder…").trigger();
  EXPECT_EQ(title, "Bilder");
}

TEST_F(DeskWindowTest, NamesItsDatabaseAndItsUser) {
  HostOptions admin = options();
  admin.admin = true;
  DeskWindow desk(admin);
  const QStringList labels = labelsOf(desk);
  EXPECT_TRUE(labels.contains("Datenbank: " + folder.filePath("waren.sqlite")));
  EXPECT_TRUE(labels.contains("Benutzer: anna (Administrator)"));
}

TEST_F(DeskWindowTest, ChangesTheUserAndTheRights) {
  headless::HeadlessDesktop desktop;
  const Desktop::Scope scope(desktop);
  HostOptions restricted = options();
  restricted.settings = {{u"ZQNComDlg", u"AdminsOnly", u"1"}, {u"ZQNComDlg", u"AllowVPSave", u"7;", true}};
  DeskWindow desk(restricted);
  const auto rights = [&] {
    named<QLineEdit>(desk, "Dialog suchen").setText("stati");
    QTest::keyClick(&named<QLineEdit>(desk, "Dialog suchen"), Qt::Key_Return);
    const QTreeWidget& log = named<QTreeWidget>(desk, "Aufrufe");
    const QTreeWidgetItem& call = *log.topLevelItem(log.topLevelItemCount() - 1);
    return call.child(call.childCount() - 1)->text(1);
  };
  EXPECT_EQ(rights(), "nicht erlaubt");
  actionOf(desk, "Benutzer ist &Administrator").trigger();
  EXPECT_EQ(rights(), "erlaubt");
  EXPECT_TRUE(labelsOf(desk).contains("Benutzer: anna (Administrator)"));
  actionOf(desk, "Benutzer ist &Administrator").trigger();
  EXPECT_EQ(rights(), "nicht erlaubt");

  answerInput("  berta ");
  actionOf(desk, "&Benutzer…").trigger();
  EXPECT_TRUE(labelsOf(desk).contains("Benutzer: berta"));
  answerInput(" ");
  actionOf(desk, "&Benutzer…").trigger();
  EXPECT_TRUE(labelsOf(desk).contains("Benutzer: berta"));
}

TEST_F(DeskWindowTest, KeepsItsDatabaseWhenAnotherCannotBeOpened) {
  DeskWindow desk(options());
  QString told;
  answerInput("DSN=nirgends;PWD=geheim", [&told] { told = textOfTheBox(); });
  actionOf(desk, "Auf einem &Server öffnen…").trigger();
  EXPECT_TRUE(told.startsWith("Die Datenbank lässt sich nicht öffnen.")) << told.toStdString();
  EXPECT_FALSE(told.contains("geheim"));
  EXPECT_TRUE(labelsOf(desk).contains("Datenbank: " + folder.filePath("waren.sqlite")));
}

TEST_F(DeskWindowTest, LivesOnWhenTheSettingsCannotBeRead) {
  openDatabase(DatabaseAddress::ofFile(file()))
      ->Execute(u"ALTER TABLE Einstellungen RENAME COLUMN Benutzer TO Niemand");
  DeskWindow desk(options());
  QString told;
  QTimer::singleShot(0, [&told] { told = textOfTheBox(); });
  actionOf(desk, "&Einstellungen…").trigger();
  EXPECT_TRUE(told.startsWith("Die Einstellungen lassen sich nicht lesen.")) << told.toStdString();
}

TEST_F(DeskWindowTest, SaysThatTheRightsCannotBeRead) {
  const auto rights = [](DeskWindow& desk) {
    for (const QLabel* label : desk.findChildren<QLabel*>())
      if (label->text() == "Rechte nicht lesbar: ändern dürfen nur Administratoren") return label;
    throw std::logic_error("no such label");
  };
  headless::HeadlessDesktop desktop;
  const Desktop::Scope scope(desktop);
  DeskWindow desk(options());
  named<QLineEdit>(desk, "Dialog suchen").setText("stati");
  const auto openDialog = [&] { QTest::keyClick(&named<QLineEdit>(desk, "Dialog suchen"), Qt::Key_Return); };
  const auto database = openDatabase(DatabaseAddress::ofFile(file()));
  openDialog();
  EXPECT_TRUE(rights(desk)->isHidden());
  database->Execute(u"ALTER TABLE Einstellungen RENAME COLUMN Benutzer TO Niemand");
  openDialog();
  EXPECT_FALSE(rights(desk)->isHidden());
  EXPECT_TRUE(rights(desk)->toolTip().contains("Benutzer")) << rights(desk)->toolTip().toStdString();
  database->Execute(u"ALTER TABLE Einstellungen RENAME COLUMN Niemand TO Benutzer");
  openDialog();
  EXPECT_TRUE(rights(desk)->isHidden());
}

TEST_F(DeskWindowTest, ShowsTheSettingsAndWritesOnlyWhatWasChanged) {
  Host host(options());
  SettingsStore& store = host.session().settings();
  store.write({u"Probe", u"a", u""}, u"1");
  const auto before = store.all(u"anna").size();

  SettingsDialog unchanged(store, u"anna", nullptr);
  unchanged.accept();
  EXPECT_EQ(store.all(u"anna").size(), before);

  SettingsDialog dialog(store, u"anna", nullptr);
  QTableWidget& table = named<QTableWidget>(dialog, "Einstellungen");
  for (int row = 0; row < table.rowCount(); ++row) {
    const QString name = table.item(row, 1)->text() + " " + table.item(row, 2)->text();
    if (name == "AdminsOnly alle") table.item(row, 3)->setText("1");
    if (name == "AllowVPSave anna") table.item(row, 3)->setText("21;");
    if (name == "a alle") table.setCurrentCell(row, 3);
  }
  for (QPushButton* button : dialog.findChildren<QPushButton*>())
    if (button->text() == "&Löschen") button->click();
  EXPECT_EQ(store.all(u"anna").size(), before);
  dialog.accept();
  EXPECT_THAT(store.section(u"ZQNComDlg", u"anna"),
              ElementsAre(Pair(u"AdminsOnly", u"1"), Pair(u"AllowVPSave", u"21;")));
  EXPECT_THAT(store.section(u"ZQNComDlg", u"berta"), ElementsAre(Pair(u"AdminsOnly", u"1")));
  EXPECT_THAT(store.section(u"Probe", u"anna"), IsEmpty());
}

TEST_F(DeskWindowTest, RemembersItsWindow) {
  {
    DeskWindow desk(options());
    desk.resize(700, 500);
    desk.show();
    desk.close();
  }
  EXPECT_EQ(DeskWindow(options()).size(), QSize(700, 500));
}

}  // namespace zqn::host
