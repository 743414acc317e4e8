// SPDX-License-Identifier: MIT
#include "runtime/variant.h"

#include <utility>

namespace zqn {

// Not inline: GCC 12 takes the alternatives that a value does not hold for uninitialized ones.
Variant::~Variant() = default;

Variant& VariantArray::at(std::size_t index) { return const_cast<Variant&>(std::as_const(*this).at(index)); }

const Variant& VariantArray::at(std::size_t index) const {
  if (dimensions_ != 1 || index >= elements_.size()) throw RuntimeError(error::SubscriptOutOfRange);
  return elements_[index];
}

}  // namespace zqn
