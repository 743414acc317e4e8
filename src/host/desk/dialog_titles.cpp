// SPDX-License-Identifier: MIT
#include "host/desk/dialog_titles.h"

namespace zqn::host {

namespace {

constexpr DialogTitle titles[] = {
    {21, u"Vertrieb und CRM", u"Vertriebsstati"},
    {36, u"Vertrieb und CRM", u"Vertriebsstatus ändern"},
    {25, u"Vertrieb und CRM", u"CRM-Kategorien"},
    {37, u"Vertrieb und CRM", u"Kontaktgründe"},
    {23, u"Vertrieb und CRM", u"Adressherkunft"},
    {22, u"Vertrieb und CRM", u"Mitbewerber"},
    {32, u"Vertrieb und CRM", u"Kündigungsgründe: Kunde"},
    {19, u"Verträge", u"Vertragsarten"},
    {26, u"Verträge", u"Selektionskriterien"},
    {33, u"Verträge", u"Kündigungsgründe: Vertrag"},
    {16, u"Preise und Angebote", u"Preislisten"},
    {29, u"Preise und Angebote", u"Angebot erstellen"},
    {30, u"Preise und Angebote", u"Angebotsvorlage speichern"},
    {3, u"Zahlung", u"Zahlungsbedingungen"},
    {1, u"Zahlung", u"Zahlungsarten Verkauf"},
    {2, u"Zahlung", u"Zahlungsarten Einkauf"},
    {1, u"Zahlung", u"Zahlungsarten Verkauf", true},
    {2, u"Zahlung", u"Zahlungsarten Einkauf", true},
    {4, u"Versand", u"Versandarten Verkauf"},
    {18, u"Versand", u"Versandarten Einkauf"},
    {5, u"Gruppen", u"Kundengruppen"},
    {6, u"Gruppen", u"Kundengruppen Shop"},
    {14, u"Gruppen", u"Lieferantengruppen"},
    {8, u"Gruppen", u"Artikelgruppen"},
    {9, u"Gruppen", u"Verkaufsgruppen"},
    {20, u"Gruppen", u"Verkaufsgruppen Shop"},
    {10, u"Gruppen", u"Einkaufsgruppen"},
    {11, u"Gruppen", u"Provisionsgruppen Artikel"},
    {7, u"Gruppen", u"Provisionsgruppen Kunde"},
    {12, u"Konten und Nummern", u"Erlöskontokennungen"},
    {13, u"Konten und Nummern", u"Aufwandskontokennungen"},
    {27, u"Konten und Nummern", u"Buchungskreise"},
    {15, u"Belege und Erfassung", u"Erfassungsschema Verkauf"},
    {17, u"Belege und Erfassung", u"Erfassungsschema Einkauf"},
    {34, u"Belege und Erfassung", u"Aufteilung nach Charge und Seriennummer"},
    {31, u"Belege und Erfassung", u"OMR/OME-Einstellungen"},
    {24, u"Allgemein", u"Ländernamen"},
    {28, u"Allgemein", u"Wertlisten"},
    {35, u"Allgemein", u"Schlagworte"},
};

}  // namespace

std::span<const DialogTitle> dialogTitles() noexcept { return titles; }

std::vector<StringView> paramNames(std::int32_t kind) {
  switch (kind) {
    case 28:
      return {u"Wert", u"Art des Objekts", u"Nummer des Feldes", u"Titel des Fensters"};
    case 34:
      return {u"Aufteilung", u"Menge", u"Mengeneinheit", u"Aufteilungsart", u"Verfalldatum Pflicht"};
    case 35:
      return {u"Schlagwort", u"Abschnitt"};
    case 27:
      return {u"Herkunft"};
    case 29:
      return {u"Beliebig"};
    case 30:
      return {u"Angebotsnummer"};
    case 31:
      return {u"Belegart"};
    case 36:
      return {u"Grund"};
    default:
      return {u"Schlüssel"};
  }
}

StringView resultName(std::int32_t kind) {
  switch (kind) {
    case 27:
      return u"Schlüssel des Buchungskreises";
    case 28:
      return u"Wert";
    case 29:
      return u"Angebotsnummer, -1 für ein neues Angebot, Null nach Abbruch";
    case 30:
      return u"Angebotsnummer";
    case 31:
      return u"ob gespeichert wurde";
    case 34:
      return u"Aufteilung";
    case 35:
      return u"Schlagwort";
    case 36:
      return u"Grund, leer nach Abbruch";
    default:
      return u"Schlüssel";
  }
}

}  // namespace zqn::host
