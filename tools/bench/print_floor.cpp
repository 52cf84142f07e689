#include "tools/bench/print_floor.h"

#include <QElapsedTimer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace bench {

namespace {

constexpr int kDotsPerInch = 600;
constexpr double kDotsPerMm = kDotsPerInch / 25.4;

QRectF place(const report::Rect& rect) {
  return {rect.x * kDotsPerMm, rect.y * kDotsPerMm, rect.w * kDotsPerMm, rect.h * kDotsPerMm};
}

void drawText(QPainter& painter, const report::Item& item, const QString& text) {
  QFont font(QStringLiteral("IPAexMincho"));
  font.setPointSizeF(item.pt);
  painter.setFont(font);
  const int across = item.align == report::Align::Right    ? Qt::AlignRight
                     : item.align == report::Align::Centre ? Qt::AlignHCenter
                                                           : Qt::AlignLeft;
  painter.drawText(place(item.rect), across | Qt::AlignVCenter, text);
}

void drawFrame(QPainter& painter, const report::Form& form) {
  for (const report::Item& item : form.items) {
    if (item.hidden) continue;
    if (item.kind == report::Kind::Box)
      painter.drawRect(place(item.rect));
    else if (item.kind == report::Kind::Line)
      painter.drawLine(place(item.rect).topLeft(), place(item.rect).bottomRight());
    else
      drawText(painter, item, item.text);
  }
}

}  // namespace

double drawFloor(const report::Form& form, const QVector<Page>& pages, const QString& path) {
  QElapsedTimer timer;
  timer.start();
  {
    QPdfWriter writer(path);
    writer.setResolution(kDotsPerInch);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    for (int i = 0; i < pages.size(); ++i) {
      if (i > 0) writer.newPage();
      drawFrame(painter, form);
      for (const PageText& text : pages[i]) drawText(painter, *text.item, text.text);
    }
  }
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

}  // namespace bench
