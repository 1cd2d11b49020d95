// The plug-in's platform inside a Qt host process: symbols by dlsym on the process's own
// module, modal Qt dialogs, the frame as a sub-window of the host's document area.
#pragma once

#include <QPointer>

#include "plugin/plugin_platform.h"
#include "ui/qt_prompt.h"

class COFSFrame;
class QMdiSubWindow;

class QtPlatform : public PluginPlatform, public SymbolLookup {
 public:
  QtPlatform();

  void* find(const char* name) const override;

  const SymbolLookup* hostModule() override { return self_ ? this : nullptr; }
  PromptPort& prompt() override { return prompt_; }
  IVornDocTemplate* createDocTemplate(COFSControlBlock& block) override;
  bool frameExists() const override { return !frame_.isNull(); }
  void showFrame() override;
  void saveLayoutAndCloseFrame() override;
  void destroyDialogWindows() override;
  void setRecoveryFiles(const std::string& userSettings, const std::string& dialogPos) override;
  void createImageList() override;
  void reapplyFonts(int64_t variation, int64_t fontStamp) override;
  void startDetached(std::function<void()> work) override;
  int64_t now() const override;

  // The frame opened in the host's document area (`area` is a QMdiArea).
  COFSFrame* openFrame(COFSControlBlock& block, void* area);

 private:
  void* self_;
  QtPrompt prompt_;
  QPointer<COFSFrame> frame_;
  QPointer<QMdiSubWindow> subWindow_;
};

QtPlatform& qtPlatform();
