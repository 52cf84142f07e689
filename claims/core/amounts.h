#pragma once

#include <QString>
#include <QVector>

#include "claims/core/claim_record.h"
#include "claims/core/era.h"
#include "claims/core/fee_files.h"
#include "claims/core/fee_source.h"

namespace claims {

/// One line of the money: label, fee in yen, times, amount.
struct AmountRow {
  QString label;
  int unit = 0;
  int count = 0;
  qint64 amount = 0;
};

/// What an item comes to: fee of one unit in yen, units, amount. A line whose count is 0 is 0 throughout.
struct AmountLine {
  int unit = 0;
  int count = 0;
  qint64 amount = 0;
};

/// ClaimAmounts: the money of a claim. It refers to the table of eras that it was computed with.
struct ClaimAmounts {
  Regime regime = Regime::None;
  Kind kind = Kind::None;
  QVector<AmountRow> rows;          ///< lines whose count is not 0, in printed order
  qint64 total = 0;                 ///< 合計
  double rate = 0;                  ///< 0: no share
  qint64 share = 0;                 ///< 一部負担金2
  qint64 claim = 0;                 ///< 請求額
  QString subject;                  ///< 施術科目: 鍼, 灸, 鍼灸, マ術, or null
  Preview preview = Preview::None;  ///< of this month and kind
  int treatmentDays = 0;

  const KindRules* rules = nullptr;        ///< of the month, path and kind; nullptr for Regime::None
  const RecordVersion* version = nullptr;  ///< of the amount record; nullptr: the month has no record
  QVector<AmountLine> lines;               ///< one for each item of the rules

  TwoBandTally twoBand;  ///< of Steps and TwoBand
  StepVisits steps;      ///< of Steps
  VisitsTally visits;    ///< of Visits

  std::span<const AmountItem> items() const {
    return rules == nullptr ? std::span<const AmountItem>() : rules->items;
  }
  /// The tallies as the items' counters take them, with the claim that they were made of.
  ClaimCounts counts(const ClaimRecord& record) const { return {record, twoBand, steps, visits}; }
};

/// The share rule, everywhere the same: rounded up but for a fraction under 0.001, in double precision.
qint64 shareOf(qint64 total, double rate);

/// Computes with a given edition.
ClaimAmounts amounts(const ClaimRecord& claim, const FeeEdition& fees, const MonthFlags& flags, Path path,
                     EraTable table = eras());
/// The same with the edition of the claim's month. A month that cannot be read gives Regime::None; a fee file
/// that cannot be opened is a fault.
text::Result<ClaimAmounts> amounts(const ClaimRecord& claim, const MonthFlags& flags, Path path,
                                   const FeeFiles& files, FeeSource& source, EraTable table = eras());

}  // namespace claims
