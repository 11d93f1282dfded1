#pragma once

#include <string>

#include "base/errors.h"

// Inside the services: calls that fail.
namespace glonks {

// Raises "trouble (reason)."; without a reason, SDL's last error is it.
[[noreturn]] void fail(ErrorNumber number, const std::string& trouble);
[[noreturn]] void fail(ErrorNumber number, const std::string& trouble, const std::string& reason);

}  // namespace glonks
