#include "ui/splitter_frame.h"

#include "ui/list_memory.h"

SplitterFrame::SplitterFrame(const QString& name, QWidget* parent)
    : QSplitter(Qt::Vertical, parent), name_(name) {
  setObjectName(name + "Splitter");
  setChildrenCollapsible(false);
  connect(this, &QSplitter::splitterMoved, this, [this] { rememberSizes(name_, sizes()); });
}

void SplitterFrame::restoreSizes() {
  const QList<int> remembered = rememberedSizes(name_);
  if (remembered.size() == count()) setSizes(remembered);
}
