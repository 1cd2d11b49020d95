#include "ui/ofs_frame.h"

#include <QSettings>

#include "plugin/settings_paths.h"
#include "ui/watch_view_widget.h"

COFSFrame::COFSFrame(COFSControlBlock& block, QWidget* parent) : QMainWindow(parent) {
  setObjectName("COFSFrame");
  setWindowTitle("OFS");
  watchView_ = new WatchViewWidget(block, this);
  setCentralWidget(watchView_);
  QSettings settings(kLayoutOrganisation, kLayoutApplication);
  restoreState(settings.value("FrameLayout").toByteArray());
}

void COFSFrame::saveLayout() const {
  QSettings settings(kLayoutOrganisation, kLayoutApplication);
  settings.setValue("FrameLayout", saveState());
}
