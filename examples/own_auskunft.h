// SPDX-License-Identifier: MIT
//
// An information dialog of the host's own: whatever lets a person choose a number. The dialogs create a new
// object each time somebody looks a record up.
//
//     offerOwnAuskunft([](const zqn::String& title) { return myCustomerSearch(title); });
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "contract/auskunft.h"
#include "contract/object_factory.h"

class OwnAuskunft : public zqn::AuskunftObject {
 public:
  /// Runs modally under that title; gives the number that was taken, nothing when none was.
  using Search = std::function<std::optional<zqn::String>(const zqn::String& title)>;

  explicit OwnAuskunft(Search search) : search_(std::move(search)) {}

  void Show(const zqn::Ref<zqn::Session>&, zqn::StringView Name, zqn::StringView Title) override {
    item_ = Name == u"AUSK_Kundenauskunft" ? u"Kundennummer" : u"Belegnummer";
    number_ = search_(zqn::String(Title));
  }
  std::int32_t Result() const override { return number_ ? 1 : 0; }
  zqn::Variant ResultDataItems(zqn::StringView Name) const override {
    if (!number_ || Name != item_) throw zqn::RuntimeError(zqn::error::ItemNotFound);
    return *number_;
  }

 private:
  Search search_;
  zqn::String item_;
  std::optional<zqn::String> number_;
};

/// From now on the dialogs of this process look records up this way.
inline void offerOwnAuskunft(OwnAuskunft::Search search) {
  zqn::ObjectFactory::current().offer(u"Kalmera.AuskunftObject", [search = std::move(search)] {
    return std::make_shared<OwnAuskunft>(search);
  });
}
