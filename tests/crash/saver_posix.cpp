#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "tests/crash/saver.h"

namespace glonks {

bool finishesWithin(i32 stops) {
  const pid_t child = fork();
  if (child == 0) {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    startAndSaveAll();
    _exit(0);
  }
  int status = 0;
  while (waitpid(child, &status, 0) == child && WIFSTOPPED(status)) {
    if (stops-- <= 0) kill(child, SIGKILL);
    ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
  }
  return WIFEXITED(status);
}

}  // namespace glonks
