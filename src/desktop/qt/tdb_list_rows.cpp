// SPDX-License-Identifier: MIT
#include "desktop/qt/tdb_list_rows.h"

#include "desktop/qt/text.h"

namespace zqn::qt {

namespace {

/// More rows at a time, when a person scrolls to the end of what is known.
constexpr int fetchStep = 1000;

}  // namespace

QVariant TDBListRows::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::AccessibleDescriptionRole) return besides(index);
  if (role != Qt::DisplayRole) return {};
  return toQt(list_.cellText(index.row(), index.column()));
}

QString TDBListRows::besides(const QModelIndex& cell) const {
  QStringList texts;
  for (int i = 0; i < columns_; ++i) {
    const QString text =
        list_.drawnWidth(i) > 0 && i != cell.column() ? toQt(list_.cellText(cell.row(), i)) : QString();
    if (!text.isEmpty()) texts += text;
  }
  return texts.join(QStringLiteral(", "));
}

QVariant TDBListRows::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
  return role == Qt::DisplayRole ? QVariant(captions_.value(section)) : QVariant();
}

bool TDBListRows::canFetchMore(const QModelIndex& parent) const {
  return !parent.isValid() && !list_.rowsComplete();
}

void TDBListRows::fetchMore(const QModelIndex&) {
  try {
    list_.fetchRows(fetchStep);
  } catch (const RuntimeError&) {
    // Asked while the view arranges itself: what is known stays in sight.
  }
  follow();
}

bool TDBListRows::follow() {
  QStringList captions;
  for (int i = 0; i < list_.columnCount(); ++i) captions += toQt(list_.Columns(i).Caption());
  const int known = list_.knownRows();
  const bool anew = bindings_ != list_.bindings() || known < rows_ || captions.size() != columns_;
  if (anew) {
    beginResetModel();
    bindings_ = list_.bindings();
    rows_ = known;
    captions_ = captions;
    columns_ = static_cast<int>(captions.size());
    endResetModel();
    return true;
  }
  if (captions != captions_) {
    captions_ = captions;
    emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
  }
  if (known > rows_) {
    beginInsertRows({}, rows_, known - 1);
    rows_ = known;
    endInsertRows();
  }
  return false;
}

}  // namespace zqn::qt
