// SPDX-License-Identifier: MIT
#include "host/database/schema/sample_parts.h"
#include "host/database/schema/schema.h"

namespace zqn::host {

namespace {

void sampleForms(const RowSink& sink) {
  addRows(sink, u"Versandformulare",
          {
              {u"-", u"(kein Layout)", u"-"},
              {u"NEUTRAL", u"Neutrales Blatt A5", u"-"},
              {u"FBCMR", u"CMR-Frachtbrief international", u"F"},
              {u"FBBAHN", u"Frachtbrief Bahn", u"F"},
              {u"FBGEFAHR", u"Frachtbrief mit Gefahrgutangaben", u"F"},
              {u"FBKOPF", u"Frachtbrief mit Firmenkopf", u"F"},
              {u"FBSPED", u"Speditionsauftrag A4", u"F"},
              {u"FBSTD", u"Frachtbrief A4", u"F"},
              {u"ET10X15", u"Versandetikett 100 × 150 mm", u"E"},
              {u"ET6X4", u"Versandetikett 60 × 40 mm", u"E"},
              {u"ETA6", u"Paketaufkleber A6", u"E"},
              {u"ETBOGEN", u"Etikettenbogen A4, 8 Stück", u"E"},
              {u"ETEXPRESS", u"Expressaufkleber rot", u"E"},
              {u"ETPALETTE", u"Palettenetikett A5 quer", u"E"},
          });
}

void sampleSalesShipping(const RowSink& sink) {
  addRows(
      sink, u"Versandtexte",
      {
          {u"ABHOLUNG", u"Selbstabholung", Null, Null},
          {u"BAHN", u"Bahnfracht", u"Frachtbrief Bahn", u"Palettenetikett A5 quer"},
          {u"BOTE", u"Kurier am selben Tag", Null, u"Expressaufkleber rot"},
          {u"BRIEF", u"Briefsendung", Null, u"Etikettenbogen A4, 8 Stück"},
          {u"CONTAINER", u"Seefracht im Container", u"CMR-Frachtbrief international",
           u"Palettenetikett A5 quer"},
          {u"DIREKT", u"Strecke direkt vom Hersteller", Null, Null},
          {u"EXPRESS", u"Express bis 12 Uhr", u"Neutrales Blatt A5", u"Expressaufkleber rot"},
          {u"GEFAHRGUT", u"Spedition mit Gefahrgut", u"Frachtbrief mit Gefahrgutangaben",
           u"Versandetikett 100 × 150 mm"},
          {u"KRANWAGEN", u"LKW mit Ladekran", u"Frachtbrief mit Firmenkopf", Null},
          {u"LKW", u"Eigener LKW", u"Frachtbrief mit Firmenkopf", u"Palettenetikett A5 quer"},
          {u"LUFTFRACHT", u"Luftfracht", u"CMR-Frachtbrief international", u"Versandetikett 100 × 150 mm"},
          {u"MONTEUR", u"Mitnahme durch den Monteur", Null, u"Altes Etikett 2019"},
          {u"PAKET", u"Paketdienst", Null, u"Versandetikett 100 × 150 mm"},
          {u"SPEDITION", u"Spedition frei Baustelle", u"Speditionsauftrag A4", u"Palettenetikett A5 quer"},
          {u"TEST", Null, Null, Null},
      });
  addTextBlocks(
      sink, u"VSA",
      {
          {u"ABHOLUNG", everyLanguage, u"Selbstabholung",
           u"Die Ware liegt zur Abholung bereit. Bitte bringen Sie diesen Beleg mit.", u"NBL--"},
          {u"BAHN", everyLanguage, u"Bahnfracht", u"Versand per Bahnfracht, unfrei.", u"NBLR-"},
          {u"BOTE", everyLanguage, u"Kurier am selben Tag", u"Zustellung durch Kurier am Tag der Bestellung.",
           u"NBL--"},
          {u"BRIEF", everyLanguage, u"Briefsendung", u"Versand als Brief.", u"--L--"},
          {u"CONTAINER", everyLanguage, u"Seefracht im Container",
           u"FOB Hamburg gemäß Incoterms 2020.\r\nVerladung im 20-Fuß-Container.", u"NBLR-"},
          {u"CONTAINER", u"ENG", u"Sea freight",
           u"FOB Hamburg according to Incoterms 2020.\r\nLoaded in a 20' container.", u"NBLR-"},
          {u"CONTAINER", u"FRA", u"Fret maritime", u"FOB Hambourg selon Incoterms 2020, chargé en conteneur.",
           u"NBLR-"},
          {u"DIREKT", everyLanguage, u"Strecke direkt vom Hersteller",
           u"Die Ware wird direkt vom Hersteller an die angegebene Anschrift geliefert.", u"NB---"},
          {u"EXPRESS", everyLanguage, u"Express bis 12 Uhr", u"Zustellung am nächsten Werktag bis 12 Uhr.",
           u"NBLR-"},
          {u"EXPRESS", u"ENG", u"Express by noon", u"Delivery by noon on the next working day.", u"NBLR-"},
          {u"GEFAHRGUT", everyLanguage, u"Spedition mit Gefahrgut",
           u"Beförderung nach ADR. Die Gefahrgutangaben stehen im Frachtbrief.", u"-BL--"},
          {u"KRANWAGEN", everyLanguage, u"LKW mit Ladekran",
           u"Anlieferung mit Ladekran, Zufahrt für 26 t erforderlich.", u"NBL--"},
          {u"LKW", everyLanguage, u"Eigener LKW", u"Lieferung frei Haus mit unserem LKW.", u"NBLR-"},
          {u"LKW", u"ENG", u"Own truck", u"Free delivery by our own truck.", u"NBLR-"},
          {u"LUFTFRACHT", everyLanguage, u"Luftfracht", u"CPT Zielflughafen gemäß Incoterms 2020.", u"NBLR-"},
          {u"PAKET", everyLanguage, u"Paketdienst",
           u"Versand durch Paketdienst, ab 250,00 € Warenwert frei Haus.", u"NBLRG"},
          {u"PAKET", u"ENG", u"Parcel service", u"Shipment by parcel service, free of charge from € 250.00.",
           u"NBLRG"},
          {u"SPEDITION", everyLanguage, u"Spedition frei Baustelle",
           u"Lieferung durch Spedition frei Baustelle, ohne Abladen.\r\n"
           u"Bitte nennen Sie uns einen Ansprechpartner mit Rufnummer.",
           u"NBLR-"},
      });
}

void samplePurchaseShipping(const RowSink& sink) {
  addRows(sink, u"VersandtexteEK",
          {
              {u"ABHOLUNG", u"Abholung durch uns"},
              {u"BAHN", u"Bahnfracht"},
              {u"CONTAINER", u"Seefracht im Container"},
              {u"DDP", u"Geliefert verzollt (DDP)"},
              {u"EXPRESS", u"Express"},
              {u"EXW", u"Ab Werk (EXW)"},
              {u"FREIHAUS", u"Frei Haus"},
              {u"GEBIET", u"Gebietsspediteur"},
              {u"KURIER", u"Kurier"},
              {u"LUFTFRACHT", u"Luftfracht"},
              {u"PAKET", u"Paketdienst"},
              {u"SPEDITION", u"Spedition des Lieferanten"},
              {u"STRECKE", u"Strecke direkt an den Kunden"},
              {u"UNBEKANNT", Null},
          });
  addTextBlocks(
      sink, u"EVA",
      {
          {u"ABHOLUNG", everyLanguage, u"Abholung durch uns",
           u"Bitte melden Sie die Ware abholbereit an einkauf@beispiel.example.", u"AE-"},
          {u"BAHN", everyLanguage, u"Bahnfracht", u"Versand per Bahnfracht frei Bestimmungsbahnhof.", u"AEM"},
          {u"CONTAINER", everyLanguage, u"Seefracht im Container", u"FOB Verschiffungshafen.", u"AEM"},
          {u"CONTAINER", u"ENG", u"Sea freight", u"FOB port of shipment.", u"AEM"},
          {u"DDP", everyLanguage, u"Geliefert verzollt (DDP)", u"DDP unser Lager gemäß Incoterms 2020.",
           u"AEM"},
          {u"DDP", u"ENG", u"Delivered duty paid (DDP)", u"DDP our warehouse according to Incoterms 2020.",
           u"AEM"},
          {u"EXPRESS", everyLanguage, u"Express", u"Bitte per Express senden, Mehrkosten tragen wir.",
           u"-E-"},
          {u"EXW", everyLanguage, u"Ab Werk (EXW)", u"EXW Ihr Werk gemäß Incoterms 2020.", u"AEM"},
          {u"FREIHAUS", everyLanguage, u"Frei Haus",
           u"Lieferung frei Haus einschließlich Verpackung.\r\nWarenannahme Mo.-Fr. 7:00 bis 15:30 Uhr, Tor "
           u"3.",
           u"AEM"},
          {u"GEBIET", everyLanguage, u"Gebietsspediteur", u"Versand über unseren Gebietsspediteur.", u"AE-"},
          {u"KURIER", everyLanguage, u"Kurier", u"Bitte durch Kurier senden.", u"-E-"},
          {u"PAKET", everyLanguage, u"Paketdienst", u"Versand durch Paketdienst.", u"AEM"},
          {u"STRECKE", everyLanguage, u"Strecke direkt an den Kunden",
           u"Bitte liefern Sie neutral verpackt direkt an unseren Kunden.", u"AE-"},
      });
}

}  // namespace

void sampleShipping(const RowSink& sink) {
  sampleForms(sink);
  sampleSalesShipping(sink);
  samplePurchaseShipping(sink);
}

}  // namespace zqn::host
