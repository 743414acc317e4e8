// SPDX-License-Identifier: MIT
#include "host/desk/dialog_list.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "desktop/qt/text.h"
#include "frontend/kinds.h"

namespace zqn::host {

namespace {

using qt::toQt;

/// The dialog's place among dialogTitles().
constexpr int PlaceRole = Qt::UserRole;
constexpr int SearchRole = Qt::UserRole + 1;

/// The item below or, backward, above that is a dialog and not hidden; nullptr at the end.
QTreeWidgetItem* neighbour(QTreeWidget& tree, QTreeWidgetItem* from, bool backward) {
  QTreeWidgetItem* item = from ? from : tree.topLevelItem(0);
  while (item) {
    item = backward ? tree.itemAbove(item) : tree.itemBelow(item);
    if (item && item->parent()) return item;
  }
  return nullptr;
}

}  // namespace

DialogList::DialogList(QWidget* parent)
    : QWidget(parent), search_(new QLineEdit(this)), tree_(new QTreeWidget(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(search_);
  layout->addWidget(tree_);

  search_->setPlaceholderText("Dialog suchen (Strg+F)");
  search_->setAccessibleName("Dialog suchen");
  search_->setClearButtonEnabled(true);
  search_->installEventFilter(this);
  tree_->setAccessibleName("Dialoge");
  tree_->setColumnCount(2);
  tree_->setHeaderHidden(true);
  tree_->header()->setStretchLastSection(false);
  tree_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
  tree_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  tree_->setUniformRowHeights(true);
  tree_->setExpandsOnDoubleClick(false);

  fill();
  connect(search_, &QLineEdit::textChanged, this, &DialogList::narrow);
  connect(search_, &QLineEdit::returnPressed, this, &DialogList::open);
  connect(tree_, &QTreeWidget::itemActivated, this, &DialogList::open);
  connect(tree_, &QTreeWidget::currentItemChanged, this, [this] {
    if (marked) marked(dialog());
  });
}

void DialogList::fill() {
  QTreeWidgetItem* subject = nullptr;
  for (int place = 0; const DialogTitle& title : dialogTitles()) {
    const int here = place++;
    const KindInfo* info = findKind(title.kind);
    if (subject == nullptr || subject->text(0) != toQt(title.subject)) {
      subject = new QTreeWidgetItem(tree_, {toQt(title.subject)});
      subject->setFlags(Qt::ItemIsEnabled);
      // The first row's height is every row's.
      subject->setSizeHint(0, QSize(0, fontMetrics().height() * 3 / 2));
      QFont bold = tree_->font();
      bold.setBold(true);
      subject->setFont(0, bold);
    }
    QString number = QString::number(title.kind);
    if (title.generic) number += " (generic form)";
    auto* item = new QTreeWidgetItem(subject, {toQt(title.title), number});
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    item->setForeground(1, palette().placeholderText());
    item->setData(0, PlaceRole, here);
    item->setData(0, SearchRole,
                  QStringList{number, toQt(title.subject), toQt(title.title), toQt(info->constant),
                              toQt(info->form), toQt(info->definition), toQt(info->tables)}
                      .join(' '));
  }
  tree_->expandAll();
  tree_->setCurrentItem(neighbour(*tree_, nullptr, false));
}

const DialogTitle* DialogList::dialog() const {
  const QTreeWidgetItem* item = tree_->currentItem();
  if (item == nullptr || !item->parent() || item->isHidden()) return nullptr;
  return &dialogTitles()[item->data(0, PlaceRole).toUInt()];
}

void DialogList::search() {
  search_->setFocus();
  search_->selectAll();
}

void DialogList::narrow(const QString& text) {
  const QStringList words = text.split(' ', Qt::SkipEmptyParts);
  for (int s = 0; s < tree_->topLevelItemCount(); ++s) {
    QTreeWidgetItem* subject = tree_->topLevelItem(s);
    bool any = false;
    for (int d = 0; d < subject->childCount(); ++d) {
      QTreeWidgetItem* item = subject->child(d);
      const QString content = item->data(0, SearchRole).toString();
      const bool fits = std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return content.contains(word, Qt::CaseInsensitive);
      });
      item->setHidden(!fits);
      any = any || fits;
    }
    subject->setHidden(!any);
  }
  QTreeWidgetItem* current = tree_->currentItem();
  if (current && current->parent() && !current->isHidden()) return;
  tree_->setCurrentItem(nullptr);
  for (QTreeWidgetItem* item = tree_->topLevelItem(0); item; item = tree_->itemBelow(item)) {
    if (item->isHidden() || !item->parent()) continue;
    return tree_->setCurrentItem(item);
  }
}

void DialogList::open() {
  if (const DialogTitle* title = dialog(); title && opened) opened(*title);
}

bool DialogList::eventFilter(QObject* object, QEvent* event) {
  if (object == search_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Down || key == Qt::Key_Up) {
      if (auto* item = neighbour(*tree_, tree_->currentItem(), key == Qt::Key_Up))
        tree_->setCurrentItem(item);
      return true;
    }
    if (key == Qt::Key_PageDown || key == Qt::Key_PageUp) return QApplication::sendEvent(tree_, event);
  }
  return QWidget::eventFilter(object, event);
}

}  // namespace zqn::host
