// SPDX-License-Identifier: MIT
//
// The desk's list of dialogs by subject with its search box. What is typed narrows the list; the arrow keys
// move in it from the search box, too, and Enter opens.
//
//     auto* list = new DialogList(this);
//     list->opened = [this](std::int32_t kind) { open(kind); };
#pragma once

#include <QLineEdit>
#include <QTreeWidget>
#include <QWidget>
#include <cstdint>
#include <functional>

namespace zqn::host {

class DialogList : public QWidget {
 public:
  /// Lists the kinds that this version offers.
  explicit DialogList(QWidget* parent = nullptr);

  /// The marked dialog; 0 when none is.
  std::int32_t kind() const;
  /// Puts the keyboard into the search box.
  void search();

  /// A person picked a dialog: Enter, or a double click.
  std::function<void(std::int32_t kind)> opened;
  /// Another dialog is marked, or none (0).
  std::function<void(std::int32_t kind)> marked;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void fill();
  void narrow(const QString& text);
  void open();

  QLineEdit* search_;
  QTreeWidget* tree_;
};

}  // namespace zqn::host
