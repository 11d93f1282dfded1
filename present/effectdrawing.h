#pragma once

namespace glonks {

// Each draws the effects of its list on backBuffer and ages them by one frame. drawPopups also pays
// the points of popups that have climbed out into `score`.
void drawImpacts();
void drawZaps();
void drawPopups();

}  // namespace glonks
