// SPDX-License-Identifier: MIT
//
// Events of forms and controls. An event is a public member that takes a callable; assigning one is the
// wiring, and there is one handler at most, as a form has one procedure for an event:
//
//     btnOK.Click = [this] { btnOK_Click(); };
//
// A run-time error that leaves the handler does not reach the code whose statement raised the event: the
// owner hands it to the desktop, the person sees it, the form stays open.
#pragma once

#include <functional>
#include <utility>

#include "runtime/error.h"

namespace zqn {

/// Whoever has events: a control or a form.
class EventOwner {
 public:
  /// A handler of this owner's event ("Click") ended with an error.
  virtual void eventFailed(StringView event, const RuntimeError& failure) = 0;

 protected:
  ~EventOwner() = default;
};

template <class... Args>
class Event {
 public:
  Event(EventOwner& owner, const char16_t* name) : owner_(owner), name_(name) {}
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  template <class Handler>
  Event& operator=(Handler&& handler) {
    handler_ = std::forward<Handler>(handler);
    return *this;
  }

  /// Raises the event; nothing happens without a handler. Arguments by reference are the handler's way to
  /// answer.
  void raise(Args... args) {
    if (!handler_) return;
    try {
      handler_(args...);
    } catch (const RuntimeError& failure) {
      owner_.eventFailed(name_, failure);
    }
  }

  bool hasHandler() const noexcept { return static_cast<bool>(handler_); }

 private:
  EventOwner& owner_;
  const char16_t* name_;
  std::function<void(Args...)> handler_;
};

}  // namespace zqn
