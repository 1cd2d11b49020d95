// A window's entry area above its lists, the border between them movable; where the dealer
// leaves it is remembered under the window's name in the plug-in's settings.
#pragma once

#include <QSplitter>

class SplitterFrame : public QSplitter {
 public:
  SplitterFrame(const QString& name, QWidget* parent = nullptr);

  // After the panes are added: the remembered sizes, when there are as many as panes.
  void restoreSizes();

 private:
  QString name_;
};
