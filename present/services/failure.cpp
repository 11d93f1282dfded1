#include "present/services/failure.h"

#include <SDL.h>

namespace glonks {

void fail(ErrorNumber number, const std::string& trouble) { fail(number, trouble, SDL_GetError()); }

void fail(ErrorNumber number, const std::string& trouble, const std::string& reason) {
  throw RuntimeError(number, trouble + " (" + reason + ").");
}

}  // namespace glonks
