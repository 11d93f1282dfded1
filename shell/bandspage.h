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

// Reads "\init\6859": fields band name and link, for each band. Fills the arrays anew and adds the
// names to allBands. Raises fileNotFound, badFile or inputPastEnd for that file.
void readBands();

// Opens the link of the band selected in allBands, if it has one.
void launch_Click();

}  // namespace glonks
