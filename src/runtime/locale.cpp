// SPDX-License-Identifier: MIT
#include "runtime/locale.h"

#include <chrono>
#include <ctime>

#include "runtime/convert.h"

namespace zqn {

Date systemNow() {
  const std::time_t moment = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  const std::tm* local = std::localtime(&moment);
  return dateSerial({local->tm_year + 1900, local->tm_mon + 1, local->tm_mday, local->tm_hour, local->tm_min,
                     local->tm_sec});
}

namespace {

const Locale*& currentLocale() noexcept {
  static const Locale german = Locale::german();
  static const Locale* current = &german;
  return current;
}

}  // namespace

Locale Locale::german() { return {}; }

const Locale& Locale::current() noexcept { return *currentLocale(); }

struct Locale::Scope::State {
  Locale locale;
  const Locale* outer;
};

Locale::Scope::Scope(Locale locale)
    : state_(std::make_unique<State>(State{std::move(locale), currentLocale()})) {
  currentLocale() = &state_->locale;
}

Locale::Scope::~Scope() { currentLocale() = state_->outer; }

}  // namespace zqn
