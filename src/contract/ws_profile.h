// SPDX-License-Identifier: MIT
//
// The companion "zqWSPro.WSProfile": what the workstation knows about the application.
//
//     String folder = ObjectFactory::current().create<WSProfile>(u"zqWSPro.WSProfile")->GetAppPath();
#pragma once

#include "runtime/variant.h"

namespace zqn {

class WSProfile : public Object {
 public:
  /// The application's folder, where the layout files lie; without a separator at its end.
  virtual String GetAppPath() = 0;
};

}  // namespace zqn
