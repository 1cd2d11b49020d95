#include "ui/demand_chart.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>

namespace {

QString text(const std::string& s) {
  return QString::fromStdString(s);
}

}  // namespace

DemandChart::DemandChart(QWidget* parent) : QWidget(parent), emptyText_("No bids yet") {
  setObjectName("demandChart");
  setAccessibleName("Demand chart");
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void DemandChart::setCurve(DemandCurve curve) {
  curve_ = std::move(curve);
  update();
}

void DemandChart::setEmptyText(const QString& text) {
  emptyText_ = text;
  update();
}

void DemandChart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().base());
  const QColor ink = palette().color(QPalette::Text);
  if (curve_.empty()) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(rect().adjusted(4, 4, -4, -4), Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
    return;
  }

  const QFontMetrics fm(font());
  const int line = fm.height();
  // Below this size the labels would run into each other: the curve and markers stay alone.
  const bool labelled = width() >= 160 && height() >= 5 * line;
  std::vector<int64_t> quantityTicks;
  int left = 4;
  int top = 4;
  const int right = width() - 8;
  int bottom = height() - 4;
  if (labelled) {
    quantityTicks = axisTicks(curve_.quantity, (height() - 4 * line) / (2 * line));
    int labelWidth = 0;
    for (int64_t tick : quantityTicks)
      labelWidth = std::max(labelWidth, fm.horizontalAdvance(text(quantityLabel(tick))));
    left += labelWidth + 6;
    top += line + 2;
    bottom -= 2 * line + 4;
  }
  const QRectF plot(QPointF(left, top), QPointF(right, bottom));
  const AxisRange& prices = curve_.price;
  const AxisRange& quantities = curve_.quantity;
  auto xOf = [&](int64_t price) {
    return plot.left() +
           plot.width() * double(price - prices.low) / double(prices.high - prices.low);
  };
  auto yOf = [&](int64_t quantity) {
    return plot.bottom() - plot.height() * double(quantity - quantities.low) /
                               double(quantities.high - quantities.low);
  };

  if (labelled) {
    const QColor grid = palette().color(QPalette::Midlight);
    const int priceLabelWidth =
        fm.horizontalAdvance(text(priceLabel(prices.high))) + 3 * fm.averageCharWidth();
    for (int64_t tick : axisTicks(prices, int(plot.width()) / priceLabelWidth)) {
      const double x = xOf(tick);
      painter.setPen(grid);
      painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
      painter.setPen(ink);
      painter.drawText(QRectF(x - priceLabelWidth / 2.0, plot.bottom() + 2, priceLabelWidth, line),
                       Qt::AlignCenter, text(priceLabel(tick)));
    }
    for (int64_t tick : quantityTicks) {
      const double y = yOf(tick);
      painter.setPen(grid);
      painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
      painter.setPen(ink);
      painter.drawText(QRectF(0, y - line / 2.0, left - 6, line), Qt::AlignRight | Qt::AlignVCenter,
                       text(quantityLabel(tick)));
    }
    painter.drawText(QRectF(plot.left(), plot.bottom() + line + 2, plot.width(), line),
                     Qt::AlignCenter, "Price");
    painter.drawText(QRectF(4, 2, width() - 8, line), Qt::AlignLeft | Qt::AlignVCenter,
                     "Cumulative bid quantity");
  }
  painter.setPen(ink);
  painter.drawLine(plot.bottomLeft(), plot.bottomRight());
  painter.drawLine(plot.bottomLeft(), plot.topLeft());

  QPolygonF steps;
  for (const DemandPoint& point : curve_.steps())
    steps << QPointF(xOf(point.pricePaise), yOf(point.quantity));
  painter.setRenderHint(QPainter::Antialiasing, true);
  QPolygonF area = steps;
  area << QPointF(plot.left(), plot.bottom());
  QColor fill = QColor::fromRgba(kCurveColor);
  fill.setAlpha(40);
  painter.setPen(Qt::NoPen);
  painter.setBrush(fill);
  painter.drawPolygon(area);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor::fromRgba(kCurveColor), 2));
  painter.drawPolyline(steps);
  painter.setRenderHint(QPainter::Antialiasing, false);

  // Markers are crisp one-pixel lines; their labels stack when the two prices stand close.
  QRectF lastLabel;
  auto mark = [&](const std::optional<int64_t>& price, QRgb colour, const QString& name) {
    if (!price) return;
    const double x = xOf(*price);
    painter.setPen(QPen(QColor::fromRgba(colour), 1, Qt::DashLine));
    painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
    if (!labelled) return;
    const QString label = name + " " + text(priceLabel(*price));
    const int width = fm.horizontalAdvance(label) + 4;
    QRectF box(x + 3, plot.top() + 2, width, line);
    if (box.right() > plot.right()) box.moveRight(x - 3);
    if (box.intersects(lastLabel)) box.moveTop(lastLabel.bottom() + 1);
    painter.fillRect(box, palette().base());
    painter.drawText(box, Qt::AlignCenter, label);
    lastLabel = box;
  };
  mark(curve_.floorPaise, kFloorColor, "Floor");
  mark(curve_.indicativePaise, kIndicativeColor, "Indicative");
}
