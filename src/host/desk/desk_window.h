// SPDX-License-Identifier: MIT
//
// The desk: a window that lists the dialogs by subject, opens the one picked, and shows what Show returned.
// Database, user, rights and settings can be changed in it.
//
//     qt::QtDesktop desktop;
//     Desktop::Scope scope(desktop);
//     DeskWindow desk(options);
//     desk.show();
#pragma once

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <memory>

#include "host/desk/call_log.h"
#include "host/desk/dialog_list.h"
#include "host/session/host.h"

namespace zqn::host {

class DeskWindow : public QMainWindow {
 public:
  /// Opens the database of the options; CommandFailure when it cannot be opened. A Desktop must be current
  /// when a dialog is picked.
  explicit DeskWindow(const HostOptions& options);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* makeDetails();
  QWidget* makeLines();
  void makeActions();
  void showDetails(const DialogTitle* dialog);
  void open(const DialogTitle& title);
  std::vector<String> param() const;
  void showLines();

  void pickDatabase();
  void pickServer();
  void createDatabase();
  /// `url` as --db takes it.
  void useDatabase(const std::string& url);
  QString folderOfDatabase() const;
  void changeUser();
  void changeSettings();
  void showSession();
  /// Says so while the settings that decide about rights cannot be read.
  void showRights();

  HostOptions options_;
  std::unique_ptr<Host> host_;
  bool showing_ = false;

  QSplitter* splitter_;
  DialogList* list_;
  CallLog* log_;
  QLabel *title_, *about_;
  QFormLayout* fields_;
  std::vector<QLineEdit*> paramFields_;
  QPlainTextEdit *cppLines_, *shellLine_;
  QCheckBox *multiselect_, *generic_;
  QPushButton* openButton_;
  QLabel *databaseLabel_, *rightsLabel_, *userLabel_;
  QAction* adminAction_;
};

}  // namespace zqn::host
