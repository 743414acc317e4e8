// SPDX-License-Identifier: MIT
//
// An information dialog that answers what a test says, for the tests of the sales dialogs. Not part of the
// library.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "contract/auskunft.h"
#include "contract/object_factory.h"

namespace zqn::testing {

/// As long as it lives the host offers an information dialog.
class OfferedAuskunft {
 public:
  OfferedAuskunft() {
    ObjectFactory::current().offer(
        name, [this]() -> std::shared_ptr<Object> { return std::make_shared<Answering>(*this); });
  }
  ~OfferedAuskunft() { ObjectFactory::current().withdraw(name); }
  OfferedAuskunft(const OfferedAuskunft&) = delete;
  OfferedAuskunft& operator=(const OfferedAuskunft&) = delete;

  static constexpr StringView name = u"Kalmera.AuskunftObject";

  /// What it answers; the error with which Show ends, 0 for none.
  std::int32_t result = 0;
  std::map<String, Variant> items;
  std::int32_t fails = 0;
  /// "AUSK_Kundenauskunft|Kundenauskunft|Take Über&nehmen 0 0111", one for each time it was asked.
  std::vector<String> asked;
  /// What it was handed last.
  Ref<zqn::Session> session;

 private:
  class Answering : public AuskunftObject {
   public:
    explicit Answering(OfferedAuskunft& owner) : owner_(owner) {}
    void Show(const Ref<zqn::Session>& Session, StringView Name, StringView Title) override {
      owner_.session = Session;
      String line = String(Name) + u"|" + String(Title);
      for (const AuskunftItem& each : PopupItems.items()) {
        line +=
            u"|" + each.key + u" " + each.caption + u" " + static_cast<char16_t>(u'0' + each.number) + u" ";
        for (const bool flag : each.flags) line += flag ? u'1' : u'0';
      }
      owner_.asked.push_back(line);
      if (owner_.fails != 0) throw RuntimeError(owner_.fails);
    }
    std::int32_t Result() const override { return owner_.result; }
    Variant ResultDataItems(StringView Name) const override {
      const auto found = owner_.items.find(String(Name));
      if (found == owner_.items.end()) throw RuntimeError(error::ItemNotFound);
      return found->second;
    }

   private:
    OfferedAuskunft& owner_;
  };
};

}  // namespace zqn::testing
