// SPDX-License-Identifier: MIT
//
// The desk's list of dialogs by subject with its search box. What is typed narrows the list; the arrow keys
// move in it from the search box, too, and Enter opens.
//
//     auto* list = new DialogList(this);
//     list->opened = [this](const DialogTitle& dialog) { open(dialog); };
#pragma once

#include <QLineEdit>
#include <QTreeWidget>
#include <QWidget>
#include <functional>

#include "host/desk/dialog_titles.h"

namespace zqn::host {

class DialogList : public QWidget {
 public:
  /// Lists the dialogs that this version offers.
  explicit DialogList(QWidget* parent = nullptr);

  /// The marked dialog; nullptr when none is.
  const DialogTitle* dialog() const;
  /// Puts the keyboard into the search box.
  void search();
  /// Opens the marked dialog, if any.
  void open();

  /// A person picked a dialog: Enter, or a double click.
  std::function<void(const DialogTitle& dialog)> opened;
  /// Another dialog is marked, or none (nullptr).
  std::function<void(const DialogTitle* dialog)> marked;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void fill();
  void narrow(const QString& text);

  QLineEdit* search_;
  QTreeWidget* tree_;
};

}  // namespace zqn::host
