#include "tests/engine/enginetest.h"

#include <cstring>
#include <fstream>
#include <sstream>
#include <tuple>

#include "game/modes.h"
#include "present/endquestion.h"
#include "present/keys.h"
#include "present/music.h"
#include "present/pause.h"
#include "present/screen/fconsole.h"
#include "present/services/bass.h"
#include "present/services/gamepad.h"
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
#define OTHER_STATE                                                                              \
  themeName, gameMode, musicStream, dx, dd, primarySurface, backBuffer, gameFont, di, keyboard,  \
      mouse, ds, colorKey, sampleDesc, sampleFormat, screenWidth, screenHeight, fConsole, tMode, \
      tLevels, fake::clockNow, fake::nextSeed, fake::draws, fake::generator, fake::shown,        \
      fake::seen, fake::heard, fake::drawn, fake::onPicture, gameItem, bowlingRolls, songs,      \
      padInUse, endAskedUntil
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

// Runs an action with the name and the value of each of the game's variables.
template <typename Action>
void forAll(Action action) {
  std::istringstream names(NAMES_OF(GAME_STATE));
  const auto next = [&](auto& value) {
    std::string name;
    std::getline(names >> std::ws, name, ',');
    action(name, value);
  };
  std::apply([&](auto&... values) { (next(values), ...); }, std::tie(GAME_STATE));
}

using State = std::map<std::string, std::string>;

// Single numbers and texts.
State singles() {
  State state;
  forAll([&](const std::string& name, const auto& value) {
    using Value = std::decay_t<decltype(value)>;
    const bool isBound = name.size() > 5 && name.substr(name.size() - 5) == "Upper";
    if constexpr (std::is_arithmetic_v<Value> || std::is_same_v<Value, std::string>) {
      if (!isBound) state[name] = text(value);
    }
  });
  return state;
}

State before;  // what outcome compares with
std::string boardBefore;
std::string remarks;

void beginLog() {
  logEnabled = True;
  openLog();
}

void startFromHere() {
  before = singles();
  boardBefore = board();
  remarks.clear();
}

Piece pieceOf(char letter) {
  Piece piece = entryOf(letter);
  piece.variety = varietyOf(letter);
  if (letter == 'c') piece.imageIndex = negativeCalculatorSlot;
  if (letter == 'C' || letter == 'c') piece.value = letter == 'C' ? 30 : -40;
  return piece;
}

constexpr i32 never = 1000000000;

std::string fallingText(const Piece& piece) {
  std::string all = letterOf(piece) + std::to_string(piece.column);
  if (piece.direction != 0) all += piece.direction == 1 ? "<" : ">";
  if (piece.imageIndex == negativeCalculatorSlot) all += "#";
  if (piece.isCalculator == True) all += "=" + std::to_string(piece.value);
  const bool runs = piece.expiry > 0 && piece.expiry != never;
  if (runs) all += "@" + std::to_string(piece.expiry - gameTick());
  if (piece.y == 0 && piece.velocity == 1 && piece.bounces == 0) return all;
  return all + ":" + std::to_string(piece.y) + "," + std::to_string(piece.velocity) + "," +
         std::to_string(piece.bounces);
}

const std::map<std::string, i32> keyCodes = {
    {"Escape", 1}, {"1", 2},       {"2", 3},      {"3", 4},       {"4", 5},
    {"P", 25},     {"N", 49},      {"Space", 57}, {"Back", 0xE0}, {"Up", 200},
    {"Left", 203}, {"Right", 205}, {"Down", 208}};

Words split(const std::string& all, char between) {
  Words parts;
  std::istringstream text(all);
  for (std::string part; std::getline(text, part, between);) parts.push_back(part);
  return parts;
}

double drawOf(const std::string& draw) {
  const std::size_t slash = draw.find('/');
  if (slash == std::string::npos) return std::stod(draw);
  return fake::drawOf(std::stoi(draw), std::stoi(draw.substr(slash + 1)));
}

// Physics until nothing falls any more, all contacts with the first sound. Returns the number of
// frames.
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

i16 numberAt(const Words& words, std::size_t index, i16 none = 0) {
  return static_cast<i16>(index < words.size() ? std::stoi(words[index]) : none);
}

Acts everyTablesActs() {
  return {{"drop",
           [](const Words& words) {
             drop(words[0][0], numberAt(words, 1), numberAt(words, 2), numberAt(words, 3, 1),
                  numberAt(words, 4));
           }},
          {"press",
           [](const Words& words) {
             press(words.empty() ? "" : words[0], static_cast<u32>(numberAt(words, 1, 1000)));
           }},
          {"wait", [](const Words& words) { fake::clockNow += std::stoul(words[0]); }},
          {"rest", [](const Words& words) { EXPECT_EQ(fallToRest(), numberAt(words, 0)); }}};
}

void playRow(const std::string& row, const Acts& acts) {
  const Words columns = split(row + " ", '|');
  renew();
  const Words laid = split(trimmed(columns.at(0)), ' ');
  lay(laid.empty() ? "" : laid[0], laid.size() < 2 ? "" : laid[1]);
  bool started = false;
  for (const std::string& token : split(trimmed(columns.at(1)), ' ')) {
    if (token.empty()) continue;
    if (token.find('=') != std::string::npos) {
      set(token);
    } else if (token[0] == '~') {
      fake::draws.push_back(drawOf(token.substr(1)));
    } else {
      if (!started) startFromHere();
      started = true;
      const std::size_t colon = token.find(':');
      acts.at(token.substr(0, colon))(
          colon == std::string::npos ? Words{} : split(token.substr(colon + 1), ','));
    }
  }
  EXPECT_EQ(outcome(), trimmed(columns.at(2))) << row;
  EXPECT_TRUE(fake::draws.empty()) << "draws were not taken: " << row;
  fake::draws.clear();
}

}  // namespace

