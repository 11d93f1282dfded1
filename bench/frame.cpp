#include <SDL.h>
#include <SDL_ttf.h>
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "base/paths.h"
#include "base/text.h"
#include "game/loading/loadresources.h"
#include "game/model/model.h"
#include "game/model/resources.h"
#include "game/modes.h"
#include "present/effectdrawing.h"
#include "present/effects/ticker.h"
#include "present/fielddrawing.h"
#include "present/itemdisplay.h"
#include "present/scoresheet.h"
#include "present/screen/display.h"
#include "present/screen/keyedpicture.h"
#include "present/services/directsound.h"
#include "present/tickerdrawing.h"

// One full frame composed three ways, in one run: by the game's own surfaces, by the same blits
// made plainly with SDL, and with a QPainter on a QImage. bench_frame [--benchmark...] <game
// folder>
//
// Ours redraws only what differs from the frame before; "anew" makes it redraw everything.
//
// The plain frame: black, the plate stretched, the frame picture keyed, 70 pieces keyed, the
// pointer, and three texts (score, level title, song). With effects, as when much goes off at once:
// frogs behind the frame picture, and after the pointer counters, impacts, zaps, popups and the
// ticker, of which all but the counters are at other places in each frame. SDL and Qt have their
// texts drawn before. Ours is composed in the other modes too, with all that they show: the count
// of B-Type's pieces, a full score sheet of Midnight Bowling. Each at scale 1, 1.41 and 2; all
// three have their pictures scaled before, except those of impacts and zaps, which change their
// size.
namespace {

using namespace glonks;

// The scene, for all three ways.

struct Line {
  i32 x, y;
  std::string text;
};
const std::vector<Line> lines = {
    {83, 45, "12345"}, {315, 33, "Slow start"}, {80, 723, "Band - Song"}};
const std::vector<Line> counters = {{300, 33, "3 x "}, {400, 33, "3 x "}, {500, 33, "3 x "},
                                    {600, 33, "3 x "}, {795, 33, "3 x "}, {895, 33, "3 x "}};
constexpr i32 kinds = 17;
constexpr std::array<const char*, kinds> pictures = {
    "glonk_01", "glonk_02", "glonk_03", "glonk_04", "rock_01",      "rock_02",
    "rock_03",  "slammer",  "bomb",     "bauble",   "diamond",      "calculator_01",
    "gorgon",   "shifter",  "money",    "music",    "calculator_02"};
const std::string announcement = "PYTHAGOREANBONUS2500";

constexpr Rect plateArea{81, 80, 934, 690};
constexpr i32 frogCount = 12;
constexpr i32 frogKinds = 5;
constexpr i32 frogSize = 100;
constexpr i32 popupCount = 10;
constexpr i32 popupFrames = 40;
constexpr i32 effectOrigin = 190;  // from effect coordinates to the screen
constexpr std::array<i16, 3> impactAges = {60, 160, 260};
constexpr std::array<i16, 3> zapAges = {5, 30, 55};
constexpr i32 letterPitch = 50;
constexpr i32 tickerTop = 365;
constexpr i32 tickerStart = 350;
constexpr i32 tickerStep = 14;
constexpr i32 tickerFrames = 50;

i32 kindAt(i32 row, i32 column) { return (row * 7 + column * 3) % kinds; }

i32 frogX(i32 frog) { return 90 + 65 * frog; }
i32 frogY(i32 frog) { return 90 + 140 * (frog % 4); }

i16 columnIn(i32 number) { return static_cast<i16>(number % columnCount); }
i16 floorIn(i32 number) { return floorOf(static_cast<i16>(number % rowCount)); }

Impact impactAt(std::size_t impact, i32 number) {
  const i32 place = number + 4 * static_cast<i32>(impact);
  return {effectX(columnIn(place)), effectY(floorIn(place)), impactAges[impact]};
}

Rect areaOf(const Impact& impact) {
  const i32 half = impact.age / 2;
  const i32 x = impact.x + effectOrigin;
  const i32 y = impact.y + effectOrigin;
  return {x - half, y - half, x + half, y + half};
}

// Three of each direction, one of each age.
constexpr i32 zapCount = 6;
Zap zapAt(i32 zap, i32 number) {
  const i32 place = number + 3 * zap;
  return {flagOf(zap % 2 == 0), zapAges[static_cast<std::size_t>(zap / 2)],
          static_cast<i16>(cellPitch * columnIn(place) + 100),
          static_cast<i16>(floorIn(place) + fieldTop)};
}

Rect areaOf(const Zap& zap) {
  const i32 half = zap.age / 2;
  if (zap.horizontal == True) {
    return {zap.x - 15, zap.y + 40 - half, zap.x + 70, zap.y + 40 + half};
  }
  return {zap.x + 40 - half, zap.y, zap.x + 40 + half, zap.y + 95};
}

i16 pointsOf(i32 popup) { return static_cast<i16>(100 * (popup + 1)); }

ScorePopup popupAt(i32 popup, i32 number) {
  const i16 start = effectY(floorIn(popup % 3));
  return {effectX(columnIn(popup)), static_cast<i16>(start - 10 * (number % popupFrames)),
          pointsOf(popup)};
}

// Where a letter is seen in a frame; those that reach the left edge are gone.
i32 letterX(std::size_t letter, i32 number) {
  return tickerStart - tickerStep * (number % tickerFrames) +
         letterPitch * static_cast<i32>(letter);
}

double sceneScale = 1;  // pixels to a logical one

i32 onScreen(i32 length) { return static_cast<i32>(std::lround(length * sceneScale)); }

// Ours.

void setUpOurs() {
  dd = std::make_shared<DirectDraw7>();
  colorKey = {RGB(255, 255, 255), RGB(255, 255, 255)};
  gameMode = modeTitled("Freestyle");
  loadPictures();
  SurfaceDesc desc;
  plateSurface = dd->CreateSurfaceFromFile("\\themes\\Cells\\plate_01.bmp", desc);
  for (std::size_t slot = 0; slot < pictures.size(); ++slot) {
    pieceCatalog[slot].surface = loadKeyedPicture(pictures[slot], desc);
  }
  for (i16 row = 0; row < rowCount; ++row) {
    for (i16 column = 0; column < columnCount; ++column) {
      Cell& cell = cellAt(row, column);
      cell.occupied = True;
      cell.imageIndex = static_cast<i16>(kindAt(row, column));
      cell.column = column;
      cell.y = floorOf(row);
    }
  }
  itemStock.fill(3);
  bank = 3;
  notesCollected = 3;
  score = 12345;
  bTypeLeft = 30;
  bowlingRolls = {10, 9, 1, 8, 2, 7, 0, 10, 10, 5, 5, 0, 10, 10, 10, 9, 1};
}

void drawLines() {
  for (const Line& line : lines) backBuffer->DrawText(line.x, line.y, line.text, False);
}

void drawFrogs() {
  for (i32 frog = 0; frog < frogCount; ++frog) {
    const i32 x = frogX(frog);
    const i32 y = frogY(frog);
    backBuffer->Blt({x, y, x + frogSize, y + frogSize},
                    frogPictures[static_cast<std::size_t>(frog % frogKinds)],
                    {0, 0, frogSize, frogSize}, bltKeyed);
  }
}

// The game's lists as they are before the frame is drawn.
void setEffects(i32 number) {
  impacts.clear();
  for (std::size_t i = 0; i < impactAges.size(); ++i) impacts.push_back(impactAt(i, number));
  zaps.clear();
  for (i32 i = 0; i < zapCount; ++i) zaps.push_back(zapAt(i, number));
  scorePopups.clear();
  for (i32 i = 0; i < popupCount; ++i) scorePopups.push_back(popupAt(i, number));
  tickerLines.clear();
  for (std::size_t i = 0; i < announcement.size(); ++i) {
    tickerLines.push_back(
        {glyphFor(announcement[i]), static_cast<i16>(letterX(i, number) + tickerStep)});
  }
}

// The scale that a benchmark is run at, in hundredths; 141 is that of a screen of 1920 by 1080.
void setScale(const benchmark::State& state) {
  sceneScale = state.range(0) == 141 ? 1.40625 : static_cast<double>(state.range(0)) / 100;
  backBuffer = std::make_shared<DirectDrawSurface7>(1024, 768, sceneScale);
  backBuffer->SetForeColor(RGB(255, 255, 255));
  backBuffer->SetFont({"Times New Roman", 12});
}

void composeBoard() {
  clearBack();
  layPlate();
  layFrame();
  drawField();
  drawPointer();
}

void composeOurs(benchmark::State& state) {
  setScale(state);
  for (auto _ : state) {
    composeBoard();
    drawLines();
    benchmark::DoNotOptimize(backBuffer->raster()->pixels.data());
  }
}

// A sheet of the screen's size, all of it seen through: nothing that lies under one is known from a
// frame that lay under another.
Surface clearSheet() {
  auto sheet = std::make_shared<DirectDrawSurface7>(
      std::make_shared<PictureSource>(Raster(backBuffer->width(), backBuffer->height()), 1));
  sheet->SetColorKey(sourceBlitKey, {0, 0});
  return sheet;
}

void composeOursAnew(benchmark::State& state) {
  setScale(state);
  const std::array<Surface, 2> sheets = {clearSheet(), clearSheet()};
  std::size_t number = 0;
  for (auto _ : state) {
    composeBoard();
    drawLines();
    backBuffer->Blt({}, sheets[++number % 2], {}, bltKeyed);
    benchmark::DoNotOptimize(backBuffer->raster()->pixels.data());
  }
}

void composeMode(benchmark::State& state, const std::string& title, void (*texts)()) {
  setScale(state);
  gameMode = modeTitled(title);
  loadPictures();
  for (auto _ : state) {
    composeBoard();
    drawItems();
    texts();
    drawLines();
    benchmark::DoNotOptimize(backBuffer->raster()->pixels.data());
  }
}

void composeOursEffects(benchmark::State& state) {
  setScale(state);
  i32 number = 0;
  for (auto _ : state) {
    setEffects(number++);
    clearBack();
    layPlate();
    drawFrogs();
    layFrame();
    drawField();
    drawPointer();
    drawItems();
    drawImpacts();
    drawZaps();
    drawPopups();
    drawTicker();
    drawLines();
    benchmark::DoNotOptimize(backBuffer->raster()->pixels.data());
  }
}

// The same blits on an easel: a class with the type Picture, load and write to make pictures,
// begin and end around a frame, lay for the background, draw, and stretch.

QImage loadScaled(const std::string& path, i32 width, i32 height, QImage::Format format) {
  const QImage image(QString::fromStdString(nativePath(path).string()));
  if (image.isNull()) throw std::runtime_error(path);
  return image
      .scaled(onScreen(width), onScreen(height), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
      .convertToFormat(format);
}

bool isOpaque(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) != 255) return false;
    }
  }
  return true;
}

