// Column order and widths of the plug-in's lists, remembered per list name in the user-settings
// recovery file handed over at start-up.
#pragma once

#include <QList>
#include <QString>

class QHeaderView;

void setListRecoveryFiles(const QString& userSettings, const QString& dialogPositions);
// Restores the header's remembered column order and widths; false when none were remembered.
bool restoreColumns(QHeaderView* header, const QString& listName);
// Remembers them; the list's owner calls it when the list closes.
void saveColumns(const QHeaderView* header, const QString& listName);

// A yes/no choice of a list (its grid lines, ...), remembered beside its columns.
bool rememberedFlag(const QString& listName, const QString& key, bool otherwise);
void rememberFlag(const QString& listName, const QString& key, bool value);

// The sizes of a window's panes (its splitter), remembered beside the lists.
QList<int> rememberedSizes(const QString& name);
void rememberSizes(const QString& name, const QList<int>& sizes);
