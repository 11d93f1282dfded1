#pragma once

#include <array>

#include "base/types.h"
#include "shell/menucontrols.h"

// The page Spend Credits, where credits become goods.
namespace glonks {

struct StoreItem {
  i16 price;          // credits
  const char* words;  // in the question
};

// By slot of itemStock. This is the one place for prices: the page's picture is drawn from it, and
// the manual is checked against it.
inline constexpr std::array<StoreItem, storeRows> storeItems = {{
    {2, "a Slammer"},
    {4, "a Bomb"},
    {7, "a Detonator"},
    {10, "a Bowling Ball"},
    {40, "a Bonus Song"},
    {40, "a game of Midnight Bowling"},
}};

void mStore_Click();  // shows the page, with fresh numbers

// Reads the store's file and sets the volume's scroll bar. Raises as readStore does.
void loadStore();

// Stores bank, goods and settings, and whatever else an earlier save couldn't store. A failure
// raises nothing (see shell/saving.h).
void saveStore();

// Sets the labels from bank and itemStock.
void showStock();

// One attempt to buy the item of a slot, 0 to 5: refuses, or asks, takes the price and stores. A
// Bonus Song enters the list of songs, and Midnight Bowling that of the modes.
void purchase_Click(i16 Index);

}  // namespace glonks
