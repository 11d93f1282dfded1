#include "shell/fsplash.h"

#include <string>

#include "shell/toolkit/toolkit.h"

namespace glonks {
namespace {

// Where the game's makers can be found.
const std::string makersAddress = "https://glonks.example/";

}  // namespace

void fSplash_Form_Load() {
  setInside(fSplash, "about", 3765, 4500, fSplash_background, ":/forms/about.png");
  setWords(fSplash_background, "About",
           "Glonks.  A falling-pieces puzzle game.  Made by the Glonks makers.  glonks.example.  "
           "Code: MIT.  Pictures and sounds: CC BY 4.0");
  setBounds(fSplash_Image2, {600, 3720, 2535, 375});
  fSplash_Image2.hint = "Open the makers' page";
  fSplash_Image2.description = "glonks.example, in your web browser";
  fSplash_Image2.click = fSplash_Image2_Click;
  setBounds(fSplash_version, {0, 3405, 3765, 225});
  fSplash_version.caption = "Version " GLONKS_VERSION;
  fSplash_version.centred = True;
  fSplash.controls = {&fSplash_background, &fSplash_version, &fSplash_Image2};
}

void fSplash_Image2_Click() { openLink(makersAddress); }

}  // namespace glonks
