#pragma once

namespace glonks {

// One frame of the frogs that cross the field behind the frame picture during the Frog bonus.
void frogParade();

}  // namespace glonks
