#include "present/services/gamefont.h"

#include <SDL_ttf.h>

#include <cmath>
#include <map>
#include <memory>
#include <tuple>
#include <utility>

#include "base/text.h"
#include "present/services/failure.h"
#include "present/services/fontfile.h"
#include "present/services/sdlsurface.h"

namespace glonks {
namespace {

constexpr double dotsPerInch = 96;  // at scale 1
constexpr std::size_t mostPictures = 256;

struct FontCloser {
  void operator()(TTF_Font* font) const { TTF_CloseFont(font); }
};
using Font = std::unique_ptr<TTF_Font, FontCloser>;

struct FontKey {
  std::string name;
  i32 points;
  unsigned dots;  // per inch
  bool operator<(const FontKey& other) const {
    return std::tie(name, points, dots) < std::tie(other.name, other.points, other.dots);
  }
};

// Fonts and pictures live to the end of the program: TTF_Quit is never called, as it would take the
// fonts away from under their owners.
std::map<FontKey, Font> fonts;
std::map<std::pair<FontKey, std::string>, TextPicture> pictures;

FontKey keyOf(const std::string& name, i32 points, double scale) {
  return {name, points, static_cast<unsigned>(std::lround(dotsPerInch * scale))};
}

TTF_Font* fontFor(const FontKey& key) {
  Font& font = fonts[key];
  if (font) return font.get();
  if (TTF_WasInit() == 0 && TTF_Init() != 0) {
    fail(ErrorNumber::serviceFailed, unusableFont(key.name));
  }
  font.reset(TTF_OpenFontDPI(fontFile(key.name).c_str(), key.points, key.dots, key.dots));
  if (!font) fail(ErrorNumber::serviceFailed, unusableFont(key.name));
  return font.get();
}

TextPicture rendered(TTF_Font* font, std::string text) {
  for (char& c : text) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  const SdlSurface surface(
      TTF_RenderUTF8_Blended(font, toUtf8(text).c_str(), SDL_Color{255, 255, 255, 255}));
  TextPicture picture;
  if (!surface) return picture;  // nothing in it that could be seen
  picture.width = surface->w;
  picture.height = surface->h;
  picture.coverage.reserve(static_cast<std::size_t>(surface->w) * surface->h);
  for (int y = 0; y < surface->h; ++y) {
    const auto* row = reinterpret_cast<const Uint32*>(static_cast<const Uint8*>(surface->pixels) +
                                                      static_cast<std::size_t>(y) * surface->pitch);
    for (int x = 0; x < surface->w; ++x) {
      picture.coverage.push_back(static_cast<unsigned char>(row[x] >> 24U));
    }
  }
  return picture;
}

}  // namespace

void loadFont(const std::string& name, i32 points, double scale) {
  fontFor(keyOf(name, points, scale));
}

const TextPicture& textPicture(const std::string& fontName, i32 points, double scale,
                               const std::string& text) {
  const FontKey font = keyOf(fontName, points, scale);
  const auto known = pictures.find({font, text});
  if (known != pictures.end()) return known->second;
  if (pictures.size() >= mostPictures) pictures.clear();
  return pictures[{font, text}] = rendered(fontFor(font), text);
}

}  // namespace glonks
