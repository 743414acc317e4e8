// SPDX-License-Identifier: MIT
#include "host/database/schema/sample_parts.h"

namespace zqn::host {

namespace {

// Words of one column; the other key columns of the table are the same for all of them.
void addWords(const RowSink& sink, StringView tableName, std::initializer_list<StringView> words,
              const std::function<Row(StringView)>& rowOf) {
  for (const StringView word : words) addRows(sink, tableName, {rowOf(word)});
}

void addCriteria(const RowSink& sink, std::initializer_list<StringView> words) {
  addWords(sink, u"SelektionskriterienVertrag", words, [](StringView word) { return Row{word}; });
}

// "-" is the empty entry of a list.
void addValues(const RowSink& sink, StringView referenceType, std::int32_t fieldId,
               std::initializer_list<StringView> values) {
  addWords(sink, u"SelectionListValues", values, [&](StringView value) {
    return Row{referenceType, fieldId, value};
  });
}

void addKeywords(const RowSink& sink, StringView section, std::initializer_list<StringView> words) {
  addWords(sink, u"Keywords", words, [&](StringView word) { return Row{word, section}; });
}

}  // namespace

void sampleSelections(const RowSink& sink) {
  addCriteria(sink,
              {u"-", u"24-Stunden-Bereitschaft", u"Altvertrag", u"Automatische Verlängerung", u"Bundesweit",
               u"Ersatzgerät inklusive", u"Festpreis", u"Gleitende Preise", u"Großgeräte",
               u"Jährliche Abrechnung", u"Kündigung zum Quartalsende", u"Monatliche Abrechnung",
               u"Öffentlicher Auftraggeber", u"Prüfung nach DGUV", u"Vertrag mit Sonderkonditionen"});

  addValues(
      sink, u"Artikel", 1,
      {u"-", u"Aluminium", u"Bronze", u"Edelstahl 1.4301", u"Edelstahl 1.4571", u"Grauguss", u"Messing",
       u"PTFE", u"PVC-U", u"Rotguss", u"Stahl blank", u"Stahl verzinkt", u"Temperguss",
       u"Sonderwerkstoff nach Vereinbarung: Der Werkstoff wird vor der Fertigung mit dem Kunden abgestimmt, "
       u"in der "
       u"Auftragsbestätigung genannt und mit einem Abnahmeprüfzeugnis 3.1 nach EN 10204 belegt; Abweichungen "
       u"werden schriftlich angezeigt und freigegeben (§7)"});
  addValues(sink, u"Artikel", 2,
            {u"-", u"DN 15", u"DN 20", u"DN 25", u"DN 32", u"DN 40", u"DN 50", u"DN 65", u"DN 80"});
  addValues(sink, u"Artikel", 3, {u"0", u"0,5", u"1", u"PN 6", u"PN 10", u"PN 16", u"PN 25", u"PN 40"});
  addValues(sink, u"Kunden", 1,
            {u"-", u"Brauerei", u"Galvanik", u"Gießerei", u"Molkerei", u"Papierfabrik", u"Raffinerie",
             u"Schiffswerft", u"Wäscherei", u"Zementwerk"});
  addValues(sink, u"Kunden", 2, {u"Nord", u"Ost", u"Süd", u"West"});
  addValues(sink, u"Vertraege", 1, {u"-", u"jährlich", u"halbjährlich", u"vierteljährlich", u"monatlich"});
  addValues(sink, u"Vertraege", 2, {u"Hand", u"Kälte", u"Lüftung", u"Öl", u"Wärme"});

  addKeywords(sink, u"Kunden",
              {u"Bonus", u"Einkaufsverband", u"Empfehler", u"Großabnehmer", u"Hausmesse", u"Kanban",
               u"Katalog", u"Messe", u"Neukunde", u"Newsletter", u"Österreich", u"Rahmenvertrag",
               u"Selbstabholer", u"Weihnachtsgeschenk", u"Ansprechpartner im Außendienst"});
  addKeywords(
      sink, u"Lieferanten",
      {u"Audit 2025", u"Lieferantenerklärung", u"Messe", u"Mindestmenge", u"Rahmenvertrag", u"Zertifiziert"});
  addKeywords(sink, u"Artikel", {u"Auslauf", u"Gefahrgut", u"Neuheit", u"REACH", u"Sonderpreis"});
  addKeywords(sink, u"", {u"Ohne Bereich", u"Übernommen"});
}

}  // namespace zqn::host
