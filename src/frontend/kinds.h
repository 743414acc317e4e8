// SPDX-License-Identifier: MIT
//
// The 37 kinds of dialogs. Everything about a kind stands in one row of kinds.cpp: its names, what a host
// passes and gets back, its form, its definition class, and its road through ORBDialog::Show. A host lists
// the dialogs from here:
//
//     for (const KindInfo& kind : dialogKinds()) menu.add(kind.title, kind.number);
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "runtime/string.h"

namespace zqn {

class clsBasisDialog;
class Form;

/// A form of its own, or the generic form with a definition class.
enum class KindServer { Dedicated, Generic };

/// What clerks look for a dialog under, in the order of lists that they see.
enum class KindSubject {
  SalesAndCrm,
  Contracts,
  PricesAndOffers,
  Payment,
  Shipping,
  Groups,
  AccountsAndNumbers,
  Documents,
  General
};

/// One kind, as a host sees it. All texts live as long as the process.
struct KindInfo {
  std::int32_t number;  ///< 1 to 37.
  /// "zqnCommonDialogVertriebsStati"
  const char16_t* constant;
  KindServer server;  ///< Which form shows it.
  /// "frmVertriebsstati"; "frmDialog" for the generic form.
  const char16_t* form;
  /// The definition class on the generic form; empty for a kind that has none.
  const char16_t* definition;
  /// The tables it reads and writes, commas between them; the first is the catalogue.
  const char16_t* tables;
  /// What clerks look for it under, and its place among the dialogs there, from 1.
  KindSubject subject;
  int place;
  /// What clerks call it: "Vertriebsstati".
  const char16_t* title;
  /// German names of the elements of Param that it reads, commas between them: "Schlagwort,Abschnitt".
  const char16_t* param;
  /// What Show returns, in German words: "Schlüssel".
  const char16_t* result;
};

/// All kinds, 1 to 37 in order.
std::span<const KindInfo> dialogKinds() noexcept;
/// The kind of a number; nullptr outside 1 to 37.
const KindInfo* findKind(std::int32_t number) noexcept;
/// "Vertrieb und CRM"
const char16_t* subjectTitle(KindSubject subject) noexcept;
/// Show opens a form with its catalogue for this number: the library has it.
bool isOffered(std::int32_t number) noexcept;
/// The kind has a definition class. Some kinds with a form of their own have one, too.
bool hasDefinition(std::int32_t number) noexcept;

// ---- for the dialogs, and for checks that run on every form

/// A new definition object for a kind; nullptr for a kind that has none.
std::unique_ptr<clsBasisDialog> makeDefinition(std::int32_t number);
/// The form of an offered kind as it stands before it is filled.
std::unique_ptr<Form> makeForm(std::int32_t number);
/// The same on the generic form, which has catalogues for some kinds with a form of their own, too.
std::unique_ptr<Form> makeGenericForm(std::int32_t number);

}  // namespace zqn
