// The host application object handed to InitVornPlugin.
//
// The plug-in registers a document template with it and then asks the host's main window to
// open a document of that template (window message 273 with the template and 12). The host
// answers by calling the template's OpenDocument with its document area, which creates the
// plug-in's frame and watch view.
#pragma once

#include <cstdint>

constexpr uint32_t kWmCommand = 273;
constexpr uint32_t kWmClose = 16;
constexpr intptr_t kOpenDocumentParam = 12;

// Implemented by the plug-in.
class IVornDocTemplate {
 public:
  virtual ~IVornDocTemplate() = default;
  virtual int ResourceId() const = 0;
  // Creates the frame inside `documentArea` (a QWidget* owned by the host) and returns the
  // frame's window (a QWidget*), or null.
  virtual void* OpenDocument(void* documentArea) = 0;
};

// Implemented by the host.
class IVornMainWindow {
 public:
  virtual bool IsWindow() const = 0;
  // Window messages the plug-in sends to the host's main window.
  virtual intptr_t SendMessage(uint32_t message, uintptr_t wparam, intptr_t lparam) = 0;

 protected:
  ~IVornMainWindow() = default;
};

class IVornHostApp {
 public:
  virtual IVornMainWindow* GetMainWnd() = 0;
  virtual void AddDocTemplate(IVornDocTemplate* docTemplate) = 0;

 protected:
  ~IVornHostApp() = default;
};

// What pu_get_exe_app returns.
struct VornExeApp {
  const char* versionText;
};
