#include "tests/engine/enginetest.h"

#include <cstring>
#include <sstream>
#include <tuple>

#include "game/modes.h"
#include "present/keys.h"
#include "present/pause.h"
#include "present/screen/fconsole.h"
#include "present/services/bass.h"
#include "shell/menucontrols.h"
#include "storage/files/log.h"
#include "storage/files/scrambledfiles.h"

// The game's variables, and all others that a test may change.
#define GAME_STATE                                                                                \
  playfield, pieceCatalog, pieceCatalogUpper, fallingPieces, fallingPiecesUpper, impacts,         \
      impactsUpper, zaps, zapsUpper, scorePopups, scorePopupsUpper, tickerLines, tickerUpper,     \
      frogs, frogsUpper, score, bank, itemStock, notesCollected, selectedRow, modeName,           \
      spawnInterval, gameOver, inPlay, paused, lastKeyTick, nextPointsTick, pendingSpawns,        \
      frogBonusOn, frogBonusUntil, pythagoreanDone, pythagoreanSum, bTypeLeft, musicVolume,       \
      songNames, songIndex, songTitle, tickBase, levelTitle, rewardLevelName, rewardLevelFile,    \
      goalPieceCount, goalPieceName, goalScore, limitOn, limitMinutes, limitSeconds, surviveOn,   \
      surviveMinutes, surviveSeconds, avoidOn, avoidLeft, avoidName, landOn, landLeft, landName,  \
      minuteStart, levelOver, levelWon, _changerow, _moverow, _gameover, connectSounds, _pop01,   \
      _slam01, _gorgon01, _coin01, _gorgon02, _calculate01, _calculate02, _bowling01, frogSounds, \
      _detonate, _music01, _bauble01, _bauble02, clappingSounds, pointerSurface, zapVSurface,     \
      zapHSurface, frameSurface, glyphSurfaces, frogPictures, explosionSurface, plateSurface
#define OTHER_STATE                                                                                \
  themeName, gameMode, musicStream, dx, dd, primarySurface, backBuffer, gameFont, di, keyboard,    \
      mouse, ds, colorKey, sampleDesc, sampleFormat, screenWidth, screenHeight, fConsole, tMode,   \
      tLevels, fake::clockNow, fake::sleeps, fake::nextSeed, fake::draws, fake::generator,         \
      fake::seedings, fake::boxes, fake::yes, fake::asked, fake::typed, fake::forms, fake::opened, \
      fake::messages, fake::messagePasses, fake::keys, fake::screenIsLost, fake::picturesShown,    \
      fake::windowOpen, fake::windowTitle, fake::cursorShown, fake::windowMessages, fake::sounds,  \
      fake::brokenSamples, fake::samplesLoaded, fake::songsOpened, fake::brokenSongs,              \
      fake::songEnded, fake::musicReady, fake::musicReady, fake::musicHalted, fake::songVolume,    \
      fake::soundNotice, fake::drawn, fake::onPicture
#define STRING_OF(...) #__VA_ARGS__
#define NAMES_OF(list) STRING_OF(list)

