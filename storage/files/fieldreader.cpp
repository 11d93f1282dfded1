#include "storage/files/fieldreader.h"

#include <cmath>
#include <limits>

#include "base/errors.h"
#include "base/text.h"
#include "storage/files/textchannels.h"

namespace glonks {
namespace {

std::string place(i16 channel, const std::string& fieldName) {
  return "The file \"" + channelName(channel) + "\" is damaged: its field " + fieldName + " ";
}

template <typename Whole>
Whole fitting(i16 channel, const std::string& fieldName, double number) {
  using Limits = std::numeric_limits<Whole>;
  const double rounded = roundHalfEven(number);
  if (!(rounded >= Limits::min() && rounded <= Limits::max())) {
    throw RuntimeError(ErrorNumber::overflow, place(channel, fieldName) + "is out of range.");
  }
  return static_cast<Whole>(rounded);
}

double numberField(i16 channel, const std::string& fieldName) {
  const std::string text = readField(channel, fieldName);
  if (!isNumber(text)) {
    throw RuntimeError(ErrorNumber::typeMismatch, place(channel, fieldName) + "isn't a number.");
  }
  return leadingNumber(text);
}

}  // namespace

i16 fittingI16(i16 channel, const std::string& fieldName, double number) {
  return fitting<i16>(channel, fieldName, number);
}

i16 readI16(i16 channel, const std::string& fieldName) {
  return fittingI16(channel, fieldName, leadingNumber(readField(channel, fieldName)));
}

i32 readI32(i16 channel, const std::string& fieldName) {
  return fitting<i32>(channel, fieldName, leadingNumber(readField(channel, fieldName)));
}

Flag readFlag(i16 channel, const std::string& fieldName) {
  return flagOf(leadingNumber(readField(channel, fieldName)) != 0);
}

i16 readWholeI16(i16 channel, const std::string& fieldName) {
  return fittingI16(channel, fieldName, std::floor(numberField(channel, fieldName)));
}

i32 readWholeI32(i16 channel, const std::string& fieldName) {
  return fitting<i32>(channel, fieldName, std::floor(numberField(channel, fieldName)));
}

void badField(i16 channel, const std::string& fieldName, const std::string& trouble) {
  throw RuntimeError(ErrorNumber::badFile, place(channel, fieldName) + trouble);
}

}  // namespace glonks
