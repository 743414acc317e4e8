// SPDX-License-Identifier: MIT
#include "host/script/scripted_auskunft.h"

#include <algorithm>

#include "contract/auskunft.h"
#include "contract/object_factory.h"
#include "forms/names.h"

namespace zqn::script {

namespace {

constexpr StringView component = u"Kalmera.AuskunftObject";

class Answering : public AuskunftObject {
 public:
  explicit Answering(ScriptedUser& user) : user_(user) {}

  void Show(const Ref<Session>&, StringView Name, StringView Title) override {
    user_.writeAuskunft(Name, Title);
    answer_ = user_.auskunft();
  }
  std::int32_t Result() const override { return answer_.result; }
  Variant ResultDataItems(StringView Name) const override {
    const auto found =
        std::ranges::find_if(answer_.items, [&](const auto& item) { return sameName(item.first, Name); });
    if (found == answer_.items.end()) throw RuntimeError(error::ItemNotFound);
    return found->second;
  }

 private:
  ScriptedUser& user_;
  AuskunftAnswer answer_;
};

}  // namespace

ScriptedAuskunft::ScriptedAuskunft(ScriptedUser& user) {
  ObjectFactory::current().offer(component, [&user]() -> std::shared_ptr<Object> {
    if (user.auskunft().missing) return nullptr;
    return std::make_shared<Answering>(user);
  });
}

ScriptedAuskunft::~ScriptedAuskunft() { ObjectFactory::current().withdraw(component); }

}  // namespace zqn::script
