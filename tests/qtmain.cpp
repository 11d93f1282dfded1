#include <gtest/gtest.h>

#include <cstdlib>

#include "shell/toolkit/toolkit.h"

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  testing::InitGoogleTest(&argc, argv);
  glonks::startToolkit();
  return RUN_ALL_TESTS();
}
