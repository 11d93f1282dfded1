#pragma once

#include "base/types.h"

// The pages of the main window, of which one is on show.
namespace glonks {

// Hides and disables all pages.
void hidePages();

// Shows and enables a page, whatever the others do.
void addPage(i16 page);

// Hides and disables all pages, and shows and enables one.
void showPage(i16 page);

}  // namespace glonks
