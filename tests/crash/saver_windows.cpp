#include <gtest/gtest.h>
#include <process.h>
#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <limits>
#include <string>
#include <system_error>

#include "base/paths.h"
#include "tests/crash/saver.h"

// The test program starts itself, as "<program> save <folder> <stops>". The linker leads the calls
// that do something to files through this file's own ones, which stop before and after them.

namespace glonks {
namespace {

i32 stopsLeft = std::numeric_limits<i32>::max();  // for ever, in the process that tests

void stop() {
  if (stopsLeft-- <= 0) TerminateProcess(GetCurrentProcess(), 9);
}

// What a step returns, with a stop on both sides of it.
auto stepOf(const auto& call) {
  stop();
  const auto result = call();
  stop();
  return result;
}

}  // namespace

bool finishesWithin(i32 stops) {
  wchar_t program[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  const std::wstring folder = L"\"" + programFolder().wstring() + L"\"";
  return _wspawnl(_P_WAIT, program, L"test_crash", L"save", folder.c_str(),
                  std::to_wstring(stops).c_str(), nullptr) == 0;
}

}  // namespace glonks

// A function that the linker leads through ours; the real one keeps its own name with "__real_".
#define STEP(result, symbol, parameters, arguments)                   \
  extern "C" result __real_##symbol parameters;                       \
  extern "C" result __wrap_##symbol parameters {                      \
    return glonks::stepOf([&] { return __real_##symbol arguments; }); \
  }

using std::filesystem::path;
STEP(int, fflush, (FILE * file), (file))
STEP(int, fclose, (FILE * file), (file))
// openFile, flushToDisk, replaceFile and std::filesystem::remove
STEP(FILE*, _ZN6glonks8openFileERKNSt10filesystem7__cxx114pathEPKc,
     (const path& file, const char* mode), (file, mode))
STEP(bool, _ZN6glonks11flushToDiskEP6_iobuf, (FILE * file), (file))
STEP(std::error_code, _ZN6glonks11replaceFileERKNSt10filesystem7__cxx114pathES4_,
     (const path& target, const path& replacement), (target, replacement))
STEP(bool, _ZNSt10filesystem6removeERKNS_7__cxx114pathERSt10error_code,
     (const path& file, std::error_code& error), (file, error))

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc < 4) return RUN_ALL_TESTS();
  glonks::setProgramFolder(argv[2]);
  glonks::stopsLeft = std::stoi(argv[3]);
  glonks::startAndSaveAll();
  return 0;
}
