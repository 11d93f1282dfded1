#pragma once

// The page Backgrounds: the choice of a theme, and a preview of its plates.
namespace glonks {

void mBackgrounds_Click();  // shows the page

// Fills the choice of themes, selects the stored one, or the first if there is none of that name,
// and reads the list of bands.
void popThemes();

// A theme was chosen: shows its first plate and stores the choice.
void theme_Click();

// Shows the plate that the bar stands at. The game takes no notice of it.
void HScroll1_Change();

}  // namespace glonks
