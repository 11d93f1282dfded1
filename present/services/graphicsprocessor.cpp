#include "present/services/graphicsprocessor.h"

#include <SDL.h>

#include <string>

namespace glonks {
namespace {

// What OpenGL says it is drawn by; empty if there is none. A window that isn't shown tells.
std::string drawnBy() {
  SDL_Window* probe = SDL_CreateWindow("", 0, 0, 16, 16, SDL_WINDOW_OPENGL | SDL_WINDOW_HIDDEN);
  if (probe == nullptr) return "";
  std::string name;
  SDL_GLContext context = SDL_GL_CreateContext(probe);
  if (context != nullptr) {
    constexpr unsigned glRenderer = 0x1F01;
    using GetString = const unsigned char* (*)(unsigned);  // one convention on 64 bits
    const auto getString = reinterpret_cast<GetString>(SDL_GL_GetProcAddress("glGetString"));
    const auto* told =
        getString == nullptr ? nullptr : reinterpret_cast<const char*>(getString(glRenderer));
    name = told == nullptr ? "unnamed" : told;
    SDL_GL_DeleteContext(context);
  }
  SDL_DestroyWindow(probe);
  return name;
}

bool probeGraphicsProcessor() {
  if (!mayHaveGraphicsProcessor()) return false;
  const std::string name = drawnBy();
  for (const char* software : {"llvmpipe", "softpipe", "swrast", "Software", "GDI Generic"}) {
    if (name.find(software) != std::string::npos) return false;
  }
  return !name.empty();
}

}  // namespace

bool hasGraphicsProcessor() {
  static const bool known = probeGraphicsProcessor();
  return known;
}

}  // namespace glonks