template <typename Easel>
class Painting {
 public:
  void composePlain() {
    layBackground();
    easel_.draw(0, 0, frame_);
    drawPieces();
    drawTexts(lines, lineTexts_);
    easel_.end();
  }

  void composeEffects(i32 number) {
    layBackground();
    for (i32 frog = 0; frog < frogCount; ++frog) {
      easel_.draw(frogX(frog), frogY(frog), frogs_[static_cast<std::size_t>(frog % frogKinds)]);
    }
    easel_.draw(0, 0, frame_);
    drawPieces();
    drawTexts(counters, counterTexts_);
    drawStretched(number);
    drawClimbing(number);
    drawLetters(number);
    drawTexts(lines, lineTexts_);
    easel_.end();
  }

  auto pixels() { return easel_.pixels(); }

 private:
  using Picture = typename Easel::Picture;

  Picture image(const std::string& name, i32 width = pieceSize, i32 height = pieceSize) {
    return easel_.load("\\images\\" + name + ".png", width, height);
  }

  template <typename List, typename Make>
  static std::vector<Picture> madeFrom(const List& list, Make make) {
    std::vector<Picture> made;
    made.reserve(std::size(list));
    for (const auto& element : list) made.push_back(make(element));
    return made;
  }

  std::vector<Picture> written(const std::vector<Line>& texts) {
    return madeFrom(texts, [&](const Line& line) { return easel_.write(line.text); });
  }

