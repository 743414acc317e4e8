// SPDX-License-Identifier: MIT
//
// The companion "zqWSPro.WSProfile".
#pragma once

#include "runtime/variant.h"

namespace zqn {

/// What the workstation knows about the application. A host offers one under the name "zqWSPro.WSProfile":
///
///     String folder = ObjectFactory::current().create<WSProfile>(u"zqWSPro.WSProfile")->GetAppPath();
class WSProfile : public Object {
 public:
  /// The application's folder, where the layout files lie; without a separator at its end.
  virtual String GetAppPath() = 0;
};

}  // namespace zqn
