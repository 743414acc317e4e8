// SPDX-License-Identifier: MIT
#include "host/database/schema/sample_parts.h"

namespace zqn::host {

namespace {

void sampleAccounts(const RowSink& sink) {
  addRows(sink, u"Aufwandskontokennungen",
          {
              {u"BEZUG", u"Bezugsnebenkosten"},
              {u"BÜRO", u"Büromaterial"},
              {u"EG19", u"Innergem. Erwerb 19 %"},
              {u"EG7", u"Innergem. Erwerb 7 %"},
              {u"EST", u"Einfuhrumsatzsteuer"},
              {u"FREMD", u"Fremdleistungen"},
              {u"HILFS", u"Hilfs- und Betriebsstoffe"},
              {u"MIETE", u"Mietaufwand Lagergeräte"},
              {u"ROH", u"Rohstoffe"},
              {u"VERP", u"Verpackungsmaterial"},
              {u"W0", u"Wareneingang steuerfrei"},
              {u"W19", u"Wareneingang 19 % Vorsteuer"},
              {u"W7", u"Wareneingang 7 % Vorsteuer"},
              {u"ZOLL", Null},
          });
  addRows(sink, u"Erlöskontokennungen",
          {
              {u"BAUL", u"Bauleistungen § 13b UStG"},
              {u"DIENST", u"Erlöse Dienstleistungen 19 %"},
              {u"DRITT", u"Erlöse Drittland steuerfrei"},
              {u"E0", u"Erlöse steuerfrei"},
              {u"E19", u"Erlöse 19 % Umsatzsteuer"},
              {u"E7", u"Erlöse 7 % Umsatzsteuer"},
              {u"EG", u"Innergem. Lieferungen"},
              {u"FRACHT", u"Erlöse Fracht und Verpackung"},
              {u"INTERN", u"Eigenverbrauch"},
              {u"MIETE", u"Erlöse Mietgeräte"},
              {u"PFAND", u"Erlöse Leergut und Pfand"},
              {u"SCHROTT", u"Erlöse Schrott"},
              {u"WARTUNG", u"Erlöse Wartungsverträge"},
              {u"ZINS", Null},
          });
}

void sampleCommissions(const RowSink& sink) {
  addRows(sink, u"ProvisionsgruppenArtikel",
          {
              {u"-", u"(ohne Provision)"},
              {u"A", u"Volle Provision"},
              {u"B", u"Halbe Provision"},
              {u"C", u"Viertel Provision"},
              {u"AKTION", u"Aktionsware, 1 %"},
              {u"DIENST", u"Dienstleistungen"},
              {u"EIGEN", u"Eigenmarke, erhöht"},
              {u"FRACHT", u"Fracht und Verpackung, keine"},
              {u"MIETE", u"Mietgeräte"},
              {u"NETTO", u"Nettoartikel"},
              {u"PROJEKT", u"Projekt nach Deckungsbeitrag"},
              {u"REST", u"Restposten"},
              {u"SONDER", u"Sonderanfertigung"},
              {u"WARTUNG", Null},
          });
  addRows(sink, u"ProvisionsgruppenKunde",
          {
              {u"-", u"(ohne Provision)"},
              {u"ALT", u"Bestandskunden"},
              {u"BEHÖRDE", u"Ausschreibungen"},
              {u"EXPORT", u"Exportkunden"},
              {u"FILIALE", u"Filialen"},
              {u"HANDEL", u"Wiederverkäufer"},
              {u"HAUS", u"Hauskunden ohne Vertreter"},
              {u"INTERNET", u"Kunden aus dem Webshop"},
              {u"KONZERN", u"Konzernkunden"},
              {u"NEU", u"Neukunden im ersten Jahr"},
              {u"NORD", u"Gebiet Nord"},
              {u"RÜCK", u"Rückgewonnene Kunden"},
              {u"SÜD", u"Gebiet Süd"},
              {u"WEST", Null},
          });
}

void samplePartners(const RowSink& sink) {
  addRows(sink, u"Lieferantengruppen",
          {
              {u"-", u"(ohne Gruppe)"},
              {u"BÜRO", u"Büro- und EDV-Bedarf"},
              {u"CHEMIE", u"Öle, Fette und Klebstoffe"},
              {u"DIENST", u"Dienstleister"},
              {u"ENERGIE", u"Strom, Gas und Treibstoffe"},
              {u"GROSS", u"Großhändler"},
              {u"HERST-DE", u"Hersteller Inland"},
              {u"HERST-EU", u"Hersteller Europäische Union"},
              {u"HERST-WELT", u"Hersteller Drittland"},
              {u"LOHN", u"Lohnfertiger und Härtereien"},
              {u"SPEDITION", u"Speditionen und Paketdienste"},
              {u"TECHNIK", u"Maschinen und Lagertechnik"},
              {u"VERBAND", u"Einkaufsverband mit Zentralregulierung"},
              {u"VERPACK", u"Verpackung und Entsorgung, Leergut und Paletten u."},
              {u"ZEITARBEIT", Null},
          });
  addRows(sink, u"Mitbewerber",
          {
              {u"-", u"(kein Mitbewerber)"},
              {u"ADLER", u"Adler Industriebedarf GmbH"},
              {u"BALTIK", u"Baltik Technik Handel"},
              {u"DREIECK", u"Dreieck Rohr + Flansch GmbH & Co. KG"},
              {u"ELBTECH", u"Elbtechnik Hamburg"},
              {u"FLUID", u"Fluid & Druck Süd"},
              {u"GLÜCK", u"Glück Werkzeuge e. K."},
              {u"HANSA-LAGER", u"Hansa-Lager Vertriebsgesellschaft mbH"},
              {u"INTERNET", u"Verschiedene Internethändler"},
              {u"KÖNIG", u"König Dichtungstechnik"},
              {u"NORDSEE", u"Nordsee Schrauben Kontor"},
              {u"PRÉCISION", u"Précision Rhône S.à r.l."},
              {u"RUHRSTAHL", u"Ruhrstahl Rohrhandel"},
              {u"SCHÄFER", u"Schäfer Hydraulik Service"},
              {u"UNBEKANNT", Null},
          });
  addRows(sink, u"Adressherkunft",
          {
              {u"-", u"(unbekannt)"},
              {u"ADRESSKAUF", u"Gekaufte Adressen"},
              {u"ANRUF", u"Anruf des Kunden"},
              {u"ANZEIGE", u"Anzeige in der Fachpresse"},
              {u"AUSSENDIENST", u"Besuch des Außendienstes"},
              {u"BRANCHENBUCH", u"Branchenverzeichnis"},
              {u"EMPFEHLUNG", u"Empfehlung eines Kunden"},
              {u"HAUSMESSE", u"Hausmesse"},
              {u"LIEFERANT", u"Hinweis eines Lieferanten"},
              {u"MAILING", u"Antwort auf ein Mailing"},
              {u"MESSE-H", u"Industriemesse Hannover"},
              {u"MESSE-M", u"Fachmesse München"},
              {u"SHOP", u"Registrierung im Webshop"},
              {u"ÜBERNAHME", u"Übernahme eines Kundenstamms"},
              {u"ZUFALL", Null},
          });
  addRows(sink, u"KontaktGruende",
          {
              {u"-", u"(ohne Grund)"},
              {u"ANFRAGE", u"Anfrage"},
              {u"BEMUSTERUNG", u"Bemusterung"},
              {u"BESUCH", u"Besuch vereinbaren"},
              {u"DANK", u"Dank für den Auftrag"},
              {u"JAHR", u"Jahresgespräch"},
              {u"LIEFERZEIT", u"Rückfrage zur Lieferzeit"},
              {u"MAHNUNG", u"Offene Posten"},
              {u"NACHFASSEN", u"Angebot nachfassen"},
              {u"NEUHEIT", u"Vorstellung einer Neuheit"},
              {u"PREIS", u"Preisänderung"},
              {u"REKLAMATION", u"Reklamation"},
              {u"TECHNIK", u"Technische Frage"},
              {u"WEIHNACHT", u"Weihnachtsgruß"},
              {u"WERBUNG", Null},
          });
}

void sampleContracts(const RowSink& sink) {
  addRows(sink, u"Vertragsarten",
          {
              {u"-", u"(ohne Vertrag)"},
              {u"ABRUF", u"Abrufauftrag"},
              {u"BETRIEB", u"Betriebsführung Druckluft"},
              {u"BONUS", u"Bonusvereinbarung"},
              {u"GARANTIE", u"Garantieverlängerung"},
              {u"KANBAN", u"Kanban-Belieferung"},
              {u"KONSI", u"Konsignationslager"},
              {u"LEASING", u"Leasing"},
              {u"MIETE", u"Mietvertrag Geräte"},
              {u"PRÜFUNG", u"Prüfvertrag Schlauchleitungen"},
              {u"RAHMEN", u"Rahmenvertrag"},
              {u"SERVICE", u"Servicevertrag mit Rufdienst"},
              {u"WARTUNG", u"Wartungsvertrag"},
              {u"ZUGANG", Null},
          });
}

void sampleEntrySchemes(const RowSink& sink) {
  addRows(
      sink, u"Erfassungsschema",
      {
          {u"01", u"Standard", u"Artikelnummer, Menge, Preis und Rabatt."},
          {u"02", u"Kurzerfassung", u"Nur Artikelnummer und Menge. Preise werden immer ermittelt."},
          {u"03", u"Mit Längen", u"Zuschnitt: Stückzahl, Länge in mm und Artikelnummer."},
          {u"04", u"Flächen", u"Platten: Stückzahl, Breite und Länge in mm, Stärke aus dem Artikelstamm."},
          {u"05", u"Chargen", u"Artikelnummer, Menge und Charge. Das Verfalldatum wird geprüft."},
          {u"06", u"Seriennummern", u"Jede Position hat die Menge 1 und eine Seriennummer."},
          {u"07", u"Projekt", u"Mit Kostenstelle und Projektnummer des Kunden."},
          {u"08", u"Thekenverkauf", u"Strichcode einlesen, Menge 1. Für die Kasse am Abholschalter."},
          {u"09", u"Streckengeschäft", u"Zusätzlich Lieferant und Einkaufspreis je Position."},
          {u"10", u"Mietgeräte", u"Gerätenummer, Mietbeginn und Mietende. Tage werden berechnet."},
          {u"11", u"Baugruppen", u"Kopfartikel mit allen Einzelteilen; Einzelpreise werden nicht gedruckt."},
          {u"12", u"Export", u"Mit Warennummer, Ursprungsland und Gewicht für die Ausfuhranmeldung."},
          {u"13", u"Frei", Null},
      });
  addRows(sink, u"ErfassungsschemaEK",
          {
              {u"01", u"Standard", u"Artikelnummer, Menge, Einkaufspreis und Rabatt."},
              {u"02", u"Kurzerfassung", u"Nur Artikelnummer und Menge, Preis aus den Konditionen."},
              {u"03", u"Lieferantennummer", u"Erfassung mit der Artikelnummer des Lieferanten."},
              {u"04", u"Staffel", u"Menge mit Vorschlag der nächsten Preisstaffel."},
              {u"05", u"Abruf", u"Abruf aus einem Rahmenvertrag mit Restmenge."},
              {u"06", u"Lohnfertigung", u"Beistellteile und Fertigteil in einer Position."},
              {u"07", u"Import", u"Fremdwährung, Zollsatz und Ursprungsland."},
              {u"08", u"Strecke", u"Lieferanschrift ist die des Kunden."},
              {u"09", u"Chargen", u"Mit Charge des Herstellers und Prüfzeugnis nach EN 10204."},
              {u"10", u"Dienstleistung", u"Freier Text und Betrag ohne Artikelnummer."},
              {u"11", u"Verpackung", u"Mit Rückgabe von Leergut und Paletten."},
              {u"12", u"Muster", Null},
          });
}

}  // namespace

void sampleCodes(const RowSink& sink) {
  sampleAccounts(sink);
  sampleCommissions(sink);
  samplePartners(sink);
  sampleContracts(sink);
  sampleEntrySchemes(sink);
}

}  // namespace zqn::host
