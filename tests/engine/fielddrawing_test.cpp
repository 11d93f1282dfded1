#include "present/fielddrawing.h"

#include "game/resources.h"
#include "present/loadingscreen.h"
#include "tests/engine/enginetest.h"

namespace glonks {
namespace {

constexpr i32 white = RGB(255, 255, 255);

class FieldDrawingTest : public EngineTest {
 protected:
  FieldDrawingTest() {
    backBuffer->BltColorFill({}, 0);
    pieceCatalogUpper = 18;
  }

  // A keyed picture of one colour with a white border of one pixel.
  static Surface picture(i32 width, i32 height, i32 color) {
    auto surface = std::make_shared<DirectDrawSurface7>(width, height);
    surface->BltColorFill({}, white);
    surface->BltColorFill({1, 1, width - 1, height - 1}, color);
    surface->SetColorKey(sourceBlitKey, colorKey);
    return surface;
  }
  static void kind(i16 slot, i32 color) {
    pieceCatalog[static_cast<std::size_t>(slot)].surface = picture(90, 90, color);
  }
  static i32 at(i32 x, i32 y) { return static_cast<i32>(backBuffer->pixel(x, y)); }
};

TEST_F(FieldDrawingTest, PieceStandsByColumnAndHeightAndItsWhiteIsLeftOut) {
  kind(3, RGB(200, 0, 0));
  drawPiece(3, 2, 435);
  EXPECT_EQ(at(250, 515), 0);  // the white corner
  EXPECT_EQ(at(251, 516), RGB(200, 0, 0));
  EXPECT_EQ(at(338, 603), RGB(200, 0, 0));
  EXPECT_EQ(at(339, 603), 0);
  EXPECT_EQ(at(338, 604), 0);
  drawPiece(7, 5, 100);  // a slot without a picture shows nothing
  EXPECT_EQ(at(550, 220), 0);
}

TEST_F(FieldDrawingTest, HigherRowsRightNeighboursAndFlyingPiecesLieOnTop) {
  const i32 colors[] = {RGB(10, 0, 0), RGB(20, 0, 0), RGB(30, 0, 0), RGB(40, 0, 0)};
  for (i16 slot = 0; slot < 4; ++slot) kind(slot, colors[slot]);
  put(0, 4).imageIndex = 0;
  put(0, 5).imageIndex = 1;
  put(1, 4).imageIndex = 2;
  put(1, 9).imageIndex = 0;
  cellAt(1, 9).occupied = False;
  drawField();
  EXPECT_EQ(at(507, 640), colors[1]);  // columns 4 and 5 overlap from 505 on
  EXPECT_EQ(at(460, 602), colors[2]);  // rows 0 and 1 overlap from 600 on
  EXPECT_EQ(at(890, 560), 0);          // a cell that isn't occupied isn't drawn
  Piece& flying = drop(4);
  flying.imageIndex = 3;
  flying.y = 435;
  flying.alive = False;  // drawn all the same
  drawField();
  EXPECT_EQ(at(460, 560), colors[3]);
}

TEST_F(FieldDrawingTest, PointerStandsAtItsRow) {
  pointerSurface = picture(70, 45, RGB(0, 200, 0));
  for (const i16 row : {0, 3, 6}) {
    backBuffer->BltColorFill({}, 0);
    selectedRow = row;
    drawPointer();
    const i32 top = 620 - 85 * row;
    EXPECT_EQ(at(10, top + 5), 0);
    EXPECT_EQ(at(11, top + 1), RGB(0, 200, 0));
    EXPECT_EQ(at(78, top + 43), RGB(0, 200, 0));
    EXPECT_EQ(at(78, top + 44), 0);
    EXPECT_EQ(at(40, top - 1), 0);
  }
}

TEST_F(FieldDrawingTest, BackgroundIsBlackThenPlateThenFrame) {
  plateSurface = std::make_shared<DirectDrawSurface7>(500, 350);
  plateSurface->BltColorFill({}, RGB(1, 2, 3));
  backBuffer->BltColorFill({}, RGB(250, 0, 0));
  layPlate();
  EXPECT_EQ(at(0, 0), 0);
  EXPECT_EQ(at(80, 300), 0);
  EXPECT_EQ(at(81, 80), RGB(1, 2, 3));
  EXPECT_EQ(at(933, 689), RGB(1, 2, 3));
  EXPECT_EQ(at(934, 689), 0);
  EXPECT_EQ(at(933, 690), 0);

  frameSurface = std::make_shared<DirectDrawSurface7>(512, 384);  // stretched to the screen
  frameSurface->BltColorFill({}, RGB(7, 7, 7));
  frameSurface->BltColorFill({256, 0, 512, 384}, white);
  frameSurface->SetColorKey(sourceBlitKey, colorKey);
  layFrame();
  EXPECT_EQ(at(300, 300), RGB(7, 7, 7));
  EXPECT_EQ(at(0, 767), RGB(7, 7, 7));
  EXPECT_EQ(at(600, 300), RGB(1, 2, 3));
}

TEST_F(FieldDrawingTest, LoadingLineStandsOnItsPicture) {
  const Surface loading = loadLoadingPicture();
  const i32 shown = fake::picturesShown;
  showLoadingLine(loading, "Initializing pieces...");
  EXPECT_EQ(fake::picturesShown, shown + 1);
  EXPECT_EQ(backBuffer->pixel(700, 500), loading->pixel(700, 500));
  i32 brightest = 0;
  for (i32 x = 10; x < 120; ++x) brightest = std::max(brightest, at(x, 20) & 0xFF);
  EXPECT_GT(brightest, 200);
}

}  // namespace
}  // namespace glonks
