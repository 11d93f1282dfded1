#include <algorithm>
#include <vector>

#include "game/model/model.h"
#include "game/modes.h"
#include "player/player.h"
#include "present/effects/effects.h"
#include "present/screen/display.h"
#include "storage/files/datafiles.h"
#include "tests/fakes/clock.h"
#include "tests/fakes/window.h"
#include "tests/headless/headlessgame.h"
#include "tests/levels/wins.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

// What each spot of the screen does: it changes when its brightness turns from rising to falling or
// back, by more than a tenth of the whole range, and flickers while it changes more than three
// times in a second. A bright thing that comes and goes is two changes.
class Flicker {
 public:
  // A picture as it is shown, at a time in ms.
  void look(const Raster& raster, u32 time) {
    if (spots_.size() != raster.pixels.size()) spots_.assign(raster.pixels.size(), {});
    std::size_t flickering = 0;
    for (std::size_t i = 0; i < spots_.size(); ++i) {
      Spot& spot = spots_[i];
      note(spot, brightness(raster.pixels[i]), time);
      std::erase_if(spot.changes, [&](u32 change) { return time - change >= 1000; });
      if (spot.changes.size() > 3) ++flickering;
    }
    most_ = std::max(most_, static_cast<double>(flickering) / static_cast<double>(spots_.size()));
  }

  double most() const { return most_; }  // the largest share of the screen that flickered at once

 private:
  struct Spot {
    i32 extreme = 0;  // the last one, and which way the brightness has gone since the one before
    i32 way = 1;
    std::vector<u32> changes;  // their times
  };

  static i32 brightness(u32 pixel) {  // of 255, by Rec. 709
    return static_cast<i32>((pixel >> 16 & 255) * 2126 + (pixel >> 8 & 255) * 7152 +
                            (pixel & 255) * 722) /
           10000;
  }

  static void note(Spot& spot, i32 bright, u32 time) {
    constexpr i32 tenth = 26;
    if ((bright - spot.extreme) * spot.way >= 0) {
      spot.extreme = bright;
    } else if (std::abs(bright - spot.extreme) >= tenth) {
      spot.extreme = bright;
      spot.way = -spot.way;
      spot.changes.push_back(time);
    }
  }

  std::vector<Spot> spots_;
  double most_ = 0;
};

class FlickerTest : public TempFolder {
 protected:
  FlickerTest() {
    setUpHeadless(folder);
    backBuffer = primarySurface->GetAttachedSurface(4);
    fake::scale = 1.0 / 16;
    fake::pictureShown = [this](const Raster& raster) { flicker.look(raster, fake::clockNow); };
  }
  ~FlickerTest() override { fake::resetWindow(); }

  Flicker flicker;
};

TEST_F(FlickerTest, NoQuarterOfTheScreenFlickersInTheLiveliestRecordedGames) {
  for (const i32 level : {3105, 3115, 3126, 3133, 3138, 3140}) {
    flicker = {};
    const RecordedGame game = recordOf(level);
    playHeadless({modeTitled("Arcade"), level, 0, game.seed}, replayOf(game.keys));
    EXPECT_LT(flicker.most(), 0.25) << level;
    EXPECT_GT(flicker.most(), 0.05) << level << ": is anything drawn?";
  }
}

TEST_F(FlickerTest, NoQuarterOfTheScreenFlickersWhenRowsExplodeBeforeFrogs) {
  Player player(good);
  i32 rows = 0;  // exploded so far
  playHeadless({modeTitled("Freestyle"), freestyleLevel, 0, 1}, [&](i32 time) {
    score = std::max(score, 60001);
    if (time / 1500 > rows) {
      const i16 y = effectY(floorOf(static_cast<i16>(++rows % rowCount)));
      for (i16 column = 0; column < columnCount; ++column) pushImpact(effectX(column), y, True);
    }
    if (time > 60000) gameOver = True;
    return player.nextKey();
  });
  EXPECT_LT(flicker.most(), 0.25);
}

TEST_F(FlickerTest, IsWhatComesAndGoesMoreThanOnceInASecond) {
  for (const auto& [period, share] : {std::pair{300U, 1.0}, {900U, 0.0}}) {
    Flicker lamp;  // on for half of each period
    Raster raster(2, 2);
    for (u32 time = 0; time < 3000; time += 25) {
      raster.pixels.assign(4, time % period < period / 2 ? 0x404040 : 0x808080);
      lamp.look(raster, time);
    }
    EXPECT_EQ(lamp.most(), share) << period << " ms";
  }
}

}  // namespace
}  // namespace glonks
