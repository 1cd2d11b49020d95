#include <gtest/gtest.h>
#include <stdlib.h>

#include <QApplication>

#include "tests/support/scratch_dir.h"

int main(int argc, char** argv) {
  // The frame layout and the list files go to a folder of the run's own, not the user's.
  const ScratchDir scratch;
  setenv("XDG_CONFIG_HOME", scratch.path().c_str(), 1);
  setenv("XDG_DATA_HOME", scratch.path().c_str(), 1);
  // ctest runs the tests on an X display of their own (x-display.sh); by hand without one, they
  // draw offscreen.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  int status = 0;
  {
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    status = RUN_ALL_TESTS();
  }
  return status;
}
