#include <SDL.h>
#include <SDL_ttf.h>
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <array>
#include <cstdlib>
#include <string>
#include <vector>

#include "game/loadresources.h"
#include "game/model.h"
#include "game/resources.h"
#include "game/text.h"
#include "present/display.h"
#include "present/fielddrawing.h"
#include "present/keyedpicture.h"
#include "present/services/directsound.h"
#include "storage/paths.h"

// One full frame composed three ways, in one run: by the game's own surfaces, by the same blits
// made plainly with SDL, and with a QPainter on a QImage. bench_frame [--benchmark...] <game
// folder>
//
// A frame: black, the plate stretched, the frame picture keyed, 70 pieces keyed, the pointer, and
// three texts (score, level title, song). The other two have their texts drawn before.
namespace {

using namespace glonks;

struct Line {
  i32 x, y;
  std::string text;
};
const std::vector<Line> lines = {
    {83, 45, "12345"}, {315, 33, "Slow start"}, {80, 723, "Band - Song"}};
constexpr i32 kinds = 17;
constexpr std::array<const char*, kinds> pictures = {
    "glonk_01", "glonk_02", "glonk_03", "glonk_04", "rock_01",      "rock_02",
    "rock_03",  "slammer",  "bomb",     "bauble",   "diamond",      "calculator_01",
    "gorgon",   "shifter",  "money",    "music",    "calculator_02"};

i32 kindAt(i32 row, i32 column) { return (row * 7 + column * 3) % kinds; }

std::string fileOf(const std::string& path) { return nativePath(path).string(); }

// Ours.

void setUpOurs() {
  dd = std::make_shared<DirectDraw7>();
  colorKey = {RGB(255, 255, 255), RGB(255, 255, 255)};
  backBuffer = std::make_shared<DirectDrawSurface7>(1024, 768);
  backBuffer->SetForeColor(RGB(255, 255, 255));
  backBuffer->SetFont({"Times New Roman", 12});
  SurfaceDesc desc;
  plateSurface = dd->CreateSurfaceFromFile("\\themes\\Cells\\plate_01.bmp", desc);
  frameSurface = loadKeyedPicture("frame", desc);
  pointerSurface = loadKeyedPicture("pointer", desc);
  for (std::size_t slot = 0; slot < pictures.size(); ++slot) {
    pieceCatalog[slot].surface = loadKeyedPicture(pictures[slot], desc);
  }
  for (i16 row = 0; row < rowCount; ++row) {
    for (i16 column = 0; column < columnCount; ++column) {
      Cell& cell = playfield[static_cast<std::size_t>(row)][column];
      cell.occupied = True;
      cell.imageIndex = static_cast<i16>(kindAt(row, column));
      cell.column = column;
      cell.y = floorOf(row);
    }
  }
}

void composeOurs(benchmark::State& state) {
  for (auto _ : state) {
    layPlate();
    layFrame();
    drawField();
    drawPointer();
    for (const Line& line : lines) backBuffer->DrawText(line.x, line.y, line.text, False);
    benchmark::DoNotOptimize(backBuffer->pixels());
  }
}

// The same blits with SDL's own routines.

SDL_Surface* loadSdl(const std::string& path, bool keyed) {
  SDL_Surface* file = SDL_LoadBMP(fileOf(path).c_str());
  SDL_Surface* surface = SDL_ConvertSurfaceFormat(file, SDL_PIXELFORMAT_RGB888, 0);
  SDL_FreeSurface(file);
  SDL_SetSurfaceBlendMode(surface, SDL_BLENDMODE_NONE);
  if (keyed) SDL_SetColorKey(surface, SDL_TRUE, SDL_MapRGB(surface->format, 255, 255, 255));
  return surface;
}

void composeSdl(benchmark::State& state) {
  SDL_Surface* target = SDL_CreateRGBSurfaceWithFormat(0, 1024, 768, 32, SDL_PIXELFORMAT_RGB888);
  SDL_Surface* plate = loadSdl("\\themes\\Cells\\plate_01.bmp", false);
  SDL_Surface* frame = loadSdl("\\images\\frame.bmp", true);
  SDL_Surface* pointer = loadSdl("\\images\\pointer.bmp", true);
  std::vector<SDL_Surface*> pieces;
  for (const char* name : pictures) {
    pieces.push_back(loadSdl(std::string("\\images\\") + name + ".bmp", true));
  }
  TTF_Init();
  TTF_Font* font = TTF_OpenFontDPI(
      "/usr/share/fonts/truetype/liberation/LiberationSerif-Regular.ttf", 12, 96, 96);
  std::vector<SDL_Surface*> texts;
  for (const Line& line : lines) {
    texts.push_back(font == nullptr ? nullptr
                                    : TTF_RenderUTF8_Blended(font, line.text.c_str(),
                                                             SDL_Color{255, 255, 255, 255}));
  }
  for (auto _ : state) {
    SDL_FillRect(target, nullptr, 0);
    SDL_Rect plateRect{81, 80, 853, 610};
    SDL_BlitScaled(plate, nullptr, target, &plateRect);
    SDL_BlitSurface(frame, nullptr, target, nullptr);
    for (i32 row = 0; row < rowCount; ++row) {
      for (i32 column = 0; column < columnCount; ++column) {
        SDL_Rect place{80 + 85 * column, 600 - 85 * row, 90, 90};
        SDL_BlitSurface(pieces[static_cast<std::size_t>(kindAt(row, column))], nullptr, target,
                        &place);
      }
    }
    SDL_Rect pointerPlace{10, 620, 70, 45};
    SDL_BlitSurface(pointer, nullptr, target, &pointerPlace);
    for (std::size_t i = 0; i < texts.size(); ++i) {
      SDL_Rect place{lines[i].x, lines[i].y, 0, 0};
      if (texts[i] != nullptr) SDL_BlitSurface(texts[i], nullptr, target, &place);
    }
    benchmark::DoNotOptimize(target->pixels);
  }
}

// With a QPainter.

QImage loadQt(const std::string& path, bool keyed) {
  QImage image(QString::fromStdString(fileOf(path)));
  if (!keyed) return image.convertToFormat(QImage::Format_RGB32);
  image = image.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) == 0xFFFFFFFFU) image.setPixel(x, y, 0);
    }
  }
  return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

