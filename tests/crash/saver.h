#pragma once

#include "base/types.h"

// What the crash test kills: a start of the program and its saves, step by step.
namespace glonks {

// Reads all that the player owns, changes it, and stores it.
void startAndSaveAll();

// Does so in a process of its own, and kills that at its n-th stop, of which there are two at each
// step: before and after it. A step is a system call or, where those can't be stopped at, a call
// that does something to a file. True if the process has come to its end by itself.
bool finishesWithin(i32 stops);

}  // namespace glonks
