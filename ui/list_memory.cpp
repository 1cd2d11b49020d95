#include "ui/list_memory.h"

#include <QHeaderView>
#include <QSettings>

namespace {

QString userSettingsFile;
QString dialogPositionsFile;

}  // namespace

void setListRecoveryFiles(const QString& userSettings, const QString& dialogPositions) {
  userSettingsFile = userSettings;
  dialogPositionsFile = dialogPositions;
}

bool restoreColumns(QHeaderView* header, const QString& listName) {
  if (userSettingsFile.isEmpty()) return false;
  QSettings settings(userSettingsFile, QSettings::IniFormat);
  const QByteArray state = settings.value(listName + "/ColumnState").toByteArray();
  return !state.isEmpty() && header->restoreState(state);
}

void saveColumns(const QHeaderView* header, const QString& listName) {
  if (userSettingsFile.isEmpty()) return;
  QSettings settings(userSettingsFile, QSettings::IniFormat);
  settings.setValue(listName + "/ColumnState", header->saveState());
}

bool rememberedFlag(const QString& listName, const QString& key, bool otherwise) {
  if (userSettingsFile.isEmpty()) return otherwise;
  QSettings settings(userSettingsFile, QSettings::IniFormat);
  return settings.value(listName + "/" + key, otherwise).toBool();
}

void rememberFlag(const QString& listName, const QString& key, bool value) {
  if (userSettingsFile.isEmpty()) return;
  QSettings settings(userSettingsFile, QSettings::IniFormat);
  settings.setValue(listName + "/" + key, value);
}

QList<int> rememberedSizes(const QString& name) {
  if (userSettingsFile.isEmpty()) return {};
  QSettings settings(userSettingsFile, QSettings::IniFormat);
  QList<int> sizes;
  for (const QVariant& size : settings.value(name + "/PaneSizes").toList()) sizes << size.toInt();
  return sizes;
}

void rememberSizes(const QString& name, const QList<int>& sizes) {
  if (userSettingsFile.isEmpty()) return;
  QSettings settings(userSettingsFile, QSettings::IniFormat);
  QVariantList values;
  for (int size : sizes) values << size;
  settings.setValue(name + "/PaneSizes", values);
}
