#include <windows.h>

#include <psapi.h>

#include "bench/spent.h"

namespace glonks {
namespace {

double seconds(const FILETIME& time) {
  return (static_cast<double>(time.dwHighDateTime) * 0x1p32 + time.dwLowDateTime) * 1e-7;
}

}  // namespace

Spent spentSoFar() {
  FILETIME created, ended, system, user;
  GetProcessTimes(GetCurrentProcess(), &created, &ended, &system, &user);
  PROCESS_MEMORY_COUNTERS memory = {};
  K32GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
  return {seconds(system) + seconds(user), static_cast<double>(memory.PeakWorkingSetSize), {}};
}

}  // namespace glonks
