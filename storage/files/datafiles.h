#pragma once

#include <array>

#include "base/types.h"

// Every data file by a name. On disk they have bare numbers.
namespace glonks {

// In "\init\", read only.
inline constexpr char tipsPath[] = "\\init\\1182";
inline constexpr char bandsPath[] = "\\init\\6859";

// In "\init\", of the player; their first contents lie in "\first\" under the same names.
inline constexpr char scoresFileName[] = "6095";
inline constexpr char storeFileName[] = "6702";
inline constexpr char levelsFileName[] = "6537";

// In "\levels\", the one level of Freestyle. The others' numbers stand in the list of open levels
// and in the levels themselves.
inline constexpr i32 freestyleLevel = 2193;

// The same for B-Type, by its grades from the mildest; their files have the same form.
inline constexpr std::array<i32, 3> bTypeLevels = {2194, 2195, 2196};

// In "\init\", the piece files by slot of the catalogue.
inline constexpr std::array<const char*, 19> pieceFileIds = {"1980",   // BType
                                                             "0018",   // Pin
                                                             "1281",   // Slammer
                                                             "9234",   // Bomb
                                                             "4742",   // Bauble
                                                             "9338",   // Diamond
                                                             "0634",   // Calculator
                                                             "6768",   // Gorgon
                                                             "5156",   // Shifter
                                                             "0876",   // Bowling Ball
                                                             "8624",   // Money
                                                             "8752",   // Music
                                                             "2137",   // Rock, of three varieties
                                                             "5493",   //
                                                             "7147",   //
                                                             "7045",   // Glonk, of four varieties
                                                             "9201",   //
                                                             "6337",   //
                                                             "8269"};  //

}  // namespace glonks
