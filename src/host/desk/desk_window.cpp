// SPDX-License-Identifier: MIT
#include "host/desk/desk_window.h"

#include <QAction>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include "desktop/qt/text.h"
#include "forms/desktop.h"
#include "frontend/kinds.h"
#include "host/database/database.h"
#include "host/database/failure.h"
#include "host/desk/call_lines.h"
#include "host/desk/dialog_titles.h"
#include "host/desk/images_window.h"
#include "host/desk/settings_dialog.h"
#include "host/information/auskunft.h"
#include "host/session/show_call.h"
#include "runtime/error.h"

namespace zqn::host {

namespace {

using qt::fromQt;
using qt::toQt;

const char* databaseFilter = "Datenbanken (*.sqlite *.db);;Alle Dateien (*)";

/// Puts down what writing procedures pass over while a dialog is open.
class PassedOverToLog final : public DesktopListener {
 public:
  explicit PassedOverToLog(CallLog::Call& call) : call_(call) { Desktop::current().addListener(this); }
  ~PassedOverToLog() override { Desktop::current().removeListener(this); }
  PassedOverToLog(const PassedOverToLog&) = delete;
  PassedOverToLog& operator=(const PassedOverToLog&) = delete;

  void failurePassedOver(Form&, StringView procedure, const RuntimeError& failure) override {
    call_.passedOver(procedure, failure);
  }

 private:
  CallLog::Call& call_;
};

QString aboutText(const KindInfo& info, bool generic) {
  generic = generic || info.server == KindServer::Generic;
  QStringList parts{QString("Art %1").arg(info.number), toQt(info.constant),
                    generic ? QString("frmDialog") : toQt(info.form)};
  if (generic) parts += toQt(info.definition);
  if (*info.tables) parts += toQt(info.tables).replace(",", ", ");
  return parts.join("  ·  ");
}

/// Where the program keeps the place of its window; the dialogs' settings are in the database.
QSettings memory() { return QSettings("zqn-dialog", "desk"); }

}  // namespace

DeskWindow::DeskWindow(const HostOptions& options)
    : options_(options),
      host_(std::make_unique<Host>(options)),
      splitter_(new QSplitter(this)),
      list_(new DialogList),
      log_(new CallLog),
      databaseLabel_(new QLabel),
      rightsLabel_(new QLabel("Rechte nicht lesbar: ändern dürfen nur Administratoren")),
      userLabel_(new QLabel) {
  auto* right = new QSplitter(Qt::Vertical);
  auto* lower = new QTabWidget;
  right->addWidget(makeDetails());
  right->addWidget(lower);
  lower->addTab(log_, "A&ufrufe");
  lower->addTab(makeLines(), "Im &Programm");
  right->setStretchFactor(1, 1);
  right->setChildrenCollapsible(false);
  splitter_->addWidget(list_);
  splitter_->addWidget(right);
  splitter_->setStretchFactor(1, 1);
  splitter_->setChildrenCollapsible(false);
  splitter_->setSizes({280, 520});
  splitter_->setContentsMargins(8, 8, 8, 4);
  setCentralWidget(splitter_);
  // A connection string may be wider than the window; the tool tip has it whole.
  databaseLabel_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  statusBar()->addWidget(databaseLabel_, 1);
  statusBar()->addPermanentWidget(rightsLabel_);
  statusBar()->addPermanentWidget(userLabel_);
  makeActions();

  list_->opened = [this](const DialogTitle& dialog) { open(dialog); };
  list_->marked = [this](const DialogTitle* dialog) { showDetails(dialog); };
  connect(openButton_, &QPushButton::clicked, list_, &DialogList::open);

  setWindowTitle("TALVEX Dialoge");
  resize(860, 560);
  QSettings remembered = memory();
  restoreGeometry(remembered.value("geometry").toByteArray());
  splitter_->restoreState(remembered.value("splitter").toByteArray());
  showSession();
  showDetails(list_->dialog());
  list_->search();
}

QWidget* DeskWindow::makeDetails() {
  auto* details = new QWidget;
  auto* layout = new QVBoxLayout(details);
  layout->setContentsMargins(8, 0, 0, 8);
  title_ = new QLabel;
  QFont large = title_->font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  large.setBold(true);
  title_->setFont(large);
  about_ = new QLabel;
  about_->setWordWrap(true);
  about_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  about_->setForegroundRole(QPalette::PlaceholderText);
  multiselect_ = new QCheckBox("&Mehrfachauswahl (Multiselect)");
  multiselect_->setChecked(options_.multiselect);
  generic_ = new QCheckBox("Allgemeines Formula&r (frmDialog)");
  generic_->setChecked(options_.generic);
  openButton_ = new QPushButton("Ö&ffnen");

  layout->addWidget(title_);
  layout->addWidget(about_);
  layout->addSpacing(8);
  fields_ = new QFormLayout;
  layout->addLayout(fields_);
  layout->addWidget(multiselect_);
  layout->addWidget(generic_);
  layout->addWidget(openButton_, 0, Qt::AlignLeft);
  layout->addStretch();
  return details;
}

QWidget* DeskWindow::makeLines() {
  auto* lines = new QWidget;
  auto* layout = new QGridLayout(lines);
  int row = 0;
  const auto add = [&](const QString& language, int stretch) {
    auto* text = new QPlainTextEdit;
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setAccessibleName(language);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto* copy = new QPushButton("Kopieren");
    copy->setAccessibleName(language + " kopieren");
    connect(copy, &QPushButton::clicked, text,
            [text] { QGuiApplication::clipboard()->setText(text->toPlainText()); });
    layout->addWidget(new QLabel(language), row, 0, Qt::AlignTop);
    layout->addWidget(text, row, 1);
    layout->addWidget(copy, row, 2, Qt::AlignTop);
    layout->setRowStretch(row++, stretch);
    return text;
  };
  cppLines_ = add("C++", 2);
  shellLine_ = add("Shell", 1);
  for (QCheckBox* box : {multiselect_, generic_})
    connect(box, &QCheckBox::toggled, this, [this] { showLines(); });
  return lines;
}

void DeskWindow::makeActions() {
  const auto add = [this](QMenu* menu, const QString& text, const QKeySequence& keys, auto handler) {
    QAction* action = menu->addAction(text);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, handler);
    return action;
  };
  QMenu* database = menuBar()->addMenu("&Datenbank");
  add(database, "Ö&ffnen…", QKeySequence("Ctrl+O"), [this] { pickDatabase(); });
  add(database, "Auf einem &Server öffnen…", {}, [this] { pickServer(); });
  add(database, "&Neu mit Beispieldaten…", QKeySequence("Ctrl+N"), [this] { createDatabase(); });
  database->addSeparator();
  add(database, "&Beenden", QKeySequence("Ctrl+Q"), [this] { close(); });

