#include "ui/entry_widgets.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>

void showField(QLineEdit* edit, const EntryText& field) {
  if (edit->text() != q(field.text)) edit->setText(q(field.text));
  edit->setEnabled(field.enabled);
  edit->setVisible(field.visible);
}

void showField(QComboBox* list, const EntryChoice& choice) {
  const QSignalBlocker quiet(list);
  list->clear();
  for (const std::string& item : choice.items) list->addItem(q(item));
  list->setCurrentIndex(list->findText(q(choice.selected)));
  list->setEnabled(choice.enabled);
}
