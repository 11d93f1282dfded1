#include "present/effects/applause.h"

#include <array>
#include <initializer_list>

#include "base/random.h"
#include "game/model/resources.h"

namespace glonks {

void applause() {
  // By the draw: indices of clappingSounds, in the order of playing.
  static const std::array<std::initializer_list<std::size_t>, 7> mixes = {
      {{0}, {1}, {2}, {0, 1}, {0, 2}, {1, 2}, {1, 2, 0}}};
  const i32 draw = drawBelow(static_cast<i32>(mixes.size()));
  for (const std::size_t sample : mixes[static_cast<std::size_t>(draw)]) {
    clappingSounds[sample]->Play(0);
  }
}

}  // namespace glonks
