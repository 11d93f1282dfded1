#pragma once

#include <filesystem>
#include <string>

// What tests ask of the system that standard C++ hasn't got.
namespace glonks {

// Of this run: no other that goes on at the same time has it.
long processNumber();

// Sets a variable of the environment.
void setVariable(const std::string& name, const std::string& value);

// Makes a pipe that a file's path leads to. False where there is no such thing.
bool makePipe(const std::filesystem::path& place);

}  // namespace glonks
