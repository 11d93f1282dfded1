#include "shell/menulayout.h"

#include <string>
#include <vector>

#include "base/text.h"
#include "game/model/model.h"
#include "game/model/resources.h"
#include "shell/backgroundspage.h"
#include "shell/bandspage.h"
#include "shell/creditspage.h"
#include "shell/menucontrols.h"
#include "shell/musicpage.h"
#include "shell/newgamepage.h"
#include "shell/playbutton.h"
#include "shell/scorespage.h"
#include "shell/storepage.h"

namespace glonks {
namespace {

constexpr i32 formWidth = 3615;
constexpr i32 formHeight = 5175;
constexpr i32 widePage = 3635;  // of the pages from musicPage on
constexpr i32 pictureTop = 120;
constexpr i32 pictureHeight = 5070;
constexpr i32 bankRight = 1260;   // of the wells in the pictures, for numbers that need more
constexpr i32 stockRight = 3420;  // than their labels

// `shows` tells what the picture has to say, apart from what its controls tell themselves.
void layOutPage(Page index, Image& background, const char* picture, const std::string& name,
                const std::string& shows, const std::vector<ControlRef>& controls) {
  Frame& page = frame[static_cast<std::size_t>(index)];
  const i32 width = index < musicPage ? formWidth : widePage;
  setBounds(page, {0, 0, width, formHeight});
  setBounds(background, {0, pictureTop, width, pictureHeight});
  background.picture = picture;
  setWords(page, name);
  setWords(background, name, shows);
  page.controls = {&background};
  page.controls.insert(page.controls.end(), controls.begin(), controls.end());
}

void layOutHotSpot(Image& spot, const Control& at, const std::string& hint,
                   const std::string& description, Handler click) {
  setBounds(spot, at);
  spot.hint = hint;
  spot.description = description;
  spot.click = click;
}

void layOutBar(HScrollBar& bar, i16 min, i16 max, i16 largeChange) {
  bar.min = min;
  bar.max = max;
  bar.value = min;
  bar.largeChange = largeChange;
}

void layOutNewGame() {
  setBounds(tMode, {240, 600, 3135, 315, 4});
  setBounds(tModeDesc, {240, 1080, 3135, 855});
  setBounds(tLevels, {240, 2520, 3135, 1785, 5});
  setWords(tMode, "Mode");
  setWords(tLevels, "Level");
  tMode.click = tMode_Click;
  tLevels.click = tLevels_Click;
  layOutHotSpot(main_BtnRun, {2280, 4560, 1095, 495}, "Play", "Starts the game that is chosen",
                main_BtnRun_Click);
  layOutPage(
      newGamePage, Image7, ":/forms/page0.png", "New Game",
      "The four Glonks sit on the list of levels.  Below it lie a Bomb, a B-Type piece and a "
      "Bauble, beside the button Play.",
      {&tMode, &tModeDesc, &tLevels, &main_BtnRun});
}

void layOutHighScores() {
  setBounds(scoreModes, {240, 720, 3135, 315, 0});
  setBounds(scores_freestyle, {240, 1440, 3135, 1980, 9});
  setWords(scoreModes, "Mode");
  setWords(scores_freestyle, "The best ten");
  scoreModes.click = scoreModes_Click;
  layOutPage(scoresPage, Image8, ":/forms/page1.png", "High Scores",
             "Three Glonks on a winners' podium with the places 1, 2 and 3.",
             {&scoreModes, &scores_freestyle});
}

void layOutCredits() {
  constexpr i32 creditsFont = 195;  // 9.75 points
  setBounds(Text1, {240, 720, 3135, 3735, 22});
  Text1.fontHeight = creditsFont;
  Text1.text = creditsText;
  setWords(Text1, "Credits");
  layOutPage(creditsPage, Image3, ":/forms/page2.png", "Credits",
             "The four Glonks stand below the names.", {&Text1});
}

std::string priceWords(const StoreItem& item) { return plainNumber(item.price) + " credits"; }

void layOutStore() {
  constexpr i32 buttonTops[storeRows] = {1440, 2040, 2640, 3240, 3840, 4440};
  constexpr i32 stockTops[storeRows] = {1480, 2090, 2650, 3270, 3880, 4480};
  constexpr auto clicks = handlersOf<purchase_Click, storeRows>();
  std::string prices;
  std::vector<ControlRef> controls = {&Image5, &tBank};
  setBounds(tBank, {840, 210, 375, 285});
  tBank.overhang = bankRight - tBank.left - tBank.width;
  for (i16 row = 0; row < storeRows; ++row) {
    const auto i = static_cast<std::size_t>(row);
    setBounds(tpurchase[i], {3000, stockTops[i], row == 0 ? 265 : 270, 285});
    tpurchase[i].overhang = stockRight - tpurchase[i].left - tpurchase[i].width;
    layOutHotSpot(purchase[i], {2400, buttonTops[i], 375, row == 2 ? 255 : 375},
                  std::string("Buy ") + storeItems[i].words, "Cost: " + priceWords(storeItems[i]),
                  clicks[i]);
    prices += std::string("  ") + storeItems[i].words + ", " + priceWords(storeItems[i]) + ".";
    controls.insert(controls.end(), {&purchase[i], &tpurchase[i]});
  }
  layOutPage(storePage, Image4, ":/forms/store_table.png", "Spend Credits",
             "A table of goods with the columns Item, Cost, Buy and Total:" + prices, controls);
  setBounds(Image4, {120, 720, 3360, 4350});
  setBounds(Image5, {20, 120, 1320, 570});
  setWords(Image5, "Bank", "Your credits.");
  Image5.picture = ":/forms/store_bank.png";
}

void layOutBackgrounds() {
  setBounds(theme, {240, 600, 3135, 315, 1});
  setBounds(themePic, {600, 2070, 2395, 1800});
  setBounds(HScroll1, {240, 4380, 3135, 255, 2});
  theme.sorted = True;
  theme.click = theme_Click;
  layOutBar(HScroll1, 1, platesInTheme, 1);
  HScroll1.change = HScroll1_Change;
  setWords(theme, "Theme");
  setWords(HScroll1, "Picture of this theme, 1 to 5");
  layOutPage(backgroundsPage, Image1, ":/forms/page4.png", "Backgrounds",
             "The four Glonks sit on the frame of the preview.  Below it, the pictures of this "
             "theme have the numbers 1 to 5.",
             {&theme, &themePic, &HScroll1});
}

void layOutMusic() {
  setBounds(songs, {360, 600, 2895, 2565, 14});
  setBounds(HScroll2, {360, 3720, 2895, 255, 3});
  songs.sorted = True;
  layOutBar(HScroll2, 0, loudest, 10);
  HScroll2.change = HScroll2_Change;
  HScroll2.scroll = HScroll2_Scroll;
  setWords(songs, "Songs");
  setWords(HScroll2, "Volume");
  layOutPage(
      musicPage, Image9, ":/forms/page5.png", "Music",
      "Three Glonks play and sing, with a guitar and a drum.  The volume goes from soft at the "
      "left to loud at the right.",
      {&songs, &HScroll2});
}

void layOutBands() {
  setBounds(allBands, {360, 900, 2895, 2565, 24});
  allBands.sorted = True;
  layOutHotSpot(launch, {2160, 4440, 1095, 615}, "Open the band's page", "In your web browser",
                launch_Click);
  setWords(allBands, "Who plays here", "Pick a band and open its page.");
  layOutPage(bandsPage, Image2, ":/forms/page6.png", "Bands",
             "Who plays here.  Pick a band and open its page.  Two Glonks stand at a microphone, "
             "beside the button Visit.",
             {&allBands, &launch});
}

void layOutTitle() {
  layOutHotSpot(Image6, {2160, 4200, 1095, 495}, "Start", "Leads to the page New Game",
                Image6_Click);
  layOutPage(titlePage, Image10, ":/forms/page7.png", "Glonks",
             "Glonks.  Slam them.  Bomb them.  Bowl them over.  The four Glonks stand among the "
             "other pieces, beside the button Start.",
             {&Image6});
}

}  // namespace

void layOutMenu() {
  fMain.width = formWidth;
  fMain.height = formHeight;
  layOutNewGame();
  layOutHighScores();
  layOutCredits();
  layOutStore();
  layOutBackgrounds();
  layOutMusic();
  layOutBands();
  layOutTitle();
  fMain.controls.clear();
  for (Frame& page : frame) fMain.controls.emplace_back(&page);
}

}  // namespace glonks
