#pragma once

#include <QString>
#include <QVector>

#include "platform/report/form.h"

namespace bench {

/// A text that one page prints, and its item on the form.
struct PageText {
  const report::Item* item;
  QString text;
};
using Page = QVector<PageText>;

/// Draws the pages with the toolkit's PDF writer alone: each text in its rectangle and each frame line of
/// the form, without template, mapping or fonts kept between pages. Returns milliseconds.
double drawFloor(const report::Form& form, const QVector<Page>& pages, const QString& path);

}  // namespace bench
