// SPDX-License-Identifier: MIT
#include "host/desk/settings_dialog.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/qt/text.h"
#include "runtime/error.h"
#include "runtime/locale.h"

namespace zqn::host {

namespace {

using qt::fromQt;
using qt::toQt;

enum ColumnOf { Section, Key, Scope, Text };

/// On the value's cell: what it was, and whether it stands in the store.
constexpr int OriginalRole = Qt::UserRole;
constexpr int StoredRole = Qt::UserRole + 1;

const QString everybody = "alle";

/// A setting that the dialogs ask for, and what they take when it is not stored.
struct Known {
  const char16_t *section, *key;
  bool ofUser;
  const char16_t* otherwise;
  const char* meaning;
};
constexpr const char* adminsOnly = "1: nur Administratoren dürfen ändern; 0: alle";
constexpr const char* allowVPSave =
    "Arten von Dialogen, die trotzdem alle ändern dürfen, hinter jeder ein Semikolon";
constexpr Known known[] = {
    {u"ZQNComDlg", u"AdminsOnly", false, u"0", adminsOnly},
    {u"ZQNComDlg", u"AllowVPSave", true, u"7;", allowVPSave},
    {u"ZQNComDlg", u"AllowVPSave", false, u"7;", allowVPSave},
    {u"Allgemein", u"Landeswährung", false, u"EUR", "Währung neuer Preislisten"},
};

const char* meaningOf(const SettingName& name) {
  for (const Known& setting : known)
    if (compareCollated(name.section, setting.section) == 0 && compareCollated(name.key, setting.key) == 0)
      return setting.meaning;
  return "";
}

bool same(const SettingName& left, const SettingName& right) {
  return compareCollated(left.section, right.section) == 0 && compareCollated(left.key, right.key) == 0 &&
         compareCollated(left.user, right.user) == 0;
}

}  // namespace

SettingsDialog::SettingsDialog(SettingsStore& store, const String& user, QWidget* parent)
    : QDialog(parent), store_(store), user_(toQt(user)), table_(new QTableWidget(0, 4, this)) {
  setWindowTitle("Einstellungen");
  resize(640, 360);
  auto* layout = new QVBoxLayout(this);
  auto* hint = new QLabel(
      "Grau steht, was ohne eine gespeicherte Einstellung gilt. Eine Einstellung des Benutzers geht bei "
      "AllowVPSave der für alle vor.");
  hint->setWordWrap(true);
  layout->addWidget(hint);
  layout->addWidget(table_);

  table_->setHorizontalHeaderLabels({"Abschnitt", "Einstellung", "Gilt für", "Wert"});
  table_->setAccessibleName("Einstellungen");
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->horizontalHeader()->setHighlightSections(false);
  table_->verticalHeader()->hide();
  table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 7 / 4);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->setTabKeyNavigation(false);

  const std::vector<SettingsStore::Setting> stored = store_.all(user);
  for (const Known& setting : known) {
    const SettingName name{setting.section, setting.key, setting.ofUser ? user : String()};
    const bool there = std::ranges::any_of(stored, [&](const auto& entry) { return same(entry.name, name); });
    if (!there) addLine(name, toQt(setting.otherwise), false);
  }
  for (const SettingsStore::Setting& entry : stored) addLine(entry.name, toQt(entry.value), true);
  table_->resizeColumnsToContents();
  table_->setCurrentCell(0, Text);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Cancel)->setText("Abbrechen");
  auto* addButton = buttons->addButton("&Neu", QDialogButtonBox::ActionRole);
  auto* removeButton = buttons->addButton("&Löschen", QDialogButtonBox::ActionRole);
  layout->addWidget(buttons);
  connect(addButton, &QPushButton::clicked, this, &SettingsDialog::addNewLine);
  connect(removeButton, &QPushButton::clicked, this, &SettingsDialog::removeLine);
  connect(buttons, &QDialogButtonBox::accepted, this, &SettingsDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &SettingsDialog::reject);
  connect(table_, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* item) {
    if (item->column() == Text) item->setData(Qt::ForegroundRole, {});
  });
}

void SettingsDialog::addLine(const SettingName& name, const QString& value, bool stored) {
  const QSignalBlocker silent(table_);
  const int row = table_->rowCount();
  table_->insertRow(row);
  const QString scope = name.user.empty() ? everybody : toQt(name.user);
  for (const auto& [column, text] :
       {std::pair(Section, toQt(name.section)), {Key, toQt(name.key)}, {Scope, scope}}) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item->setToolTip(meaningOf(name));
    table_->setItem(row, column, item);
  }
  auto* item = new QTableWidgetItem(value);
  item->setData(OriginalRole, value);
  item->setData(StoredRole, stored);
  if (!stored) item->setForeground(palette().placeholderText());
  table_->setItem(row, Text, item);
}

void SettingsDialog::addNewLine() {
  const int row = table_->rowCount();
  addLine({}, {}, false);
  for (const int column : {Section, Key, Scope})
    table_->item(row, column)->setFlags(table_->item(row, Text)->flags());
  table_->setCurrentCell(row, Section);
  table_->editItem(table_->item(row, Section));
}

void SettingsDialog::removeLine() {
  const int row = table_->currentRow();
  if (row < 0) return;
  if (table_->item(row, Text)->data(StoredRole).toBool()) removed_.push_back(nameIn(row));
  table_->removeRow(row);
}

SettingName SettingsDialog::nameIn(int row) const {
  const auto text = [&](int column) { return String(fromQt(table_->item(row, column)->text().trimmed())); };
  const bool global = table_->item(row, Scope)->text().trimmed() == everybody;
  return {text(Section), text(Key), global ? String() : text(Scope)};
}

void SettingsDialog::save() {
  for (const SettingName& name : removed_) store_.erase(name);
  for (int row = 0; row < table_->rowCount(); ++row) {
    const QTableWidgetItem* item = table_->item(row, Text);
    const SettingName name = nameIn(row);
    if (item->text() == item->data(OriginalRole).toString() || name.section.empty() || name.key.empty())
      continue;
    store_.write(name, fromQt(item->text()));
  }
}

void SettingsDialog::accept() {
  try {
    save();
    QDialog::accept();
  } catch (const RuntimeError& failure) {
    QMessageBox::critical(this, windowTitle(),
                          "Die Einstellungen lassen sich nicht speichern.\n\n" + toQt(failure.description()));
  }
}

}  // namespace zqn::host
