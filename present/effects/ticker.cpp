#include "present/effects/ticker.h"

#include "game/model/model.h"
#include "game/model/resources.h"

namespace glonks {
namespace {

constexpr i32 letterStart = 1000;  // x of the first letter
constexpr i32 letterPitch = 50;    // pixels

// Place in glyphSurfaces; glyphCount for a character without a picture.
i32 glyphIndex(char character) {
  if (character >= 'A' && character <= 'Z') return character - 'A';
  if (character >= 'a' && character <= 'z') return character - 'a';
  if (character == '!') return letterGlyphs;
  if (character == ' ') return letterGlyphs + 1;
  if (character >= '0' && character <= '9') return letterGlyphs + 2 + character - '0';
  return glyphCount;
}

}  // namespace

Surface glyphFor(char character) {
  const i32 index = glyphIndex(character);
  return index < glyphCount ? glyphSurfaces[static_cast<std::size_t>(index)] : nullptr;
}

// Oddity 18: nothing waits, so of several announcements in one frame only the last is seen.
void pushMessage(const std::string& text) {
  erase(tickerLines, tickerUpper);
  i32 x = letterStart;
  for (const char character : text.substr(0, longestMessage)) {
    grow(tickerLines, tickerUpper) = {glyphFor(character), static_cast<i16>(x)};
    x += letterPitch;
  }
}

}  // namespace glonks
