#include "shell/toolkit/accessible.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>

#include "shell/toolkit/widgets.h"

namespace glonks {
namespace {

// Qt's own interface of a drop-down list leaves its name out on some systems, and tells the
// selected item in its place.
class DropDownInterface : public QAccessibleWidget {
 public:
  explicit DropDownInterface(DropDown& list)
      : QAccessibleWidget(&list, QAccessible::ComboBox), list_(list) {}

  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Value) return list_.currentText();
    if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
    QStringList parts = {list_.accessibleName(), list_.currentText()};
    parts.removeAll(QString());
    return parts.join(": ");
  }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = list_.view()->isVisible();
    state.collapsed = !state.expanded;
    return state;
  }

  // The list that drops down.
  int childCount() const override { return 1; }
  QAccessibleInterface* child(int index) const override {
    return index == 0 ? QAccessible::queryAccessibleInterface(list_.view()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child->object() == list_.view() ? 0 : -1;
  }

  QStringList actionNames() const override {
    return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != showMenuAction()) return QAccessibleWidget::doAction(action);
    list_.view()->isVisible() ? list_.hidePopup() : list_.showPopup();
  }

 private:
  DropDown& list_;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
  if (auto* list = dynamic_cast<DropDown*>(object)) return new DropDownInterface(*list);
  if (auto* page = dynamic_cast<PageView*>(object)) {
    return new QAccessibleWidget(page, QAccessible::Grouping);
  }
  auto* picture = dynamic_cast<PictureView*>(object);
  if (picture == nullptr || picture->isClickable()) return nullptr;  // Qt's own, as of a button
  return new QAccessibleWidget(picture, QAccessible::Graphic);
}

}  // namespace

void installAccessibleRoles() { QAccessible::installFactory(makeInterface); }

}  // namespace glonks
