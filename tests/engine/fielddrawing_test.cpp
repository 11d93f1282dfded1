#include "present/fielddrawing.h"

#include "tests/engine/enginetest.h"

namespace glonks {

class FieldDrawingTest : public EngineTest {
 protected:
  FieldDrawingTest() {
    for (i16 slot = 0; slot < 4; ++slot) entryAt(slot).surface = picture(90, 90, slot + 1);
    backBuffer->BltColorFill({}, 0);
  }

  // A keyed picture of one colour with a white border of one pixel.
  static Surface picture(i32 width, i32 height, i32 color) {
    auto surface = std::make_shared<DirectDrawSurface7>(width, height);
    surface->BltColorFill({}, RGB(255, 255, 255));
    surface->BltColorFill({1, 1, width - 1, height - 1}, color);
    surface->SetColorKey(sourceBlitKey, colorKey);
    return surface;
  }
  static i32 at(i32 x, i32 y) { return static_cast<i32>(backBuffer->pixel(x, y)); }
};

TEST_F(FieldDrawingTest, HigherRowsRightNeighboursAndFlyingPiecesLieOnTopAndThePointerAtItsRow) {
  put(0, 4).imageIndex = 0;
  put(0, 5).imageIndex = 1;
  put(1, 4).imageIndex = 2;
  drop(2, "Glonk", 435).imageIndex = 3;
  put(1, 2).imageIndex = 0;
  drawField();
  drawPointer();  // the game's own picture, its white left out
  // Columns 4 and 5 overlap from 505 on, rows 0 and 1 from 600 on.
  EXPECT_EQ((Numbers{at(507, 640), at(460, 602), at(90, 90), at(10, 620)}), (Numbers{2, 3, 0, 0}));
  // Column and height of a piece, and its white border left out.
  EXPECT_EQ((Numbers{at(250, 515), at(251, 516), at(338, 603), at(339, 603)}),
            (Numbers{0, 4, 4, 0}));
  pointerSurface = picture(70, 45, 7);
  selectedRow = 3;
  drawPointer();
  EXPECT_EQ((Numbers{at(10, 370), at(11, 366), at(78, 408), at(78, 409)}), (Numbers{0, 7, 7, 0}));
}

TEST_F(FieldDrawingTest, BackgroundIsBlackThenPlateThenFrameStretchedToTheScreen) {
  plateSurface = std::make_shared<DirectDrawSurface7>(500, 350);
  plateSurface->BltColorFill({}, 5);
  frameSurface = picture(512, 384, 6);
  frameSurface->BltColorFill({256, 0, 512, 384}, RGB(255, 255, 255));
  backBuffer->BltColorFill({}, RGB(250, 0, 0));
  layPlate();
  EXPECT_EQ((Numbers{at(80, 300), at(81, 80), at(933, 689), at(934, 300), at(500, 690)}),
            (Numbers{0, 5, 5, 0, 0}));
  layFrame();
  EXPECT_EQ((Numbers{at(300, 300), at(4, 763), at(600, 300)}), (Numbers{6, 6, 5}));
}

}  // namespace glonks
