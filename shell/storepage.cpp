#include "shell/storepage.h"

#include <limits>
#include <string>

#include "base/text.h"
#include "game/model/model.h"
#include "shell/musicpage.h"
#include "shell/newgamepage.h"
#include "shell/pages.h"
#include "shell/saving.h"
#include "shell/toolkit/toolkit.h"
#include "storage/store.h"

namespace glonks {
namespace {

void showCount(i16 slot) {
  Label& count = tpurchase[static_cast<std::size_t>(slot)];
  count.caption = plainNumber(stockOf(slot));
  count.name = std::string("Total of ") + storeItems[static_cast<std::size_t>(slot)].words + ": " +
               count.caption;
}

void showBank() {
  tBank.caption = plainNumber(bank);
  tBank.name = "Bank: " + tBank.caption + " credits";
}

}  // namespace

void mStore_Click() {
  showPage(storePage);
  showStock();
}

void loadStore() {
  readStore();
  setValue(HScroll2, musicVolume);
}

void saveStore() {
  owe(storeFile);
  saveAll();
}

void showStock() {
  showBank();
  for (i16 slot = 0; slot < itemKinds; ++slot) showCount(slot);
}

void purchase_Click(i16 Index) {
  const StoreItem& item = storeItems[static_cast<std::size_t>(Index)];
  i16& stock = stockOf(Index);
  if (Index == bonusSongItem && openBonusSongCount() == bonusSongCount) {
    messageBox("You have all the Bonus Songs already.");
    return;
  }
  if (bank < item.price) {
    messageBox("Insufficient credits to make this transaction.  Sorry!");
    return;
  }
  if (stock == std::numeric_limits<i16>::max()) {
    messageBox("You have as many of these as you can hold.");
    return;
  }
  const std::string question = std::string("Do you want to purchase ") + item.words + " for " +
                               plainNumber(item.price) + " credits?";
  if (yesNoBox(question) != True) return;
  bank = static_cast<i16>(bank - item.price);
  ++stock;
  showCount(Index);
  showBank();
  saveStore();
  openBonusSongs();
  listModes();
}

}  // namespace glonks