  QMenu* session = menuBar()->addMenu("&Sitzung");
  add(session, "&Benutzer…", QKeySequence("Ctrl+B"), [this] { changeUser(); });
  adminAction_ = add(session, "Benutzer ist &Administrator", {}, [this](bool admin) {
    host_->session().admin(admin);
    showSession();
  });
  adminAction_->setCheckable(true);
  add(session, "&Einstellungen…", QKeySequence("Ctrl+,"), [this] { changeSettings(); });

  QMenu* view = menuBar()->addMenu("&Ansicht");
  add(view, "Dialog &suchen", QKeySequence("Ctrl+F"), [this] { list_->search(); });
  add(view, "Aufrufe &leeren", QKeySequence("Ctrl+L"), [this] {
    if (!showing_) log_->clear();
  });
  add(view, "&Bilder…", QKeySequence("Ctrl+I"), [this] { ImagesWindow(this).exec(); });
}

void DeskWindow::showDetails(const DialogTitle* dialog) {
  const KindInfo* info = dialog ? findKind(dialog->kind) : nullptr;
  openButton_->setEnabled(info != nullptr);
  title_->setText(info ? toQt(dialog->title) : "Kein Dialog gefunden");
  about_->setText(info ? aboutText(*info, dialog->generic) : QString());
  while (fields_->rowCount() > 0) fields_->removeRow(0);
  paramFields_.clear();
  if (info == nullptr) return;
  for (const String& name : paramNames(dialog->kind)) {
    auto* field = new QLineEdit;
    field->setAccessibleName(toQt(name));
    connect(field, &QLineEdit::returnPressed, list_, &DialogList::open);
    connect(field, &QLineEdit::textChanged, this, [this] { showLines(); });
    fields_->addRow(toQt(name) + ":", field);
    paramFields_.push_back(field);
  }
  fields_->addRow("Zurück:", new QLabel(toQt(resultName(dialog->kind))));
  showLines();
}

std::vector<String> DeskWindow::param() const {
  std::vector<String> elements;
  for (const QLineEdit* field : paramFields_) elements.emplace_back(fromQt(field->text()));
  return elements;
}

void DeskWindow::showLines() {
  const DialogTitle* dialog = list_->dialog();
  if (dialog == nullptr) return;
  const CallToWrite call{.kind = dialog->kind,
                         .param = param(),
                         .database = host_->address().shownUrl(),
                         .multiselect = multiselect_->isChecked(),
                         .generic = dialog->generic || generic_->isChecked()};
  cppLines_->setPlainText(QString::fromStdString(cppLines(call)));
  shellLine_->setPlainText(QString::fromStdString(shellLine(call)));
}

