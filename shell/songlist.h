#pragma once

namespace glonks {

// Fills the list `songs`. A row is what the player reads, and the name of the file in "\music\".
void popSongs();

}  // namespace glonks
