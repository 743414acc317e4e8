// SPDX-License-Identifier: MIT
//
// The groups of articles, customers, purchase and sales: a key, a short text and a long text that fill each
// other. Each is a class of its own; what tells it apart is its row in the table below.
//
//     Row "Ware", long text only   -> both boxes show "Ware"
//     Saved with a short text only -> the long text gets it, too
#pragma once

#include "definitions/table_editor.h"

namespace zqn {

/// What one of these catalogues does not share with the others.
struct GroupValues {
  /// The name of its class.
  const char16_t* definition;
  DefinitionTable table;
  /// The columns of the list must come as key, long text, short text: the third is hidden by its position.
  const char16_t* listFields;
  /// Captions of the form and of the key.
  const char16_t* caption;
  const char16_t* keyCaption;
};

class GroupCatalogue : public TableEditor {
 public:
  /// An empty short text shows the long one.
  void ReadData(ado::Recordset& Recordset) override;
  /// The list shows key and long text.
  void ShowData(const Ref<ado::Recordset>& Recordset) override;

 protected:
  explicit GroupCatalogue(const GroupValues& values) : TableEditor(values.table), values_(values) {}
  void setUp() override;
  StringView listFields() const override { return values_.listFields; }
  /// A long text that is empty, or of blanks, gets the short one.
  void writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) override;

 private:
  const GroupValues& values_;
};

// clang-format off
inline constexpr GroupValues groupCatalogues[] = {
    // Class                   Table, key column, "-" reserved                     Columns of the list                       Captions of form and key
    {u"clsArtikelgruppe",       {u"Artikelgruppen", u"Artikelgruppe", true},       u"*",                                     u"Artikelgruppen bearbeiten", u"Artikelgruppe"},
    {u"clsEinkaufsgruppe",      {u"Einkaufsgruppen", u"Einkaufsgruppe", true},     u"*",                                     u"Einkaufsgruppen bearbeiten", u"Einkaufsgruppe"},
    {u"clsKundengruppen",       {u"Kundengruppen", u"Kundengruppe", true},         u"*",                                     u"Kundengruppen bearbeiten", u"Kundengruppe"},
    {u"clsKundengruppeShop",    {u"KundengruppenShop", u"Kundengruppe", false},    u"*",                                     u"Kundengruppen Shop bearbeiten", u"Kundengruppe"},
    {u"clsVerkaufsgruppe",      {u"Verkaufsgruppen", u"Verkaufsgruppe", true},     u"*",                                     u"Verkaufsgruppen bearbeiten", u"Verkaufsgruppe"},
    {u"clsVerkaufsgruppenShop", {u"VerkaufsgruppenShop", u"Verkaufsgruppe", true}, u"Verkaufsgruppe, Langtext, Kurztext",    u"Verkaufsgruppen Shop bearbeiten", u"Verkaufsgruppe Shop"},
};
// clang-format on

/// Groups of articles, kind 8.
class clsArtikelgruppe final : public GroupCatalogue {
 public:
  clsArtikelgruppe() : GroupCatalogue(valuesOf(groupCatalogues, u"clsArtikelgruppe")) {}
};

/// Purchase groups, kind 10.
class clsEinkaufsgruppe final : public GroupCatalogue {
 public:
  clsEinkaufsgruppe() : GroupCatalogue(valuesOf(groupCatalogues, u"clsEinkaufsgruppe")) {}
};

/// Customer groups, kind 5.
class clsKundengruppen final : public GroupCatalogue {
 public:
  clsKundengruppen() : GroupCatalogue(valuesOf(groupCatalogues, u"clsKundengruppen")) {}
};

/// Customer groups of the shop, kind 6: here "-" is a key as any other.
class clsKundengruppeShop final : public GroupCatalogue {
 public:
  clsKundengruppeShop() : GroupCatalogue(valuesOf(groupCatalogues, u"clsKundengruppeShop")) {}
};

/// Sales groups, kind 9.
class clsVerkaufsgruppe final : public GroupCatalogue {
 public:
  clsVerkaufsgruppe() : GroupCatalogue(valuesOf(groupCatalogues, u"clsVerkaufsgruppe")) {}
};

/// Sales groups of the shop, kind 20.
class clsVerkaufsgruppenShop final : public GroupCatalogue {
 public:
  clsVerkaufsgruppenShop() : GroupCatalogue(valuesOf(groupCatalogues, u"clsVerkaufsgruppenShop")) {}
};

}  // namespace zqn
