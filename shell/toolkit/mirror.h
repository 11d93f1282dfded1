#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "shell/toolkit/controls.h"

// Widgets that mirror controls: what the program changes in the data is shown, what the player does
// goes into the data, and then the control's handler runs.
namespace glonks {

class Mirror {
 public:
  virtual ~Mirror() = default;

  // Shows what has changed in the data, without running handlers. Costs little if nothing has.
  virtual void refresh() = 0;
};
using Mirrors = std::vector<std::unique_ptr<Mirror>>;

// A widget that the Tab key may stop at, and its place in the order.
struct TabStop {
  int place = 0;
  QWidget* widget = nullptr;
};

// Makes the widgets of the controls inside `parent`, and adds their stops to `stops`. The controls
// have to live as long as the widgets.
Mirrors makeMirrors(const std::vector<ControlRef>& controls, QWidget& parent,
                    std::vector<TabStop>& stops);

// Makes the Tab key visit the stops by place, and in order of creation where places are equal.
// Sorts them that way.
void orderTabStops(std::vector<TabStop>& stops);

}  // namespace glonks
