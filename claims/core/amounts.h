#pragma once

#include <QString>
#include <QVector>

#include "claims/core/area_boxes.h"
#include "claims/core/claim_record.h"
#include "claims/core/fee_files.h"
#include "claims/core/fee_source.h"
#include "claims/core/rule_dates.h"
#include "claims/core/tally_steps.h"
#include "claims/core/tally_two_band.h"
#include "claims/core/tally_visits.h"

namespace claims {

/// One line of the money: label, fee in yen, times, amount.
struct AmountRow {
  QString label;
  int unit = 0;
  int count = 0;
  qint64 amount = 0;
};

/// Which rules a claim is computed by.
enum class Regime {
  None,     ///< no readable claim month, or no kind of treatment: nothing is computed
  Steps,    ///< preview before 2018/06: visits in 2 km steps
  TwoBand,  ///< store before 2024/10, preview 2018/06 to 2024/09: visits up to and beyond 4 km
  Visits    ///< from 2024/10: 訪問施術
};

/// The two ways of computing: at store, and for the preview screens of 施術料金計算.
enum class Path { Store, Preview };

/// A line of the record that a claim from 2024/10 hands to printing; a line whose count is 0 is 0 throughout.
struct AmountLine {
  int unit = 0;
  int count = 0;
  qint64 amount = 0;
};

/// Lines of an acupuncture claim from 2024/10.
struct AcupunctureLines {
  AmountLine first;
  AmountLine art[2];  ///< one art, two arts
  AmountLine electric;
  AmountLine visit[4][2];  ///< by form, by arts
  AmountLine sudden, special, report;
  int artDays[2] = {};  ///< days of the month by one art and by two arts, visits among them
};

/// Lines of a massage claim from 2024/10. Only the two lowest numbers of areas are shown and summed, of
/// the plain days and of each visit form: the forms have two lines each.
struct MassageLines {
  int areasOf[5][2] = {};  ///< number of areas of a line: row 0 plain days, 1 to 4 the visit forms
  AmountLine area[5][2];
  AmountLine limb[4];    ///< 1 to 4 limbs
  AmountLine limbTotal;  ///< one limb's fee, limbs treated in the month, amount
  AmountLine warm, warmLight, sudden, special, report;
};

/// ClaimAmounts: the money of a claim.
struct ClaimAmounts {
  Regime regime = Regime::None;
  Kind kind = Kind::None;
  QVector<AmountRow> rows;  ///< lines whose count is not 0, in printed order
  qint64 total = 0;         ///< 合計
  double rate = 0;          ///< 0: no share
  qint64 share = 0;         ///< 一部負担金2
  qint64 claim = 0;         ///< 請求額
  QString subject;          ///< 施術科目: 鍼, 灸, 鍼灸, マ術, or null
  QString previewScreen;    ///< the preview of this month and kind; null where none opens
  int treatmentDays = 0;
  FeeEdition fees;

  TwoBandTally twoBand;  ///< of Steps and TwoBand
  StepVisits steps;      ///< of Steps
  VisitsTally visits;    ///< of Visits
  AcupunctureLines acupuncture;
  MassageLines massage;

  // Before 2024/10, by kind.
  qint64 hari = 0, kyu = 0, hariKyu = 0, electric = 0, area = 0, limb = 0, warm = 0, warmLight = 0;
  qint64 first = 0;  ///< 初回費用
  qint64 report = 0;
  qint64 visit1 = 0, visit2 = 0;  ///< 往療金額1, 往療金額2 (Steps: base fees, add-ons)
};

/// The share rule, everywhere the same: rounded up but for a fraction under 0.001, in double precision.
qint64 shareOf(qint64 total, double rate);

/// Preview screen of a claim: 施術料金1, 施術料金2, 施術料金2018H, 施術料金2108A, 施術料金2024H,
/// 施術料金2024A (2108 is the screen's own name); null where the month or the kind is none.
QString previewScreen(Kind kind, const MonthFlags& flags);

/// Number of report fees by the ticks 施術報告書交付, ２通, ３通.
int reportCount(const ClaimRecord& claim);

/// Computes with a given edition.
ClaimAmounts amounts(const ClaimRecord& claim, const FeeEdition& fees, const MonthFlags& flags, Path path);
/// The same with the edition of the claim's month. A month that cannot be read gives Regime::None; a fee file
/// that cannot be opened is a fault.
text::Result<ClaimAmounts> amounts(const ClaimRecord& claim, const MonthFlags& flags, Path path,
                                   const FeeFiles& files, FeeSource& source);

}  // namespace claims
