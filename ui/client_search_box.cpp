#include "ui/client_search_box.h"

#include <QKeyEvent>
#include <QListWidget>
#include <algorithm>

namespace {

// The host gives results as "id - name" (or the id alone); the field takes the id.
QString clientIdOf(const QString& result) {
  const qsizetype dash = result.indexOf(" - ");
  return (dash < 0 ? result : result.left(dash)).trimmed();
}

}  // namespace

ClientSearchBox::ClientSearchBox(const HostServiceTable& services, QWidget* parent)
    : QLineEdit(parent), services_(services), list_(new QListWidget) {
  // The delay is the host's, in milliseconds; an absent service or a nonsense answer falls back
  // to a pause that does not search on every keystroke of a fast typist.
  const int hostDelay = services_.getClientSearchTime ? services_.getClientSearchTime() : -1;
  timer_.setInterval(hostDelay >= 0 && hostDelay <= 10000 ? hostDelay : kDefaultDelayMs);
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &ClientSearchBox::searchNow);
  connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
    list_->hide();
    if (text.isEmpty()) {
      timer_.stop();
    } else {
      timer_.start();
    }
  });

  // A window of its own so that it is not clipped by the dialog, of the kind that is never
  // activated: the field keeps the keyboard and steers the list.
  list_->setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
  list_->setAttribute(Qt::WA_ShowWithoutActivating);
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setAccessibleName("Client Search Results");
  connect(list_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { take(list_->row(item)); });
}

ClientSearchBox::~ClientSearchBox() {
  delete list_;
}

bool ClientSearchBox::resultsShown() const {
  return list_->isVisible();
}

void ClientSearchBox::searchNow() {
  timer_.stop();
  const std::string typed = text().toStdString();
  StringList found;
  if (services_.getEnteredTextResults && !services_.getEnteredTextResults(typed, found))
    found.clear();
  if (found.empty() && services_.getEnteredTextResultsFromClientsDb &&
      !services_.getEnteredTextResultsFromClientsDb(typed, found))
    found.clear();
  showResults(found);
}

void ClientSearchBox::showResults(const StringList& found) {
  list_->clear();
  if (found.empty() || !isVisible()) {
    list_->hide();
    return;
  }
  for (const std::string& result : found) list_->addItem(QString::fromStdString(result));
  list_->setCurrentRow(0);
  const int rows = std::min(list_->count(), 8);
  list_->setFixedWidth(std::max(width(), list_->sizeHintForColumn(0) + 24));
  list_->setFixedHeight(rows * list_->sizeHintForRow(0) + 2 * list_->frameWidth());
  list_->move(mapToGlobal(QPoint(0, height())));
  list_->show();
}

void ClientSearchBox::take(int row) {
  if (row < 0 || row >= list_->count()) return;
  const QString id = clientIdOf(list_->item(row)->text());
  list_->hide();
  setText(id);
  emit clientChosen(id);
}

void ClientSearchBox::keyPressEvent(QKeyEvent* event) {
  if (!list_->isVisible()) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  const int row = list_->currentRow();
  switch (event->key()) {
    case Qt::Key_Down:
      list_->setCurrentRow(std::min(row + 1, list_->count() - 1));
      break;
    case Qt::Key_Up:
      list_->setCurrentRow(std::max(row - 1, 0));
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      take(row);
      break;
    case Qt::Key_Escape:
      list_->hide();
      break;
    default:
      QLineEdit::keyPressEvent(event);
      return;
  }
  event->accept();
}

void ClientSearchBox::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  // The host keeps its registered client search field in step with its fonts.
  if (event->type() == QEvent::FontChange && services_.resizeEditForFontChange)
    services_.resizeEditForFontChange(this);
}

void ClientSearchBox::hideEvent(QHideEvent* event) {
  // The list is a window of its own: it does not close with the dialog by itself.
  timer_.stop();
  list_->hide();
  QLineEdit::hideEvent(event);
}

void ClientSearchBox::focusOutEvent(QFocusEvent* event) {
  // A click into the results moves the window activation, not the focus: the list stays.
  if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) {
    timer_.stop();
    list_->hide();
  }
  QLineEdit::focusOutEvent(event);
}
