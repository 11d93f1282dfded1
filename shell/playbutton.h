#pragma once

namespace glonks {

// The Play button: runs a whole game of the mode chosen on page 0, from taking the screen to
// storing the results, and returns when it has ended. Without a choice it only says what is
// missing.
void main_BtnRun_Click();

}  // namespace glonks
