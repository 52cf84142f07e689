#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include "frame/core/era_date.h"

namespace printing {

/// What picks the printing screen of a claim.
struct ScreenQuery {
  QDate month;  ///< first day of the claim month
  QString prefecture;
  QString aichi;           ///< AichiSubmission
  bool publicAid = false;  ///< 公費の印刷 (Check7)
};

/// Name of the printing screen.
QString printScreen(const ScreenQuery& query);

/// IsMonth2024 and IsMonth2020Dec: whether an era month lies on or after the first month of an edition.
bool isMonth2024(const frame::EraDates& dates, const QString& claimMonth);
bool isMonth2020Dec(const frame::EraDates& dates, const QString& claimMonth);

/// The option that a printing screen presets for a claim: its newest edition, on レセプト印刷2018 by the era
/// words of 申請年月 and the summary kind (column c12). Blank for a screen without a preset.
QString presetOption(const QString& screen, const frame::EraDates& dates, const QString& claimMonth,
                     const QString& summaryKind);

/// Ticks that a printing screen presets when it loads.
QStringList presetChecks(const QString& prefecture);

}  // namespace printing