void renew() {
  static const auto ready = readyState();
  allState() = ready;
  forgetFailedSongs();
  startFromHere();
}

EngineTest::EngineTest() {
  renew();
  beginLog();
}

EngineTest::~EngineTest() {
  EXPECT_TRUE(fake::draws.empty()) << "draws were not taken";
  closeLog();
}

State gameState() {
  State state;
  forAll([&](const std::string& name, const auto& value) { state[name] = text(value); });
  return state;
}

void dirtyGame() {
  forAll([](const std::string& /*name*/, auto& value) { dirty(value); });
}

void set(const std::string& settings) {
  for (const std::string& setting : split(settings, ' ')) {
    const std::size_t sign = setting.find('=');
    const std::string given = setting.substr(sign + 1);
    bool known = false;
    forAll([&](const std::string& name, auto& value) {
      using Value = std::decay_t<decltype(value)>;
      if (name != setting.substr(0, sign)) return;
      known = true;
      if constexpr (std::is_arithmetic_v<Value>) value = static_cast<Value>(std::stoi(given));
      if constexpr (std::is_same_v<Value, std::string>) value = given;
    });
    EXPECT_TRUE(known) << setting;
  }
}

void note(const std::string& remark) { remarks += "; " + remark; }

void playTable(const std::string& name, const Acts& acts) {
  Acts all = everyTablesActs();
  all.insert(acts.begin(), acts.end());
  std::ifstream table(std::string(GLONKS_SOURCE) + "/tests/engine/tables/" + name + ".txt");
  EXPECT_TRUE(table) << name;
  for (std::string row; std::getline(table, row);) {
    if (!row.empty() && row.substr(0, 2) != "//") playRow(row, all);
  }
}

Piece& entryOf(char letter) {
  const auto* kind = kinds[std::strchr(letters, letter) - letters];
  for (Piece& entry : pieceCatalog) {
    if (entry.name == kind && (letter == 'c' || entry.variety == varietyOf(letter))) return entry;
  }
  throw std::logic_error("no such piece");
}

void lay(const std::string& rows, const std::string& due) {
  playfield.fill(Row{});
  auto row = static_cast<i16>(std::count(rows.begin(), rows.end(), '/'));
  i16 column = 0;
  for (const char letter : rows) {
    if (letter != '/' && column >= columnCount) throw std::logic_error("row too long: " + rows);
    if (letter != '/' && letter != '.') {
      Cell& cell = cellAt(row, column);
      static_cast<Piece&>(cell) = pieceOf(letter);
      cell.occupied = cell.tallied = True;
      cell.column = column;
      cell.y = floorOf(row);
      cell.expiry = due.find(letter) != std::string::npos ? 0 : letter == 'D' ? -1 : never;
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
  std::string all;
  const auto add = [&](const std::string& word, const std::string& what) {
    if (!what.empty()) all += "; " + word + (what[0] == ' ' ? "" : " ") + what;
  };
  std::string falling, armed, points, kinds;
  for (const Piece& piece : fallingPieces) falling += " " + fallingText(piece);
  for (const Row& row : playfield) {
    for (const Cell& cell : row.cells) {
      if (cell.occupied != True || cell.expiry <= 0 || cell.expiry == never) continue;
      armed += std::string(" ") + letterOf(cell) + std::to_string(cell.expiry - gameTick());
    }
  }
  for (const ScorePopup& popup : scorePopups) points += " " + std::to_string(popup.points);
  for (const Zap& zap : zaps) kinds += zap.horizontal == True ? "h" : "v";
  const std::string rows = board();
  if (rows != boardBefore) all = rows.empty() ? "; -" : "; " + rows;
  add("falls", falling);
  add("arms", armed);
  add("pops", points);
  add("impacts", impacts.empty() ? "" : std::to_string(impacts.size()));
  add("zaps", kinds);
  add("hears", heard());
  add("says", ticker());
  for (const auto& [name, value] : singles()) {
    if (value != before[name]) add(name, value);
  }
  all += remarks;
  return all.empty() ? "" : all.substr(2);
}

void choose(const std::string& mode, const std::string& level) {
  addItem(tMode, mode);
  addItem(tLevels, level, 7);
  tMode.listIndex = tLevels.listIndex = 0;
}

Names drawn() { return std::exchange(fake::drawn, {}); }

void press(const std::string& keys, u32 wait) {
  fake::clockNow += wait;
  std::vector<i32> codes;
  for (const std::string& key : split(keys, '+')) codes.push_back(keyCodes.at(key));
  fake::pressKeys(codes);
}

Names logged() {
  Names entries;
  closeLog();
  std::istringstream log(bytesOf("\\log.txt"));
  for (std::string line; std::getline(log, line, '\r'); log.get()) {
    const std::size_t at = line.find(" :: ");
    if (at != std::string::npos) entries.push_back(line.substr(at + 4));
  }
  beginLog();
  return entries;
}

}  // namespace glonks
