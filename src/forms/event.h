// SPDX-License-Identifier: MIT
//
// Events of forms and controls.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "runtime/error.h"
#include "runtime/ref.h"

namespace zqn {

/// Whoever has events: a control or a form.
class EventOwner {
 public:
  /// A handler of this owner's event ("Click") ended with an error.
  virtual void eventFailed(StringView event, const RuntimeError& failure) = 0;

 protected:
  ~EventOwner() = default;
};

/// An event is a public member that takes a callable; assigning one is the wiring, and there is one handler
/// at most, as a form has one procedure for an event:
///
///     btnOK.Click = [this] { btnOK_Click(); };
///
/// A run-time error that leaves the handler does not reach the code whose statement raised the event: the
/// owner hands it to the desktop, the person sees it, the form stays open.
template <class... Args>
class Event {
 public:
  /// An event of this owner, under the name that procedures have it: "Click". Both live at least as long.
  Event(EventOwner& owner, const char16_t* name) : owner_(owner), name_(name) {}
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  /// Wires the event; nullptr, or an empty std::function, takes the handler off. A handler that is running
  /// goes on to its end, also when it is replaced meanwhile.
  template <class Callable>
  Event& operator=(Callable&& handler) {
    using Held = std::decay_t<Callable>;
    // A function object that says whether it holds one, as std::function does.
    constexpr bool mayBeEmpty =
        std::is_constructible_v<bool, const Held&> && !std::is_convertible_v<const Held&, bool>;
    if constexpr (mayBeEmpty) {
      if (!handler) return *this = nullptr;
    }
    handler_ = Ref<HandlerOf<Held>>::make(std::forward<Callable>(handler));
    return *this;
  }
  Event& operator=(std::nullptr_t) noexcept {
    handler_ = nothing;
    return *this;
  }

  /// Raises the event; nothing happens without a handler. Arguments by reference are the handler's way to
  /// answer.
  void raise(Args... args) {
    const Ref<Handler> running = handler_;
    if (running.isNothing()) return;
    try {
      running->call(args...);
    } catch (const RuntimeError& failure) {
      owner_.eventFailed(name_, failure);
    }
  }

  /// Raising it would call somebody.
  bool hasHandler() const noexcept { return !handler_.isNothing(); }

 private:
  struct Handler {
    virtual ~Handler() = default;
    virtual void call(Args... args) = 0;
  };
  template <class Callable>
  struct HandlerOf final : Handler {
    template <class From>
    explicit HandlerOf(From&& from) : callable(std::forward<From>(from)) {}
    void call(Args... args) override { callable(args...); }
    Callable callable;
  };

  EventOwner& owner_;
  const char16_t* name_;
  Ref<Handler> handler_;
};

}  // namespace zqn
