#include "shell/toolkit/toolkit.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QInputDialog>
#include <QLineEdit>
#include <QLockFile>
#include <QMessageBox>
#include <QProcess>
#include <QUrl>
#include <clocale>
#include <map>
#include <memory>
#include <utility>

#include "base/paths.h"
#include "base/text.h"
#include "shell/toolkit/entry.h"
#include "shell/toolkit/formwindow.h"
#include "shell/toolkit/style.h"

namespace glonks {
namespace {

constexpr char programName[] = "Glonks";
constexpr int longestTurn = 10;  // milliseconds that waiting events may take in one go

// Neither the application nor the windows are ever deleted: at the end of the program Qt's own
// static objects could be gone before them.
std::map<Form*, FormWindow*>& windows() {
  static auto* all = new std::map<Form*, FormWindow*>;
  return *all;
}

std::unique_ptr<QLockFile> folderLock;

FormWindow& windowOf(Form& form) {
  FormWindow*& window = windows()[&form];
  if (window == nullptr) window = new FormWindow(form);
  return *window;
}

bool isOpen(Form& form) {
  const auto found = windows().find(&form);
  return found != windows().end() && found->second->isOpen();
}

void levelVisibleForms() {
  for (const auto& [form, window] : windows()) {
    if (window->isVisible()) window->level();
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
  levelVisibleForms();
  return formInFront();
}

// Shows a dialog until the player has answered it, and gives what it gives.
int runDialog(QDialog& box) {
  box.setWindowTitle(programName);
  if (box.parent() == nullptr) box.setWindowFlag(Qt::WindowStaysOnTopHint);
  int answer = QDialog::Rejected;
  {
    const LoopInUse loop([&box] { box.reject(); });
    answer = box.exec();
  }
  raiseKept();
  return answer;
}

int askBox(const std::string& text, QMessageBox::StandardButtons buttons,
           QMessageBox::StandardButton first) {
  QMessageBox box(dialogParent());
  box.setTextFormat(Qt::PlainText);
  box.setText(shownText(text));
  box.setStandardButtons(buttons);
  box.setDefaultButton(first);
  return runDialog(box);
}

}  // namespace

void startToolkit(int argc, char** argv) {
  static int argumentCount = argc;
  auto* application = new QApplication(argumentCount, argv);
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setApplicationName(programName);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(QIcon(":/forms/icon.png"));
  applyStyle(*application);
  setAfterHandler(levelVisibleForms);
}

std::filesystem::path folderOfProgram() {
  return QDir(QCoreApplication::applicationDirPath()).filesystemAbsolutePath();
}

FolderHold holdFolder(const std::filesystem::path& folder) {
  // Asked first: where nothing can be written, a dead run's lock would look like a living one's.
  if (!QFileInfo(folder).isWritable()) return FolderHold::notWritable;
  auto lock = std::make_unique<QLockFile>(QFileInfo(folder / "glonks.lock").filePath());
  lock->setStaleLockTime(0);
  if (lock->tryLock(0)) {
    folderLock = std::move(lock);
    return FolderHold::held;
  }
  return lock->error() == QLockFile::LockFailedError ? FolderHold::otherRun
                                                     : FolderHold::notWritable;
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
    levelVisibleForms();
    const LoopInUse loop([] { QCoreApplication::exit(); });
    QApplication::exec();
    takeEndRequest();
  }
  raiseKept();
}

void endProgram() { requestEnd(); }

void letFormMessagesThrough() {
  levelVisibleForms();
  {
    const LoopInUse loop([] {});
    QCoreApplication::processEvents(QEventLoop::AllEvents, longestTurn);
  }
  raiseKept();
}

void openBySystem(const std::string& address) {
  QDesktopServices::openUrl(QUrl::fromUserInput(shownText(address)));
}

bool startProgram(const std::string& path) {
  const QFileInfo file(nativePath(path));
  return QProcess::startDetached(file.filePath(), {}, file.path());
}

void messageBox(const std::string& text) { askBox(text, QMessageBox::Ok, QMessageBox::Ok); }

Flag yesNoBox(const std::string& question) {
  const auto buttons = QMessageBox::Yes | QMessageBox::No;
  return flagOf(askBox(question, buttons, QMessageBox::Yes) == QMessageBox::Yes);
}

std::string inputBox(const std::string& prompt, i32 longest) {
  QInputDialog box(dialogParent());
  box.setInputMode(QInputDialog::TextInput);  // makes the line
  box.setLabelText(shownText(prompt));
  auto* line = box.findChild<QLineEdit*>();
  line->setMaxLength(longest);
  return runDialog(box) == QDialog::Accepted ? fromUtf8(line->text().toStdString()) : "";
}

}  // namespace glonks
