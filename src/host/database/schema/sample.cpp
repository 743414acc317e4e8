// SPDX-License-Identifier: MIT
#include "host/database/schema/sample.h"

#include "host/database/schema/sample_parts.h"
#include "host/database/schema/schema.h"

namespace zqn::host {

void addRows(const RowSink& sink, StringView tableName, std::initializer_list<Row> rows) {
  const Table& rowTable = table(tableName);
  for (const Row& row : rows) sink(rowTable, row);
}

void addTextBlocks(const RowSink& sink, StringView textKind, std::initializer_list<TextBlock> blocks) {
  for (const TextBlock& block : blocks)
    addRows(sink, u"Textbausteine",
            {{textKind, block.number, mainText, block.language, block.shortText, block.longText,
              block.printMarks, u"Arial", 10, u"---L"}});
}

void sampleRows(const RowSink& sink) {
  samplePayment(sink);
  sampleShipping(sink);
  sampleGroups(sink);
  sampleCodes(sink);
  sampleCountries(sink);
  sampleCrm(sink);
  sampleSelections(sink);
  sampleCustomers(sink);
  samplePrices(sink);
}

}  // namespace zqn::host
