#pragma once

namespace glonks {

// Draw the effects of their lists on backBuffer and age them by one frame. drawPopups pays the
// points of popups that have climbed out into `score`.
void drawImpacts();
void drawZaps();
void drawPopups();

}  // namespace glonks
