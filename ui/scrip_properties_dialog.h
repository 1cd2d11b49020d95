// The Scrip Properties window: every property of the selected issue.
#pragma once

#include <QDialog>

#include "issues/scrip_properties.h"

class QTableWidget;

class ScripPropertiesDialog : public QDialog {
  Q_OBJECT

 public:
  explicit ScripPropertiesDialog(QWidget* parent = nullptr);
  void showIssue(const sOFSCol& issue);

 private:
  CScripProp properties_;
  QTableWidget* table_;
};
