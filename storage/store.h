#pragma once

// What a player keeps between games: credits, goods, notes, theme and volume, in "\init\6702".
namespace glonks {

void loadStore();
void saveStore();

}  // namespace glonks
