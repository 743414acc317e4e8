// SPDX-License-Identifier: MIT
//
// Draws a zqCombo: a field with a button, and the list of keys and texts that opens below it. Whether the
// list is open, and which entry is marked in it, is the model's; keys that come to the open list go to the
// form first, like all others.
#pragma once

#include <QAbstractTableModel>
#include <QFrame>
#include <QTreeView>

#include "desktop/qt/field_button.h"
#include "desktop/qt/text_entry.h"
#include "forms/zq_combo.h"

namespace zqn::qt {

/// The entries in two columns, asked for as they are drawn.
class zqComboRows : public QAbstractTableModel {
 public:
  explicit zqComboRows(const zqn::zqCombo& combo) : combo_(combo) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 2; }
  QVariant data(const QModelIndex& index, int role) const override;
  /// The entries have been read anew.
  void follow();

 private:
  const zqn::zqCombo& combo_;
  int rows_ = 0;
};

class zqCombo : public TextEntry {
 public:
  zqCombo(zqn::zqCombo& model, QWidget* parent);

  void ownKey(QKeyEvent& event, const KeyStroke& stroke, bool asTyped) override;
  bool pressed(const QMouseEvent& event, bool focusCame) override;

  /// What a person clicks on to open the list, and to choose from it.
  QAbstractButton& button() { return button_; }
  QAbstractItemView& list() { return list_; }

 protected:
  void draw() override;
  void compare(Differences& found) const override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void drawList();
  void openList();
  void toList(const QMouseEvent& event);

  zqn::zqCombo& model_;
  FieldButton button_{*this, model_, QStringLiteral("Liste"), [this] { model_.userToggled(); }};
  zqComboRows rows_;
  QFrame window_;
  QTreeView list_{&window_};
};

}  // namespace zqn::qt
