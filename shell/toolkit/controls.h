#pragma once

#include <array>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "base/types.h"

// The controls of the menu's windows as plain data. The toolkit mirrors them on the screen; without
// a screen they work just the same. Lengths are twips, 15 to a logical pixel. Texts are
// Windows-1252.
namespace glonks {

using Handler = void (*)();  // may be nullptr: nothing happens then

struct Control {
  i32 left = 0;
  i32 top = 0;
  i32 width = 0;
  i32 height = 0;
  i16 tabIndex = -1;  // place in the order of the Tab key; -1: never gets the focus
  Flag visible = True;
  Flag enabled = True;
  // For those who can't see it: what it is called, and what else there is to know, like the words
  // in a picture. Needed where the control shows no text that tells it.
  std::string name{};
  std::string description{};
};

// Its font becomes smaller where a word is too wide for it.
struct Label : Control {
  std::string caption;
  i32 overhang = 0;  // twips beyond its right edge that the caption may use as well
  Flag centred = False;
};

// Several lines of text to read, with a scroll bar. A paragraph ends at a line end ("\n" or
// "\r\n").
struct TextBox : Control {
  std::string text;
  i32 fontHeight = 0;  // twips; 0: the usual height
};

// A picture stretched over the control (a path of the game, or of the program's own pictures).
// Without a picture it is a hot spot, which shows nothing and only takes clicks. What takes clicks
// takes the focus too, after everything that has a tabIndex.
struct Image : Control {
  std::string picture;
  std::string hint;  // what a hot spot does: its name
  Handler click = nullptr;
};

// Choices with at most one selected. `click` runs whenever one is chosen, by the player or by
// setListIndex and setText.
struct Choices : Control {
  std::vector<std::string> items;
  std::vector<i32> itemData;  // as many as items
  i16 listIndex = -1;         // -1: none selected
  Flag sorted = False;        // items in alphabetical order, see collation.h
  Handler click = nullptr;
};
struct ComboBox : Choices {};
struct ListBox : Choices {};

// `change` runs at the end of a move, and when setValue moves the bar; `scroll` during a drag.
struct HScrollBar : Control {
  i16 min = 0;
  i16 max = 100;
  i16 value = 0;
  i16 smallChange = 1;
  i16 largeChange = 1;
  Handler change = nullptr;
  Handler scroll = nullptr;
};

struct Frame;
using ControlRef = std::variant<Label*, TextBox*, Image*, ComboBox*, ListBox*, HScrollBar*, Frame*>;

// A page: its controls, from back to front. The keys can't reach a page that is covered by another
// one in front of it.
struct Frame : Control {
  std::vector<ControlRef> controls;
};

struct MenuEntry {
  std::string caption;
  Handler click = nullptr;
};
struct Menu {
  std::string caption;
  std::vector<MenuEntry> entries;
};

// A window: its inside in twips, and its controls from back to front. When the player closes it,
// `unload` runs and the window stays; without an `unload` it closes, by Escape too. It opens in the
// centre of the screen and can't be maximised.
struct Form {
  std::string caption;
  i32 width = 0;
  i32 height = 0;
  Handler unload = nullptr;
  std::vector<Menu> menus;
  std::vector<ControlRef> controls;
  std::string name{};  // for those who can't see it, if it has no caption
};

// Puts a control at left, top, width, height and, for what the Tab key stops at, its place in that
// order. It is visible and enabled afterwards, and keeps its name and description.
void setBounds(Control& control, const Control& at);

// Sets what those are told who can't see the control.
void setWords(Control& control, const std::string& name, const std::string& description = "");

// Sets a form's caption, the size of its inside and a picture that fills it.
void setInside(Form& form, const std::string& caption, i32 width, i32 height, Image& background,
               const std::string& picture);

// Changes to choices.
void clearItems(Choices& list);  // drops the selection too
void addItem(Choices& list, const std::string& text, i32 data = 0);

// Selects an item, or none for -1, and runs `click` if that selects one. Raises badCall for an
// index that isn't there.
void setListIndex(Choices& list, i32 index);

// Selects the item with this text, as setListIndex does; a text that isn't there selects none.
void setText(Choices& list, const std::string& text);

// The text of the selected item, empty if there is none.
std::string textOf(const Choices& list);

// Moves a scroll bar, within its range, and runs `change` if that moves it at all.
void setValue(HScrollBar& bar, i16 value);

// The handlers of a control array: that of member i runs `Routine` with i.
template <auto Routine, std::size_t... I>
constexpr std::array<Handler, sizeof...(I)> handlersOf(std::index_sequence<I...> /*members*/) {
  return {[] { Routine(static_cast<i16>(I)); }...};
}
template <auto Routine, std::size_t count>
constexpr auto handlersOf() {
  return handlersOf<Routine>(std::make_index_sequence<count>());
}

// Runs a handler if there is one.
void run(Handler handler);

}  // namespace glonks
