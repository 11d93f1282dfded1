#include "shell/toolkit/controls.h"

#include <algorithm>

#include "base/errors.h"
#include "shell/toolkit/collation.h"

namespace glonks {

void setBounds(Control& control, const Control& at) {
  const Control before = control;
  control = at;
  setWords(control, before.name, before.description);
}

void setWords(Control& control, const std::string& name, const std::string& description) {
  control.name = name;
  control.description = description;
}

void setInside(Form& form, const std::string& caption, i32 width, i32 height, Image& background,
               const std::string& picture) {
  form.caption = caption;
  form.width = width;
  form.height = height;
  setBounds(background, {0, 0, width, height});
  background.picture = picture;
}

void clearItems(Choices& list) {
  list.items.clear();
  list.itemData.clear();
  list.listIndex = -1;
}

void addItem(Choices& list, const std::string& text, i32 data) {
  auto& items = list.items;
  const auto next = list.sorted == False
                        ? items.end()
                        : std::upper_bound(items.begin(), items.end(), text, sortsBefore);
  const auto index = next - items.begin();
  items.insert(next, text);
  list.itemData.insert(list.itemData.begin() + index, data);
  if (list.listIndex >= index) ++list.listIndex;
}

void setListIndex(Choices& list, i32 index) {
  if (index < -1 || index >= static_cast<i32>(list.items.size())) {
    throw RuntimeError(ErrorNumber::badCall, "setListIndex: there is no such item.");
  }
  list.listIndex = static_cast<i16>(index);
  if (index >= 0) run(list.click);
}

void setText(Choices& list, const std::string& text) {
  const auto found = std::find(list.items.begin(), list.items.end(), text);
  setListIndex(list, found == list.items.end() ? -1 : static_cast<i32>(found - list.items.begin()));
}

std::string textOf(const Choices& list) {
  return list.listIndex < 0 ? std::string() : list.items[static_cast<std::size_t>(list.listIndex)];
}

void setValue(HScrollBar& bar, i16 value) {
  const i16 within = std::clamp(value, bar.min, bar.max);
  if (within == bar.value) return;
  bar.value = within;
  run(bar.change);
}

void run(Handler handler) {
  if (handler != nullptr) handler();
}

}  // namespace glonks
