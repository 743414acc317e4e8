// SPDX-License-Identifier: MIT
//
// The companion "Kalmera.AuskunftObject".
#pragma once

#include <array>
#include <vector>

#include "contract/session.h"
#include "runtime/ref.h"
#include "runtime/variant.h"

namespace zqn {

/// What a person can do with the row that is shown; "Take" takes it over.
struct AuskunftItem {
  /// The name of the action, "Take", and what the person reads, "&" before the letter to press.
  String key;      ///< How the component knows it: "Take".
  String caption;  ///< What the person reads, with & in front of the key letter.
  /// They mean what the component makes of them.
  std::int32_t number;        ///< What the component makes of it.
  std::array<bool, 4> flags;  ///< What the component makes of them.
};

/// The actions that the dialogs ask for, in the order of asking.
/// The menu over a row of an information dialog.
class AuskunftItems {
 public:
  /// One action more.
  void Add(StringView Key, StringView Caption, std::int32_t Number, bool First, bool Second, bool Third,
           bool Fourth) {
    items_.push_back({String(Key), String(Caption), Number, {First, Second, Third, Fourth}});
  }
  /// Those that were added.
  /// In the order in which they were added.
  const std::vector<AuskunftItem>& items() const noexcept { return items_; }

 private:
  std::vector<AuskunftItem> items_;
};

/// An information dialog of the host, in which a person looks for a record and takes it over. A host offers
/// one under the name "Kalmera.AuskunftObject":
///
///     auto auskunft = ObjectFactory::current().create<AuskunftObject>(u"Kalmera.AuskunftObject");
///     auskunft->PopupItems.Add(u"Take", u"Über&nehmen", 0, false, true, true, true);
///     auskunft->Show(Session, u"AUSK_Kundenauskunft", u"Kundenauskunft");
///     if (auskunft->Result() == 1) use(auskunft->ResultDataItems(u"Kundennummer"));
class AuskunftObject : public Object {
 public:
  /// What the person is to be able to do with a row.
  AuskunftItems PopupItems;  ///< The items of the menu over a row.

  /// Runs the dialog of that name ("AUSK_Kundenauskunft", "AUSK_Angebotsauskunft") modally. May raise any
  /// run-time error.
  virtual void Show(const Ref<Session>& Session, StringView Name, StringView Title) = 0;
  /// 1 when a row was taken over, else 0.
  virtual std::int32_t Result() const = 0;
  /// A value of the row that was taken over, "Kundennummer" or "Belegnummer". Error 3265 for another name.
  virtual Variant ResultDataItems(StringView Name) const = 0;
};

}  // namespace zqn
