// SPDX-License-Identifier: MIT
#include "runtime/variant.h"

#include <utility>

namespace zqn {

Variant& VariantArray::at(std::size_t index) { return const_cast<Variant&>(std::as_const(*this).at(index)); }

const Variant& VariantArray::at(std::size_t index) const {
  if (dimensions_ != 1 || index >= elements_.size()) throw RuntimeError(error::SubscriptOutOfRange);
  return elements_[index];
}

}  // namespace zqn
