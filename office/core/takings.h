#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include "frame/core/era_date.h"

namespace office {

/// The years that takings can be asked for: from 2000 to the last year of the era tables, 2038, and on to the
/// present year after that.
QStringList takingsYears(QDate today);

/// A day as visits are dated, "ggge年m月d日", by the program's own conversion if the platform lacks 令和.
QString takingsDay(const frame::EraDates& dates, QDate day);

}  // namespace office
