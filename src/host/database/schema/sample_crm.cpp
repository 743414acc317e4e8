// SPDX-License-Identifier: MIT
#include "host/database/schema/sample_parts.h"

namespace zqn::host {

namespace {

// Status, name, milestone, progress in percent.
void sampleStatuses(const RowSink& sink) {
  addRows(sink, u"Vertriebsstati",
          {
              {u"-", u"(ohne Status)", false, 0},
              {u"00", u"Kein Interesse", true, 0},
              {u"05", u"Adresse erfasst", false, 5},
              {u"10", u"Interesse geweckt", false, 10},
              {u"15", u"Erstkontakt am Telefon erfolgt", false, 15},
              {u"20", u"Bedarf ermittelt", false, 20},
              {u"30", u"Besuch vereinbart", false, 30},
              {u"35", u"Vorführung beim Kunden", true, 35},
              {u"40", u"Angebot angefordert", false, 40},
              {u"50", u"Angebot abgegeben", true, 50},
              {u"60", u"Angebot besprochen", false, 60},
              {u"70", u"Preisverhandlung", false, 70},
              {u"80", u"Mündliche Zusage", false, 80},
              {u"90", u"Auftrag in Aussicht", false, 90},
              {u"95", u"Auftrag erteilt", true, 100},
              {u"A1", u"Stammkunde", true, 100},
              {u"V1", u"Verloren an Mitbewerber", true, 0},
              {u"V2", Null, Null, Null},
          });
}

// Category, name, history, help desk, status and origin to set, dates of last contact and last visit to set.
void sampleCategories(const RowSink& sink) {
  addRows(sink, u"Kontaktgruppen",
          {
              {u"-", u"(ohne Kategorie)", false, false, Null, Null, false, false},
              {u"ANGEBOT", u"Angebot nachfassen", true, false, u"60", Null, true, false},
              {u"ANRUF", u"Telefonat", true, false, u"15", u"ANRUF", true, false},
              {u"BESUCH", u"Besuch beim Kunden", true, false, u"30", u"AUSSENDIENST", true, true},
              {u"BRIEF", u"Brief oder Fax", true, false, Null, Null, true, false},
              {u"EMAIL", u"E-Mail", true, false, Null, Null, true, false},
              {u"GEBURTSTAG", u"Geburtstag", false, false, Null, Null, false, false},
              {u"HELPDESK", u"Störung annehmen", true, true, Null, Null, true, false},
              {u"HELPDESK-2", u"Störung vor Ort beheben", true, true, Null, Null, true, true},
              {u"MAILING", u"Mailing", true, false, u"05", u"MAILING", false, false},
              {u"MESSE", u"Gespräch auf der Messe", true, false, u"10", u"MESSE-H", true, false},
              {u"REKLAMATION", u"Reklamation", true, true, Null, Null, true, false},
              {u"VORFÜHRUNG", u"Vorführung", true, false, u"35", Null, true, true},
              {u"WIEDERVORLAGE", u"Wiedervorlage", false, false, Null, Null, false, false},
              {u"ZUSAGE", u"Mündliche Zusage festhalten", true, false, u"80", Null, true, false},
              {u"ALT", Null, Null, Null, Null, Null, Null, Null},
          });
}

// Key, reason, where it is offered: 1 customers, 2 contracts, 3 both.
void sampleReasons(const RowSink& sink) {
  addRows(sink, u"Kuendigungsgruende",
          {
              {u"AUFGABE", u"Geschäftsaufgabe", 3},
              {u"BEDARF", u"Kein Bedarf mehr", 3},
              {u"BONITÄT", u"Mangelnde Bonität", 1},
              {u"EIGEN", u"Kunde fertigt selbst", 1},
              {u"FUSION", u"Übernahme durch ein anderes Unternehmen", 3},
              {u"GERÄT", u"Gerät verkauft oder verschrottet", 2},
              {u"INSOLVENZ", u"Insolvenz", 3},
              {u"LIEFERZEIT", u"Lieferzeiten zu lang", 1},
              {u"MITBEWERBER", u"Wechsel zu einem Mitbewerber", 3},
              {u"PREIS", u"Preis zu hoch", 3},
              {u"QUALITÄT", u"Unzufrieden mit der Qualität", 1},
              {u"SERVICE", u"Unzufrieden mit dem Service", 2},
              {u"SONSTIGES", Null, 3},
              {u"UMZUG", u"Umzug außerhalb unseres Gebietes", 1},
              {u"VERTRAGSENDE", u"Vertragslaufzeit beendet, keine Verlängerung", 2},
              {u"WARTUNG", u"Wartung erfolgt durch eigenes Personal", 2},
          });
}

}  // namespace

void sampleCrm(const RowSink& sink) {
  sampleStatuses(sink);
  sampleCategories(sink);
  sampleReasons(sink);
}

}  // namespace zqn::host
