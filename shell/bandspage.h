#pragma once

#include <string>
#include <vector>

#include "base/types.h"

// The page Bands: who made the music, and where they can be found.
namespace glonks {

inline std::vector<std::string> bandNames;  // as in the file
inline std::vector<std::string> bandLinks;  // web addresses, in the same order
inline i16 bandsUpper = -1;                 // upper bound of both

void mBands_Click();  // shows the page

// Refills the arrays from the file of bands, which has two fields for each, name and link, and adds
// the names to allBands. If the file can't be read there are none, and a line goes to the log.
void readBands();

// Opens the link of the band selected in allBands, if it has one.
void launch_Click();

}  // namespace glonks