void DeskWindow::open(const DialogTitle& title) {
  if (showing_) return;
  ORBDialog dialog;
  offerAuskunft(host_->connection());
  host_->equip(dialog);
  dialog.Multiselect(multiselect_->isChecked());
  const std::vector<String> texts = param();
  const VariantArray given(std::vector<Variant>(texts.begin(), texts.end()));
  CallLog::Call call = log_->begin(title.kind, title.title, given);
  dialog.DblClick = [&](const Variant& key) { call.picked(key); };
  const PassedOverToLog passedOver(call);
  showing_ = true;
  call.returned(callShow(dialog, title.kind, given, title.generic || generic_->isChecked()));
  showing_ = false;
  showRights();
  activateWindow();
}

QString DeskWindow::folderOfDatabase() const {
  const auto& address = host_->address();
  const auto folder = address.isServer() ? dataFolder() : address.file().parent_path();
  return QString::fromStdString(folder.string());
}

void DeskWindow::pickDatabase() {
  const QString file =
      QFileDialog::getOpenFileName(this, "Datenbank öffnen", folderOfDatabase(), databaseFilter);
  if (!file.isEmpty()) useDatabase("sqlite:" + file.toStdString());
}

void DeskWindow::pickServer() {
  const auto& address = host_->address();
  bool taken = false;
  const QString text =
      QInputDialog::getText(this, "Datenbankserver", "Verbindung des ODBC-Treibers:", QLineEdit::Normal,
                            address.isServer() ? QString::fromStdString(address.shown())
                                               : QString("Driver={};Server=;Database=;UID=;PWD="),
                            &taken);
  if (taken) useDatabase("odbc:" + text.toStdString());
}

void DeskWindow::createDatabase() {
  const QString file = QFileDialog::getSaveFileName(this, "Neue Datenbank mit Beispieldaten",
                                                    folderOfDatabase() + "/beispiel.sqlite", databaseFilter,
                                                    nullptr, QFileDialog::DontConfirmOverwrite);
  if (file.isEmpty()) return;
  const std::string url = "sqlite:" + file.toStdString();
  try {
    createTables(DatabaseAddress::read(url), {.sample = true});
    useDatabase(url);
  } catch (const CommandFailure& failure) {
    QMessageBox::critical(
        this, windowTitle(),
        "Die Datenbank lässt sich nicht anlegen.\n\n" + QString::fromStdString(failure.what()));
  }
}

void DeskWindow::useDatabase(const std::string& url) {
  HostOptions options = options_;
  options.database = url;
  try {
    auto opened = std::make_unique<Host>(options);
    opened->session().user(host_->session().user());
    opened->session().admin(host_->session().UserIsAdmin());
    host_ = std::move(opened);
    options_ = options;
    showSession();
    showLines();
  } catch (const CommandFailure& failure) {
    QMessageBox::critical(
        this, windowTitle(),
        "Die Datenbank lässt sich nicht öffnen.\n\n" + QString::fromStdString(failure.what()));
  }
}

void DeskWindow::changeUser() {
  bool taken = false;
  const QString name = QInputDialog::getText(this, "Benutzer", "Name des Benutzers:", QLineEdit::Normal,
                                             toQt(host_->session().user()), &taken)
                           .trimmed();
  if (!taken || name.isEmpty()) return;
  host_->session().user(String(fromQt(name)));
  showSession();
}

void DeskWindow::changeSettings() {
  try {
    SettingsDialog(host_->session().settings(), host_->session().user(), this).exec();
  } catch (const RuntimeError& failure) {
    QMessageBox::critical(this, windowTitle(),
                          "Die Einstellungen lassen sich nicht lesen.\n\n" + toQt(failure.description()));
  }
}

void DeskWindow::showSession() {
  const bool admin = host_->session().UserIsAdmin();
  adminAction_->setChecked(admin);
  const QString database = QString::fromStdString(host_->address().shown());
  databaseLabel_->setText("Datenbank: " + database);
  databaseLabel_->setToolTip(database);
  userLabel_->setText("Benutzer: " + toQt(host_->session().user()) + (admin ? " (Administrator)" : ""));
  showRights();
}

void DeskWindow::showRights() {
  const String& failure = host_->session().rightsFailure();
  rightsLabel_->setVisible(!failure.empty());
  rightsLabel_->setToolTip(toQt(failure));
}

void DeskWindow::closeEvent(QCloseEvent* event) {
  if (showing_) return event->ignore();
  QSettings remembered = memory();
  remembered.setValue("geometry", saveGeometry());
  remembered.setValue("splitter", splitter_->saveState());
  QMainWindow::closeEvent(event);
}

}  // namespace zqn::host
