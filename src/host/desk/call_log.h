// SPDX-License-Identifier: MIT
//
// What the desk's calls of Show came to: one entry a call, below it Param before and after, each DblClick
// and each failure that was passed over as it comes, the return value and Result.
//
//     CallLog::Call call = log->begin(21, u"Vertriebsstati", param);
//     call.picked(key);      // while Show has not returned
//     call.returned(outcome);
#pragma once

#include <QTreeWidget>
#include <cstdint>

#include "host/session/show_call.h"
#include "runtime/variant.h"

namespace zqn::host {

class CallLog : public QTreeWidget {
 public:
  explicit CallLog(QWidget* parent = nullptr);

  /// One call that is going on.
  class Call {
   public:
    void picked(const Variant& key);
    /// A procedure that writes has passed over a failure.
    void passedOver(StringView procedure, const RuntimeError& failure);
    void returned(const ShowOutcome& outcome);

   private:
    friend class CallLog;
    explicit Call(QTreeWidgetItem* entry) : entry_(entry) {}
    QTreeWidgetItem* entry_;
  };

  /// Values are written as JSON, so that a text "10" and a number 10 look different.
  Call begin(std::int32_t kind, StringView title, const VariantArray& param);
};

}  // namespace zqn::host
