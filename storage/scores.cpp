#include "storage/scores.h"

namespace glonks {

// High scores aren't built yet.
void loadScores() {}
void saveScores() {}
void enterHighScore() {}

}  // namespace glonks
