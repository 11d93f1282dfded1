#include "shell/saving.h"

#include <string>

#include "base/errors.h"
#include "shell/toolkit/toolkit.h"

namespace glonks {

void save(const PlayersFile& file, void (*write)()) {
  for (;;) {
    try {
      return write();
    } catch (const RuntimeError& error) {
      const std::string question = std::string(error.what()) + "\n\nNot stored: " + file.holds +
                                   ".  Do you want to try again?";
      if (yesNoBox(question) != True) throw;
    }
  }
}

void tellOfNewFiles() {
  const std::string news = takeNews();
  if (!news.empty()) messageBox(news);
}

}  // namespace glonks