  std::vector<Picture> writtenPoints() {
    std::vector<Picture> made;
    made.reserve(popupCount);
    for (i32 i = 0; i < popupCount; ++i) made.push_back(easel_.write(signedNumber(pointsOf(i))));
    return made;
  }

  void layBackground() {
    easel_.begin();
    easel_.lay(plateArea, plate_);
  }

  void drawPieces() {
    for (i32 row = 0; row < rowCount; ++row) {
      for (i32 column = 0; column < columnCount; ++column) {
        easel_.draw(80 + 85 * column, 600 - 85 * row,
                    pieces_[static_cast<std::size_t>(kindAt(row, column))]);
      }
    }
    easel_.draw(10, 620, pointer_);
  }

  void drawTexts(const std::vector<Line>& places, const std::vector<Picture>& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) easel_.draw(places[i].x, places[i].y, texts[i]);
  }

  void drawStretched(i32 number) {
    for (std::size_t i = 0; i < impactAges.size(); ++i) {
      easel_.stretch(areaOf(impactAt(i, number)), explosion_);
    }
    for (i32 i = 0; i < zapCount; ++i) {
      const Zap zap = zapAt(i, number);
      easel_.stretch(areaOf(zap), zap.horizontal == True ? zapH_ : zapV_);
    }
  }

  void drawClimbing(i32 number) {
    for (i32 i = 0; i < popupCount; ++i) {
      const ScorePopup popup = popupAt(i, number);
      easel_.draw(popup.x + effectOrigin, popup.y + effectOrigin,
                  popupTexts_[static_cast<std::size_t>(i)]);
    }
  }

  void drawLetters(i32 number) {
    for (std::size_t i = 0; i < letters_.size(); ++i) {
      const i32 x = letterX(i, number);
      if (x > 0) easel_.draw(x, tickerTop, letters_[i]);
    }
  }

  Easel easel_;
  Picture plate_ = easel_.load("\\themes\\Cells\\plate_01.png", plateArea.right - plateArea.left,
                               plateArea.bottom - plateArea.top);
  Picture frame_ = image("frame", 1024, 768);
  Picture pointer_ = image("pointer", 70, 45);
  Picture explosion_ = image("explosion", 300, 300);
  Picture zapH_ = image("zap_h", 80, 80);
  Picture zapV_ = image("zap_v", 80, 80);
  std::vector<Picture> pieces_ = madeFrom(pictures, [&](const char* name) { return image(name); });
  std::vector<Picture> frogs_ = madeFrom(std::string("12345"), [&](char kind) {
    return image(std::string("frog0") + kind, frogSize, frogSize);
  });
  std::vector<Picture> letters_ = madeFrom(announcement, [&](char letter) {
    return image(std::string(1, letter), letterPitch, letterPitch);
  });
  std::vector<Picture> lineTexts_ = written(lines);
  std::vector<Picture> counterTexts_ = written(counters);
  std::vector<Picture> popupTexts_ = writtenPoints();
};

