#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>

namespace glonks {

// Runs `action` inside the next event loop.
inline void later(const std::function<void()>& action) { QTimer::singleShot(0, qApp, action); }

}  // namespace glonks
