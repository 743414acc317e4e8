// SPDX-License-Identifier: MIT
#include "host/desk/call_log.h"

#include <QHeaderView>
#include <QTime>

#include "desktop/qt/text.h"
#include "host/script/json_values.h"

namespace zqn::host {

namespace {

QString written(const Variant& value) {
  if (value.isEmpty()) return "Empty";
  if (value.isNull()) return "Null";
  return QString::fromStdString(script::jsonValue(value).dump());
}

QString written(const VariantArray& param) {
  QStringList elements;
  for (const Variant& element : param.elements()) elements += written(element);
  return "(" + elements.join(", ") + ")";
}

void add(QTreeWidgetItem* entry, const QString& name, const QString& value) {
  auto* line = new QTreeWidgetItem(entry, {name, value});
  line->setToolTip(1, value);
  entry->treeWidget()->scrollToItem(line);
}

}  // namespace

CallLog::CallLog(QWidget* parent) : QTreeWidget(parent) {
  setAccessibleName("Aufrufe");
  setColumnCount(2);
  setHeaderLabels({"Aufruf", "Wert"});
  header()->resizeSection(0, 160);
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
}

CallLog::Call CallLog::begin(std::int32_t kind, StringView title, const VariantArray& param) {
  auto* entry = new QTreeWidgetItem(
      this,
      {QString("Show(%1)").arg(kind), QTime::currentTime().toString("HH:mm:ss") + "  " + qt::toQt(title)});
  entry->setExpanded(true);
  add(entry, "Param vorher", written(param));
  return Call(entry);
}

void CallLog::Call::picked(const Variant& key) { add(entry_, "DblClick", written(key)); }

void CallLog::Call::passedOver(StringView procedure, const RuntimeError& failure) {
  add(entry_, "Übergangen",
      qt::toQt(procedure) + ": " + QString::number(failure.number()) + " " + qt::toQt(failure.description()));
}

void CallLog::Call::returned(const ShowOutcome& outcome) {
  add(entry_, "Rückgabe", written(outcome.returned));
  add(entry_, "Param nachher", written(outcome.param));
  add(entry_, "Result", written(outcome.dialogResult));
  add(entry_, "Änderungen", outcome.allowChanges ? "erlaubt" : "nicht erlaubt");
}

}  // namespace zqn::host
