#pragma once

#include <QDate>
#include <QString>

#include "frame/core/era_date.h"
#include "frame/core/prefecture.h"
#include "frame/core/submission.h"
#include "printing/core/print_screens.h"
#include "printing/core/print_ticks.h"

namespace printing {

/// What picks the printing screen of a claim.
struct ScreenQuery {
  QDate month;  ///< first day of the claim month
  frame::Prefecture prefecture;
  frame::AichiSubmission aichi;
  bool publicAid = false;  ///< 公費の印刷
};

/// The printing screen of a claim.
PrintScreen choosePrintScreen(const ScreenQuery& query);

/// The edition that a printing screen presets for a claim: its newest one, on レセプト印刷2018 by the era
/// words of 申請年月, by whether the month lies before 2020/12, and by the summary kind (column c12). None
/// for a screen without a preset.
Edition presetEdition(PrintScreen screen, const frame::EraDates& dates, const QString& claimMonth,
                      const QString& summaryKind);

/// Ticks that a printing screen presets when it loads.
PrintTicks presetTicks(frame::Prefecture prefecture);

}  // namespace printing
