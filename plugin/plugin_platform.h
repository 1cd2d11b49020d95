// What the plug-in needs of its process and of the UI toolkit. The exported entry points
// implement it with dlsym and Qt; tests implement it with fakes.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "domain/prompt_port.h"
#include "plugin/host_service_table.h"
#include "sdk/host_app.h"

class COFSControlBlock;

class PluginPlatform {
 public:
  // The host executable's module; null when the process has none to offer.
  virtual const SymbolLookup* hostModule() = 0;
  virtual PromptPort& prompt() = 0;
  // The document template whose documents are the plug-in's frame and watch view.
  virtual IVornDocTemplate* createDocTemplate(COFSControlBlock& block) = 0;
  virtual bool frameExists() const = 0;
  virtual void showFrame() = 0;
  // Saves the frame's docking layout and closes it.
  virtual void saveLayoutAndCloseFrame() = 0;
  // Destroys the order entry and modify price windows when they exist.
  virtual void destroyDialogWindows() = 0;
  // The list controls remember column order and widths and dialog positions in these files.
  virtual void setRecoveryFiles(const std::string& userSettings, const std::string& dialogPos) = 0;
  // Creates the shared 9x5 image list used by the lists' row markers.
  virtual void createImageList() = 0;
  // Re-applies fonts to the open dialogs (order entry, bulk upload, issue details, modify price,
  // market depth, in that order) with the host's font variation, recording its font stamp.
  virtual void reapplyFonts(int64_t variation, int64_t fontStamp) = 0;
  // Starts a detached worker thread.
  virtual void startDetached(std::function<void()> work) = 0;
  // Seconds since 1970 by the clock the plug-in reads.
  virtual int64_t now() const = 0;

 protected:
  ~PluginPlatform() = default;
};
