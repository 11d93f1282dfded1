#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <vector>

#include "base/paths.h"
#include "base/text.h"
#include "bench/spent.h"
#include "game/model/gametick.h"
#include "game/model/mode.h"
#include "game/model/model.h"
#include "present/effects/effects.h"
#include "present/effects/ticker.h"
#include "present/services/screen.h"
#include "shell/ftip.h"
#include "shell/menucontrols.h"
#include "shell/newgamepage.h"
#include "shell/playbutton.h"
#include "shell/toolkit/toolkit.h"

// A real game on the screen at hand, with a busy board and, unless told "plain", all effects:
// bench_game <game folder> [seconds [mode [plain]]]. The board of Midnight Bowling stays as the
// game sets it. Tells the time from the click on Play to the first frame, the frame period, the
// time that showing a picture takes, the share of one core, how often a second any thread went on
// after waiting, and the peak memory.
namespace {

using namespace glonks;
using Clock = std::chrono::steady_clock;

constexpr i32 loadingPictures = 5;  // the test flip and the four loading lines
constexpr double settling = 2;      // seconds before measuring begins

struct Shown {
  double begin, end;  // seconds since the click
};

Clock::time_point click;
double playingSeconds = 60;
std::vector<Shown> shown;
bool withEffects = true;

Spent atStart, atEnd;

double now() { return std::chrono::duration<double>(Clock::now() - click).count(); }

// Six full rows; the seventh is kept free, so that the game goes on.
void keepBusy() {
  for (i16 row = 0; row < rowCount; ++row) {
    for (i16 column = 0; column < columnCount; ++column) {
      Cell& cell = cellAt(row, column);
      if (row == rowCount - 1) {
        cell.occupied = False;
      } else if (cell.occupied == False) {
        static_cast<Piece&>(cell) = catalogEntry(2 + (row * 7 + column) % 17);
        cell.occupied = True;
        cell.column = column;
        cell.y = floorOf(row);
        cell.expiry = std::numeric_limits<i32>::max();
      }
    }
  }
}

// Always some of each effect, and the frogs.
void keepEffectsUp() {
  for (i16 i = 0; impactsUpper < 2; ++i) pushImpact(effectX(i), effectY(floorOf(i)), True);
  for (i16 i = 0; zapsUpper < 5; ++i) pushZap(effectX(i), floorOf(i), flagOf(i % 2 == 0));
  for (i16 i = 0; scorePopupsUpper < 9; ++i) pushPopup(effectX(i), effectY(floorOf(0)), 0);
  if (tickerUpper < 0) pushMessage("Fruit cocktail bonus!  5000 points");
  score = std::max(score, 60001);
}

void report(const std::string& what, std::vector<double> seconds) {
  std::sort(seconds.begin(), seconds.end());
  double sum = 0;
  for (const double s : seconds) sum += s;
  const auto at = [&](double part) {
    return seconds[static_cast<std::size_t>(part * static_cast<double>(seconds.size() - 1))] * 1e3;
  };
  std::cout << what << ": mean " << sum / static_cast<double>(seconds.size()) * 1e3
            << " ms, median " << at(0.5) << ", 99th percentile " << at(0.99) << ", longest "
            << at(1) << " (" << seconds.size() << ")\n";
}

}  // namespace

// The names that the linker's wrapping asks for.
extern "C" void __real__ZN6glonks11showPictureERKNS_12ShownPictureE(  // NOLINT
    const ShownPicture& picture);
extern "C" void __wrap__ZN6glonks11showPictureERKNS_12ShownPictureE(  // NOLINT
    const ShownPicture& picture) {
  const double begin = now();
  __real__ZN6glonks11showPictureERKNS_12ShownPictureE(picture);
  shown.push_back({begin, now()});
  if (static_cast<i32>(shown.size()) <= loadingPictures) return;
  if (gameMode.ticket < 0) keepBusy();
  if (withEffects) keepEffectsUp();
  if (now() < settling) atStart = spentSoFar();
  if (now() > playingSeconds + settling && gameOver == False) {
    atEnd = spentSoFar();
    gameMode.scoreTable = False;  // no box waits for a player after the game
    gameMode.outcome = nullptr;
    gameOver = True;
  }
}

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: bench_game <game folder> [seconds [mode [plain]]]\n";
    return EXIT_FAILURE;
  }
  if (argc > 2) playingSeconds = leadingNumber(argv[2]);
  withEffects = argc <= 4;
  try {
    startToolkit();
    setProgramFolder(std::filesystem::absolute(argv[1]));
    fTip_Form_Load();
    stockOf(midnightBowlingItem) = 1;
    listModes();
    setText(tMode, argc > 3 ? argv[3] : "Freestyle");
    tLevels.listIndex = 0;
    click = Clock::now();
    main_BtnRun_Click();
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return EXIT_FAILURE;
  }

  std::cout << "click to first frame: " << shown[loadingPictures].end * 1e3 << " ms\n";
  std::vector<double> periods;
  std::vector<double> costs;
  for (std::size_t i = loadingPictures + 1; i < shown.size(); ++i) {
    if (shown[i].begin < settling) continue;
    periods.push_back(shown[i].end - shown[i - 1].end);
    costs.push_back(shown[i].end - shown[i].begin);
  }
  report("frame period", periods);
  report("showing a picture", costs);
  std::cout << "share of one core: " << (atEnd.cpu - atStart.cpu) / playingSeconds * 100 << " %\n";
  if (atEnd.wakeups) {
    std::cout << "wakeups a second: " << (*atEnd.wakeups - *atStart.wakeups) / playingSeconds
              << "\n";
  }
  std::cout << "peak memory: " << spentSoFar().peakMemory / 0x1p20 << " MB\n";
  return EXIT_SUCCESS;
}
