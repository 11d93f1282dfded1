#include "shell/bandspage.h"

#include "base/errors.h"
#include "base/growinglist.h"
#include "shell/menucontrols.h"
#include "shell/pages.h"
#include "shell/toolkit/toolkit.h"
#include "storage/files/channels.h"
#include "storage/files/datafiles.h"
#include "storage/files/log.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

void fillBands() {
  ScrambledReader file(bandsPath, bandsChannel);
  while (!endOfFile(bandsChannel)) {
    std::string& name = grow(bandNames, bandsUpper);
    name = readField(bandsChannel, "band name");
    bandLinks.push_back(readField(bandsChannel, "link of band \"" + name + "\""));
  }
  file.close();
}

void forgetBands() {
  erase(bandNames, bandsUpper);
  bandLinks.clear();
}

}  // namespace

void mBands_Click() { showPage(bandsPage); }

void readBands() {
  forgetBands();
  try {
    fillBands();
  } catch (const RuntimeError& error) {
    logStep("error " + numberAndText(error));
    forgetBands();
  }
  for (const std::string& name : bandNames) addItem(allBands, name);
}

void launch_Click() {
  std::string link;
  const std::string selected = textOf(allBands);
  for (std::size_t i = 0; i < bandNames.size(); ++i) {
    if (bandNames[i] == selected) link = bandLinks[i];
  }
  if (!link.empty()) openLink(link);
}

}  // namespace glonks
