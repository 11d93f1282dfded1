#include "base/clock.h"

#include <chrono>
#include <ctime>
#include <thread>

namespace glonks {
namespace {

using Steady = std::chrono::steady_clock;
using std::chrono::milliseconds;

const Steady::time_point start = Steady::now();

std::string formatted(const char* form) {
  const std::time_t now = std::time(nullptr);
  char text[64];
  const std::size_t length = std::strftime(text, sizeof text, form, std::localtime(&now));
  return std::string(text, length);
}

}  // namespace

u32 GetTickCount() {
  const auto passed = std::chrono::duration_cast<milliseconds>(Steady::now() - start);
  return static_cast<u32>(passed.count()) + 1;
}

void sleepUntilTick(u32 tick) {
  const auto passed = std::chrono::duration_cast<milliseconds>(Steady::now() - start);
  const auto left = static_cast<i32>(tick - (static_cast<u32>(passed.count()) + 1));
  if (left > 0) std::this_thread::sleep_until(start + passed + milliseconds(left));
}

i32 clockSeed() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto count = std::chrono::duration_cast<std::chrono::microseconds>(now).count();
  return static_cast<i32>(static_cast<u32>(count ^ (count >> 32)));
}

std::string dateText() { return formatted("%x"); }
std::string timeText() { return formatted("%X"); }

}  // namespace glonks
