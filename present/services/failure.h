#pragma once

#include <string>

#include "base/errors.h"

// Inside the services: calls that fail.
namespace glonks {

// Raises "trouble (reason)."; the reason is what SDL has last said, if none is given.
[[noreturn]] void fail(ErrorNumber number, const std::string& trouble);
[[noreturn]] void fail(ErrorNumber number, const std::string& trouble, const std::string& reason);

}  // namespace glonks
