#pragma once

#include <cstring>

#include "tests/engine/enginetest.h"

namespace glonks {

// Tests on boards that are drawn as text: rows from the top, parted by "/", one letter for each
// cell, "." for a free one. Pieces are those of the game's own catalogue.
class BoardTest : public EngineTest {
 protected:
  static constexpr const char* letters = "SBUDCcGHMNTPR1234";
  static constexpr i32 never = 1000000000;

  BoardTest() {
    loadPieces();
    clearItems(tMode);
    bank = bTypeLeft = pendingSpawns = 0;
  }

  // The catalogue's piece of a letter: c is a Calculator of negative value.
  static Piece pieceOf(char letter) {
    constexpr const char* names[] = {"Slammer",    "Bomb",   "Bauble",  "Diamond", "Calculator",
                                     "Calculator", "Gorgon", "Shifter", "Money",   "Music",
                                     "BType",      "Pin",    "Rock",    "Glonk",   "Glonk",
                                     "Glonk",      "Glonk"};
    const i16 variety = letter == 'c' ? -1 : letter == 'R' ? 1 : letter <= '4' ? letter - '0' : 0;
    const auto* name = names[std::strchr(letters, letter) - letters];
    for (const Piece& entry : pieceCatalog) {
      if (entry.name != name || (entry.variety != variety && letter != 'c')) continue;
      Piece piece = entry;
      piece.variety = variety;
      if (letter == 'C' || letter == 'c') piece.value = letter == 'C' ? 30 : -40;
      return piece;
    }
    return {};
  }

  // Lays a board of pieces that have come to rest and whose timers don't run out.
  static void lay(const std::string& rows) {
    for (Row& row : playfield) row = Row{};
    i32 row = static_cast<i32>(std::count(rows.begin(), rows.end(), '/'));
    i32 column = 0;
    for (const char letter : rows) {
      if (letter == '/') --row;
      if (letter != '/' && letter != '.') {
        Cell& cell = put(static_cast<i16>(row), static_cast<i16>(column));
        static_cast<Piece&>(cell) = pieceOf(letter);
        cell.column = static_cast<i16>(column);
        cell.y = floorOf(static_cast<i16>(row));
        cell.expiry = letter == 'D' ? -1 : never;
        cell.tallied = True;
      }
      column = letter == '/' ? 0 : column + 1;
    }
  }

  static char letterOf(const Piece& piece) {
    for (const char* letter = letters; *letter != 0; ++letter) {
      const Piece known = pieceOf(*letter);
      if (known.name == piece.name && known.variety == piece.variety) return *letter;
    }
    return '?';
  }

  // The board as `lay` takes it, without free cells at a row's end.
  static std::string board() {
    std::string rows;
    for (i32 row = rowCount - 1; row >= 0; --row) {
      std::string line;
      for (const Cell& cell : playfield[static_cast<std::size_t>(row)].cells) {
        line += cell.occupied == True ? letterOf(cell) : '.';
      }
      line.erase(line.find_last_not_of('.') + 1);
      if (!line.empty() || !rows.empty()) rows += (rows.empty() ? "" : "/") + line;
    }
    return rows;
  }

  // Letters and columns of what falls: "S3 15".
  static std::string falling() {
    std::string text;
    for (const Piece& piece : fallingPieces) {
      text += std::string(text.empty() ? "" : " ") + letterOf(piece) + std::to_string(piece.column);
    }
    return text;
  }

  static std::string popups() {
    std::string text;
    for (const ScorePopup& popup : scorePopups) {
      text += (text.empty() ? "" : " ") + std::to_string(popup.points);
    }
    return text;
  }

  // Sounds played since the last call, without their "_".
  static std::string heard() {
    std::string text;
    for (const std::string& sound : fake::sounds) {
      text += (text.empty() ? "" : " ") + sound.substr(sound[0] == '_' ? 1 : 0);
    }
    fake::sounds.clear();
    return text;
  }

  // What runs on the ticker; "?" for a character without a picture.
  static std::string ticker() {
    const std::string characters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ! 0123456789";
    std::string text;
    for (const TickerGlyph& letter : tickerLines) {
      const auto* found = std::find(glyphSurfaces.begin(), glyphSurfaces.end(), letter.glyph);
      const auto index = static_cast<std::size_t>(found - glyphSurfaces.begin());
      text += index < characters.size() ? characters[index] : '?';
    }
    return text;
  }

  // All that a step has done: board, falling pieces, popups and sounds, parted by " | ".
  static std::string outcome() {
    return board() + " | " + falling() + " | " + popups() + " | " + heard();
  }

  static void clearEffects() {
    fallingPieces.clear();
    scorePopups.clear();
    zaps.clear();
    impacts.clear();
    tickerLines.clear();
    fallingPiecesUpper = scorePopupsUpper = zapsUpper = impactsUpper = tickerUpper = -1;
    score = 0;
  }
};

}  // namespace glonks
