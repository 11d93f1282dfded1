#include "tools/levelcheck.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "base/errors.h"
#include "base/text.h"
#include "game/model/goallines.h"
#include "game/model/model.h"
#include "game/model/piecefields.h"
#include "storage/files/datafiles.h"
#include "storage/files/fieldreader.h"
#include "storage/files/textchannels.h"
#include "tools/levelchain.h"
#include "tools/levelreach.h"

namespace glonks {
namespace {

namespace fs = std::filesystem;

constexpr i16 plainChannel = 5;
constexpr std::size_t draws = 1000;
constexpr double minute = 60'000;  // ms
// What fits beside the counters of a game, in characters and in lines.
constexpr std::size_t longestTitle = 22;
constexpr std::size_t longestGoalLine = 28;
constexpr int mostGoalLines = 3;

// Levels of Freestyle's form: a pace and pieces, and nothing else.
bool isPlainLevel(const std::string& name) {
  return name == std::to_string(freestyleLevel) ||
         std::any_of(bTypeLevels.begin(), bTypeLevels.end(),
                     [&](i32 level) { return name == std::to_string(level); });
}

struct Field {
  std::string name;
  std::string text;
  i32 line = 0;
  std::optional<i32> number;  // none if the text is no number that the field takes
};

// Where an Arcade level names another.
struct Link {
  Field title;
  Field number;
};

// A goal of so many pieces of a name.
struct Counted {
  Field count;
  Field piece;
};

// Counts, the score and minutes: -1 for what is off, none for what can't be read.
struct Goals {
  Counted remove;
  Field score;
  Field limit;
  Field survive;
  Counted avoid;
  Counted land;
};

bool isOn(const Field& goal) { return goal.number.value_or(-1) != -1; }

// Whether the ticker has a glyph for it.
bool isInTitles(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == ' ' ||
         c == '!';
}

// The goals in words and without numbers.
std::string wordsOf(const Goals& goals) {
  std::string words;
  const auto add = [&words](const Field& goal, const std::string& asked) {
    if (isOn(goal)) words += (words.empty() ? "" : ", ") + asked;
  };
  add(goals.land.count, "land " + goals.land.piece.text);
  add(goals.avoid.count, "avoid " + goals.avoid.piece.text);
  add(goals.remove.count, "remove " + goals.remove.piece.text);
  add(goals.score, "score");
  add(goals.limit, "time limit");
  add(goals.survive, "survive");
  return words;
}

using Entry = std::array<Field, 4>;
using Kind = std::pair<std::string, i32>;  // name and variety
using Marks = std::array<bool, draws>;

class LevelCheck {
 public:
  explicit LevelCheck(const fs::path& data) : init_(data / "init"), folder_(data / "levels") {}

  std::vector<LevelFault> run() {
    for (const char* id : pieceFileIds) readPlain(init_ / id, &LevelCheck::readKind);
    std::set<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) {
      files.insert(entry.path());
    }
    for (const fs::path& file : files) readPlain(file, &LevelCheck::checkLevel);
    readPlain(init_ / levelsFileName, &LevelCheck::checkOpenLevels);
    for (const auto& [name, link] : links_) {
      file_ = folder_ / name;
      checkLink(link.title, link.number);
    }
    for (const auto& [name, line, text] : checkChain(levels_, first_)) {
      faults_.push_back({folder_ / name, line, text});
    }
    return faults_;
  }

 private:
  void fault(i32 line, const std::string& text) { faults_.push_back({file_, line, text}); }
  void fault(const Field& field, const std::string& trouble) {
    fault(field.line, field.name + " " + trouble);
  }

  // A failure in reading is a fault too.
  void readPlain(const fs::path& file, void (LevelCheck::*check)()) {
    file_ = file;
    line_ = 1;
    const ChannelGuard guard(plainChannel);
    try {
      openChannel(plainChannel, file.string(), ChannelMode::input, file.filename().string());
      (this->*check)();
    } catch (const RuntimeError& error) {
      fault(line_, error.what());
    }
  }

  template <typename Value>
  using Reader = Value (*)(i16 channel, const std::string& fieldName);

  template <typename Value>
  Value read(Reader<Value> reader, const std::string& fieldName) {
    line_ = channelLine(plainChannel);
    return reader(plainChannel, fieldName);
  }

  Field textOf(const std::string& name, Reader<std::string> reader = readField) {
    const std::string text = read(reader, name);
    return {name, text, line_, {}};
  }