namespace glonks {
namespace {

auto allState() { return std::tie(GAME_STATE, OTHER_STATE); }

template <typename... Value>
std::tuple<Value...> copyOf(const std::tuple<Value&...>& values) {
  return values;
}
const auto atStart = copyOf(allState());

auto readyState() {
  allState() = atStart;
  fake::useGenerator();
  makeKeys(keySeed, keyDrawArgument, keyScale);
  fake::generator.reset();
  gameMode = modeTitled("Freestyle");
  modeName = "Freestyle";
  fConsole_Show(readKeys, pauseByCloseBox);
  initDX();
  fake::draws = {0};  // the plate
  initVariables();
  loadPieces();
  drawn();
  heard();
  fake::samplesLoaded.clear();
  fake::seedings = 0;
  fake::picturesShown = 0;
  return copyOf(allState());
}

constexpr const char* letters = "SBUDCcGHMNTPRW1234";
constexpr const char* kinds[] = {"Slammer",    "Bomb",   "Bauble",  "Diamond",      "Calculator",
                                 "Calculator", "Gorgon", "Shifter", "Money",        "Music",
                                 "BType",      "Pin",    "Rock",    "Bowling Ball", "Glonk",
                                 "Glonk",      "Glonk",  "Glonk"};

i16 varietyOf(char letter) {
  return static_cast<i16>(letter == 'c'   ? -1
                          : letter == 'R' ? 1
                          : letter <= '4' ? letter - '0'
                                          : 0);
}

char letterOf(const Piece& piece) {
  for (std::size_t i = 0; letters[i] != 0; ++i) {
    if (piece.name == kinds[i] && piece.variety == varietyOf(letters[i])) return letters[i];
  }
  return '?';
}

// A variable's value, as far as a reset looks at it.
template <typename Value>
std::string text(const Value& value) {
  if constexpr (std::is_arithmetic_v<Value>) return std::to_string(value);
  if constexpr (std::is_same_v<Value, std::string>) return value;
  if constexpr (std::is_same_v<Value, Surface>) return fake::nameOf(value);
  if constexpr (std::is_base_of_v<Piece, Value>) return value.name;
  if constexpr (std::is_same_v<Value, Row>) return text(value.cells.front().occupied);
  if constexpr (std::is_same_v<Value, Sample>) {
    if (value) value->Play(0);
    return value ? std::exchange(fake::sounds, {}).back() : "";
  }
  std::string all;
  if constexpr (requires { value.begin()->name; }) return std::to_string(value.size());
  if constexpr (requires { value.begin(); }) {
    for (const auto& element : value) all += text(element) + " ";
  }
  return all;
}

template <typename Value>
void dirty(Value& value) {
  if constexpr (std::is_arithmetic_v<Value>) {
    value = 7;
  } else if constexpr (std::is_base_of_v<Piece, Value> || requires { value.get(); }) {
    value = {};
  } else if constexpr (requires { value.resize(7); }) {
    value.resize(7);
  } else if constexpr (requires { value.begin(); }) {
    for (auto& element : value) dirty(element);
  } else {
    value.cells.fill({{}, True});
  }
}

std::string pieces(const std::function<std::string(const Piece&)>& shown, const char* between) {
  std::string all;
  for (const Piece& piece : fallingPieces) all += (all.empty() ? "" : between) + shown(piece);
  return all;
}

std::string popups() {
  std::string points;
  for (const ScorePopup& popup : scorePopups) points += " " + std::to_string(popup.points);
  return points;
}

std::string zapKinds() {
  std::string all;
  for (const Zap& zap : zaps) all += zap.horizontal == True ? "h" : "v";
  return all.empty() ? "" : " " + all;
}

}  // namespace

void renew() {
  static const auto ready = readyState();
  allState() = ready;
}

EngineTest::EngineTest() { renew(); }

EngineTest::~EngineTest() {
  EXPECT_TRUE(fake::draws.empty()) << "draws were not taken";
  closeLog();
}

std::map<std::string, std::string> gameState() {
  std::map<std::string, std::string> state;
  std::istringstream names(NAMES_OF(GAME_STATE));
  const auto add = [&](const auto& value) {
    std::string name;
    std::getline(names >> std::ws, name, ',');
    state[name] = text(value);
  };
  std::apply([&](const auto&... values) { (add(values), ...); }, std::tie(GAME_STATE));
  return state;
}

void dirtyGame() {
  std::apply([](auto&... values) { (dirty(values), ...); }, std::tie(GAME_STATE));
}

Piece& entryOf(char letter) {
  const auto* kind = kinds[std::strchr(letters, letter) - letters];
  for (Piece& entry : pieceCatalog) {
    if (entry.name == kind && (letter == 'c' || entry.variety == varietyOf(letter))) return entry;
  }
  throw std::logic_error("no such piece");
}

Piece pieceOf(char letter) {
  Piece piece = entryOf(letter);
  piece.variety = varietyOf(letter);
  if (letter == 'c') piece.imageIndex = negativeCalculatorSlot;
  if (letter == 'C' || letter == 'c') piece.value = letter == 'C' ? 30 : -40;
  return piece;
}

void lay(const std::string& rows, const std::string& due) {
  playfield.fill(Row{});
  auto row = static_cast<i16>(std::count(rows.begin(), rows.end(), '/'));
  i16 column = 0;
  for (const char letter : rows) {
    if (letter != '/' && letter != '.') {
      Cell& cell = cellAt(row, column);
      static_cast<Piece&>(cell) = pieceOf(letter);
      cell.occupied = cell.tallied = True;
      cell.column = column;
      cell.y = floorOf(row);
      cell.expiry = due.find(letter) != std::string::npos ? 0 : letter == 'D' ? -1 : 1000000000;
    }
    column = static_cast<i16>(letter == '/' ? 0 : column + 1);
    row = static_cast<i16>(letter == '/' ? row - 1 : row);
  }
}

Piece& drop(char letter, i16 column, i16 y, i16 velocity, i16 bounces) {
  Piece& piece = grow(fallingPieces, fallingPiecesUpper);
  piece = pieceOf(letter);
  piece.alive = True;
  piece.column = column;
  piece.y = y;
  piece.velocity = velocity;
  piece.bounces = bounces;
  return piece;
}

i32 fallToRest() {
  i32 frames = 0;
  for (; fallingPiecesUpper >= 0 && frames < 1000; ++frames) {
    fake::draws.assign(fallingPieces.size(), 0);
    movePieces();
    compactFalling();
  }
  fake::draws.clear();
  return frames;
}

std::string board() {
  std::string rows;
  for (i32 row = rowCount - 1; row >= 0; --row) {
    std::string line = rows.empty() ? "" : "/";
    for (i32 column = 0; column < columnCount; ++column) {
      const Cell& cell = cellAt(row, column);
      line += cell.occupied == True ? letterOf(cell) : '.';
    }
    rows += line.erase(line.find_last_not_of('.') + 1);
  }
  return rows;
}

std::string stateOf(const Piece& piece) {
  std::string all = std::string(1, letterOf(piece)) + " at";
  for (const i16 number : {piece.column, piece.y, piece.velocity, piece.bounces}) {
    all += " " + std::to_string(number);
  }
  return all;
}

std::string flight() { return pieces(stateOf, ", "); }

std::string heard() {
  std::string all;
  const Names sounds = std::exchange(fake::sounds, {});
  for (auto at = sounds.begin(); at != sounds.end();) {
    const auto next = std::find_if(at, sounds.end(), [&](const auto& name) { return name != *at; });
    all += (all.empty() ? "" : " ") + at->substr((*at)[0] == '_' ? 1 : 0);
    if (next - at > 1) all += "*" + std::to_string(next - at);
    at = next;
  }
  return all;
}

std::string ticker() {
  std::string all;
  for (const TickerGlyph& letter : tickerLines) {
    const std::string name = fake::nameOf(letter.glyph);
    all += name.empty() ? "?" : name == "Space" ? " " : name;
  }
  return all;
}

std::string outcome() {
  std::string all = board();
  const auto add = [&](const std::string& word, const std::string& what) {
    if (!what.empty()) all += "; " + word + (what[0] == ' ' ? "" : " ") + what;
  };
  const auto place = [](const Piece& piece) {
    return std::string(1, letterOf(piece)) + std::to_string(piece.column);
  };
  const auto count = [&](const std::string& word, i32 number, i32 none) {
    if (number != none) add(word, std::to_string(number));
  };
  add("falls", pieces(place, " "));
  add("pops", popups());
  count("impacts", impactsUpper + 1, 0);
  add("zaps", zapKinds());
  add("hears", heard());
  add("says", ticker());
  count("score", score, 0);
  count("bank", bank, 0);
  count("notes", notesCollected, 0);
  count("queued", pendingSpawns, 0);
  count("btypes", bTypeLeft, 0);
  count("sum", pythagoreanSum, 0);
  count("goal", goalPieceCount, -1);
  count("avoid", avoidLeft, -1);
  count("land", landLeft, -1);
  count("row", selectedRow, 0);
  count("over", gameOver, False);
  return all;
}

void choose(const std::string& mode, const std::string& level) {
  addItem(tMode, mode);
  addItem(tLevels, level, 7);
  tMode.listIndex = tLevels.listIndex = 0;
}

Names drawn() { return std::exchange(fake::drawn, {}); }

void press(const std::vector<i32>& scanCodes, u32 wait) {
  fake::clockNow += wait;
  fake::pressKeys(scanCodes);
}

Names logged() {
  Names entries;
  std::istringstream log(bytesOf("\\log.txt"));
  for (std::string line; std::getline(log, line, '\r'); log.get()) {
    const std::size_t at = line.find(" :: ");
    if (at != std::string::npos) entries.push_back(line.substr(at + 4));
  }
  return entries;
}

}  // namespace glonks
