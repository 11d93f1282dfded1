#include "shell/toolkit/toolkit.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <clocale>
#include <map>

#include "base/paths.h"
#include "base/text.h"
#include "shell/toolkit/application.h"
#include "shell/toolkit/dialogbox.h"
#include "shell/toolkit/entry.h"
#include "shell/toolkit/formwindow.h"
#include "shell/toolkit/style.h"

namespace glonks {
namespace {

constexpr char programName[] = "Glonks";
constexpr int longestTurn = 10;  // milliseconds that waiting events may take in one go

// Never deleted, like the application.
std::map<Form*, FormWindow*>& windows() {
  static auto* all = new std::map<Form*, FormWindow*>;
  return *all;
}

FormWindow& windowOf(Form& form) {
  FormWindow*& window = windows()[&form];
  if (window == nullptr) window = new FormWindow(form);
  return *window;
}

bool isOpen(Form& form) {
  const auto found = windows().find(&form);
  return found != windows().end() && found->second->isOpen();
}

void refreshVisibleForms() {
  for (const auto& [form, window] : windows()) {
    if (window->isVisible()) window->refresh();
  }
}

// The form that a dialog belongs to: the active one, or any that can be seen.
FormWindow* formInFront() {
  FormWindow* found = nullptr;
  for (const auto& [form, window] : windows()) {
    if (!window->isVisible() || window->isMinimized()) continue;
    if (found == nullptr || window->isActiveWindow()) found = window;
  }
  return found;
}

FormWindow* dialogParent() {
  refreshVisibleForms();
  return formInFront();
}

// Shows a dialog until the player has answered it. True if the answer was its first button.
bool runDialog(DialogBox& box) {
  box.setWindowTitle(programName);
  if (box.parent() == nullptr) box.setWindowFlag(Qt::WindowStaysOnTopHint);
  int answer = QDialog::Rejected;
  {
    const LoopInUse loop([&box] { box.reject(); });
    answer = box.exec();
  }
  raiseKept();
  return answer == QDialog::Accepted;
}

bool ask(const std::string& text, QDialogButtonBox::StandardButtons buttons) {
  DialogBox box(shownText(text), buttons, dialogParent());
  return runDialog(box);
}

}  // namespace

void startToolkit() {
  makeApplication(programName);
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setDesktopFileName("glonks");
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(QIcon(":/forms/icon.png"));
  setAfterHandler(refreshVisibleForms);
}

std::filesystem::path folderOfProgram() {
  return QDir(QCoreApplication::applicationDirPath()).filesystemAbsolutePath();
}

std::filesystem::path folderOfUsersData() {
  QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  if (QDir::isRelativePath(data)) data = QDir::homePath() + "/.local/share";  // as it is to be read
  return QDir(data + "/glonks").filesystemAbsolutePath();
}

void showForm(Form& form, Handler load) {
  if (!isOpen(form)) run(load);
  windowOf(form).present();
}

void hideForm(Form& form) {
  const auto found = windows().find(&form);
  if (found != windows().end()) found->second->putAway();
}

void runEvents() {
  if (!isAnythingKept() && !takeEndRequest()) {
    refreshVisibleForms();
    const LoopInUse loop([] { QCoreApplication::exit(); });
    QApplication::exec();
    takeEndRequest();
  }
  raiseKept();
}

void endProgram() { requestEnd(); }

void letFormMessagesThrough() {
  refreshVisibleForms();
  {
    const LoopInUse loop([] {});
    QCoreApplication::processEvents(QEventLoop::AllEvents, longestTurn);
  }
  raiseKept();
}

void openLink(const std::string& address) {
  QDesktopServices::openUrl(QUrl::fromUserInput(shownText(address)));
}

bool startProgram(const std::string& path) {
  const QFileInfo file(nativePath(path));
  return QProcess::startDetached(file.filePath(), {}, file.path());
}

void messageBox(const std::string& text) { ask(text, QDialogButtonBox::Ok); }

Flag yesNoBox(const std::string& question) {
  return flagOf(ask(question, QDialogButtonBox::Yes | QDialogButtonBox::No));
}

std::string inputBox(const std::string& prompt, i32 longest) {
  DialogBox box(shownText(prompt), QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialogParent());
  const QLineEdit& line = box.addLine(longest);
  return runDialog(box) ? fromUtf8(line.text().toStdString()) : "";
}

}  // namespace glonks
