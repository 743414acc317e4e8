// SPDX-License-Identifier: MIT
#include "host/database/schema/schema.h"

#include <algorithm>

#include "runtime/error.h"

namespace zqn::host {

namespace {

Column key(StringView name, int length) { return {name, ColumnKind::Text, length, false}; }
Column text(StringView name, int length) { return {name, ColumnKind::Text, length}; }
Column longText(StringView name) { return {name, ColumnKind::LongText}; }
Column whole(StringView name) { return {name, ColumnKind::Whole}; }
Column keyNumber(StringView name) { return {name, ColumnKind::Whole, 0, false}; }
Column number(StringView name) { return {name, ColumnKind::Number}; }
Column flag(StringView name) { return {name, ColumnKind::Flag}; }
Column date14(StringView name) { return {name, ColumnKind::Date14, 14}; }
Column serial(StringView name) { return {name, ColumnKind::Serial, 0, false}; }

// The generic form hides the third column of its list by position: key, Langtext, Kurztext.
Table group(StringView name, StringView keyColumn) {
  return {name, {key(keyColumn, 15), text(u"Langtext", 50), text(u"Kurztext", 50)}, {keyColumn}};
}

Table coded(StringView name, StringView keyColumn, StringView textColumn, int textLength) {
  return {name, {key(keyColumn, 15), text(textColumn, textLength)}, {keyColumn}};
}

Table entryScheme(StringView name) {
  return {
      name, {key(u"ErfSchema", 15), text(u"Bezeichnung", 50), text(u"Beschreibung", 255)}, {u"ErfSchema"}};
}

Table paymentTypes(StringView name) {
  return {name,
          {key(u"Zahlungsart", 15), text(u"Kurztext", 30), flag(u"OhneFibu"), text(u"ZahlungsartFibu", 10),
           text(u"DefaultZahlungsbedSchl", 3), whole(u"OhneDruckSkonto")},
          {u"Zahlungsart"}};
}

std::vector<Table> makeTables() {
  return {
      // Payment
      {u"Zahlungsbedingungen",
       {key(u"ZahlBedSchl", 3), text(u"Kurztext", 100), whole(u"SkontoTage1"), whole(u"SkontoTage2"),
        whole(u"SkontoTage3"), whole(u"NettoTage"), number(u"SkontoProzent1"), number(u"SkontoProzent2"),
        number(u"SkontoProzent3")},
       {u"ZahlBedSchl"}},
      paymentTypes(u"Zahlungsarten"),
      paymentTypes(u"ZahlungsartenEK"),

      // Shipping
      {u"Versandtexte",
       {key(u"Versandart", 15), text(u"Kurztext", 30), text(u"LayoutFrachtbrief", 50),
        text(u"LayoutEtiketten", 50)},
       {u"Versandart"}},
      {u"VersandtexteEK", {key(u"Versandart", 15), text(u"Kurztext", 30)}, {u"Versandart"}},
      {.name = u"Versandformulare",
       .columns = {key(u"Layout", 15), text(u"Langtext", 50),
                   // "F" consignment note, "E" shipping label, "-" both.
                   Column{u"Typ", ColumnKind::Text, 1, false, u"-"}},
       .primaryKey = {u"Layout", u"Typ"},
       .catalogue = false},

      // Texts of payment and shipping types
      {u"Textbausteine",
       {key(u"Textart", 3), key(u"TextNummer", 15), key(u"ZusatztextNummer", 3), key(u"SprachKZ", 3),
        text(u"Kurztext", 50), longText(u"Langtext"), text(u"WoDrucken", 8), text(u"Schriftart", 50),
        whole(u"Schriftgröße"), text(u"Schriftstil", 10)},
       {u"Textart", u"TextNummer", u"ZusatztextNummer", u"SprachKZ"}},

      // Groups
      group(u"Artikelgruppen", u"Artikelgruppe"),
      group(u"Einkaufsgruppen", u"Einkaufsgruppe"),
      group(u"Kundengruppen", u"Kundengruppe"),
      group(u"KundengruppenShop", u"Kundengruppe"),
      group(u"Verkaufsgruppen", u"Verkaufsgruppe"),
      group(u"VerkaufsgruppenShop", u"Verkaufsgruppe"),

      // A key and a text
      coded(u"Aufwandskontokennungen", u"AufwandskontoKennung", u"Langtext", 30),
      coded(u"Erlöskontokennungen", u"ErlöskontoKennung", u"Langtext", 30),
      coded(u"ProvisionsgruppenArtikel", u"PRVGruppeArtikel", u"Bezeichnung", 30),
      coded(u"ProvisionsgruppenKunde", u"PRVGruppeKunde", u"Bezeichnung", 30),
      coded(u"Lieferantengruppen", u"Lieferantengruppe", u"Langtext", 50),
      coded(u"Vertragsarten", u"Vertragsart", u"Kurztext", 30),
      coded(u"Mitbewerber", u"Mitbewerber", u"Bezeichnung", 50),
      coded(u"Adressherkunft", u"Herkunft", u"Bezeichnung", 50),
      coded(u"KontaktGruende", u"GrundSchl", u"Text", 50),
      entryScheme(u"Erfassungsschema"),
      entryScheme(u"ErfassungsschemaEK"),

      // Countries and booking ranges
      {u"Laendernamen",
       {key(u"Kennung", 15), text(u"ISOCode", 3), text(u"BezeichnungDefault", 50)},
       {u"Kennung"}},
      {u"Nummernkreis_Buchungskreise",
       {key(u"Buchungskreis", 3), key(u"Herkunft", 50), text(u"Beschreibung", 50)},
       {u"Herkunft", u"Buchungskreis"}},

      // CRM and contracts
      {u"Vertriebsstati",
       {key(u"Status", 10), text(u"Bezeichnung", 30), flag(u"AutoOverwrite"), whole(u"Gewichtung")},
       {u"Status"}},
      {u"Kontaktgruppen",
       {key(u"Kontaktgruppe", 15), text(u"Bezeichnung", 30), flag(u"Historie"), flag(u"HelpDesk"),
        text(u"VertriebsStatus", 10), text(u"Adressherkunft", 15), flag(u"AktLetzterKontakt"),
        flag(u"AktLetzterBesuch")},
       {u"Kontaktgruppe"}},
      {u"SelektionskriterienVertrag", {key(u"Kriterium", 30)}, {u"Kriterium"}},
      {u"Kuendigungsgruende",
       {key(u"GrundVerlorenSchl", 15), text(u"Text", 50), whole(u"Anzeigetyp")},
       {u"GrundVerlorenSchl"}},
      {u"SelectionListValues",
       {key(u"ReferenceType", 50), keyNumber(u"FieldID"), key(u"ListValue", 255)},
       {u"ReferenceType", u"FieldID", u"ListValue"}},
      {u"Keywords", {key(u"Keyword", 30), key(u"Section", 50)}, {u"Section", u"Keyword"}},

      // Prices, customers, offers
      {u"Preislistenkopf",
       {key(u"Preisliste", 5), text(u"Langtext", 30), flag(u"GlobalePreisliste"), date14(u"GültigVon"),
        date14(u"GültigBis"), text(u"FuerPreisliste", 5), text(u"FuerKunde", 10), text(u"Währung", 10)},
       {u"Preisliste"}},
      {.name = u"Staffelpreise",
       .columns = {text(u"Preisliste", 5), text(u"Artikelnummer", 20), number(u"AbMenge"),
                   text(u"Mengeneinheit", 5), number(u"Preis"), serial(u"ID")},
       .primaryKey = {u"ID"},
       .indexed = {u"Preisliste"}},
      {.name = u"Kundenstamm",
       .columns = {key(u"Kundennummer", 10), text(u"Bez1", 50), text(u"Bez2", 50), text(u"Strasse", 50),
                   text(u"PLZ", 10), text(u"Ort", 50), text(u"Land", 15), text(u"Telefon", 30),
                   text(u"Kundengruppe", 15), text(u"Preisliste", 5), text(u"Zahlungsart", 15),
                   text(u"ZahlBedSchl", 3), text(u"Versandart", 15), text(u"VertriebsStatus", 10)},
       .primaryKey = {u"Kundennummer"}},
      {.name = u"Angebotskopf",
       .columns = {keyNumber(u"Angebotsnummer"), text(u"Kundennummer", 10), date14(u"Angebotsdatum"),
                   text(u"Betreff", 50), number(u"Nettobetrag"), text(u"Währung", 10), text(u"Vorlage", 50)},
       .primaryKey = {u"Angebotsnummer"},
       .indexed = {u"Vorlage"}},

      // The host's own settings; an empty Benutzer is the global setting.
      {.name = u"Einstellungen",
       .columns = {key(u"Sektion", 50), key(u"Schluessel", 50),
                   Column{u"Benutzer", ColumnKind::Text, 50, false, u""}, longText(u"Wert"),
                   longText(u"Beschreibung")},
       .primaryKey = {u"Sektion", u"Schluessel", u"Benutzer"},
       .catalogue = false},
  };
}

}  // namespace

std::size_t Table::position(StringView column) const {
  const auto found = std::ranges::find(columns, column, &Column::name);
  if (found == columns.end()) throw RuntimeError(error::ItemNotFound);
  return static_cast<std::size_t>(found - columns.begin());
}

std::size_t Table::width() const {
  return columns.size() - (columns.back().kind == ColumnKind::Serial ? 1 : 0);
}

const std::vector<Table>& tables() {
  static const std::vector<Table> all = makeTables();
  return all;
}

const Table& table(StringView name) {
  const auto found = std::ranges::find(tables(), name, &Table::name);
  if (found == tables().end()) throw RuntimeError(error::TableNotFound, String(name));
  return *found;
}

}  // namespace zqn::host
