#include "shell/goalwords.h"

#include <algorithm>

#include "base/text.h"

namespace glonks {
namespace {

// "1 Rock", "2 Rocks", "no Rocks".
std::string counted(i32 count, const std::string& name) {
  const std::string number = count == 0 ? "no " : plainNumber(count) + " ";
  const std::string ending = count == 1 ? "" : "s";
  if (name == "Money") return number + "Money piece" + ending;
  if (name == "Music") return number + "Music Note" + ending;
  return number + name + ending;
}

// The last of those left fails the level.
std::string avoidWords(const CountedGoal& avoid) {
  const i32 allowed = std::max(avoid.left - 1, 0);
  return (allowed == 0 ? "Remove " : "Remove at most ") + counted(allowed, avoid.name);
}

// Whole minutes, and the one that begins at 59 seconds.
std::string duration(i16 minutes) {
  if (minutes == 0) return "59 seconds";
  return counted(minutes, "minute") + " 59";
}

}  // namespace

std::string goalWords(const LevelHead& head) {
  std::string words;
  const auto add = [&words](bool isOn, const std::string& sentence) {
    if (isOn) words += (words.empty() ? "" : "  ") + sentence + ".";
  };
  // A timer that begins below 0 minutes never runs out.
  const auto runs = [](const LevelTimer& timer) { return timer.on == True && timer.minutes >= 0; };
  const auto isOpen = [](const CountedGoal& goal) { return goal.on == True && goal.left > 0; };
  add(isOpen(head.land), "Land " + counted(head.land.left, head.land.name));
  add(head.avoid.on == True, avoidWords(head.avoid));
  add(isOpen(head.remove), "Remove " + counted(head.remove.left, head.remove.name));
  add(head.score > 0, "Score " + counted(head.score, "point"));
  add(runs(head.limit), "You have " + duration(head.limit.minutes));
  add(runs(head.survive), "Survive " + duration(head.survive.minutes));
  return words;
}

}  // namespace glonks
