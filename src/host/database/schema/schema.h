// SPDX-License-Identifier: MIT
//
// All tables that the dialogs read or write, with the columns of `Kundenstamm` and `Angebotskopf` that the
// host's information dialog shows besides, and `Einstellungen`, the settings of the host.
//
//     for (const Table& table : tables()) create(table);
//
// No table refers to another by a foreign key: the dialogs delete a record and leave what names it. A row
// needs its key only; every other column may be Null. A column takes at least what the field that enters it
// takes, and 50 characters where the caller's parameters fill it (`Herkunft`, `ReferenceType`, `Section`).
// Keys wider than their field are only `Vertriebsstati`.`Status` (10, the field takes 3) and those of the
// payment types (15, as the generic form takes; the dedicated form takes 3).
#pragma once

#include "host/database/schema/table.h"

namespace zqn::host {

/// Every table once. The order is that of the subjects; no table needs another one to stand first.
const std::vector<Table>& tables();

/// The table of that name (exact spelling). Error -2147217865 when there is none.
const Table& table(StringView name);

/// Supplement number of the main text block, and the language of the block that serves every language
/// ("ÿÿÿ").
inline constexpr StringView mainText = u"000";
inline constexpr StringView everyLanguage = u"\u00FF\u00FF\u00FF";

}  // namespace zqn::host
