#include "shell/toolkit/steering.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QTimerEvent>
#include <utility>

#include "shell/toolkit/entry.h"

namespace glonks {
namespace {

// Of the four directions.
constexpr Qt::Key arrowKeys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right};

// The widget that a key would go to, or nullptr.
QWidget* target() {
  QWidget* popup = QApplication::activePopupWidget();
  if (popup != nullptr) return popup->focusWidget() != nullptr ? popup->focusWidget() : popup;
  QWidget* inFocus = QApplication::focusWidget();
  return inFocus != nullptr ? inFocus : QApplication::activeWindow();
}

template <typename... Kinds>
bool isOneOf(const QWidget& widget) {
  return ((qobject_cast<const Kinds*>(&widget) != nullptr) || ...);
}

// Whether anything has taken the key.
bool sendKey(QWidget& widget, Qt::Key key) {
  const QPointer<QWidget> receiver(&widget);
  bool taken = false;
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    if (receiver == nullptr) break;  // the press has closed it
    QKeyEvent event(type, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    QApplication::sendEvent(receiver, &event);
    taken |= type == QEvent::KeyPress && event.isAccepted();
  }
  return taken;
}

bool isMenu(const QWidget& widget) { return isOneOf<QMenu, QMenuBar>(widget); }

// Whether a direction means something to the widget itself.
bool movesWithin(const QWidget& widget, Steer to) {
  if (isMenu(widget)) return true;
  if (to == Steer::left || to == Steer::right) return isOneOf<QScrollBar>(widget);
  return isOneOf<QAbstractItemView, QComboBox, QPlainTextEdit>(widget);
}

bool move(QWidget& widget, Steer to) {
  const bool backwards = to == Steer::up || to == Steer::left;
  if (movesWithin(widget, to)) return sendKey(widget, arrowKeys[static_cast<std::size_t>(to)]);
  return sendKey(widget, backwards ? Qt::Key_Backtab : Qt::Key_Tab);
}

bool press(QWidget& widget) {
  if (QApplication::activePopupWidget() != nullptr || isMenu(widget)) {
    return sendKey(widget, Qt::Key_Return);
  }
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    button->click();
  } else if (auto* box = qobject_cast<QComboBox*>(&widget)) {
    box->showPopup();
    // Or the first move down would pass over the first row.
    if (box->currentIndex() < 0) box->view()->setCurrentIndex(box->model()->index(0, 0));
  } else {
    return sendKey(widget, isOneOf<QAbstractItemView>(widget) ? Qt::Key_Space : Qt::Key_Return);
  }
  return true;
}

bool goBack(QWidget& widget) {
  const bool taken = sendKey(widget, Qt::Key_Escape);
  // A menu that closes leaves the focus with its bar.
  auto* bar = qobject_cast<QMenuBar*>(QApplication::focusWidget());
  if (bar != nullptr && bar != &widget) sendKey(*bar, Qt::Key_Escape);
  return taken;
}

bool switchMenu(QWidget& widget) {
  if (isMenu(widget)) return goBack(widget);
  const auto* window = qobject_cast<QMainWindow*>(QApplication::activeWindow());
  if (window == nullptr || QApplication::activePopupWidget() != nullptr) return false;
  auto* bar = window->findChild<QMenuBar*>();
  if (bar == nullptr) return false;
  bar->setActiveAction(bar->actions().value(0));
  return true;
}

bool isTaken(Steer to) {
  QWidget* widget = target();
  if (widget == nullptr) return false;
  switch (to) {
    case Steer::press:
      return press(*widget);
    case Steer::back:
      return goBack(*widget);
    case Steer::menu:
      return switchMenu(*widget);
    default:
      return move(*widget, to);
  }
}

class Lookout : public QObject {
 public:
  explicit Lookout(i32 (*look)(Flag)) : QObject(qApp), look_(look) {
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) { follow(state); });
    follow(QGuiApplication::applicationState());
  }

 protected:
  // Qt lets no timer go off inside itself, but what is steered may run an event loop: so it is a
  // new one each time, set before the look.
  void timerEvent(QTimerEvent* /*event*/) override {
    setTimer(period_);
    period_ = look_(std::exchange(first_, False));
    if (timer_ != 0) setTimer(period_);
  }

 private:
  void follow(Qt::ApplicationState state) {
    stopTimer();
    if (state != Qt::ApplicationActive) return;
    first_ = True;
    setTimer(0);
  }

  void setTimer(i32 period) {
    stopTimer();
    timer_ = startTimer(period);
  }

  void stopTimer() {
    if (timer_ != 0) killTimer(timer_);
    timer_ = 0;
  }

  i32 (*look_)(Flag);
  Flag first_ = True;
  i32 period_ = 1000;  // ms
  int timer_ = 0;      // 0: none
};

}  // namespace

void steer(Steer to, Handler otherwise) {
  enterFromQt([to, otherwise] {
    if (!isTaken(to)) run(otherwise);
  });
}

void lookWhileActive(i32 (*look)(Flag first)) { new Lookout(look); }

}  // namespace glonks
