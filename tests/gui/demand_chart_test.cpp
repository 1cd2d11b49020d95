#include <gtest/gtest.h>

#include <QImage>

#include "ui/demand_chart.h"

namespace {

struct Columns {
  int pixels = 0;
  double meanX = 0;
};

Columns pixelsOf(const QImage& image, QRgb colour) {
  Columns found;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) == colour) {
        ++found.pixels;
        found.meanX += x;
      }
  if (found.pixels) found.meanX /= found.pixels;
  return found;
}

QImage rendered(DemandChart& chart, QSize size) {
  chart.resize(size);
  QImage image(size, QImage::Format_RGB32);
  chart.render(&image);
  return image;
}

TEST(DemandChart, DrawsTheCurveWithFloorLeftOfIndicativeAtAnySize) {
  DemandChart chart;
  // The floor below every bid, the indicative price between the levels.
  const MarketDepthLevel levels[] = {{10500, 300, 2}, {10000, 200, 1}, {10800, 100, 1}};
  chart.setCurve(demandCurve(levels, "95.00", "106"));
  for (const QSize size : {QSize(480, 260), QSize(120, 80)}) {
    const QImage image = rendered(chart, size);
    const Columns floor = pixelsOf(image, DemandChart::kFloorColor);
    const Columns indicative = pixelsOf(image, DemandChart::kIndicativeColor);
    EXPECT_GT(pixelsOf(image, DemandChart::kCurveColor).pixels, size.width() / 4) << size.width();
    EXPECT_GT(floor.pixels, size.height() / 4) << size.width();
    EXPECT_GT(indicative.pixels, size.height() / 4) << size.width();
    EXPECT_LT(floor.meanX, indicative.meanX) << size.width();
  }
}

TEST(DemandChart, AnEmptyBookShowsItsTextAndNoCurve) {
  DemandChart chart;
  chart.setCurve(demandCurve({}, "95.00", "106"));
  const QImage image = rendered(chart, QSize(300, 160));
  EXPECT_EQ(pixelsOf(image, DemandChart::kCurveColor).pixels, 0);
  EXPECT_EQ(pixelsOf(image, DemandChart::kFloorColor).pixels, 0);
  EXPECT_LT(pixelsOf(image, image.pixel(0, 0)).pixels, 300 * 160) << "the text is drawn";
}

}  // namespace
