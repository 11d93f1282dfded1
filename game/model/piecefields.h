#pragma once

#include <utility>

#include "game/model/model.h"

// The fields of a piece file: the text name, the number variety and the text picture, then these in
// their order, and the flag isPin at the end.
namespace glonks {

inline constexpr std::pair<const char*, Flag Piece::*> pieceFlags[] = {
    {"bombable", &Piece::bombable},     {"spareFlagA", &Piece::spareFlagA},
    {"slammable", &Piece::slammable},   {"isBauble", &Piece::isBauble},
    {"isBomb", &Piece::isBomb},         {"isCalculator", &Piece::isCalculator},
    {"isDiamond", &Piece::isDiamond},   {"isGorgon", &Piece::isGorgon},
    {"isShifter", &Piece::isShifter},   {"isMoney", &Piece::isMoney},
    {"spareFlagB", &Piece::spareFlagB}, {"isBowlingBall", &Piece::isBowlingBall},
    {"isSlammer", &Piece::isSlammer}};

inline constexpr std::pair<const char*, i32 Piece::*> pieceNumbers[] = {
    {"value", &Piece::value}, {"timerMax", &Piece::timerMax}, {"timerMin", &Piece::timerMin}};

}  // namespace glonks
