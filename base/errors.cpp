#include "base/errors.h"

#include <new>

namespace glonks {
namespace {

int numberOf(const std::exception& error) {
  if (const auto* known = dynamic_cast<const RuntimeError*>(&error)) return known->number();
  const bool memory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
  return static_cast<int>(memory ? ErrorNumber::outOfMemory : ErrorNumber::badCall);
}

}  // namespace

std::string numberAndText(const std::exception& error) {
  return std::to_string(numberOf(error)) + ", " + error.what();
}

}  // namespace glonks
