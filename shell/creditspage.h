#pragma once

// The page Credits: the people who made the game.
namespace glonks {

void mCredits_Click();  // shows the page

extern const char creditsText[];  // the text of the page

}  // namespace glonks
