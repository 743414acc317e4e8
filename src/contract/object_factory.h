// SPDX-License-Identifier: MIT
//
// Companion objects of the host system that the dialogs create by name.
#pragma once

#include <functional>
#include <map>
#include <memory>

#include "runtime/ref.h"
#include "runtime/variant.h"

namespace zqn {

/// "ZQBSendKeys.ZQSendKeys": presses keys on behalf of a form. Offered from the start: its keys go to the
/// current desktop's queue.
class ZQSendKeys : public Object {
 public:
  /// Queues keys, "{Tab}" among them; they are pressed after the running handler. The second argument has no
  /// meaning here and is left as it is.
  virtual void SendKeys(String& Keys, Variant& Wait) = 0;
  /// The same with the keys alone.
  virtual void SendKeys2(StringView Keys) = 0;
};

/// Makes companions by name. A host says what it offers; a name that nobody offers raises error 429 on
/// creation, and each dialog says what it does then.
///
///     ObjectFactory::current().offer(u"ZQBSendKeys.ZQSendKeys",
///                                    [] { return std::make_shared<MySendKeys>(); });
class ObjectFactory {
 public:
  /// Makes one object; nullptr when it cannot be made.
  using Maker = std::function<std::shared_ptr<Object>()>;  ///< Makes a new object.

  /// The one factory of the process.
  static ObjectFactory& current();

  /// Offers a component under a name, compared without regard to case; replaces an earlier offer.
  void offer(StringView name, Maker maker);
  /// Takes the offer back: creating the object then fails with 429.
  void withdraw(StringView name);
  /// A new object of that name. Error 429 when nobody offers it, or when it cannot be made.
  std::shared_ptr<Object> CreateObject(StringView name) const;
  /// A new object of that name as its contract. Error 429 also when the object is of another kind.
  template <class Contract>
  Ref<Contract> create(StringView name) const {
    auto object = std::dynamic_pointer_cast<Contract>(CreateObject(name));
    if (!object) throw RuntimeError(error::CannotCreateObject);
    return object;
  }

 private:
  ObjectFactory();

  std::map<String, Maker> makers_;
};

}  // namespace zqn