  template <typename Whole = i16>
  Field toNumber(Field field) {
    using Limits = std::numeric_limits<Whole>;
    const double number = leadingNumber(field.text);
    if (!isNumber(field.text) || std::floor(number) != number) {
      fault(field, "isn't a whole number.");
    } else if (number < Limits::min() || number > Limits::max()) {
      fault(field, "is out of range.");
    } else {
      field.number = static_cast<i32>(number);
    }
    return field;
  }

  void readKind() {
    Piece& piece = pieces_.emplace_back();
    const Field name = textOf("name");
    if (name.text.empty()) fault(name, "is empty.");
    piece.name = name.text;
    piece.variety = static_cast<i16>(toNumber(textOf("variety")).number.value_or(0));
    textOf("picture");
    for (const auto& [field, flag] : pieceFlags) piece.*flag = read(readFlag, field);
    for (const auto& [field, number] : pieceNumbers) piece.*number = read(readI32, field);
    piece.isPin = read(readFlag, "isPin");
  }

  void checkLevel() {
    const std::string name = file_.filename().string();
    level_ = isPlainLevel(name) ? nullptr : &levels_[name];
    const Field interval = toNumber<i32>(textOf("spawnInterval"));
    if (interval.number && *interval.number < 1) fault(interval, "isn't above 0.");
    if (interval.number && *interval.number > longestInterval) {
      fault(interval, "is above " + plainNumber(longestInterval) + ".");
    }
    Goals goals;
    if (level_ != nullptr) goals = checkHead(name);
    const LevelReach reach = checkEntries();
    checkReach(goals, interval, reach);
  }

  Goals checkHead(const std::string& name) {
    const Field title = textOf("levelTitle", readLine);
    level_->title = title.text;
    level_->titleLine = title.line;
    if (trimmed(title.text).empty()) fault(title, "is empty.");
    if (title.text.size() > longestTitle) {
      fault(title, "is longer than " + std::to_string(longestTitle) + " characters.");
    }
    if (!std::all_of(title.text.begin(), title.text.end(), isInTitles)) {
      fault(title, "has other characters than letters, digits, blanks and \"!\".");
    }
    Link& link = links_[name];
    link.title = textOf("rewardLevelName", readLine);
    link.number = toNumber(textOf("rewardLevelFile", readLine));
    level_->rewardLine = link.number.line;
    if (link.number.number) level_->reward = plainNumber(*link.number.number);
    // The order of the file.
    Goals goals = {readCounted("goalPieceCount", "goalPieceName"),
                   readScore(),
                   readTimer("limitMinutes", "limitSeconds"),
                   readTimer("surviveMinutes", "surviveSeconds"),
                   readCounted("avoidLeft", "avoidName"),
                   readCounted("landLeft", "landName")};
    level_->asks = wordsOf(goals);
    level_->goalsLine = goals.remove.count.line;
    if (isOn(goals.avoid.count)) level_->uses[avoidUse] = goals.avoid.count.line;
    if (isOn(goals.land.count)) level_->uses[landUse] = goals.land.count.line;
    checkTogether(goals);
    checkLines(goals);
    return goals;
  }

  bool isPiece(const std::string& name) const {
    return std::any_of(pieces_.begin(), pieces_.end(),
                       [&name](const Piece& piece) { return piece.name == name; });
  }

  Counted readCounted(const std::string& countName, const std::string& pieceName) {
    Field count = toNumber(textOf(countName));
    Field piece = textOf(pieceName);
    if (count.number == -1) {
      const bool mayBeNothing = pieceName == "goalPieceName";
      const bool none = piece.text == noName || (mayBeNothing && piece.text == nothingName);
      if (!none) fault(piece, "isn't -1, but " + countName + " is.");
    } else if (count.number) {
      if (*count.number < 1) fault(count, "is neither -1 nor above 0.");
      if (!isPiece(piece.text)) fault(piece, "\"" + piece.text + "\" is no piece's name.");
    }
    return {count, piece};
  }

  Field readScore() {
    Field score = toNumber<i32>(textOf("goalScore"));
    if (score.number && *score.number < 1 && *score.number != -1) {
      fault(score, "is neither -1 nor above 0.");
    }
    return score;
  }

  Field readTimer(const std::string& minutesName, const std::string& secondsName) {
    Field minutes = toNumber(textOf(minutesName));
    const Field seconds = toNumber(textOf(secondsName));
    if (!minutes.number || !seconds.number) {
      minutes.number.reset();
    } else if (*minutes.number != -1 || *seconds.number != -1) {
      const bool inLine = *seconds.number >= 0 && *seconds.number <= 59;
      if (!inLine) fault(seconds, "isn't from 0 to 59, nor -1 with " + minutesName + " of -1.");
      if (*minutes.number < 1) {
        fault(minutes, "isn't above 0, nor -1 with " + secondsName + " of -1.");
        minutes.number.reset();
      } else if (*minutes.number == 1 && *seconds.number == 0) {
        fault(minutes, "of 1 with " + secondsName + " of 0 switches no timer on.");
      }
    }
    return minutes;
  }

