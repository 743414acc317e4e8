// SPDX-License-Identifier: MIT
//
// A reference that may be Nothing. The counting is our own because `<memory>` alone would double what a host
// reads with every header.
#pragma once

#include <type_traits>
#include <utility>

#include "runtime/error.h"

namespace zqn {

/// The literal of a reference that refers to nothing.
struct Nothing {};
inline constexpr Nothing nothing{};

/// Holds what several references own, and ends it with the last of them. References may be copied and dropped
/// on any thread.
class Owned {
 public:
  Owned() = default;
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  /// One owner more, one less.
  void keep() noexcept;
  void release() noexcept;

 protected:
  virtual ~Owned() = default;

 private:
  long owners_ = 1;
};

/// A smart pointer of the host's own, such as std::shared_ptr, whose object can be used as a T.
template <class Pointer, class T>
concept SharedPointerTo = requires(const Pointer& pointer) {
  pointer.use_count();
  requires std::is_convertible_v<decltype(pointer.get()), T*>;
};

/// A reference that may be Nothing. Using it while it is Nothing raises run-time error 91, as in the dialog
/// language, so that a routine that runs statement by statement skips the statement instead of ending the
/// host. Copies refer to one object, which ends with the last of them.
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
  /// Shares what `pointer` owns, and keeps `pointer` for as long. A null pointer is Nothing.
  template <SharedPointerTo<T> Pointer>
  Ref(Pointer pointer) : object_(pointer.get()) {
    if (object_ != nullptr) owner_ = new Holder<Pointer>(std::move(pointer));
  }
  /// The same object as a base of its class, or itself.
  template <class U>
  requires std::is_convertible_v<U*, T*> Ref(const Ref<U>& other)
  noexcept : object_(other.object_), owner_(other.owner_) {
    if (owner_ != nullptr) owner_->keep();
  }
  Ref(const Ref& other) noexcept : object_(other.object_), owner_(other.owner_) {
    if (owner_ != nullptr) owner_->keep();
  }
  Ref(Ref&& other) noexcept
      : object_(std::exchange(other.object_, nullptr)), owner_(std::exchange(other.owner_, nullptr)) {}
  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    std::swap(owner_, other.owner_);
    return *this;
  }
  ~Ref() {
    if (owner_ != nullptr) owner_->release();
  }

  /// A new object, its constructor given `args`.
  template <class... Args>
  static Ref make(Args&&... args) {
    auto* holder = new Holder<std::remove_const_t<T>>(std::forward<Args>(args)...);
    Ref ref;
    ref.object_ = &holder->held;
    ref.owner_ = holder;
    return ref;
  }

  bool isNothing() const noexcept { return object_ == nullptr; }  ///< Refers to no object.
  /// The object. Error 91 while it is Nothing.
  T* operator->() const { return &**this; }
  T& operator*() const {
    if (object_ == nullptr) throw RuntimeError(error::ObjectNotSet);
    return *object_;
  }
  /// The object without owning it; nullptr while it is Nothing.
  T* get() const noexcept { return object_; }
  /// The same object, or both Nothing.
  bool operator==(const Ref& other) const noexcept { return object_ == other.object_; }

 private:
  template <class U>
  friend class Ref;

  template <class Held>
  struct Holder final : Owned {
    template <class... Args>
    explicit Holder(Args&&... args) : held(std::forward<Args>(args)...) {}
    Held held;
  };

  T* object_ = nullptr;
  Owned* owner_ = nullptr;
};

}  // namespace zqn
