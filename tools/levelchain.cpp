#include "tools/levelchain.h"

#include <algorithm>

namespace glonks {
namespace {

constexpr std::size_t chapters = 5;
constexpr std::size_t chapterLevels = 8;
constexpr std::size_t never = 0;

// The chapter, from 1, before which something may not occur and in which it has to.
struct Debut {
  std::string use;  // a piece's name, or a goal
  std::size_t chapter;
};
const Debut debuts[] = {{"Glonk", 1},        {"Slammer", 1}, {"Bomb", 2},       {"Rock", 2},
                        {"Money", 2},        {"Diamond", 3}, {"Calculator", 3}, {"Shifter", 3},
                        {"Gorgon", 4},       {"Bauble", 4},  {avoidUse, 4},     {landUse, 4},
                        {"Bowling Ball", 5}, {"Music", 5},   {"BType", never},  {"Pin", never}};

class ChainCheck {
 public:
  ChainCheck(const ChainLevels& levels, const std::string& first) : levels_(levels) {
    for (auto next = levels.find(first); next != levels.end() && !isPassed(next->first);
         next = levels.find(next->second.reward)) {
      chain_.push_back(next->first);
    }
  }

  std::vector<ChainFault> run() {
    if (!chain_.empty()) checkWay();
    for (const Debut& debut : debuts) checkDebut(debut);
    checkTwins(&ChainLevel::title, &ChainLevel::titleLine, "has the title of");
    checkTwins(&ChainLevel::asks, &ChainLevel::goalsLine, "asks the same as");
    return faults_;
  }

 private:
  void fault(const std::string& level, i32 line, const std::string& text) {
    faults_.push_back({level, line, text});
  }

  bool isPassed(const std::string& level) const {
    return std::find(chain_.begin(), chain_.end(), level) != chain_.end();
  }

  void checkWay() {
    const std::string& last = chain_.back();
    const std::string& reward = levels_.at(last).reward;
    const i32 line = levels_.at(last).rewardLine;
    if (isPassed(reward) && reward != chain_.front()) {
      fault(last, line, "the chain goes back to " + reward + ", which isn't its first level.");
    }
    if (chain_.size() != chapters * chapterLevels) {
      fault(last, line,
            "the chain ends here, after " + std::to_string(chain_.size()) + " levels instead of " +
                std::to_string(chapters * chapterLevels) + ".");
    }
    for (const auto& [name, level] : levels_) {
      if (!isPassed(name)) fault(name, 1, "the chain of levels doesn't come to this one.");
    }
  }

  void checkDebut(const Debut& debut) {
    const bool isAllowed = debut.chapter != never;
    const std::size_t start = isAllowed ? (debut.chapter - 1) * chapterLevels : chain_.size();
    for (std::size_t place = 0; place < std::min(start, chain_.size()); ++place) {
      checkUnused(debut, place);
    }
    if (isAllowed && start + chapterLevels <= chain_.size()) checkUsed(debut, start);
  }

  void checkUnused(const Debut& debut, std::size_t place) {
    const auto& uses = levels_.at(chain_[place]).uses;
    const auto found = uses.find(debut.use);
    if (found == uses.end()) return;
    const std::string trouble = debut.chapter == never
                                    ? ", but may not come in Arcade."
                                    : ", before chapter " + std::to_string(debut.chapter) + ".";
    fault(chain_[place], found->second,
          debut.use + " comes in chapter " + std::to_string(place / chapterLevels + 1) + trouble);
  }

  // In one of the levels of the chapter that begins at a place.
  void checkUsed(const Debut& debut, std::size_t start) {
    for (std::size_t place = start; place < start + chapterLevels; ++place) {
      if (levels_.at(chain_[place]).uses.count(debut.use) > 0) return;
    }
    fault(chain_[start], 1, debut.use + " comes in no level of the chapter that begins here.");
  }

  // A fault at the later of two levels that have the same there.
  void checkTwins(std::string ChainLevel::*what, i32 ChainLevel::*line,
                  const std::string& trouble) {
    std::map<std::string, std::string> earlier;
    for (const auto& [name, level] : levels_) {
      if ((level.*what).empty()) continue;
      const auto [twin, isNew] = earlier.emplace(level.*what, name);
      if (isNew) continue;
      fault(name, level.*line, trouble + " level " + twin->second + ": " + level.*what + ".");
    }
  }

  const ChainLevels& levels_;
  std::vector<std::string> chain_;  // as far as it can be followed without passing a level twice
  std::vector<ChainFault> faults_;
};

}  // namespace

std::vector<ChainFault> checkChain(const ChainLevels& levels, const std::string& first) {
  return ChainCheck(levels, first).run();
}

}  // namespace glonks