  // Without a survival timer a level is won as soon as no goal is open, and with one as soon as a
  // goal is; the two timers share their minute, and the lines of the avoid and land goals overlap.
  void checkTogether(const Goals& goals) {
    const auto& [remove, score, limit, survive, avoid, land] = goals;
    for (const Field* field :
         {&remove.count, &score, &limit, &survive, &avoid.count, &land.count}) {
      if (!field->number) return;
    }
    const bool open = isOn(remove.count) || isOn(score) || isOn(land.count);
    if (!isOn(survive)) {
      if (!open) {
        fault(remove.count.line, "there is no piece, score or land goal and no survival timer.");
      }
    } else {
      if (open) fault(survive.line, "a survival timer and a piece, score or land goal.");
      if (isOn(limit)) fault(survive.line, "a survival timer and a time limit.");
    }
    if (isOn(avoid.count) && isOn(land.count)) {
      fault(land.count.line, "an avoid goal and a land goal.");
    }
    if (isOn(remove.count) && isOn(avoid.count) && remove.piece.text == avoid.piece.text &&
        *remove.count.number >= *avoid.count.number) {
      fault(remove.count.line, "the avoid goal fails before the piece goal is reached.");
    }
  }

  // The goals have to fit where a game shows them.
  void checkLines(const Goals& goals) {
    const auto& [remove, score, limit, survive, avoid, land] = goals;
    const int lines = int{isOn(avoid.count) || isOn(land.count)} + int{isOn(remove.count)} +
                      int{isOn(score)} + int{isOn(limit) || isOn(survive)};
    if (lines > mostGoalLines) {
      fault(remove.count.line, "more goals than the " + std::to_string(mostGoalLines) +
                                   " lines that a game has for them.");
    }
    for (const Counted* goal : {&remove, &avoid, &land}) {
      if (!isOn(goal->count)) continue;
      checkLine(goal->piece, countLine(goal->piece.text, *goal->count.number));
    }
    if (isOn(score)) checkLine(score, scoreLine(*score.number, *score.number));
  }

  void checkLine(const Field& field, const std::string& text) {
    if (text.size() > longestGoalLine) {
      fault(field, "makes a line of more than " + std::to_string(longestGoalLine) +
                       " characters: \"" + text + "\".");
    }
  }

  // A goal has to be one that can be reached, or failed, with the pieces that come.
  void checkReach(const Goals& goals, const Field& interval, const LevelReach& reach) {
    const auto& [remove, score, limit, survive, avoid, land] = goals;
    for (const Counted* goal : {&remove, &avoid}) {
      if (isOn(goal->count) && checkComes(goal->piece, reach) &&
          !reach.canBeRemoved(goal->piece.text)) {
        fault(goal->piece, "\"" + goal->piece.text + "\" can't be removed by anything that comes.");
      }
    }
    if (isOn(land.count) && checkComes(land.piece, reach) && !reach.lands(land.piece.text)) {
      fault(land.piece, "\"" + land.piece.text + "\" never comes to rest.");
    }
    if (!isOn(limit) || interval.number.value_or(0) < 1) return;
    const double time = *limit.number * minute;
    for (const Counted* goal : {&remove, &land}) {
      if (isOn(goal->count)) {
        checkBound(goal->count, reach.mostPieces(goal->piece.text, time, *interval.number));
      }
    }
    if (isOn(score)) checkBound(score, reach.mostPoints(time, *interval.number));
  }

  bool checkComes(const Field& piece, const LevelReach& reach) {
    const bool comes = reach.comes(piece.text);
    if (!comes && isPiece(piece.text)) {
      fault(piece, "\"" + piece.text + "\" never comes in this level.");
    }
    return comes;
  }

  void checkBound(const Field& goal, double most) {
    if (*goal.number > most) {
      fault(goal, "is more than the " + plainNumber(static_cast<i64>(most)) +
                      " that the time limit has room for.");
    }
  }

  // Checks the spawn entries, and returns what comes by them.
  LevelReach checkEntries() {
    LevelReach reach;
    std::set<Kind> named;
    Marks free;
    free.fill(true);
    i32 line = channelLine(plainChannel);
    while (!endOfFile(plainChannel)) {
      line = channelLine(plainChannel);
      if (const auto entry = readEntry()) checkEntry(*entry, named, free, reach);
    }
    faultRuns(line, free, "no piece for the ", "");
    return reach;
  }

