// The demand picture: cumulative bid quantity (up) against price (across), highest bids on the
// right, with the floor and the indicative price marked. It draws what its curve says and
// nothing of its own; labels thin out as the widget shrinks so that what is shown stays legible.
#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

#include "issues/demand_curve.h"

class DemandChart : public QWidget {
  Q_OBJECT

 public:
  explicit DemandChart(QWidget* parent = nullptr);

  void setCurve(DemandCurve curve);
  const DemandCurve& curve() const { return curve_; }
  // What stands in place of the curve while it has no points.
  void setEmptyText(const QString& text);

  static constexpr QRgb kCurveColor = 0xff1f5fa8;
  static constexpr QRgb kFloorColor = 0xffc0392b;
  static constexpr QRgb kIndicativeColor = 0xff1e8449;

  QSize sizeHint() const override { return {360, 200}; }
  QSize minimumSizeHint() const override { return {120, 80}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  DemandCurve curve_;
  QString emptyText_;
};
