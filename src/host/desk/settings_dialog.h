// SPDX-License-Identifier: MIT
//
// The desk's window for the settings of the database: those that the dialogs ask for, stored or not, and all
// others that are stored. Nothing is written before OK.
//
//     SettingsDialog(session.settings(), session.user(), this).exec();
#pragma once

#include <QDialog>
#include <QTableWidget>

#include "host/session/settings_store.h"

namespace zqn::host {

class SettingsDialog : public QDialog {
 public:
  /// `store` must outlive the window.
  SettingsDialog(SettingsStore& store, const String& user, QWidget* parent);

  void accept() override;

 private:
  void addLine(const SettingName& name, const QString& value, bool stored);
  void addNewLine();
  void removeLine();
  SettingName nameIn(int row) const;
  void save();

  SettingsStore& store_;
  QString user_;
  QTableWidget* table_;
  std::vector<SettingName> removed_;
};

}  // namespace zqn::host
