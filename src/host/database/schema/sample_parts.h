// SPDX-License-Identifier: MIT
//
// The subjects of the sample, one source file each, and what they share. For sample.cpp and its parts only.
//
//     addRows(sink, u"Keywords", {{u"Messe", u"Kunden"}, {u"Neukunde", u"Kunden"}});
#pragma once

#include <initializer_list>

#include "host/database/schema/table.h"

namespace zqn::host {

void samplePayment(const RowSink& sink);
void sampleShipping(const RowSink& sink);
void sampleGroups(const RowSink& sink);
void sampleCodes(const RowSink& sink);
void sampleCountries(const RowSink& sink);
void sampleCrm(const RowSink& sink);
void sampleSelections(const RowSink& sink);
void sampleCustomers(const RowSink& sink);
void samplePrices(const RowSink& sink);

/// Hands the rows to the sink under the table of that name.
void addRows(const RowSink& sink, StringView tableName, std::initializer_list<Row> rows);

/// One text block: the printed wording of a payment or shipping type in one language.
struct TextBlock {
  StringView number;
  StringView language;
  Variant shortText;
  Variant longText;
  StringView printMarks;
};

/// The blocks of one text kind ("VSA", "EVA", "ZAA", "EZA") as main texts, in the font that the dialogs
/// write.
void addTextBlocks(const RowSink& sink, StringView textKind, std::initializer_list<TextBlock> blocks);

}  // namespace zqn::host
