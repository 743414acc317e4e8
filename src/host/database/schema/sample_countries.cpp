// SPDX-License-Identifier: MIT
#include "host/database/schema/sample_parts.h"

namespace zqn::host {

namespace {

void sampleNames(const RowSink& sink) {
  addRows(sink, u"Laendernamen",
          {
              {u"-", Null, u"(kein Land)"},
              {u"A", u"AT", u"Österreich"},
              {u"B", u"BE", u"Belgien"},
              {u"CH", u"CH", u"Schweiz"},
              {u"CI", u"CI", u"Côte d’Ivoire"},
              {u"CZ", u"CZ", u"Tschechische Republik"},
              {u"D", u"DE", u"Deutschland"},
              {u"DK", u"DK", u"Dänemark"},
              {u"E", u"ES", u"Spanien"},
              {u"F", u"FR", u"Frankreich"},
              {u"FIN", u"FI", u"Finnland"},
              {u"GB", u"GB", u"Vereinigtes Königreich Großbritannien u.Nordirland"},
              {u"H", u"HU", u"Ungarn"},
              {u"I", u"IT", u"Italien"},
              {u"L", u"LU", u"Luxemburg"},
              {u"N", u"NO", u"Norwegen"},
              {u"NL", u"NL", u"Niederlande"},
              {u"PL", u"PL", u"Polen"},
              {u"S", u"SE", u"Schweden"},
              {u"TR", u"TR", u"Türkei"},
              {u"UK", Null, u"Großbritannien (alte Kennung)"},
              {u"USA", u"US", u"Vereinigte Staaten von Amerika"},
          });
}

// Range, origin, description: the same range may stand once for each origin.
void sampleRanges(const RowSink& sink) {
  addRows(sink, u"Nummernkreis_Buchungskreise",
          {
              {u"-", u"VK", u"(ohne Buchungskreis)"},
              {u"001", u"VK", u"Angebote"},
              {u"002", u"VK", u"Aufträge"},
              {u"003", u"VK", u"Lieferscheine"},
              {u"010", u"VK", u"Rechnungen Inland"},
              {u"011", u"VK", u"Rechnungen Europäische Union"},
              {u"012", u"VK", u"Rechnungen Drittland"},
              {u"015", u"VK", u"Barverkauf"},
              {u"020", u"VK", u"Gutschriften"},
              {u"030", u"VK", u"Vertragsrechnungen"},
              {u"031", u"VK", u"Vertragsgutschriften"},
              {u"090", u"VK", u"Interne Belege"},
              {u"099", u"VK", Null},
              {u"A1", u"VK", u"Filiale Köln"},
              {u"-", u"EK", u"(ohne Buchungskreis)"},
              {u"001", u"EK", u"Anfragen"},
              {u"002", u"EK", u"Bestellungen"},
              {u"003", u"EK", u"Wareneingänge"},
              {u"010", u"EK", u"Eingangsrechnungen Inland"},
              {u"011", u"EK", u"Innergemeinschaftliche Erwerbe"},
              {u"012", u"EK", u"Einfuhr Drittland"},
              {u"020", u"EK", u"Lieferantengutschriften"},
              {u"040", u"EK", u"Lohnfertigung"},
              {u"001", u"LAGER", u"Umbuchungen"},
              {u"002", u"LAGER", u"Inventurdifferenzen"},
              {u"003", u"LAGER", u"Entnahme für Eigenbedarf"},
              {u"900", u"", u"Ohne Herkunft übernommen"},
          });
}

}  // namespace

void sampleCountries(const RowSink& sink) {
  sampleNames(sink);
  sampleRanges(sink);
}

}  // namespace zqn::host
