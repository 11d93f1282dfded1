#include "tests/fakes/toolkit.h"

#include "shell/toolkit/toolkit.h"

namespace glonks {

void startToolkit() {}
std::filesystem::path folderOfProgram() { return {}; }
std::filesystem::path folderOfUsersData() { return {}; }
void showForm(Form& /*form*/, Handler /*load*/) {}
void hideForm(Form& /*form*/) {}
void runEvents() {}
void endProgram() {}
void openLink(const std::string& /*address*/) {}
bool startProgram(const std::string& /*path*/) { return true; }
void messageBox(const std::string& text) {
  fake::boxes.push_back(text);
  if (fake::asked) fake::asked();
}
Flag yesNoBox(const std::string& question) {
  messageBox(question);
  return fake::yes;
}
std::string inputBox(const std::string& prompt, i32 /*longest*/) {
  messageBox(prompt);
  return fake::typed;
}

void letFormMessagesThrough() {
  if (fake::messages) fake::messages();
}

}  // namespace glonks
