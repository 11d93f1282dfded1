#pragma once

#include <array>

#include "shell/toolkit/controls.h"

// Form fPieces: the specimen box, which describes each kind of piece.
namespace glonks {

void fPieces_Form_Load();      // each time that the form is opened
void pClick_Click(i16 Index);  // shows the description of a specimen, 0 to 17

inline constexpr i16 specimenCount = 18;
inline Form fPieces;
inline Image fPieces_background;
inline TextBox pieceDesc;
inline std::array<Image, specimenCount> pClick;  // over the specimens of the picture

}  // namespace glonks
