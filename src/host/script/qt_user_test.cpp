// SPDX-License-Identifier: MIT
#include "host/script/qt_user.h"

#include <QEvent>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalBlocker>
#include <QTimer>

#include "testing/script/script_test.h"

namespace zqn::script {
namespace {

/// Hears which events come to a widget.
class Ear : public QObject {
 public:
  std::vector<QEvent::Type> heard;

  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::KeyPress:
      case QEvent::KeyRelease:
        heard.push_back(event->type());
        break;
      default:
        break;
    }
    return false;
  }
};

class OnTheWindow : public ScriptTest {
 protected:
  qt::QtDesktop& desktop() { return dynamic_cast<qt::QtDesktop&>(scriptDesktop->desktop()); }
};

TEST_F(OnTheWindow, ActionsAreEventsOfTheWidgets) {
  bindList();
  Ear button, field, list;
  form.Activate = [&] {
    desktop().widgetOf(form.btnOK)->installEventFilter(&button);
    desktop().widgetOf(form.txtName)->installEventFilter(&field);
    desktop().mouseAreaOf(form.TDBList1)->installEventFilter(&list);
  };
  acts(R"({"click":"btnOK"}
          {"focus":"txtName"}
          {"type":"a"}
          {"key":"F9"}
          {"dblclick":"TDBList1","row":1})");
  using enum QEvent::Type;
  EXPECT_THAT(button.heard, ElementsAre(MouseButtonPress, MouseButtonRelease));
  EXPECT_THAT(field.heard,
              ElementsAre(MouseButtonPress, MouseButtonRelease, KeyPress, KeyRelease, KeyPress, KeyRelease));
  EXPECT_THAT(list.heard,
              ElementsAre(MouseButtonPress, MouseButtonRelease, MouseButtonDblClick, MouseButtonRelease));
}

TEST_F(OnTheWindow, AWidgetThatShowsSomethingElseEndsTheScript) {
  form.btnOK.Click = [&] {
    auto& field = dynamic_cast<QLineEdit&>(*desktop().widgetOf(form.txtName));
    const QSignalBlocker silently(field);
    field.setText(QStringLiteral("anders"));
  };
  const Lines lines = run(R"({"get":[]}
                             {"click":"btnOK"}
                             {"get":[]}
                             {"get":[]})");
  EXPECT_THAT(lines,
              ElementsAre(HasSubstr("shown"), R"({"values":{}})", R"({"values":{}})",
                          HasSubstr(R"("scriptError":"line 3: the window differs from the form: txtName:)")));
  EXPECT_TRUE(failed);
}

TEST_F(OnTheWindow, AFormBehindAnotherIsLookedAtToo) {
  frmSample second;
  form.btnOK.Click = [&] { second.Show(); };
  second.btnOK.Click = [&] {
    auto& label = dynamic_cast<QLabel&>(*desktop().widgetOf(form.lblSecond));
    label.setText(QStringLiteral("anders"));
  };
  EXPECT_THAT(run(R"({"click":"btnOK"}
                     {"click":"btnOK"}
                     {"get":[]})")
                  .back(),
              HasSubstr("Label1(1): Caption"));
}

TEST_F(OnTheWindow, AMessageBoxShowsItsTextLineByLine) {
  form.btnOK.Click = [] { MsgBox(u"Zeile\r\nzwei\rdrei", msgbox::YesNoCancel, u"Titel"); };
  run(R"({"click":"btnOK"}
         {"get":[]}
         {"answer":"cancel"})");
  EXPECT_FALSE(failed);
}

TEST_F(OnTheWindow, AMessageBoxThatShowsSomethingElseEndsTheScript) {
  // A timer of the window finds the box open and forges it.
  QTimer forger;
  QObject::connect(&forger, &QTimer::timeout, [&] {
    if (desktop().openBox() != nullptr) desktop().openBox()->setText(QStringLiteral("Anderes"));
  });
  forger.start(1);
  form.btnOK.Click = [] { MsgBox(u"Text", msgbox::OKOnly, u"Titel"); };
  EXPECT_THAT(run(R"({"click":"btnOK"}
                     {"wait":20}
                     {"get":[]})")
                  .back(),
              HasSubstr("line 3: the window differs from the form: the message box says something else"));
}

TEST_F(OnTheWindow, ScreenshotIsThePictureOfTheWindow) {
  const auto file = std::filesystem::temp_directory_path() / u8"zqn-Bühne.png";
  std::filesystem::remove(file);
  acts("{\"screenshot\":\"" + file.string() + "\"}");
  const QImage picture(QString::fromStdU16String(file.u16string()));
  EXPECT_EQ(picture.size(), QSize(360, 220));
  std::filesystem::remove(file);
}

TEST_F(OnTheWindow, ScreenshotThatCannotBeWrittenEndsTheScript) {
  EXPECT_THAT(run(R"({"screenshot":"/nirgends/bild.png"})").back(),
              HasSubstr(R"(line 1: the picture \"/nirgends/bild.png\" cannot be written)"));
}

}  // namespace
}  // namespace zqn::script
