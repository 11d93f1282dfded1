#include "shell/toolkit/formwindow.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "shell/toolkit/entry.h"
#include "shell/toolkit/style.h"

namespace glonks {
namespace {

// A menu's caption, with its first letter as the key to press with Alt.
QString withAltKey(const std::string& caption) { return "&" + shownText(caption); }

}  // namespace

FormWindow::FormWindow(Form& form) : form_(form), inside_(*new QWidget(this)) {
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                 Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                 Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
  setCentralWidget(&inside_);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  makeMenus();
  mirrors_ = makeMirrors(form.controls, inside_, stops_);
  orderTabStops(stops_);
}

void FormWindow::makeMenus() {
  if (form_.menus.empty()) return;
  menuBar()->setNativeMenuBar(false);
  menuBar()->setAccessibleName("Menu");
  for (const Menu& menu : form_.menus) {
    QMenu* shown = menuBar()->addMenu(withAltKey(menu.caption));
    for (const MenuEntry& entry : menu.entries) {
      // Queued until the menu has gone, which returns the focus to where it was.
      connect(
          shown->addAction(withAltKey(entry.caption)), &QAction::triggered, this,
          [&entry] { enterFromQt([&entry] { run(entry.click); }); }, Qt::QueuedConnection);
    }
  }
}

void FormWindow::refresh() {
  const QString title =
      form_.caption.empty() ? " " : shownText(form_.caption);  // or Qt shows its own
  if (windowTitle() != title) setWindowTitle(title);
  if (form_.caption.empty()) setAccessibleName(shownText(form_.name));
  const QSize size(pixels(form_.width), pixels(form_.height));
  if (inside_.minimumSize() != size) inside_.setFixedSize(size);
  const QWidget* inFocus = focusWidget();
  for (const auto& mirror : mirrors_) mirror->refresh();
  // The menu bar holds the focus after Escape in a menu, until the focus is set elsewhere.
  const bool onStop = std::any_of(stops_.begin(), stops_.end(), [inFocus](const TabStop& stop) {
    return stop.widget == inFocus && inFocus->isVisible();
  });
  if (!onStop) focusFirst();
}

// Qt would choose a different widget, because it treats the stops as a ring.
void FormWindow::focusFirst() {
  for (const TabStop& stop : stops_) {
    if (stop.widget->isVisible() && stop.widget->isEnabled()) return stop.widget->setFocus();
  }
}

void FormWindow::present() {
  setEnabled(true);
  refresh();
  if (!isVisible()) centreOrRestore();
  if (isMinimized()) showNormal();
  show();
  const QPointer<QWidget> before = std::exchange(inFocus_, nullptr);
  if (before != nullptr && before->isVisible()) {
    before->setFocus();
  } else if (focusWidget() == nullptr) {
    focusFirst();
  }
  raise();
  activateWindow();
}

void FormWindow::centreOrRestore() {
  if (!open_) {
    const QRect room = screen()->availableGeometry();
    const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    adjustSize();
    const QSize size = this->size() + QSize(0, titleBar);
    position_ = room.center() - QRect(QPoint(), size).center();
    open_ = true;
  }
  move(position_);
}

void FormWindow::putAway() {
  if (!isVisible()) return;
  position_ = pos();
  inFocus_ = focusWidget();
  hide();
  setEnabled(false);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->setAccepted(form_.unload == nullptr);
  if (event->isAccepted()) {
    open_ = false;
  } else {
    enterFromQt([this] { run(form_.unload); });
  }
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && form_.unload == nullptr) {
    close();
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

}  // namespace glonks
