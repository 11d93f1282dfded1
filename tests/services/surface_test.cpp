#include "present/services/surface.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <sstream>

namespace glonks {
namespace {

constexpr u32 white = 0xFFFFFF;
constexpr u32 red = 0xFF0000;
constexpr u32 green = 0x00FF00;
constexpr u32 blue = 0x0000FF;

using Colors = std::function<u32(i32 x, i32 y)>;

Surface picture(i32 width, i32 height, const Colors& color) {
  std::vector<u32> pixels;
  for (i32 y = 0; y < height; ++y) {
    for (i32 x = 0; x < width; ++x) pixels.push_back(color(x, y));
  }
  auto surface = std::make_shared<DirectDrawSurface7>(width, height);
  surface->setPixels(std::move(pixels));
  return surface;
}

Surface plain(i32 width, i32 height, u32 color) {
  return picture(width, height, [color](i32, i32) { return color; });
}

// Every pixel another colour, those of one diagonal white.
u32 motley(i32 x, i32 y) { return x == y ? white : static_cast<u32>(0x100000 + x * 0x100 + y); }

void keyWhite(const Surface& surface) { surface->SetColorKey(sourceBlitKey, {0xFFFFFF, 0xFFFFFF}); }

// The first pixel that isn't as expected, as a text; empty if there is none.
std::string difference(const Surface& surface, const Colors& expected) {
  for (i32 y = 0; y < surface->height(); ++y) {
    for (i32 x = 0; x < surface->width(); ++x) {
      if (surface->pixel(x, y) == expected(x, y)) continue;
      std::ostringstream text;
      text << std::hex << surface->pixel(x, y) << " for " << expected(x, y) << std::dec << " at x "
           << x << ", y " << y;
      return text.str();
    }
  }
  return "";
}

Colors pixelsOf(const Surface& surface) {
  return [surface](i32 x, i32 y) { return surface->pixel(x, y); };
}

TEST(Surface, BlitsAreCutOffAtAllEdges) {
  constexpr i32 width = 6;
  constexpr i32 height = 5;
  const Surface source = picture(width + 3, height + 2, motley);
  keyWhite(source);
  const Rect from{3, 1, 3 + width, 1 + height};
  for (const i32 flags : {bltOpaque, bltKeyed}) {
    for (i32 left = -width - 1; left <= 12; ++left) {
      for (i32 top = -height - 1; top <= 9; ++top) {
        const Surface target = plain(11, 8, blue);
        const i32 status =
            target->Blt({left, top, left + width, top + height}, source, from, flags);
        const auto expected = [&](i32 x, i32 y) {
          const bool inside = x >= left && x < left + width && y >= top && y < top + height;
          const u32 pixel = inside ? motley(x - left + 3, y - top + 1) : blue;
          return flags == bltKeyed && pixel == white ? blue : pixel;
        };
        ASSERT_EQ(difference(target, expected), "")
            << "flags " << std::hex << flags << std::dec << ", to " << left << ", " << top;
        const bool shows = left > -width && left < 11 && top > -height && top < 8;
        EXPECT_EQ(status == 0, shows) << left << ", " << top;
      }
    }
  }
}

TEST(Surface, RectanglesOfZerosAndOutOfThePicture) {
  const Surface source = picture(4, 3, motley);
  const Surface target = plain(4, 3, blue);
  EXPECT_EQ(target->Blt({}, source, {}, bltOpaque), 0);
  EXPECT_EQ(difference(target, motley), "");

  // Twice the size, from a corner that sticks out: nothing outside the picture is drawn.
  keyWhite(source);
  const Surface keyed = plain(8, 8, blue);
  keyed->Blt({0, 0, 8, 8}, source, {-2, -2, 6, 6}, bltKeyed);
  EXPECT_EQ(difference(keyed,
                       [](i32 x, i32 y) {
                         const bool inside = x >= 2 && x < 6 && y >= 2 && y < 5;
                         return inside && x != y ? motley(x - 2, y - 2) : blue;
                       }),
            "");
  const Surface opaque = plain(8, 8, blue);
  opaque->Blt({0, 0, 8, 8}, source, {-2, -2, 6, 6}, bltOpaque);
  EXPECT_EQ(opaque->pixel(2, 4), motley(0, 2));
  EXPECT_EQ(opaque->pixel(5, 2), motley(3, 0));

  const Surface untouched = plain(8, 8, blue);
  EXPECT_NE(untouched->Blt({}, nullptr, {}, bltOpaque), 0);
  EXPECT_NE(untouched->Blt({5, 5, 5, 7}, source, {}, bltOpaque), 0);
  EXPECT_NE(untouched->Blt({5, 5, 4, 7}, source, {}, bltOpaque), 0);
  EXPECT_NE(untouched->Blt({0, 0, 4, 3}, source, {2, 2, 2, 3}, bltOpaque), 0);
  EXPECT_EQ(difference(untouched, [](i32, i32) { return blue; }), "");
}

TEST(Surface, OpaqueBlitsStretchSmoothly) {
  const Surface quarters = picture(20, 20, [](i32 x, i32 y) {
    return y < 10 ? (x < 10 ? red : green) : (x < 10 ? blue : white);
  });
  const i32 sizes[][2] = {{40, 40}, {50, 33}, {7, 9}, {101, 3}, {1024, 768}};
  for (const auto& [width, height] : sizes) {
    const std::string where = std::to_string(width) + " by " + std::to_string(height);
    const Surface target = plain(width, height, 0);
    target->Blt({}, quarters, {}, bltOpaque);
    EXPECT_EQ(target->pixel(0, 0), red) << where;
    EXPECT_EQ(target->pixel(width - 1, 0), green) << where;
    EXPECT_EQ(target->pixel(0, height - 1), blue) << where;
    EXPECT_EQ(target->pixel(width - 1, height - 1), white) << where;
    if (width > 20) {
      const std::set<u32> top(target->pixels(), target->pixels() + width);
      EXPECT_GT(top.size(), 2U) << where << ": a hard step between two quarters";
    }
    for (const i32 size : {1, 20}) {
      target->Blt({}, plain(size, size, 0x8141C1), {}, bltOpaque);
      EXPECT_EQ(difference(target, [](i32, i32) { return 0x8141C1U; }), "") << where;
    }
  }
}

TEST(Surface, KeyedBlitsStretchWithoutAFringe) {
  const Surface source = picture(
      10, 10, [](i32 x, i32 y) { return x >= 3 && x < 7 && y >= 3 && y < 7 ? red : white; });
  keyWhite(source);
  const i32 sizes[][2] = {{37, 23}, {90, 90}, {7, 8}, {10, 31}};
  for (const auto& [width, height] : sizes) {
    const Surface target = plain(width, height, blue);
    target->Blt({}, source, {}, bltKeyed);
    i32 reds = 0;
    for (i32 y = 0; y < height; ++y) {
      for (i32 x = 0; x < width; ++x) {
        const u32 pixel = target->pixel(x, y);
        reds += pixel == red ? 1 : 0;
        ASSERT_TRUE(pixel == red || pixel == blue) << std::hex << pixel;
      }
    }
    EXPECT_EQ(target->pixel(width / 2, height / 2), red);
    EXPECT_EQ(target->pixel(0, 0), blue);
    EXPECT_NEAR(reds, width * height * 16 / 100, width + height);
  }
}

// Blits keep what they have worked out; it must never be out of date.
TEST(Surface, ABlitShowsItsSourceAsItIsNow) {
  const Surface other = plain(8, 8, green);
  const struct {
    const char* name;
    std::function<void(const Surface&)> change;
  } table[] = {
      {"filled",
       [](const Surface& s) {
         s->BltColorFill({2, 2, 4, 4}, green);
       }},
      {"given pixels", [](const Surface& s) { s->setPixels(std::vector<u32>(64, green)); }},
      {"blitted on",
       [&](const Surface& s) {
         s->Blt({1, 0, 9, 8}, other, {}, bltOpaque);
       }},
      {"another key",
       [](const Surface& s) {
         s->SetColorKey(sourceBlitKey, {red, red});
       }},
      {"written on",
       [](const Surface& s) {
         s->SetFont({"Times New Roman", 12});
         s->SetForeColor(green);
         s->DrawText(0, -4, "W", False);
       }},
  };
  for (const auto& row : table) {
    for (const i32 size : {8, 16}) {
      const Surface source = plain(8, 8, red);
      keyWhite(source);
      const Surface before = plain(size, size, blue);
      before->Blt({}, source, {}, bltKeyed);
      row.change(source);
      const Surface after = plain(size, size, blue);
      after->Blt({}, source, {}, bltKeyed);
      EXPECT_NE(difference(after, pixelsOf(before)), "") << row.name << ", size " << size;
    }
  }
}

TEST(Surface, ManyKindsOfBlitFromOneSource) {
  const Surface source = picture(40, 40, motley);
  keyWhite(source);
  for (int round = 0; round < 3; ++round) {
    for (i32 at = 0; at < 30; ++at) {
      const i32 flags = (at + round) % 2 == 0 ? bltOpaque : bltKeyed;
      const Surface target = plain(5, 5, blue);
      target->Blt({}, source, {at, at / 2, at + 5, at / 2 + 5}, flags);
      ASSERT_EQ(difference(target,
                           [&](i32 x, i32 y) {
                             const u32 pixel = motley(x + at, y + at / 2);
                             return flags == bltKeyed && pixel == white ? blue : pixel;
                           }),
                "")
          << "from " << at;
    }
  }
}

TEST(Surface, FillsAreCutOffAtAllEdges) {
  for (const Rect& rect : {Rect{2, 1, 5, 4}, Rect{-3, -2, 2, 3}, Rect{6, 5, 20, 20},
                           Rect{-5, 2, 50, 3}, Rect{5, 5, 3, 7}, Rect{-9, -9, -1, -1}, Rect{}}) {
    const Surface target = plain(9, 8, blue);
    target->BltColorFill(rect, RGB(255, 0, 0));
    const auto expected = [&](i32 x, i32 y) {
      const bool inside = x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
      return inside || rect == Rect{} ? red : blue;
    };
    EXPECT_EQ(difference(target, expected), "") << rect.left << ", " << rect.top;
  }
}

u32 wall(i32 x, i32 y) { return (x / 3 + y / 2) % 2 == 0 ? 0x203040 : 0x605010; }

Surface page(i32 width = 220, i32 height = 80, const Colors& background = wall) {
  const Surface surface = picture(width, height, background);
  surface->SetFont({"Times New Roman", 12});
  surface->SetForeColor(0xFFFFFF);
  surface->SetFontTransparency(True);
  return surface;
}

Surface copyOf(const Surface& surface) {
  return picture(surface->width(), surface->height(), pixelsOf(surface));
}

TEST(Text, DrawnAgainItLooksAsDrawnOnce) {
  const Surface surface = page();
  surface->DrawText(10, 10, "Seven Rows", False);
  surface->DrawText(110, 40, "Seven Rows", False);
  const Surface once = copyOf(surface);
  EXPECT_NE(difference(once, wall), "");
  for (int i = 0; i < 5; ++i) {
    surface->DrawText(10, 10, "Seven Rows", False);
    surface->DrawText(110, 40, "Seven Rows", False);
  }
  EXPECT_EQ(difference(surface, pixelsOf(once)), "");

  for (const Rect& rect : {Rect{200, 0, 210, 10}, Rect{12, 8, 40, 40}, Rect{0, 0, 220, 80}}) {
    surface->Blt(rect, picture(220, 80, wall), rect,
                 bltOpaque);  // elsewhere, over a part, over all
    surface->DrawText(10, 10, "Seven Rows", False);
    surface->DrawText(110, 40, "Seven Rows", False);
    // Half painted over, the other half's smooth edges grow; the painted one is right.
    for (i32 y = rect.top; y < rect.bottom; ++y) {
      for (i32 x = rect.left; x < rect.right; ++x) {
        ASSERT_EQ(surface->pixel(x, y), once->pixel(x, y)) << x << ", " << y;
      }
    }
  }
}

TEST(Text, MovesWithItsPlaceAndIsCutOffAtTheEdges) {
  const auto black = [](i32, i32) { return 0U; };
  const Surface large = page(400, 200, black);
  large->DrawText(150, 90, "Qgp 100", False);
  const i32 places[][2] = {{3, 4}, {-20, -9}, {35, 5}, {5, 25}, {-300, 3}, {70, 0}};
  for (const auto& [left, top] : places) {
    const Surface surface = page(60, 30, black);
    for (int i = 0; i < 2; ++i) surface->DrawText(left, top, "Qgp 100", False);
    const auto expected = [&, l = left, t = top](i32 x, i32 y) {
      const i32 largeX = x - l + 150;
      const i32 largeY = y - t + 90;
      return largeX < 400 && largeY < 200 ? large->pixel(largeX, largeY) : 0;
    };
    EXPECT_EQ(difference(surface, expected), "") << "at " << left << ", " << top;
  }
}

TEST(Text, EmptyTextsAndControlCharacters) {
  const Surface surface = page();
  for (const std::string& text : {std::string(), std::string("\x01\r\n\t\0", 5)}) {
    surface->DrawText(10, 10, text, False);
    EXPECT_EQ(difference(surface, wall), "");
  }
  const Surface other = page();
  surface->DrawText(10, 10, std::string("a\tb\0c", 5), False);
  other->DrawText(10, 10, "a b c", False);
  EXPECT_EQ(difference(surface, pixelsOf(other)), "");
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  surface->DrawText(-900, 10, all, False);
  surface->DrawText(10, 40, std::string(3000, 'W'), False);
}

}  // namespace
}  // namespace glonks
