#include "shell/toolkit/collation.h"

#include <QCollator>

#include "shell/toolkit/style.h"

namespace glonks {

bool sortsBefore(const std::string& text, const std::string& other) {
  static const QCollator collator = [] {
    QCollator rules(QLocale(QLocale::English, QLocale::UnitedStates));
    rules.setCaseSensitivity(Qt::CaseInsensitive);
    rules.setNumericMode(true);
    return rules;
  }();
  return collator.compare(shownText(text), shownText(other)) < 0;
}

}  // namespace glonks
