#include "ui/qt_platform.h"

#include <dlfcn.h>

#include <QColor>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPixmap>
#include <ctime>
#include <thread>
#include <vector>

#include "plugin/host_path.h"
#include "plugin/plugin_identity.h"
#include "ui/dialog_keys.h"
#include "ui/list_memory.h"
#include "ui/ofs_frame.h"
#include "ui/order_book_widget.h"
#include "ui/watch_view_widget.h"

namespace {

class DocTemplate : public IVornDocTemplate {
 public:
  DocTemplate(QtPlatform& platform, COFSControlBlock& block) : platform_(platform), block_(block) {}
  int ResourceId() const override { return kDocTemplateResourceId; }
  void* OpenDocument(void* area) override { return platform_.openFrame(block_, area); }

 private:
  QtPlatform& platform_;
  COFSControlBlock& block_;
};

// The row markers of the lists: 9x5 images, white being transparent.
std::vector<QPixmap>& imageList() {
  static std::vector<QPixmap> images;
  return images;
}

}  // namespace

QtPlatform::QtPlatform() : self_(dlopen(nullptr, RTLD_NOW)) {}

void* QtPlatform::find(const char* name) const {
  if (!self_) return nullptr;
  auto hidden = reinterpret_cast<vt_service_hidden_fn>(dlsym(self_, "vt_service_hidden"));
  if (hidden && hidden(name)) return nullptr;
  return dlsym(self_, name);
}

IVornDocTemplate* QtPlatform::createDocTemplate(COFSControlBlock& block) {
  return new DocTemplate(*this, block);
}

COFSFrame* QtPlatform::openFrame(COFSControlBlock& block, void* area) {
  auto* mdi = static_cast<QMdiArea*>(area);
  frame_ = new COFSFrame(block);
  if (mdi) {
    subWindow_ = mdi->addSubWindow(frame_);
    subWindow_->setAttribute(Qt::WA_DeleteOnClose);
    frame_->showIn(subWindow_);
  } else {
    frame_->show();
  }
  return frame_;
}

void QtPlatform::showFrame() {
  if (subWindow_) subWindow_->show();
  if (frame_) frame_->show();
}

void QtPlatform::saveLayoutAndCloseFrame() {
  if (!frame_) return;
  frame_->saveLayout();
  // Destroyed now, not later: the watch view gives its receive controls back while the
  // control block still exists.
  if (subWindow_) {
    delete subWindow_.data();
  } else {
    delete frame_.data();
  }
}

void QtPlatform::destroyDialogWindows() {
  if (frame_ && frame_->watchView()) frame_->watchView()->destroyDialogs();
  if (frame_ && frame_->orderBook()) frame_->orderBook()->destroyDialogs();
}

void QtPlatform::setRecoveryFiles(const std::string& userSettings, const std::string& dialogPos) {
  // Without a user directory there is nowhere of the user's own to keep them: the lists then
  // forget their columns rather than write beside whatever folder the process runs in.
  auto opened = [](const std::string& name) {
    return hasDirectoryPart(name) ? QString::fromStdString(nativePath(name)) : QString();
  };
  setListRecoveryFiles(opened(userSettings), opened(dialogPos));
}

void QtPlatform::createImageList() {
  std::vector<QPixmap>& images = imageList();
  if (!images.empty()) return;
  for (QColor colour : {QColor(0, 128, 0), QColor(192, 0, 0), QColor(0, 0, 160)}) {
    QPixmap image(9, 5);
    image.fill(colour);
    images.push_back(image);
  }
}

void QtPlatform::reapplyFonts(int64_t variation, int64_t fontStamp) {
  if (!frame_) return;
  // Dialogs are windows of their own, so the frame's font does not reach them: each open one
  // takes the font and the stamp itself.
  reapplyWindowFonts(frame_, variation, fontStamp);
}

void QtPlatform::startDetached(std::function<void()> work) {
  std::thread(std::move(work)).detach();
}

int64_t QtPlatform::now() const {
  if (self_) {
    if (auto hostTime = reinterpret_cast<vt_host_time_fn>(dlsym(self_, "vt_host_time")))
      return hostTime();
  }
  return static_cast<int64_t>(std::time(nullptr));
}

QtPlatform& qtPlatform() {
  static QtPlatform platform;
  return platform;
}