  // None for a line of more or fewer than four fields, after which the game would read nonsense.
  std::optional<Entry> readEntry() {
    const i32 line = channelLine(plainChannel);
    const auto ended = [&] { return endOfFile(plainChannel) || channelLine(plainChannel) != line; };
    Entry entry = {textOf("name")};
    std::size_t count = 1;
    for (const char* name : {"variety", "spawnLow", "spawnHigh"}) {
      if (!ended()) entry[count++] = textOf(name);
    }
    if (count == entry.size() && ended()) return entry;
    if (!ended()) readLine(plainChannel);
    fault(line, "a spawn entry has to be a line of four fields.");
    return {};
  }

  void checkEntry(const Entry& entry, std::set<Kind>& named, Marks& free, LevelReach& reach) {
    const i32 line = entry[0].line;
    const Field variety = toNumber(entry[1]);
    const Field low = toNumber(entry[2]);
    const Field high = toNumber(entry[3]);
    const auto isEntry = [&](const Piece& piece) {
      return piece.name == entry[0].text && piece.variety == variety.number;
    };
    const auto piece = std::find_if(pieces_.begin(), pieces_.end(), isEntry);
    if (variety.number) {
      const Kind kind(entry[0].text, *variety.number);
      const std::string shown = "\"" + kind.first + "\" of variety " + plainNumber(kind.second);
      if (piece == pieces_.end()) fault(line, "there is no piece " + shown + ".");
      if (!named.insert(kind).second) fault(line, shown + " has an entry before.");
    }
    // With draw 0 alone a piece may not come at all: a higher slot that has no entry takes it.
    if (piece != pieces_.end() && high.number != 0) reach.add(*piece);
    if (level_ != nullptr) level_->uses.emplace(entry[0].text, line);
    if (!low.number || !high.number) return;
    if (*low.number < 0 || *high.number < *low.number || *high.number >= i32{draws}) {
      fault(line, "spawnLow and spawnHigh are no range from 0 to 999.");
      return;
    }
    Marks twice = {};
    const auto last = static_cast<std::size_t>(*high.number);
    for (auto draw = static_cast<std::size_t>(*low.number); draw <= last; ++draw) {
      twice[draw] = !std::exchange(free[draw], false);
    }
    faultRuns(line, twice, "", " are taken by an entry before");
  }

  // A fault for each unbroken run of marked draws.
  void faultRuns(i32 line, const Marks& marked, const std::string& before,
                 const std::string& after) {
    for (std::size_t low = 0; low < draws; ++low) {
      if (!marked[low]) continue;
      std::size_t end = low;
      while (end < draws && marked[end]) ++end;
      const std::string run = std::to_string(low) + " to " + std::to_string(end - 1);
      fault(line, before + "draws " + run + after + ".");
      low = end;
    }
  }

  // Title and number by which another file names an Arcade level.
  void checkLink(const Field& title, const Field& number) {
    if (!number.number) return;
    const std::string name = plainNumber(*number.number);
    const auto found = levels_.find(name);
    if (found == levels_.end()) {
      fault(number, "is " + name + ", but there is no such Arcade level.");
    } else if (found->second.title != title.text) {
      fault(title, "isn't \"" + found->second.title + "\", the title of level " + name + ".");
    }
  }

  // The first level, and no other.
  void checkOpenLevels() {
    const Field title = textOf("level name", readLine);
    const Field number = toNumber(textOf("level number", readLine));
    checkLink(title, number);
    if (number.number) first_ = plainNumber(*number.number);
    if (!endOfFile(plainChannel)) {
      fault(channelLine(plainChannel), "only the first level of the chain may be open at first.");
    }
  }

  fs::path init_;
  fs::path folder_;
  fs::path file_;  // the file that faults are about
  i32 line_ = 1;   // where the field stands that is being read, or was read last
  std::vector<LevelFault> faults_;
  std::vector<Piece> pieces_;          // by slot, with what their files say of the rules
  ChainLevels levels_;                 // the Arcade levels
  ChainLevel* level_ = nullptr;        // the one that is being read; none for a plain level
  std::map<std::string, Link> links_;  // by file name
  std::string first_;                  // the file name of the level that is open at first
};

}  // namespace

std::vector<LevelFault> checkLevels(const fs::path& data) { return LevelCheck(data).run(); }

}  // namespace glonks
