#include "ui/list_look.h"

#include <QEvent>
#include <QHeaderView>
#include <QPointer>
#include <QSet>
#include <QTableView>
#include <QTimer>
#include <algorithm>

#include "ui/list_memory.h"

QVariant columnAlignment(const QString& title) {
  static const QSet<QString> numeric{"Quantity",          "Price",
                                     "Total Qty",         "Price to Fill",
                                     "Issue Size",        "Tick Size",
                                     "Floor Price",       "RMS Price",
                                     "Minimun Quantity",  "Lot Size",
                                     "Ceiling Price",     "Indicative Price",
                                     "Underlying LTP",    "Allotted Quantity",
                                     "Allotted Price",    "OFS Order Number",
                                     "Exch Order Number", "GUI Order Number",
                                     "NOW Order Number"};
  const Qt::Alignment side = numeric.contains(title) ? Qt::AlignRight : Qt::AlignLeft;
  return QVariant::fromValue(Qt::AlignVCenter | side);
}

QColor statusTint(const std::string& status) {
  // Pale enough that black text and the selection colour stay readable on every one.
  if (status == "open") return QColor(0xe8, 0xf3, 0xff);          // pale blue: working
  if (status == "open pending") return QColor(0xff, 0xf6, 0xd6);  // pale amber: not yet accepted
  if (status == "rejected") return QColor(0xfd, 0xe4, 0xe4);      // pale red
  if (status == "cancelled") return QColor(0xee, 0xee, 0xee);     // grey: gone
  if (status == "complete") return QColor(0xe6, 0xf5, 0xe6);      // pale green: done
  return {};
}

QColor blockedText() {
  return QColor(0x8a, 0x5a, 0x00);
}

namespace {

constexpr int kAir = 10;

// Watches one list that has no remembered widths yet.
class ColumnFitter : public QObject {
 public:
  explicit ColumnFitter(QTableView* list) : QObject(list), list_(list) {
    QHeaderView* header = list->horizontalHeader();
    connect(header, &QHeaderView::sectionResized, this, [this] {
      if (!fitting_) userResized_ = true;
    });
    QAbstractItemModel* model = list->model();
    connect(model, &QAbstractItemModel::rowsInserted, this, &ColumnFitter::schedule);
    connect(model, &QAbstractItemModel::modelReset, this, &ColumnFitter::schedule);
    list->installEventFilter(this);
    fit();
  }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show) schedule();
    return QObject::eventFilter(watched, event);
  }

  void schedule() {
    if (userResized_ || pending_) return;
    pending_ = true;
    QTimer::singleShot(0, this, [this] {
      pending_ = false;
      fit();
    });
  }

  void fit() {
    if (userResized_) return;
    QHeaderView* header = list_->horizontalHeader();
    fitting_ = true;
    for (int column = 0; column < header->count(); ++column) {
      if (header->isSectionHidden(column)) continue;
      const int before = header->sectionSize(column);
      list_->resizeColumnToContents(column);
      // A little air between neighbours; the first fit sets the width, later ones only widen,
      // so columns do not jump about.
      const int wanted = header->sectionSize(column) + kAir;
      header->resizeSection(column, fitted_ ? std::max(before, wanted) : wanted);
    }
    fitting_ = false;
    fitted_ = true;
  }

  QTableView* list_;
  bool fitting_ = false;
  bool fitted_ = false;
  bool pending_ = false;
  bool userResized_ = false;
};

}  // namespace

void restoreOrFitColumns(QTableView* list, const QString& listName) {
  if (restoreColumns(list->horizontalHeader(), listName)) return;
  new ColumnFitter(list);
}
