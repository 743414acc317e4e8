// SPDX-License-Identifier: MIT
//
// A reference that may be Nothing.
#pragma once

#include <memory>
#include <utility>

#include "runtime/error.h"

namespace zqn {

/// The literal of a reference that refers to nothing.
struct Nothing {};
inline constexpr Nothing nothing{};

/// A reference that may be Nothing. Using it while it is Nothing raises run-time error 91, as in the dialog
/// language, so that a routine that runs statement by statement skips the statement instead of ending the
/// host.
///
///     Ref<ado::Recordset> rs;            // Nothing
///     rs->Close();                       // RuntimeError 91
///     rs = Ref<ado::Recordset>::make();  // New
///     rs = nothing;                      // released
template <class T>
class Ref {
 public:
  /// Nothing.
  Ref() = default;
  Ref(Nothing) {}
  /// Shares the object; a null pointer is Nothing.
  Ref(std::shared_ptr<T> object) : object_(std::move(object)) {}
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(const Ref<U>& other) : object_(other.shared()) {}

  /// A new object, its constructor given `args`.
  template <class... Args>
  static Ref make(Args&&... args) {
    return Ref(std::make_shared<T>(std::forward<Args>(args)...));
  }

  bool isNothing() const noexcept { return object_ == nullptr; }
  /// The object. Error 91 while it is Nothing.
  T* operator->() const { return &**this; }
  T& operator*() const {
    if (!object_) throw RuntimeError(error::ObjectNotSet);
    return *object_;
  }
  /// The shared pointer itself; null for Nothing.
  const std::shared_ptr<T>& shared() const noexcept { return object_; }
  /// The same object, or both Nothing.
  bool operator==(const Ref&) const = default;

 private:
  std::shared_ptr<T> object_;
};

}  // namespace zqn
