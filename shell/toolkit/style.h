#pragma once

#include <QApplication>
#include <QString>
#include <string>

#include "base/types.h"

// Size and look of everything that the toolkit shows.
namespace glonks {

// The factor that suits the main screen, 1 to 4.
int fittingFactor();

// Sets factor, fonts, colours and style sheet.
void applyStyle(QApplication& application, int newFactor = fittingFactor());

// The whole factor by which windows, fonts and all else are enlarged.
int scaleFactor();

// A style sheet with each length in "px" multiplied by that factor.
QString enlarged(QString sheet);

// A length in twips as screen pixels.
int pixels(i32 twips);

// A text of the program (Windows-1252) as Qt needs it.
QString shownText(const std::string& text);

}  // namespace glonks
