#pragma once

namespace glonks {

// A random mix of clapping.
void applause();

}  // namespace glonks
