// SPDX-License-Identifier: MIT
//
// A value of the dialog language that carries its kind, and an array of such values.
#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "runtime/error.h"
#include "runtime/ref.h"
#include "runtime/string.h"

namespace zqn {

/// A point in time as days since 30 December 1899; the fraction is the time of day.
struct Date {
  double days = 0;                               ///< From 30 December 1899 on.
  bool operator==(const Date&) const = default;  ///< The same moment.
};

/// What a Variant of kind Object refers to: a companion of the host that is called by name.
class Object {
 public:
  virtual ~Object() = default;
};

/// A value of the dialog language that carries its kind. A Variant converts nothing by itself; the functions
/// of runtime/convert.h do, and say which errors they raise.
///
///     Variant key = u"10";
///     if (key.isNull()) ...
///     String text = CStr(key);
class Variant {
 public:
  /// In this order everywhere; `Missing` is an argument that was left out.
  enum class Kind : std::uint8_t {
    Empty,
    Null,
    Boolean,
    Integer,
    Long,
    Double,
    Date,
    String,
    Object,
    Missing
  };
  /// The type of the literal `Null`.
  struct NullValue {
    bool operator==(const NullValue&) const = default;  ///< There is one alone.
  };
  /// The type of the literal `Missing`.
  struct MissingValue {
    bool operator==(const MissingValue&) const = default;  ///< There is one alone.
  };

  /// Empty; the others hold what they are given, as the kind of that type.
  Variant() = default;
  Variant(NullValue value) : value_(value) {}
  Variant(MissingValue value) : value_(value) {}
  Variant(bool value) : value_(value) {}
  Variant(std::int16_t value) : value_(value) {}
  Variant(std::int32_t value) : value_(value) {}
  Variant(double value) : value_(value) {}
  Variant(zqn::Date value) : value_(value) {}
  Variant(zqn::String value) : value_(std::move(value)) {}
  Variant(StringView value) : value_(zqn::String(value)) {}
  Variant(const char16_t* value) : value_(zqn::String(value)) {}
  Variant(Ref<zqn::Object> value) : value_(std::move(value)) {}
  template <SharedPointerTo<zqn::Object> Pointer>
  Variant(Pointer value) : value_(Ref<zqn::Object>(std::move(value))) {}
  Variant(const void*) = delete;
  Variant(const Variant&) = default;
  Variant(Variant&&) noexcept = default;
  Variant& operator=(const Variant&) = default;
  Variant& operator=(Variant&&) noexcept = default;
  ~Variant();

  /// What it holds.
  Kind kind() const noexcept { return static_cast<Kind>(value_.index()); }
  bool isEmpty() const noexcept { return kind() == Kind::Empty; }
  bool isNull() const noexcept { return kind() == Kind::Null; }
  bool isMissing() const noexcept { return kind() == Kind::Missing; }
  bool isString() const noexcept { return kind() == Kind::String; }
  /// Boolean, Integer, Long or Double.
  bool isNumber() const noexcept { return kind() >= Kind::Boolean && kind() <= Kind::Double; }

  /// The held value; nullptr when the kind is another one. T is bool, std::int16_t, std::int32_t, double,
  /// Date, String or Ref<Object>.
  template <class T>
  const T* as() const noexcept {
    return std::get_if<T>(&value_);
  }

  /// Same kind and same value; no conversion, no collation. For the language's own comparison see
  /// runtime/convert.h.
  bool operator==(const Variant&) const = default;

 private:
  // The order is that of Kind.
  std::variant<std::monostate, NullValue, bool, std::int16_t, std::int32_t, double, zqn::Date, zqn::String,
               Ref<zqn::Object>, MissingValue>
      value_;
};

inline constexpr Variant::NullValue Null{};        ///< The literal `Null`: a value that is not known.
inline constexpr Variant::MissingValue Missing{};  ///< An argument that is left out.

/// An array of Variants as a host hands it over. `Show` takes it by reference; what it reads and writes are
/// single elements.
class VariantArray {
 public:
  /// Without elements.
  VariantArray() = default;
  VariantArray(std::initializer_list<Variant> elements) : elements_(elements) {}  ///< In one dimension.
  /// `elements` are those of all dimensions.
  explicit VariantArray(std::vector<Variant> elements, int dimensions = 1)
      : elements_(std::move(elements)), dimensions_(dimensions) {}

  /// Element `index`, counted from 0. Error 9 outside the bounds, and for every index when there is more than
  /// one dimension.
  Variant& at(std::size_t index);
  const Variant& at(std::size_t index) const;
  /// Elements in all dimensions.
  std::size_t size() const noexcept { return elements_.size(); }
  /// 1 unless the host has handed over another array.
  int dimensions() const noexcept { return dimensions_; }
  const std::vector<Variant>& elements() const noexcept { return elements_; }  ///< In the order of `at`.

 private:
  std::vector<Variant> elements_;
  int dimensions_ = 1;
};

}  // namespace zqn
