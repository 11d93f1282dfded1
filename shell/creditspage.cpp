#include "shell/creditspage.h"

#include "shell/menucontrols.h"
#include "shell/pages.h"

namespace glonks {

const char creditsText[] =
    "GLONKS\n"
    "\n"
    "Game, rules and levels\n"
    "The Glonks makers\n"
    "\n"
    "Pictures\n"
    "Drawn by the Glonks makers, every one by a program of their own\n"
    "\n"
    "Sounds and songs\n"
    "Made by the Glonks makers from nothing but waves and noise\n"
    "\n"
    "Music played by\n"
    "Paper Lanterns\n"
    "The Tin Orchard\n"
    "Velvet Gears\n"
    "Low Tide Radio\n"
    "Winter Kiosk\n"
    "Yonder Bakery\n"
    "Zigzag Ferry\n"
    "who exist in this game only\n"
    "\n"
    "Built with\n"
    "SDL 2, SDL_mixer, SDL_ttf, fontconfig, Qt 6 and the Liberation fonts.  Thanks to all who make "
    "them.\n"
    "\n"
    "Licence\n"
    "Code: MIT.  Pictures, sounds and songs: CC BY 4.0.\n"
    "\n"
    "No Glonk was harmed.  They like it between Slammers.";

void mCredits_Click() { showPage(creditsPage); }

}  // namespace glonks
