// SPDX-License-Identifier: MIT
#include "host/database/schema/sample_parts.h"

namespace zqn::host {

namespace {

constexpr StringView openEnd = u"99999999999999";

// Key, name, promotion, valid from and to, for the customers of a price list, for one customer, currency.
void sampleHeads(const RowSink& sink) {
  addRows(
      sink, u"Preislistenkopf",
      {
          {u"-", u"(ohne Preisliste)", false, Null, openEnd, Null, Null, u"EUR"},
          {u"STD", u"Standardpreisliste", false, Null, openEnd, Null, Null, u"EUR"},
          {u"HW", u"Handwerk", false, Null, openEnd, Null, Null, u"EUR"},
          {u"IND", u"Industrie", false, Null, openEnd, Null, Null, u"EUR"},
          {u"HDL", u"Händler und Wiederverkäufer", false, Null, openEnd, Null, Null, u"EUR"},
          {u"GROSS", u"Großabnehmer", false, Null, openEnd, Null, Null, u"EUR"},
          {u"CHF", u"Preise in Schweizer Franken", false, Null, openEnd, Null, Null, u"CHF"},
          {u"USD", u"Export Übersee", false, Null, openEnd, Null, Null, u"USD"},
          // Promotions: for all customers, for those of a price list, for one customer.
          {u"A26FJ", u"Frühjahrsaktion 2026", true, u"20260301000000", u"20260531000000", Null, Null, u"EUR"},
          {u"A26HM", u"Hausmesse 2026", true, u"20260915000000", u"20260930000000", Null, Null, u"EUR"},
          {u"A26HW", u"Handwerkeraktion Sommer", true, u"20260601000000", u"20260831000000", u"HW", Null,
           u"EUR"},
          {u"A26ID", u"Industrie Jahresaktion", true, u"20260101000000", u"20261231000000", u"IND", Null,
           u"EUR"},
          {u"RESTE", u"Restposten", true, Null, openEnd, Null, Null, u"EUR"},
          {u"K0004", u"Rahmenvertrag Werft Nordhafen", true, u"20250101000000", u"20271231000000", Null,
           u"10004", u"EUR"},
          {u"K0011", u"Chemiepark Süd, ohne Enddatum", true, u"20240701000000", openEnd, Null, u"10011",
           u"EUR"},
          {u"KALT", u"Alter Bestand, beides gefüllt!", true, u"00000000000000", u"99991231999999", u"HDL",
           u"10012", u"EUR"},
          {u"NEU", Null, Null, Null, Null, Null, Null, Null},
      });
}

// Price list, article, from this quantity on, unit, price.
void sampleLines(const RowSink& sink) {
  addRows(sink, u"Staffelpreise",
          {
              {u"STD", u"KH-15-MS", 1.0, u"Stk", 12.9},
              {u"STD", u"KH-15-MS", 10.0, u"Stk", 11.5},
              {u"STD", u"KH-15-MS", 100.0, u"Stk", 9.95},
              {u"STD", u"ROHR-28-VZ", 1.0, u"m", 7.4},
              {u"STD", u"ROHR-28-VZ", 60.0, u"m", 6.35},
              {u"HW", u"KH-15-MS", 1.0, u"Stk", 10.8},
              {u"HW", u"ORING-20X2", 100.0, u"Stk", 0.085},
              {u"IND", u"HYD-AGG-15", 1.0, u"Stk", 8990.0},
              {u"IND", u"OEL-HLP46", 20.0, u"l", 3.45},
              {u"HDL", u"KH-15-MS", 50.0, u"Stk", 8.7},
              {u"HDL", u"ORING-20X2", 1000.0, u"Stk", 0.041},
              {u"GROSS", u"ROHR-28-VZ", 600.0, u"m", 5.2},
              {u"CHF", u"KH-15-MS", 1.0, u"Stk", 13.8},
              {u"A26FJ", u"ORING-20X2", 1.0, u"Stk", 0.06},
              {u"A26HW", u"ROHR-28-VZ", 1.0, u"m", 5.9},
              {u"K0004", u"OEL-HLP46", 200.0, u"l", 2.88},
              {u"K0011", Null, Null, Null, Null},
          });
}

void sampleSettings(const RowSink& sink) {
  addRows(sink, u"Einstellungen",
          {{u"Allgemein", u"Landeswährung", u"", u"EUR", u"Währung neuer Preislisten"}});
}

}  // namespace

void samplePrices(const RowSink& sink) {
  sampleHeads(sink);
  sampleLines(sink);
  sampleSettings(sink);
}

}  // namespace zqn::host
