// SPDX-License-Identifier: MIT
//
// Run-time errors of the dialog language. There is one exception type; its number tells what happened, with
// the numbers that the platform's `Err.Number` shows: the small ones of the language, ADO's own from 3001 on,
// and a provider's as a negative 32-bit number. Nothing else is ever skipped by the error modes: a broken
// invariant or a lack of memory stays what it is.
//
//     throw RuntimeError(error::NoCurrentRecord);
#pragma once

#include <cstdint>
#include <exception>
#include <string>

#include "runtime/string.h"

namespace zqn {

namespace error {

// The language.
constexpr std::int32_t InvalidProcedureCall = 5;
constexpr std::int32_t Overflow = 6;
constexpr std::int32_t SubscriptOutOfRange = 9;
constexpr std::int32_t DivisionByZero = 11;
constexpr std::int32_t TypeMismatch = 13;
constexpr std::int32_t ObjectNotSet = 91;
constexpr std::int32_t InvalidUseOfNull = 94;
constexpr std::int32_t NoSuchControl = 340;
constexpr std::int32_t ObjectUnloaded = 364;
constexpr std::int32_t UnableToUnload = 365;
constexpr std::int32_t InvalidPropertyValue = 380;
constexpr std::int32_t InvalidPropertyArrayIndex = 381;
constexpr std::int32_t PropertyIsReadOnly = 383;
constexpr std::int32_t FormAlreadyDisplayed = 400;
constexpr std::int32_t ObjectRequired = 424;
constexpr std::int32_t CannotCreateObject = 429;
constexpr std::int32_t NoSuchMember = 438;

// ADO.
constexpr std::int32_t InvalidArgument = 3001;
constexpr std::int32_t NoCurrentRecord = 3021;
constexpr std::int32_t IllegalOperation = 3219;
constexpr std::int32_t FeatureNotAvailable = 3251;
constexpr std::int32_t ItemNotFound = 3265;
constexpr std::int32_t ObjectNotValid = 3420;
constexpr std::int32_t DataConversion = 3421;
constexpr std::int32_t ObjectClosed = 3704;
constexpr std::int32_t ObjectOpen = 3705;
constexpr std::int32_t InvalidConnection = 3709;

// Providers.
constexpr std::int32_t CommandText = -2147217900;  // syntax error, unknown column
constexpr std::int32_t TableNotFound = -2147217865;
constexpr std::int32_t IntegrityViolation = -2147217873;  // duplicate key, Null where none may be
constexpr std::int32_t RowConflict = -2147217864;         // the row is gone or has changed since it was read
constexpr std::int32_t MultipleStep = -2147217887;        // the field could not be set (too long, read-only)
constexpr std::int32_t ProviderDataOverflow = -2147217833;
constexpr std::int32_t ConversionFailed = -2147217913;
constexpr std::int32_t NoValueForParameter = -2147217904;
constexpr std::int32_t PermissionDenied = -2147217911;
constexpr std::int32_t ProviderTypeMismatch = -2147352571;  // "abc" into a number column
constexpr std::int32_t ProviderFailure =
    -2147467259;  // anything else; the description has the provider's words

}  // namespace error

class RuntimeError : public std::exception {
 public:
  /// The error with the words for `number` (error::description).
  explicit RuntimeError(std::int32_t number);
  RuntimeError(std::int32_t number, String description, String source = {});

  std::int32_t number() const noexcept { return number_; }  ///< One of namespace error, or a provider's.
  const String& description() const noexcept { return description_; }  ///< The words for the person.
  /// Who raised it: "ADODB", a provider's name, or empty for the language itself.
  const String& source() const noexcept { return source_; }
  /// "3021: BOF oder EOF ist True, ..." in UTF-8, for logs and test output.
  const char* what() const noexcept override { return what_.c_str(); }

 private:
  std::int32_t number_;
  String description_;
  String source_;
  std::string what_;
};

namespace error {
/// The German words for a number of the list above; "" for another one.
String description(std::int32_t number);
}  // namespace error

}  // namespace zqn
