#include "ui/dialog_keys.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QSplitter>
#include <QVariant>
#include <algorithm>
#include <vector>

namespace {

void collectWidget(QWidget* widget, QList<QWidget*>& out);

void collectLayout(QLayout* layout, QList<QWidget*>& out) {
  if (!layout) return;
  auto collectItem = [&out](QLayoutItem* item) {
    if (!item) return;
    if (item->widget()) collectWidget(item->widget(), out);
    if (item->layout()) collectLayout(item->layout(), out);
  };
  if (auto* form = qobject_cast<QFormLayout*>(layout)) {
    for (int row = 0; row < form->rowCount(); ++row)
      for (auto role : {QFormLayout::LabelRole, QFormLayout::FieldRole, QFormLayout::SpanningRole})
        collectItem(form->itemAt(row, role));
    return;
  }
  std::vector<std::pair<std::pair<int, int>, QLayoutItem*>> cells;
  auto* grid = qobject_cast<QGridLayout*>(layout);
  for (int i = 0; i < layout->count(); ++i) {
    int row = 0;
    int column = i;
    int rowSpan = 0;
    int columnSpan = 0;
    if (grid) grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
    cells.push_back({{row, column}, layout->itemAt(i)});
  }
  std::stable_sort(cells.begin(), cells.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  for (const auto& cell : cells) collectItem(cell.second);
}

void collectWidget(QWidget* widget, QList<QWidget*>& out) {
  if (widget->isWindow()) return;
  if (auto* splitter = qobject_cast<QSplitter*>(widget)) {
    for (int i = 0; i < splitter->count(); ++i) collectWidget(splitter->widget(i), out);
    return;
  }
  if (widget->layout() && !qobject_cast<QAbstractItemView*>(widget)) {
    collectLayout(widget->layout(), out);
    return;
  }
  if (widget->focusPolicy() & Qt::TabFocus) out << widget;
}

QString plain(QString text) {
  return text.remove('&');
}

// The window's focusable controls in reading order: its layouts walked row by row, left to
// right, whether or not a control is shown at the moment (hidden ones keep their place).
QList<QWidget*> readingOrder(QWidget* window) {
  QList<QWidget*> order;
  collectLayout(window->layout(), order);
  return order;
}

}  // namespace

void setUpKeyboard(QWidget* window) {
  // Read-only fields are there to be read: a click reaches them for copying, Tab passes them.
  for (QLineEdit* edit : window->findChildren<QLineEdit*>())
    if (edit->isReadOnly()) edit->setFocusPolicy(Qt::ClickFocus);
  const QList<QWidget*> order = readingOrder(window);
  for (qsizetype i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
  for (QLabel* label : window->findChildren<QLabel*>())
    if (QWidget* field = label->buddy(); field && field->accessibleName().isEmpty())
      field->setAccessibleName(plain(label->text()));
  // Buttons and tick boxes are left to be read by their text, which some of them change.
  for (QAbstractItemView* list : window->findChildren<QAbstractItemView*>())
    if (list->accessibleName().isEmpty() && list->window() == window)
      list->setAccessibleName(list->objectName());
}

void applyFontVariation(QWidget* window, int64_t variation, int64_t stamp) {
  auto sized = [variation](QFont font, int basePoints) {
    const int64_t points =
        std::clamp<int64_t>(basePoints + variation, kMinFontPoints, kMaxFontPoints);
    font.setPointSize(static_cast<int>(points));
    return font;
  };
  // Each own font keeps the size it was made with, so a later variation replaces an earlier one
  // rather than adding to it.
  for (QWidget* child : window->findChildren<QWidget*>()) {
    if (!child->testAttribute(Qt::WA_SetFont) || child->isWindow()) continue;
    QVariant base = child->property("basePointSize");
    if (!base.isValid()) {
      base = child->font().pointSize();
      child->setProperty("basePointSize", base);
    }
    child->setFont(sized(child->font(), base.toInt()));
  }
  const QFont terminal = QApplication::font();
  window->setFont(sized(terminal, terminal.pointSize()));
  window->setProperty("fontStamp", QVariant::fromValue<qlonglong>(stamp));
  if (window->layout()) window->layout()->activate();
  window->resize(window->size().expandedTo(window->sizeHint()));
}

void followHostFonts(QWidget* window, const std::array<int64_t, 2>& hostVariation) {
  if (hostVariation != std::array<int64_t, 2>{})
    applyFontVariation(window, hostVariation[0], hostVariation[1]);
}

void reapplyWindowFonts(QObject* root, int64_t variation, int64_t stamp) {
  for (const char* name : kFontFollowingWindows)
    if (auto* window = root->findChild<QDialog*>(name))
      applyFontVariation(window, variation, stamp);
}
