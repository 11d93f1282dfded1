#include <algorithm>
#include <random>

#include "present/services/directdraw.h"
#include "tests/tempfolder.h"

namespace glonks {
namespace {

constexpr const char* badPath = "\\bad.bmp";
constexpr std::size_t headerSize = 54;  // where the pixels begin

class PictureFile : public TempFolder {
 protected:
  static Surface load(const std::string& path, SurfaceDesc& desc) {
    return DirectDraw7().CreateSurfaceFromFile(path, desc);
  }
  static std::string errorOfBytes(const std::string& bytes) {
    putBytes(badPath, bytes);
    SurfaceDesc desc;
    const std::string error = errorOf([&] { load(badPath, desc); });
    EXPECT_EQ(desc.width > 0, error == "no error");
    return error;
  }
  // The header with one number of 32 bits changed.
  std::string withNumber(std::size_t at, u32 number) const {
    std::string bytes = apple;
    for (std::size_t i = 0; i < 4; ++i) bytes[at + i] = static_cast<char>(number >> (8 * i));
    return bytes;
  }
  const std::string apple =
      bytesOf("\\images\\apple.bmp");  // the bytes of a good picture, 90 by 90 with 24 bits a pixel
};

TEST_F(PictureFile, APictureComesPixelByPixel) {
  SurfaceDesc desc;
  const Surface surface = load("\\images\\apple.bmp", desc);
  ASSERT_EQ(surface->width(), 90);
  ASSERT_EQ(surface->height(), 90);
  EXPECT_EQ(desc.width, 90);
  EXPECT_EQ(desc.height, 90);
  constexpr i32 pitch = 272;  // three bytes a pixel, rows filled to four, from the bottom up
  for (i32 y = 0; y < 90; ++y) {
    for (i32 x = 0; x < 90; ++x) {
      const std::size_t at = headerSize + static_cast<std::size_t>((89 - y) * pitch + x * 3);
      const auto part = [&](std::size_t i) { return static_cast<unsigned char>(apple[at + i]); };
      ASSERT_EQ(surface->pixel(x, y), static_cast<u32>(RGB(part(2), part(1), part(0))))
          << x << ", " << y;
    }
  }
}

TEST_F(PictureFile, BadFilesAreToldByName) {
  const struct {
    const char* name;
    std::string bytes;
  } table[] = {
      {"empty", ""},
      {"cut off in the first header", apple.substr(0, 13)},
      {"cut off in the height", apple.substr(0, 25)},
      {"cut off behind the height", apple.substr(0, 26)},
      {"a header and no pixels", apple.substr(0, headerSize)},
      {"half the pixels", apple.substr(0, apple.size() / 2)},
      {"a pixel missing", apple.substr(0, apple.size() - 5)},
      {"another kind of file", "GIF89a" + std::string(500, '\0')},
      {"far too wide", withNumber(18, 100'000)},
      {"no width", withNumber(18, 0)},
      {"far too high", withNumber(22, 100'000)},
      {"far too high, upside down", withNumber(22, 0x80000000)},
      {"no height", withNumber(22, 0)},
      {"pixels beyond the end", withNumber(10, 0x00FFFFFF)},
      {"nonsensical bits a pixel", withNumber(28, 7)},
  };
  for (const auto& row : table) {
    EXPECT_PRED2(holds, errorOfBytes(row.bytes), badPath) << row.name;
  }
  SurfaceDesc desc;
  EXPECT_PRED2(holds, errorOf([&] { load("\\images\\none.bmp", desc); }), "\\images\\none.bmp");
  EXPECT_PRED2(holds, errorOf([&] { load("\\images", desc); }), "\"\\images\"");
}

TEST_F(PictureFile, RandomBytesLoadOrAreToldByName) {
  for (unsigned seed = 0; seed < 400; ++seed) {
    std::mt19937 random(seed);
    std::string bytes = apple;
    if (seed % 2 == 0) {
      std::generate(bytes.begin() + 2, bytes.end(), [&] { return static_cast<char>(random()); });
    } else {
      for (int i = 0; i < 3; ++i) bytes[2 + random() % 52] = static_cast<char>(random());
    }
    const std::string error = errorOfBytes(bytes);
    EXPECT_TRUE(error == "no error" || holds(error, badPath)) << "seed " << seed << ": " << error;
  }
}

}  // namespace
}  // namespace glonks
