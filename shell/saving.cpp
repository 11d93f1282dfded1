#include "shell/saving.h"

#include <array>
#include <string>

#include "base/errors.h"
#include "shell/toolkit/toolkit.h"
#include "storage/files/log.h"
#include "storage/progress.h"
#include "storage/scores.h"
#include "storage/store.h"

namespace glonks {
namespace {

struct Stored {
  const PlayersFile& file;
  void (*write)();
  bool owed = false;
  bool givenUp = false;  // by the player, since the last saveAll
};

std::array<Stored, 3> storedFiles = {
    {{scoresFile, writeScores}, {storeFile, writeStore}, {levelsFile, writeOpenLevels}}};

Stored& entryOf(const PlayersFile& file) {
  for (Stored& stored : storedFiles) {
    if (&stored.file == &file) return stored;
  }
  throw RuntimeError(ErrorNumber::badCall, "A file of the player has no place among those stored.");
}

void logNotStored(const Stored& stored, const std::exception& error) {
  logStep("error " + numberAndText(error) + " Not stored: " + stored.file.holds + ".");
}

// Whether the player wants it tried again.
bool askAgain(const Stored& stored, const RuntimeError& error) {
  return yesNoBox(std::string(error.what()) + "\n\nNot stored: " + stored.file.holds +
                  ".  Do you want to try again?") == True;
}

void attempt(Stored& stored) {
  for (;;) {
    try {
      stored.write();
      stored.owed = false;
      return;
    } catch (const RuntimeError& error) {
      if (askAgain(stored, error)) continue;
      logNotStored(stored, error);
      stored.givenUp = true;
      return;
    }
  }
}

}  // namespace

void owe(const PlayersFile& file) { entryOf(file).owed = true; }

bool isOwed(const PlayersFile& file) { return entryOf(file).owed; }

void save(const PlayersFile& file) {
  owe(file);
  attempt(entryOf(file));
}

void saveAll() {
  for (Stored& stored : storedFiles) {
    if (stored.owed && !stored.givenUp) attempt(stored);
  }
  for (Stored& stored : storedFiles) stored.givenUp = false;
}

void saveSilently() {
  for (Stored& stored : storedFiles) {
    if (!stored.owed) continue;
    try {
      stored.write();
      stored.owed = false;
    } catch (const std::exception& error) {
      logNotStored(stored, error);
    }
  }
}

void tellOfNewFiles() {
  const std::string news = takeNews();
  if (!news.empty()) messageBox(news);
}

bool succeeds(const std::function<void()>& action) {
  try {
    action();
    return true;
  } catch (const RuntimeError& error) {
    logStep("error " + numberAndText(error));
    messageBox(error.what());
    return false;
  }
}

}  // namespace glonks
