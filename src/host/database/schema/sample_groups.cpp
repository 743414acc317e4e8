// SPDX-License-Identifier: MIT
#include "host/database/schema/sample_parts.h"

namespace zqn::host {

// Key, long text, short text.
void sampleGroups(const RowSink& sink) {
  addRows(sink, u"Artikelgruppen",
          {
              {u"-", u"(ohne Gruppe)", u"-"},
              {u"ANTRIEB", u"Antriebstechnik, Getriebe und Motoren", u"Antriebstechnik"},
              {u"ARMATUREN", u"Armaturen für Wasser, Gas und Dampf", u"Armaturen"},
              {u"ARBEITSSCHUTZ", u"Arbeitsschutz und Berufskleidung", u"Arbeitsschutz"},
              {u"BEFESTIGUNG", u"Befestigungstechnik, Dübel und Anker", u"Befestigung"},
              {u"DICHTUNGEN", u"Dichtungen, O-Ringe und Packungen", u"Dichtungen"},
              {u"ELEKTRO", u"Elektromaterial und Schalttechnik", u"Elektro"},
              {u"HYDRAULIK", u"Hydraulikzylinder, Pumpen und Aggregate", u"Hydraulik"},
              {u"KLEBSTOFFE", u"Klebstoffe, Öle und Schmierstoffe", u"Chemie"},
              {u"PNEUMATIK", u"Pneumatik und Druckluftzubehör", u"Pneumatik"},
              {u"ROHRE", u"Rohre, Bögen und Flansche", u"Rohre"},
              {u"SCHLAEUCHE", u"Schläuche und Schlaucharmaturen", u"Schläuche"},
              {u"SCHRAUBEN", u"Schrauben, Muttern und Scheiben", u"Schrauben"},
              {u"SONSTIGES", u"Sonstige Ware", Null},
              {u"WÄLZLAGER", u"Wälzlager und Lagergehäuse", u"Wälzlager"},
              {u"WERKZEUG123456Z", u"Handwerkzeuge, Elektrowerkzeuge und Messwerkzeuge!", u"Werkzeug"},
          });
  addRows(sink, u"Einkaufsgruppen",
          {
              {u"-", u"(ohne Gruppe)", u"-"},
              {u"A", u"A-Artikel mit Rahmenvertrag", u"A-Artikel"},
              {u"B", u"B-Artikel mit Meldebestand", u"B-Artikel"},
              {u"C", u"C-Artikel im Kanban", u"C-Artikel"},
              {u"BÜRO", u"Büromaterial", u"Büro"},
              {u"DIENST", u"Dienstleistungen und Fremdarbeiten", u"Dienstleistung"},
              {u"ENERGIE", u"Energie und Treibstoffe", u"Energie"},
              {u"ERSATZ", u"Ersatzteile nach Bedarf", u"Ersatzteile"},
              {u"IMPORT-ASIEN", u"Importware Asien, Vorlauf 12 Wochen", u"Import Asien"},
              {u"IMPORT-EU", u"Importware Europäische Union", u"Import EU"},
              {u"INVEST", u"Investitionsgüter", u"Invest"},
              {u"LAGER", u"Lagerware Inland", u"Lagerware"},
              {u"STRECKE", u"Streckenware", u"Strecke"},
              {u"VERPACKUNG", u"Verpackungsmaterial und Paletten", Null},
          });
  addRows(sink, u"Kundengruppen",
          {
              {u"-", u"(ohne Gruppe)", u"-"},
              {u"ANLAGENBAU", u"Anlagen- und Maschinenbau", u"Anlagenbau"},
              {u"BAU", u"Bauunternehmen und Bauhöfe", u"Bau"},
              {u"BEHÖRDE", u"Behörden und öffentliche Auftraggeber", u"Behörden"},
              {u"CHEMIE", u"Chemische Industrie und Pharma", u"Chemie"},
              {u"ENERGIE", u"Stadtwerke und Energieversorger", u"Energie"},
              {u"EXPORT", u"Kunden außerhalb der Europäischen Union", u"Export"},
              {u"HANDEL", u"Wiederverkäufer", u"Handel"},
              {u"HANDWERK", u"Handwerk: Sanitär, Heizung, Schlosserei", u"Handwerk"},
              {u"INTERN", u"Eigenverbrauch und Filialen", Null},
              {u"KFZ", u"Kfz-Werkstätten und Fuhrparks", u"Kfz"},
              {u"LANDWIRT", u"Landwirtschaft und Gartenbau", u"Landwirtschaft"},
              {u"LEBENSMITTEL", u"Lebensmittel- und Getränkeindustrie", u"Lebensmittel"},
              {u"PRIVAT", u"Privatkunden", u"Privat"},
              {u"SCHLÜSSEL", u"Schlüsselkunden mit Jahresvereinbarung", u"Schlüsselkunden"},
          });
  addRows(sink, u"KundengruppenShop",
          {
              {u"AKTION", u"Teilnehmer der Frühjahrsaktion", u"Aktion"},
              {u"BASIS", u"Registrierte Besteller", u"Basis"},
              {u"BÜRO", u"Bestellung durch das Büro des Kunden", u"Büro"},
              {u"FILIALE", u"Filialen mit Abrufkontingent", u"Filiale"},
              {u"GAST", u"Gastbesteller", u"Gast"},
              {u"GOLD", u"Kunden ab 50.000 € Jahresumsatz", u"Gold"},
              {u"LAGER", u"Bestellung mit Handscanner", u"Scanner"},
              {u"MONTEUR", u"Monteure mit App", u"Monteur"},
              {u"PLATIN", u"Kunden ab 250.000 € Jahresumsatz", u"Platin"},
              {u"PRIVAT", u"Endverbraucher", Null},
              {u"SCHULE", u"Schulen und Berufsschulen", u"Schule"},
              {u"SILBER", u"Kunden ab 10.000 € Jahresumsatz", u"Silber"},
              {u"TEST", Null, Null},
          });
  addRows(sink, u"Verkaufsgruppen",
          {
              {u"-", u"(ohne Gruppe)", u"-"},
              {u"AKTION", u"Aktionsware", u"Aktion"},
              {u"AUSLAUF", u"Auslaufartikel und Restposten", u"Auslauf"},
              {u"BAUSATZ", u"Baugruppen und Sätze", u"Bausätze"},
              {u"DIENST", u"Montage, Wartung und Prüfung", u"Dienstleistung"},
              {u"EIGEN", u"Eigenmarke", u"Eigenmarke"},
              {u"ERSATZ", u"Ersatzteile", u"Ersatzteile"},
              {u"KATALOG", u"Katalogware", u"Katalog"},
              {u"MIETE", u"Mietgeräte", u"Miete"},
              {u"NETTO", u"Nettoartikel ohne Rabatt", u"Netto"},
              {u"PROJEKT", u"Projektgeschäft", u"Projekt"},
              {u"SONDER", u"Sonderanfertigungen nach Zeichnung", u"Sonderanfertigung"},
              {u"STRECKE", u"Streckengeschäft", u"Strecke"},
              {u"ZUBEHÖR", u"Zubehör", Null},
          });
  addRows(sink, u"VerkaufsgruppenShop",
          {
              {u"-", u"(ohne Gruppe)", u"-"},
              {u"01-NEU", u"Neuheiten", u"Neu"},
              {u"02-TOP", u"Meistverkauft", u"Top"},
              {u"03-ANGEBOT", u"Angebote der Woche", u"Angebote"},
              {u"10-ROHR", u"Rohr und Armatur", u"Rohr"},
              {u"20-DICHT", u"Dichten und Kleben", u"Dichten"},
              {u"30-ANTRIEB", u"Antreiben und Lagern", u"Antrieb"},
              {u"40-DRUCK", u"Druckluft und Hydraulik", u"Druckluft"},
              {u"50-SCHRAUBE", u"Schrauben und Befestigen", u"Schrauben"},
              {u"60-WERKZEUG", u"Werkzeug und Maschinen", u"Werkzeug"},
              {u"70-SCHUTZ", u"Schützen und Kleiden", u"Schutz"},
              {u"80-ELEKTRO", u"Elektro und Licht", u"Elektro"},
              {u"90-BETRIEB", u"Betriebseinrichtung", u"Betrieb"},
              {u"99-REST", u"Restposten", Null},
          });
}

}  // namespace zqn::host
