#include "shell/bandspage.h"

#include "base/growinglist.h"
#include "shell/links.h"
#include "shell/menucontrols.h"
#include "shell/pages.h"
#include "storage/files/scrambledfiles.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

constexpr i16 bandsChannel = 4;

}  // namespace

void mBands_Click() { showPage(bandsPage); }

void readBands() {
  bandNames.clear();
  bandLinks.clear();
  bandsUpper = -1;
  ScrambledReader file("\\init\\6859", bandsChannel);
  while (!endOfFile(bandsChannel)) {
    std::string& name = grow(bandNames, bandsUpper);
    bandLinks.emplace_back();
    name = readField(bandsChannel, "band name");
    addItem(allBands, name);
    bandLinks.back() = readField(bandsChannel, "link of band \"" + name + "\"");
  }
  file.close();
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