template <typename Easel>
void composePlain(benchmark::State& state) {
  setScale(state);
  Painting<Easel> painting;
  for (auto _ : state) {
    painting.composePlain();
    benchmark::DoNotOptimize(painting.pixels());
  }
}

template <typename Easel>
void composeEffects(benchmark::State& state) {
  setScale(state);
  Painting<Easel> painting;
  i32 number = 0;
  for (auto _ : state) {
    painting.composeEffects(number++);
    benchmark::DoNotOptimize(painting.pixels());
  }
}

// SDL's own routines.

class SdlEasel {
 public:
  struct Deleter {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
  };
  using Picture = std::unique_ptr<SDL_Surface, Deleter>;

  SdlEasel() {
    TTF_Init();
    const auto dots = static_cast<unsigned>(std::lround(96 * sceneScale));
    font_ = TTF_OpenFontDPI("/usr/share/fonts/truetype/liberation/LiberationSerif-Regular.ttf", 12,
                            dots, dots);
  }
  ~SdlEasel() { TTF_CloseFont(font_); }
  SdlEasel(const SdlEasel&) = delete;
  SdlEasel& operator=(const SdlEasel&) = delete;

  Picture load(const std::string& path, i32 width, i32 height) {
    const QImage image = loadScaled(path, width, height, QImage::Format_ARGB32);
    Picture picture = checked(SDL_CreateRGBSurfaceWithFormat(0, image.width(), image.height(), 32,
                                                             SDL_PIXELFORMAT_ARGB8888));
    for (i32 y = 0; y < image.height(); ++y) {
      std::memcpy(static_cast<char*>(picture->pixels) + y * picture->pitch, image.scanLine(y),
                  static_cast<std::size_t>(image.width()) * sizeof(u32));
    }
    SDL_SetSurfaceBlendMode(picture.get(),
                            isOpaque(image) ? SDL_BLENDMODE_NONE : SDL_BLENDMODE_BLEND);
    return picture;
  }

