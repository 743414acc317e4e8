// SPDX-License-Identifier: MIT
#include "contract/object_factory.h"

#include "forms/desktop.h"
#include "runtime/convert.h"

namespace zqn {

namespace {

/// The keys go to the queue of the desktop that is current when they are sent.
class DesktopSendKeys final : public ZQSendKeys {
 public:
  void SendKeys(String& Keys, Variant&) override { SendKeys2(Keys); }
  void SendKeys2(StringView Keys) override { Desktop::current().sendKeys(Keys); }
};

}  // namespace

ObjectFactory::ObjectFactory() {
  offer(u"ZQBSendKeys.ZQSendKeys", [] { return std::make_shared<DesktopSendKeys>(); });
}

ObjectFactory& ObjectFactory::current() {
  static ObjectFactory factory;
  return factory;
}

void ObjectFactory::offer(StringView name, Maker maker) { makers_[UCase(name)] = std::move(maker); }

void ObjectFactory::withdraw(StringView name) { makers_.erase(UCase(name)); }

std::shared_ptr<Object> ObjectFactory::CreateObject(StringView name) const {
  const auto found = makers_.find(UCase(name));
  std::shared_ptr<Object> object = found != makers_.end() ? found->second() : nullptr;
  if (!object) throw RuntimeError(error::CannotCreateObject);
  return object;
}

}  // namespace zqn
