#pragma once

#include <QStringList>

#include "platform/text/result.h"

namespace frame {

/// Lays out a program folder: makes what is missing, never over data.
///
/// Made where missing: every file of the catalogue with its tables, the dictionaries filled, the picture and
/// the backup folder, `qv.dat`, the installation record with the neutral prefecture "01" (changed on the main
/// menu or in the record itself). Added: the fee rows of newer editions, behind the rows that stand. Brought
/// up to date, because only the program's maker writes them: the forms (`*.PRP`), the disease tables, the
/// help and the other shipped files. Pictures of the charts are copied where missing.
///
/// `dataFolder` holds `fees/editions.csv`, the dictionaries and the shipped files; `templatesFolder` the
/// forms. Gives the names of what was made or brought up to date, nothing where all stood.
text::Result<QStringList> layOut(const QString& programFolder, const QString& dataFolder,
                                 const QString& templatesFolder);

/// Copies the shipped file where the one at the place is missing or differs. True: it was copied.
text::Result<bool> bringUpToDate(const QString& shipped, const QString& place);

}  // namespace frame