  Picture write(const std::string& text) {
    return checked(TTF_RenderUTF8_Blended(font_, text.c_str(), SDL_Color{255, 255, 255, 255}));
  }

  void begin() { SDL_FillRect(target_.get(), nullptr, 0); }
  void end() {}
  void lay(const Rect& area, const Picture& picture) { draw(area.left, area.top, picture); }

  void draw(i32 x, i32 y, const Picture& picture) {
    SDL_Rect place{onScreen(x), onScreen(y), 0, 0};
    SDL_BlitSurface(picture.get(), nullptr, target_.get(), &place);
  }

  void stretch(const Rect& area, const Picture& picture) {
    SDL_Rect place{onScreen(area.left), onScreen(area.top), onScreen(area.right - area.left),
                   onScreen(area.bottom - area.top)};
    SDL_BlitScaled(picture.get(), nullptr, target_.get(), &place);
  }

  const void* pixels() const { return target_->pixels; }

 private:
  static Picture checked(SDL_Surface* surface) {
    if (surface == nullptr) throw std::runtime_error(SDL_GetError());
    return Picture(surface);
  }

  Picture target_ = checked(
      SDL_CreateRGBSurfaceWithFormat(0, onScreen(1024), onScreen(768), 32, SDL_PIXELFORMAT_RGB888));
  TTF_Font* font_;
};

// A QPainter.

class QtEasel {
 public:
  using Picture = QImage;

  Picture load(const std::string& path, i32 width, i32 height) {
    const QImage image = loadScaled(path, width, height, QImage::Format_ARGB32_Premultiplied);
    return isOpaque(image) ? image.convertToFormat(QImage::Format_RGB32) : image;
  }

  Picture write(const std::string& text) {
    QFont font("Times New Roman");
    font.setPixelSize(onScreen(16));
    const QString shown = QString::fromStdString(text);
    const QFontMetrics metrics(font);
    QImage picture(metrics.horizontalAdvance(shown) + 2, metrics.height(),
                   QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(Qt::white);
    painter.setFont(font);
    painter.drawText(0, metrics.ascent(), shown);
    return picture;
  }

  void begin() {
    painter_.begin(&target_);
    painter_.setCompositionMode(QPainter::CompositionMode_Source);
    painter_.fillRect(target_.rect(), Qt::black);
  }
  void end() { painter_.end(); }

  void lay(const Rect& area, const Picture& picture) {
    draw(area.left, area.top, picture);
    painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
  }

  void draw(i32 x, i32 y, const Picture& picture) {
    painter_.drawImage(onScreen(x), onScreen(y), picture);
  }

  void stretch(const Rect& area, const Picture& picture) {
    painter_.drawImage(QRect(onScreen(area.left), onScreen(area.top),
                             onScreen(area.right - area.left), onScreen(area.bottom - area.top)),
                       picture);
  }

  const void* pixels() { return target_.bits(); }

 private:
  QImage target_{onScreen(1024), onScreen(768), QImage::Format_RGB32};
  QPainter painter_;
};

void composeSdl(benchmark::State& state) { composePlain<SdlEasel>(state); }
void composeQt(benchmark::State& state) { composePlain<QtEasel>(state); }
void composeSdlEffects(benchmark::State& state) { composeEffects<SdlEasel>(state); }
void composeQtEffects(benchmark::State& state) { composeEffects<QtEasel>(state); }

void atEachScale(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(100)->Arg(141)->Arg(200)->Unit(benchmark::kMillisecond);
}

BENCHMARK(composeOurs)->Apply(atEachScale);
BENCHMARK(composeOursAnew)->Apply(atEachScale);
BENCHMARK(composeSdl)->Apply(atEachScale);
BENCHMARK(composeQt)->Apply(atEachScale);
BENCHMARK(composeOursEffects)->Apply(atEachScale);
BENCHMARK(composeSdlEffects)->Apply(atEachScale);
BENCHMARK(composeQtEffects)->Apply(atEachScale);
BENCHMARK_CAPTURE(composeMode, BType, "B-Type", drawScore)->Apply(atEachScale);
BENCHMARK_CAPTURE(composeMode, Bowling, "Midnight Bowling", drawScoreSheet)->Apply(atEachScale);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (argc != 2) return EXIT_FAILURE;
  setProgramFolder(std::filesystem::absolute(argv[1]));
  setUpOurs();
  benchmark::RunSpecifiedBenchmarks();
  return EXIT_SUCCESS;
}