void composeQt(benchmark::State& state) {
  QImage target(1024, 768, QImage::Format_RGB32);
  const QImage plate = loadQt("\\themes\\Cells\\plate_01.bmp", false);
  const QImage frame = loadQt("\\images\\frame.bmp", true);
  const QImage pointer = loadQt("\\images\\pointer.bmp", true);
  std::vector<QImage> pieces;
  for (const char* name : pictures) {
    pieces.push_back(loadQt(std::string("\\images\\") + name + ".bmp", true));
  }
  std::vector<QImage> texts;
  for (const Line& line : lines) {
    QImage text(200, 24, QImage::Format_ARGB32_Premultiplied);
    text.fill(Qt::transparent);
    QPainter painter(&text);
    painter.setPen(Qt::white);
    painter.setFont(QFont("Times New Roman", 12));
    painter.drawText(0, 18, QString::fromStdString(line.text));
    texts.push_back(text);
  }
  for (auto _ : state) {
    QPainter painter(&target);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(target.rect(), Qt::black);
    painter.drawImage(QRect(81, 80, 853, 610), plate);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawImage(0, 0, frame);
    for (i32 row = 0; row < rowCount; ++row) {
      for (i32 column = 0; column < columnCount; ++column) {
        painter.drawImage(80 + 85 * column, 600 - 85 * row,
                          pieces[static_cast<std::size_t>(kindAt(row, column))]);
      }
    }
    painter.drawImage(10, 620, pointer);
    for (std::size_t i = 0; i < texts.size(); ++i) {
      painter.drawImage(lines[i].x, lines[i].y, texts[i]);
    }
    painter.end();
    benchmark::DoNotOptimize(target.bits());
  }
}

BENCHMARK(composeOurs)->Unit(benchmark::kMillisecond);
BENCHMARK(composeSdl)->Unit(benchmark::kMillisecond);
BENCHMARK(composeQt)->Unit(benchmark::kMillisecond);

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
