#pragma once

#include <QStringList>

#include "platform/text/result.h"

namespace frame {

/// Lays out a program folder: makes what is missing, never over data.
///
/// Made if missing: the dictionaries and the fee files, filled, the picture and the backup folder,
/// `qv.dat`, the installation record with the neutral prefecture "01" (changed on the main menu or in the
/// record itself). The registers that the user fills are made in a fresh folder only, one without `qv.dat`:
/// later a missing one is a loss that the program reports. Added: the fee rows of newer editions, after the
/// rows that exist. Brought up to date, because only the program's maker writes them: the forms (`*.PRP`),
/// the disease tables, the help and the other shipped files. Pictures of the charts are copied if missing.
///
/// `dataFolder` contains `fees/editions.csv`, the dictionaries and the shipped files; `templatesFolder` the
/// forms. Gives the names of what was made or brought up to date, nothing if all was there.
text::Result<QStringList> layOut(const QString& programFolder, const QString& dataFolder,
                                 const QString& templatesFolder);

/// Copies the shipped file where the one at the place is missing or differs. True: it was copied.
text::Result<bool> bringUpToDate(const QString& shipped, const QString& place);

}  // namespace frame
