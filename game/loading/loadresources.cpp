#include "game/loading/loadresources.h"

#include "base/random.h"
#include "base/text.h"
#include "game/model/mode.h"
#include "game/model/model.h"
#include "game/model/resources.h"
#include "present/screen/display.h"
#include "present/screen/keyedpicture.h"

namespace glonks {
namespace {

Sample loadSample(const std::string& name) {
  return ds->CreateSoundBufferFromFile("\\sounds\\" + name + ".wav", sampleDesc, sampleFormat);
}

// "_frog" stands for _frog01, _frog02 ...
void loadSampleSet(std::array<Sample, 3>& samples, const std::string& name) {
  for (std::size_t i = 0; i < samples.size(); ++i) {
    samples[i] = loadSample(name + "0" + plainNumber(static_cast<i64>(i) + 1));
  }
}

Surface loadImage(const std::string& name) {
  SurfaceDesc unread;
  return loadKeyedPicture(name, unread);
}

void loadFrame() {
  if (!gameMode.framePicture.empty()) frameSurface = loadImage(gameMode.framePicture);
}

void loadGlyphs() {
  std::size_t next = 0;
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    glyphSurfaces[next++] = loadImage(std::string(1, letter));
  }
  glyphSurfaces[next++] = loadImage("!");
  glyphSurfaces[next++] = loadImage("Space");
  for (char digit = '0'; digit <= '9'; ++digit) {
    glyphSurfaces[next++] = loadImage(std::string(1, digit));
  }
}

void loadPlate() {
  const i32 number = drawBelow(platesInTheme) + 1;
  SurfaceDesc unread;
  plateSurface = dd->CreateSurfaceFromFile(platePath(themeName, number), unread);
}

}  // namespace

void loadSamples() {
  _changerow = loadSample("_changerow");
  _moverow = loadSample("_moverow");
  _gameover = loadSample("_gameover");
  loadSampleSet(connectSounds, "_connect");
  _pop01 = loadSample("_pop01");
  _slam01 = loadSample("_slam01");
  _gorgon01 = loadSample("_gorgon01");
  _coin01 = loadSample("_coin01");
  _gorgon02 = loadSample("_gorgon02");
  _calculate01 = loadSample("_calculate01");
  _calculate02 = loadSample("_calculate02");
  _bowling01 = loadSample("_bowling01");
  loadSampleSet(frogSounds, "_frog");
  _detonate = loadSample("_detonate");
  _music01 = loadSample("_music01");
  _bauble01 = loadSample("_bauble01");
  _bauble02 = loadSample("_bauble02");
  loadSampleSet(clappingSounds, "_clapping");
}

void loadPictures() {
  pointerSurface = loadImage("pointer");
  zapVSurface = loadImage("zap_v");
  zapHSurface = loadImage("zap_h");
  loadFrame();
  loadGlyphs();
  for (std::size_t i = 0; i < frogPictures.size(); ++i) {
    frogPictures[i] = loadImage("frog0" + plainNumber(static_cast<i64>(i) + 1));
  }
  explosionSurface = loadImage("explosion");
  loadPlate();
}

}  // namespace glonks
