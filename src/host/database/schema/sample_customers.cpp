// SPDX-License-Identifier: MIT
#include "host/database/schema/sample_parts.h"

namespace zqn::host {

namespace {

// Number, name, second name, street, postcode, town, country, telephone, customer group, price list, payment
// type, terms, shipping type, sales status.
void sampleAddresses(const RowSink& sink) {
  addRows(
      sink, u"Kundenstamm",
      {
          {u"10001", u"Müller Sanitär GmbH", u"Heizung · Klima", u"Rosenstraße 12", u"50667", u"Köln", u"D",
           u"0221 555-0", u"HANDWERK", u"HW", u"UEB", u"S2", u"LKW", u"A1"},
          {u"10002", u"Stadtwerke Bad Wörishausen", u"Abteilung Einkauf", u"Am Wasserturm 3", u"87999",
           u"Bad Wörishausen", u"D", u"08247 555-100", u"ENERGIE", u"IND", u"UEB", u"30", u"SPEDITION",
           u"95"},
          {u"10003", u"Brauerei Grünbaum KG", Null, u"Malzgasse 7", u"96047", u"Bamberg", u"D",
           u"0951 555-31", u"LEBENSMITTEL", u"IND", u"LAS", u"S1", u"PAKET", u"50"},
          {u"10004", u"Werft Nordhafen AG", u"Zentrallager", u"Hafenstraße 101", u"24103", u"Kiel", u"D",
           u"0431 555-200", u"SCHLÜSSEL", u"GROSS", u"UEB", u"S4", u"SPEDITION", u"A1"},
          {u"10005", u"Schlosserei Weiß", u"Inh. Jörg Weiß", u"Lange Gasse 4", u"72070", u"Tübingen", u"D",
           u"07071 555-17", u"HANDWERK", u"HW", u"BAR", u"00", u"ABHOLUNG", u"A1"},
          {u"10006", u"Maschinenbau Österle GmbH & Co. KG", Null, u"Industriering 22", u"6850", u"Dornbirn",
           u"A", u"+43 5572 555-0", u"ANLAGENBAU", u"IND", u"UEB", u"S3", u"SPEDITION", u"60"},
          {u"10007", u"Garage du Léman S.A.", Null, u"Rue du Marché 9", u"1204", u"Genève", u"CH",
           u"+41 22 555 12 12", u"KFZ", u"STD", u"VOR", u"00", u"PAKET", u"10"},
          {u"10008", u"Baugesellschaft Havel mbH", u"Baustelle Potsdam", u"Uferweg 18", u"14467", u"Potsdam",
           u"D", u"0331 555-40", u"BAU", u"STD", u"UEB", u"30", u"KRANWAGEN", u"70"},
          {u"10009", u"Gemeinde Unterschwarzach", u"Bauhof", u"Rathausplatz 1", u"74869", u"Schwarzach", u"D",
           Null, u"BEHÖRDE", u"STD", u"UEB", u"14", u"LKW", u"40"},
          {u"10010", u"Agrarservice Lüneburger Land eG", Null, u"Heideweg 55", u"21335", u"Lüneburg", u"D",
           u"04131 555-66", u"LANDWIRT", u"STD", u"LFI", u"07", u"LKW", u"80"},
          {u"10011", u"Chemiepark Süd Betriebs-GmbH", u"Wareneingang Tor 5", u"Werkstraße 1", u"84489",
           u"Burghausen", u"D", u"08677 555-0", u"CHEMIE", u"GROSS", u"UEB", u"60", u"GEFAHRGUT", u"A1"},
          {u"10012", u"Technik-Handel Århus ApS", Null, u"Havnegade 14", u"8000", u"Aarhus", u"DK",
           u"+45 55 12 34 56", u"HANDEL", u"HDL", u"UEB", u"S5", u"SPEDITION", u"90"},
          {u"10013", u"Zakład Mechaniczny Łódź Sp. z o.o.", Null, u"ul. Fabryczna 8", u"90-001", u"Łódź",
           u"PL", u"+48 42 555 66 77", u"EXPORT", u"HDL", u"VOR", u"00", u"CONTAINER", u"20"},
          {u"10014", u"Molkerei Alpenblick eG", Null, u"Käsereiweg 2", u"87509", u"Immenstadt", u"D",
           u"08323 555-8", u"LEBENSMITTEL", Null, u"LAS", u"S1", u"EXPRESS", u"30"},
          {u"10015", u"Krause", u"Eva", u"Gartenweg 9", u"01067", u"Dresden", u"D", Null, u"PRIVAT", Null,
           u"NN", u"00", u"PAKET", u"05"},
          {u"10016", u"Filiale Bremen", Null, Null, Null, Null, Null, Null, u"INTERN", Null, Null, Null, Null,
           Null},
          {u"9999999999", u"Sammelkunde Barverkauf mit fünfzig Zeichen im Feld", Null, Null, Null, Null, u"D",
           Null, u"-", u"STD", u"BAR", u"00", u"ABHOLUNG", u"-"},
      });
}

// Number, customer, date, subject, net amount, currency, name as a template.
void sampleOffers(const RowSink& sink) {
  addRows(
      sink, u"Angebotskopf",
      {
          {2400001, u"10001", u"20240115000000", u"Armaturen Heizzentrale", 4280.5, u"EUR", Null},
          {2400017, u"10003", u"20240302000000", u"Schlauchleitungen Abfüllung", 1190.0, u"EUR",
           u"Schlauchleitungen Lebensmittel"},
          {2400044, u"10004", u"20240617000000", u"Jahresbedarf Dichtungen", 28450.75, u"EUR", Null},
          {2400101, u"10008", u"20241008000000", u"Rohrmaterial Baustelle", 9877.2, u"EUR",
           u"Baustelle Grundausstattung"},
          {2500002, u"10011", u"20250109000000", u"Wartung Druckluftnetz", 6400.0, u"EUR",
           u"Wartung Druckluft jährlich"},
          {2500013, u"10002", u"20250221000000", u"Absperrklappen DN 200", 15320.0, u"EUR", u""},
          {2500028, u"10006", u"20250318000000", u"Hydraulikaggregat 15 kW", 21990.0, u"EUR",
           u"Hydraulikaggregat mit Zubehör"},
          {2500039, u"10010", u"20250502000000", u"Ersatzteile Melktechnik", 815.3, u"EUR", Null},
          {2500052, u"10012", u"20250711000000", u"Handelssortiment Herbst", 33780.0, u"EUR",
           u"Handelssortiment (Größen S – XL)"},
          {2500066, u"10007", u"20250909000000", u"Druckluftwerkzeuge", 2450.0, u"CHF", Null},
          {2500081, u"10014", u"20251120000000", u"Pumpen und Frequenzumrichter", 12780.4, u"EUR", u"   "},
          {2600003, u"10005", u"20260112000000", u"Profile und Bleche", 640.0, u"EUR",
           u"Zuschnitt Schlosserei"},
          {2600004, u"10005", u"20260112000000", u"Profile und Bleche, Variante", 710.0, u"EUR", Null},
          {2600010, Null, Null, Null, Null, Null, u"Leeres Angebot mit einem Namen aus fünfzig Zeichen"},
      });
}

}  // namespace

void sampleCustomers(const RowSink& sink) {
  sampleAddresses(sink);
  sampleOffers(sink);
}

}  // namespace zqn::host
