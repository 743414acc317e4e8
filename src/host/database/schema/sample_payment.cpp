// SPDX-License-Identifier: MIT
#include "host/database/schema/sample_parts.h"
#include "host/database/schema/schema.h"

namespace zqn::host {

namespace {

void sampleTerms(const RowSink& sink) {
  // Key, sentence, days of the three steps, net days, percent of the three steps.
  addRows(sink, u"Zahlungsbedingungen",
          {
              {u"00", u"sofort rein Netto.", 0, 0, 0, 0, 0.0, 0.0, 0.0},
              {u"01", u"1 Tag netto.", 0, 0, 0, 1, 0.0, 0.0, 0.0},
              {u"07", u"7 Tage netto.", 0, 0, 0, 7, 0.0, 0.0, 0.0},
              {u"10", u"10 Tage netto.", 0, 0, 0, 10, 0.0, 0.0, 0.0},
              {u"14", u"14 Tage netto.", 0, 0, 0, 14, 0.0, 0.0, 0.0},
              {u"30", u"30 Tage netto.", 0, 0, 0, 30, 0.0, 0.0, 0.0},
              {u"60", u"60 Tage netto.", 0, 0, 0, 60, 0.0, 0.0, 0.0},
              {u"90", u"90 Tage netto.", Null, Null, Null, 90, Null, Null, Null},
              {u"S1", u"10 Tage 2%, 30 Tage netto.", 10, 0, 0, 30, 2.0, 0.0, 0.0},
              {u"S2", u"14 Tage 2%, 30 Tage netto.", 14, 0, 0, 30, 2.0, 0.0, 0.0},
              {u"S3", u"14 Tage 2,5%, 45 Tage netto.", 14, 0, 0, 45, 2.5, 0.0, 0.0},
              {u"S4", u"8 Tage 3%, 14 Tage 2%, 30 Tage netto.", 8, 14, 0, 30, 3.0, 2.0, 0.0},
              {u"S5", u"10 Tage 3%, 20 Tage 2%, 30 Tage netto.", 10, 20, 0, 30, 3.0, 2.0, 0.0},
              {u"S6", u"7 Tage 4%, 14 Tage 3%, 21 Tage 2%, 60 Tage netto.", 7, 14, 21, 60, 4.0, 3.0, 2.0},
              {u"S7", u"10 Tage 3%.", 10, 0, 0, 0, 3.0, 0.0, 0.0},
              {u"S8", u"1 Tag 5%, 10 Tage netto.", 1, 0, 0, 10, 5.0, 0.0, 0.0},
              {u"X1", Null, Null, Null, Null, Null, Null, Null, Null},
          });
}

void sampleSalesTypes(const RowSink& sink) {
  // Key, short text, no accounting, accounting code, default terms, terms not printed.
  addRows(sink, u"Zahlungsarten",
          {
              {u"-", u"(nicht angegeben)", false, Null, Null, 0},
              {u"BAR", u"Barzahlung", true, u"-", u"00", -1},
              {u"EC", u"girocard", true, u"-", u"00", -1},
              {u"FIN", u"Finanzierung", false, Null, Null, 0},
              {u"GUT", u"Verrechnung mit Gutschrift", false, Null, u"00", -1},
              {u"KK", u"Kreditkarte", false, u"K", u"00", -1},
              {u"LAS", u"SEPA-Basislastschrift", false, u"E", u"S1", 0},
              {u"LFI", u"SEPA-Firmenlastschrift", false, u"E", u"07", 0},
              {u"NN", u"Nachnahme", false, u"N", u"00", -1},
              {u"PAY", u"PayPal", false, u"P", u"00", -1},
              {u"RAT", u"Ratenzahlung nach Vereinbarung", false, Null, Null, 0},
              {u"SCH", u"Scheck", false, u"S", u"10", 0},
              {u"UEB", u"Überweisung", false, Null, u"S2", 0},
              {u"VOR", u"Vorauskasse", false, u"V", u"00", -1},
              {u"WEC", u"Wechsel", false, u"W", u"90", 0},
              {u"ZZZ", Null, Null, Null, Null, Null},
          });
  addTextBlocks(
      sink, u"ZAA",
      {
          {u"BAR", everyLanguage, u"Barzahlung", u"Betrag dankend in bar erhalten.", u"---R----"},
          {u"EC", everyLanguage, u"girocard", u"Betrag mit girocard bezahlt.", u"---R----"},
          {u"FIN", everyLanguage, u"Finanzierung", u"Die Zahlung erfolgt über unseren Finanzierungspartner.",
           u"NB-R----"},
          {u"GUT", everyLanguage, u"Verrechnung mit Gutschrift",
           u"Der Betrag wird mit Ihrer Gutschrift verrechnet.\r\nBitte überweisen Sie nur den Restbetrag.",
           u"---RG---"},
          {u"KK", everyLanguage, u"Kreditkarte", u"Der Betrag wird Ihrer Kreditkarte belastet.", u"-B-R----"},
          {u"LAS", everyLanguage, u"SEPA-Basislastschrift",
           u"Wir ziehen den Betrag zum Fälligkeitstag von Ihrem Konto ein.\r\n"
           u"Unsere Gläubiger-Identifikationsnummer: DE98ZZZ09999999999",
           u"NB-R----"},
          {u"LAS", u"ENG", u"SEPA direct debit",
           u"The amount will be collected from your account by SEPA core direct debit on the due date.",
           u"NB-R----"},
          {u"LFI", everyLanguage, u"SEPA-Firmenlastschrift",
           u"Wir ziehen den Betrag im SEPA-Firmenlastschriftverfahren ein.", u"NB-R----"},
          {u"NN", everyLanguage, u"Nachnahme", u"Die Lieferung erfolgt gegen Nachnahme.", u"NBLR----"},
          {u"PAY", everyLanguage, u"PayPal", u"Der Betrag wurde über PayPal bezahlt.", u"-B-R----"},
          {u"RAT", everyLanguage, u"Ratenzahlung nach Vereinbarung",
           u"Die Raten sind jeweils zum 1. des Monats fällig.", u"NBLRG---"},
          {u"SCH", everyLanguage, u"Scheck", Null, u"NBLR----"},
          {u"UEB", everyLanguage, u"Überweisung",
           u"Bitte überweisen Sie den Betrag unter Angabe der Rechnungsnummer auf eines unserer Konten.",
           u"NBLR----"},
          {u"UEB", u"ENG", u"Bank transfer", u"Please transfer the amount quoting our invoice number.",
           u"NBLR----"},
          {u"UEB", u"FRA", u"Virement bancaire",
           u"Veuillez régler par virement en indiquant notre numéro de facture.", u"NBLR----"},
          {u"VOR", everyLanguage, u"Vorauskasse", u"Die Lieferung erfolgt nach Eingang Ihrer Zahlung.",
           u"NB------"},
          {u"WEC", everyLanguage, u"Wechsel", u"Zahlung durch Wechsel. Diskontspesen gehen zu Ihren Lasten.",
           u"NB-R----"},
      });
}

void samplePurchaseTypes(const RowSink& sink) {
  addRows(sink, u"ZahlungsartenEK",
          {
              {u"-", u"(nicht angegeben)", false, Null, Null, 0},
              {u"ABB", u"Abbuchungsauftrag", false, u"E", u"S1", 0},
              {u"AKK", u"Dokumentenakkreditiv", false, u"A", u"60", 0},
              {u"ANZ", u"Anzahlung 30 %, Rest nach Erh.", false, Null, u"30", 0},
              {u"BAR", u"Barzahlung", true, u"-", u"00", -1},
              {u"INK", u"Dokumenteninkasso", false, u"D", u"00", 0},
              {u"KK", u"Firmenkreditkarte", false, u"K", u"00", -1},
              {u"LAS", u"SEPA-Firmenlastschrift", false, u"E", u"S2", 0},
              {u"RAH", u"Zahlung nach Rahmenvertrag", false, Null, u"60", 0},
              {u"SCH", u"Verrechnungsscheck", false, u"S", u"14", 0},
              {u"UEB", u"Überweisung", false, Null, u"S4", 0},
              {u"VER", u"Verrechnung", false, Null, Null, -1},
              {u"VOR", u"Vorauskasse", false, u"V", u"00", -1},
              {u"ZEN", u"Zentralregulierung", false, u"Z", u"S5", 0},
          });
  addTextBlocks(
      sink, u"EZA",
      {
          {u"ABB", everyLanguage, u"Abbuchungsauftrag", u"Bitte buchen Sie den Betrag ab.", u"-----AE-"},
          {u"AKK", everyLanguage, u"Dokumentenakkreditiv",
           u"Zahlung durch unwiderrufliches Dokumentenakkreditiv.", u"-----AE-"},
          {u"AKK", u"ENG", u"Letter of credit", u"Payment by irrevocable documentary letter of credit.",
           u"-----AE-"},
          {u"ANZ", everyLanguage, u"Anzahlung 30 %, Rest nach Erh.",
           u"30 % Anzahlung bei Bestellung,\r\n70 % nach Erhalt der Ware.", u"-----AE-"},
          {u"BAR", everyLanguage, u"Barzahlung", u"Zahlung bar bei Abholung.", u"------E-"},
          {u"KK", everyLanguage, u"Firmenkreditkarte", Null, u"------E-"},
          {u"LAS", everyLanguage, u"SEPA-Firmenlastschrift",
           u"Sie ziehen den Betrag im SEPA-Firmenlastschriftverfahren ein.", u"-----AEM"},
          {u"SCH", everyLanguage, u"Verrechnungsscheck", u"Zahlung durch Verrechnungsscheck.", u"-----AEM"},
          {u"UEB", everyLanguage, u"Überweisung",
           u"Wir überweisen nach Eingang der Ware und der ordnungsgemäßen Rechnung.", u"-----AEM"},
          {u"UEB", u"ENG", u"Bank transfer", u"We pay by bank transfer on receipt of goods and invoice.",
           u"-----AEM"},
          {u"VOR", everyLanguage, u"Vorauskasse", u"Wir zahlen nach Erhalt Ihrer Proforma-Rechnung.",
           u"-----AE-"},
          {u"ZEN", everyLanguage, u"Zentralregulierung",
           u"Die Zahlung erfolgt über unseren Zentralregulierer.", u"-----AEM"},
      });
}

}  // namespace

void samplePayment(const RowSink& sink) {
  sampleTerms(sink);
  sampleSalesTypes(sink);
  samplePurchaseTypes(sink);
}

}  // namespace zqn::host
