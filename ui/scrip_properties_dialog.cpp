#include "ui/scrip_properties_dialog.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ui/dialog_keys.h"

ScripPropertiesDialog::ScripPropertiesDialog(QWidget* parent) : QDialog(parent) {
  setObjectName("ScripProperties");
  table_ = new QTableWidget(0, 2, this);
  table_->setObjectName("properties");
  table_->setAccessibleName("Scrip Properties");
  table_->setHorizontalHeaderLabels({"Property", "Value"});
  table_->verticalHeader()->hide();
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  // Property names are never cut, whatever the font; the value takes the rest.
  table_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  table_->horizontalHeader()->setStretchLastSection(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(table_);
  setUpKeyboard(this);
  resize(420, 560);
}

void ScripPropertiesDialog::showIssue(const sOFSCol& issue) {
  properties_.show(issue);
  setWindowTitle(QString::fromStdString(properties_.title()));
  setProperty("heading", windowTitle());
  const auto& rows = properties_.rows();
  table_->setRowCount(static_cast<int>(rows.size()));
  for (int r = 0; r < static_cast<int>(rows.size()); ++r) {
    const auto& [label, value] = rows[static_cast<size_t>(r)];
    table_->setItem(r, 0, new QTableWidgetItem(QString::fromStdString(label)));
    table_->setItem(r, 1, new QTableWidgetItem(QString::fromStdString(value)));
  }
  show();
  raise();
  activateWindow();
}
