// How the plug-in's lists read at a glance: numbers right-aligned so their digits line up,
// order-book lines tinted by status, and columns sized to what they show until the user's own
// widths are remembered.
#pragma once

#include <QColor>
#include <QString>
#include <QVariant>
#include <string>

class QTableView;

// Right for quantities, prices, sizes and order numbers; left for names, codes and dates.
QVariant columnAlignment(const QString& title);

// A calm background for an order's status; an invalid colour for a status without one.
QColor statusTint(const std::string& status);
// Text colour of an order the dealer can no longer modify or cancel.
QColor blockedText();

// Restores the list's remembered columns; when nothing is remembered yet, sizes every column to
// its header and the widest of the lines in view, now and as lines arrive, until the user
// resizes a column. Fitting only ever widens a column, so a date is never cut.
void restoreOrFitColumns(QTableView* list, const QString& listName);
