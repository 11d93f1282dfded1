#include "shell/fpieces.h"

namespace glonks {
namespace {

struct Kind {
  const char* name;
  const char* text;
};

constexpr Kind glonk = {
    "Glonk",
    "Glonks are the most basic playing pieces.  Individual Glonks can be bombed for 10 points "
    "each. "
    " Identical glonks can be sandwiched between Slammers for additional bonuses."};
constexpr Kind slammer = {
    "Slammer",
    "Slammers work in pairs.  Any number of identical pieces placed vertically or horizontally "
    "between Slammers will be eliminated.  Point bonuses are awarded based on the number of pieces "
    "eliminated at once.  Most pieces can be slammed, however, a few cannot."};
constexpr Kind bomb = {
    "Bomb",
    "Bombs function on a timer approximately 30 seconds long.  Once the timer expires, Bombs "
    "explode, and destroy up to 8 adjacent pieces.  Most pieces can be bombed, however, a few "
    "cannot."};
constexpr Kind bauble = {
    "Bauble",
    "Baubles function on a timer approximately 1 to 2 minutes long.  Once the timer expires, "
    "Baubles eliminate themselves and award a 500 point bonus.  If a Bauble is bombed or slammed "
    "before its timer expires, it awards no points and dumps three additional pieces onto the "
    "playing field."};
constexpr Kind diamond = {
    "Diamond",
    "Upon settling on the playing field, Diamonds award 100 points.  Diamonds cannot be bombed or "
    "slammed."};
constexpr Kind calculator = {
    "Calculator",
    "Calculators come into play with a value between -100 and 100 points.  They function on a "
    "timer approximately 12 seconds long.  Once the timer expires, the Calculator will award its "
    "set point value, and reset its timer.  Calculators can be bombed and slammed."};
constexpr Kind gorgon = {
    "Gorgon",
    "Gorgons function on a timer approximately 1 minute long.  When the timer expires, the Gorgon "
    "will dump another Gorgon onto the playing field, and reset its timer.  Gorgons may be bombed "
    "or slammed for a 500 point bonus."};
constexpr Kind shifter = {
    "Shifter",
    "Shifters function on a timer approximately 8 seconds long.  When the timer expires, the "
    "Shifter will move left or right the row it occupies.  Shifters can be bombed or slammed for a "
    "25 point bonus."};
constexpr Kind rock = {
    "Rock", "Rocks are worth 20 points each.  They can be bombed, but they cannot be slammed."};
constexpr Kind bowlingBall = {
    "Bowling Ball",
    "Bowling Balls do not remain on the playing field.  While falling, they destroy every piece in "
    "their path."};
constexpr Kind money = {
    "Money",
    "Money can be bombed or slammed while in play, and awards 1 credit to your bank.  Credits can "
    "be spent in the store to purchase pieces and other special items."};
constexpr Kind bType = {
    "B-Type",
    "B-Type pieces only appear in B-Type mode.  At the beginning of the game, the playing field "
    "will be populated with these pieces.  They all must be bombed or slammed in order to complete "
    "the game."};
constexpr Kind musicNote = {
    "Music Note",
    "Music Notes may be bombed and slammed.  If you collect enough of these pieces during "
    "Freestyle mode, bonus songs will be awarded."};

struct Specimen {
  i32 left;
  i32 top;
  const Kind& kind;
};

constexpr std::array<Specimen, specimenCount> specimens = {{
    {240, 240, glonk},
    {1080, 240, glonk},
    {1920, 240, glonk},
    {2760, 240, glonk},
    {3840, 240, slammer},
    {4680, 240, bomb},
    {360, 1320, bauble},
    {1200, 1320, diamond},
    {2040, 1320, calculator},
    {2880, 1320, gorgon},
    {3720, 1320, shifter},
    {240, 2400, rock},
    {1080, 2400, rock},
    {1920, 2400, rock},
    {3000, 2400, bowlingBall},
    {3840, 2400, money},
    {4560, 1320, bType},
    {4680, 2400, musicNote},
}};
constexpr i32 specimenWidth = 735;
constexpr i32 specimenHeight = 855;

}  // namespace

void fPieces_Form_Load() {
  constexpr auto clicks = handlersOf<pClick_Click, specimenCount>();
  setInside(fPieces, "the specimen box", 5760, 4755, fPieces_background, ":/forms/specimens.png");
  setBounds(pieceDesc, {120, 3360, 5415, 1215, 0});
  setWords(fPieces_background, "The specimen box",
           "A wooden box with a piece in each compartment.");
  setWords(pieceDesc, "Description");
  pieceDesc.text = "Click on a piece for its description.\r\n";
  fPieces.controls = {&fPieces_background, &pieceDesc};
  for (std::size_t i = 0; i < specimens.size(); ++i) {
    const auto& [left, top, kind] = specimens[i];
    setBounds(pClick[i], {left, top, specimenWidth, specimenHeight});
    pClick[i].hint = kind.name;
    pClick[i].description = kind.text;
    pClick[i].click = clicks[i];
    fPieces.controls.emplace_back(&pClick[i]);
  }
}

void pClick_Click(i16 Index) {
  pieceDesc.text = specimens[static_cast<std::size_t>(Index)].kind.text;
}

}  // namespace glonks
