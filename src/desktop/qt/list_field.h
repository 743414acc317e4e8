// SPDX-License-Identifier: MIT
//
// Draws a field with a button and the list of entries that opens below it, for all drop-downs that a person
// can type into. Whether the list is open, and which entry is marked in it, is the model's; keys that come to
// the open list go to the form first, like all others.
//
//     class zqCombo : public ListField { ... };
#pragma once

#include <QAbstractTableModel>
#include <QFrame>
#include <QTreeView>
#include <functional>
#include <utility>

#include "desktop/qt/field_button.h"
#include "desktop/qt/painted_cells.h"
#include "desktop/qt/text_entry.h"
#include "forms/combo_box.h"
#include "forms/zq_combo.h"

namespace zqn::qt {

/// The entries in their columns, asked for as they are drawn.
class ListFieldRows : public QAbstractTableModel {
 public:
  using Cell = std::function<const String&(int row, int column)>;

  ListFieldRows(int columns, Cell cell) : columns_(columns), cell_(std::move(cell)) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
  QVariant data(const QModelIndex& index, int role) const override;
  /// The entries have been read anew: so many.
  void follow(int rows);

 private:
  const int columns_;
  const Cell cell_;
  int rows_ = 0;
};

class ListField : public TextEntry {
 public:
  /// What a person clicks on to open the list, and to choose from it.
  QAbstractButton& button() { return button_; }
  QAbstractItemView& list() { return list_; }

 protected:
  void draw() override;
  void compare(Differences& found) const override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

  /// `model` is a TextEntry and a DropDown; the open list shows `maxrows` entries at once.
  template <class Model>
  ListField(Model& model, QWidget* parent, int maxrows, int columns, ListFieldRows::Cell cell)
      : ListField(model, model, model.allowedit(), parent, maxrows, columns, std::move(cell)) {}

 private:
  ListField(zqn::TextEntry& field, zqn::DropDown& entries, bool editable, QWidget* parent, int maxrows,
            int columns, ListFieldRows::Cell cell);
  void drawList();
  void openList();
  void toList(const QMouseEvent& event);

  zqn::TextEntry& model_;
  zqn::DropDown& entries_;
  const int maxrows_;
  FieldButton button_{*this, model_, QStringLiteral("Liste"), [this] { entries_.userToggled(); }};
  ListFieldRows rows_;
  QFrame window_;
  QTreeView list_{&window_};
  PaintedCells* cells_;
};

/// A ComboBox that takes any text.
class ComboField : public ListField {
 public:
  ComboField(zqn::ComboBox& model, QWidget* parent);
};

class zqCombo : public ListField {
 public:
  zqCombo(zqn::zqCombo& model, QWidget* parent);
};

}  // namespace zqn::qt
