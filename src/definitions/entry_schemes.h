// SPDX-License-Identifier: MIT
//
// The entry schemes of sales and purchase documents: a list to choose from, with the description of the
// marked one below it. Nothing can be written or deleted here; the two classes differ in their table alone.
#pragma once

#include "definitions/definition_class.h"

namespace zqn {

class EntrySchemes : public DefinitionClass {
 public:
  /// The key goes into the key field, which stays hidden, the description into the frame.
  void ReadData(ado::Recordset& Recordset) override;
  void WriteData() override {}
  void DeleteData() override {}
  /// The list shows the names alone; its first column, the key, is hidden.
  void ShowData(const Ref<ado::Recordset>& Recordset) override;

 protected:
  explicit EntrySchemes(StringView table) : DefinitionClass({table, u"ErfSchema"}) {}
  void setUp() override;
  StringView listFields() const override { return u"ErfSchema, Bezeichnung"; }
};

/// Entry schemes of sales documents, kind 15.
class clsErfassungsschema final : public EntrySchemes {
 public:
  clsErfassungsschema() : EntrySchemes(u"Erfassungsschema") {}
};

/// Entry schemes of purchase documents, kind 17.
class clsErfassungsschemaEK final : public EntrySchemes {
 public:
  clsErfassungsschemaEK() : EntrySchemes(u"ErfassungsschemaEK") {}
};

}  // namespace zqn
