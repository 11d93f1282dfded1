#include <gtest/gtest.h>
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

// What is written stays in the process until there is so much of it.
constexpr size_t buffered = 4096;
size_t written = 0;

int runSaver(const std::string& folder, i32 stops) {
  setProgramFolder(folder);
  prepareSaver();
  stopsLeft = stops;
  startAndSaveAll();
  return 0;
}

}  // namespace

bool finishesWithin(i32 stops) {
  wchar_t program[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  std::wstring command = L"\"" + std::wstring(program) + L"\" save \"" + programFolder().wstring() +
                         L"\" " + std::to_wstring(stops);
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  PROCESS_INFORMATION process = {};
  if (CreateProcessW(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                     &process) == 0) {
    throw std::system_error(static_cast<int>(GetLastError()), std::system_category());
  }
  DWORD status = 1;
  WaitForSingleObject(process.hProcess, INFINITE);
  GetExitCodeProcess(process.hProcess, &status);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return status == 0;
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
extern "C" size_t __real_fwrite(const void* bytes, size_t size, size_t count, FILE* file);
extern "C" size_t __wrap_fwrite(const void* bytes, size_t size, size_t count, FILE* file) {
  using namespace glonks;
  const auto write = [&] { return __real_fwrite(bytes, size, count, file); };
  const size_t before = written;
  written += size * count;
  return written / buffered == before / buffered ? write() : stepOf(write);
}
// openFile, flushToDisk, replaceFile and std::filesystem::remove
STEP(FILE*, _ZN6glonks8openFileERKNSt10filesystem7__cxx114pathEPKc,
     (const path& file, const char* mode), (file, mode))
STEP(bool, _ZN6glonks11flushToDiskEP6_iobuf, (FILE * file), (file))
STEP(std::error_code, _ZN6glonks11replaceFileERKNSt10filesystem7__cxx114pathES4_,
     (const path& target, const path& replacement), (target, replacement))
STEP(bool, _ZNSt10filesystem6removeERKNS_7__cxx114pathERSt10error_code,
     (const path& file, std::error_code& error), (file, error))

int main(int argc, char** argv) {
  if (argc == 4 && std::string(argv[1]) == "save")
    return glonks::runSaver(argv[2], std::stoi(argv[3]));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
