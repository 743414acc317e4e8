// SPDX-License-Identifier: MIT
//
// The catalogues of a key and one text, and all that they share. Each is a class of its own; what tells it
// apart is its row in the table below. Another one is one row, one short class at the end, and its kind in
// definitions.cpp:
//
//     {u"clsLagerorte", {u"Lagerorte", u"Lagerort", true}, u"Bezeichnung", 15, 50, u"Lagerorte bearbeiten",
//      u"Lagerort"},
//     class clsLagerorte final : public CodedCatalogue { ... ...valuesOf(codedCatalogues, u"clsLagerorte")...
#pragma once

#include "definitions/table_editor.h"

namespace zqn {

/// What one such catalogue does not share with the others.
struct CodedValues {
  /// The name of its class.
  const char16_t* definition;
  DefinitionTable table;
  const char16_t* textColumn;
  /// What a person can type, in characters.
  int keyLength;
  int textLength;
  /// Captions of the form, of the key and of the text; the list's columns take the last two.
  const char16_t* caption;
  const char16_t* keyCaption;
  const char16_t* textCaption = u"Bezeichnung";
};

class CodedCatalogue : public TableEditor {
 public:
  void ReadData(ado::Recordset& Recordset) override;

 protected:
  explicit CodedCatalogue(const CodedValues& values) : TableEditor(values.table), values_(values) {}
  void setUp() override;
  void writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) override;

 private:
  const CodedValues& values_;
};

// clang-format off
inline constexpr CodedValues codedCatalogues[] = {
    // Class                       Table, key column, "-" reserved                                    Text column     Lengths  Captions of form and key
    {u"clsWEKontoKennungen",       {u"Aufwandskontokennungen", u"AufwandskontoKennung", false},       u"Langtext",    15, 30, u"Aufwandskontokennungen bearbeiten", u"Aufw.kto-Kennung"},
    {u"clsErloeskontoKennungen",   {u"Erlöskontokennungen", u"ErlöskontoKennung", false},             u"Langtext",    15, 30, u"Erlöskontokennungen bearbeiten", u"Erlöskonto-Kennung"},
    {u"clsProvisionsgruppenArtikel", {u"ProvisionsgruppenArtikel", u"PRVGruppeArtikel", true},        u"Bezeichnung", 15, 30, u"Provisionsgruppen bearbeiten", u"Prov.gruppe"},
    {u"clsProvisionsgruppenKunde", {u"ProvisionsgruppenKunde", u"PRVGruppeKunde", true},              u"Bezeichnung", 15, 30, u"Provisionsgruppen bearbeiten", u"Prov.gruppe"},
    {u"clsLieferantengruppen",     {u"Lieferantengruppen", u"Lieferantengruppe", true},               u"Langtext",    15, 50, u"Lieferantengruppen bearbeiten", u"Lief.gruppe"},
    {u"clsVertragsarten",          {u"Vertragsarten", u"Vertragsart", true},                          u"Kurztext",    15, 30, u"Vertragsarten bearbeiten", u"Vertragsart"},
    {u"clsMitbewerber",            {u"Mitbewerber", u"Mitbewerber", true},                            u"Bezeichnung", 15, 50, u"Mitbewerber bearbeiten", u"Schlüssel"},
    {u"clsAdressHerkunft",         {u"Adressherkunft", u"Herkunft", true},                            u"Bezeichnung", 15, 50, u"Adressherkunft bearbeiten", u"Schlüssel"},
    {u"clsKontaktgrund",           {u"KontaktGruende", u"GrundSchl", true},                           u"Text",        15, 50, u"Kontaktgrund bearbeiten", u"Schlüssel"},
    {u"clsLaendernamen",           {u"Laendernamen", u"Kennung", true},                               u"BezeichnungDefault", 15, 50, u"Laendernamen bearbeiten", u"Schlüssel"},
    {u"clsBuchungskreise",         {u"Nummernkreis_Buchungskreise", u"Buchungskreis", true},          u"Beschreibung", 3, 50, u"Buchungskreise bearbeiten", u"Buchungskreis", u"Beschreibung"},
};
// clang-format on

/// Account codes of goods received, kind 13.
class clsWEKontoKennungen final : public CodedCatalogue {
 public:
  clsWEKontoKennungen() : CodedCatalogue(valuesOf(codedCatalogues, u"clsWEKontoKennungen")) {}
};

/// Account codes of revenues, kind 12.
class clsErloeskontoKennungen final : public CodedCatalogue {
 public:
  clsErloeskontoKennungen() : CodedCatalogue(valuesOf(codedCatalogues, u"clsErloeskontoKennungen")) {}
};

/// Commission groups of articles, kind 11.
class clsProvisionsgruppenArtikel final : public CodedCatalogue {
 public:
  clsProvisionsgruppenArtikel() : CodedCatalogue(valuesOf(codedCatalogues, u"clsProvisionsgruppenArtikel")) {}
};

/// Commission groups of customers, kind 7: the captions are those of kind 11.
class clsProvisionsgruppenKunde final : public CodedCatalogue {
 public:
  clsProvisionsgruppenKunde() : CodedCatalogue(valuesOf(codedCatalogues, u"clsProvisionsgruppenKunde")) {}
};

/// Supplier groups, kind 14.
class clsLieferantengruppen final : public CodedCatalogue {
 public:
  clsLieferantengruppen() : CodedCatalogue(valuesOf(codedCatalogues, u"clsLieferantengruppen")) {}
};

/// Kinds of contracts, kind 19.
class clsVertragsarten final : public CodedCatalogue {
 public:
  clsVertragsarten() : CodedCatalogue(valuesOf(codedCatalogues, u"clsVertragsarten")) {}
};

/// Competitors, kind 22.
class clsMitbewerber final : public CodedCatalogue {
 public:
  clsMitbewerber() : CodedCatalogue(valuesOf(codedCatalogues, u"clsMitbewerber")) {}
};

/// Where addresses come from, kind 23.
class clsAdressHerkunft final : public CodedCatalogue {
 public:
  clsAdressHerkunft() : CodedCatalogue(valuesOf(codedCatalogues, u"clsAdressHerkunft")) {}
};

/// Reasons of a contact, kind 37.
class clsKontaktgrund final : public CodedCatalogue {
 public:
  clsKontaktgrund() : CodedCatalogue(valuesOf(codedCatalogues, u"clsKontaktgrund")) {}
};

}  // namespace zqn
