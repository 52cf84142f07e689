#pragma once

#include <QDate>
#include <optional>
#include <span>

#include "claims/core/amount_item.h"
#include "claims/core/kinds.h"
#include "claims/core/preview.h"

namespace claims {

struct ClaimAmounts;

/// Which rules a claim is computed by.
enum class Regime {
  None,     ///< no readable claim month, or no kind of treatment: nothing is computed
  Steps,    ///< preview before 2018/06: visits in 2 km steps
  TwoBand,  ///< store before 2024/10, preview 2018/06 to 2024/09: visits up to and beyond 4 km
  Visits    ///< from 2024/10: 訪問施術
};

/// The two ways of computing: at store, and for the preview screens of 施術料金計算.
enum class Path { Store, Preview };

/// The rules of an era for one kind of treatment.
struct KindRules {
  std::span<const AmountItem> items;        ///< in the order of the preview
  std::span<const RecordVersion> versions;  ///< of the amount record, oldest first; none: columns alone
  Preview preview;
  QString (*subject)(const ClaimAmounts&);  ///< 施術科目

  /// The version that a claim of the month is stored in; nullptr: none.
  const RecordVersion* versionOf(QDate month) const;
};

/// An era of the rules: the claim months from `from` until the next era.
struct Era {
  rule::Date from;
  Regime regime;
  bool previewOnly;  ///< claims of these months are stored by the rules of the next era
  KindRules acupuncture;
  KindRules massage;

  const KindRules& of(Kind kind) const { return kind == Kind::Massage ? massage : acupuncture; }
};

/// Eras, oldest first; the last is no previewOnly.
using EraTable = std::span<const Era>;

/// The eras of the program. Whoever computes, stores, reads or prints amounts takes this table unless
/// another one is given.
EraTable eras();

/// The era of a claim month; nullptr without a month.
const Era* eraOf(std::optional<QDate> month, Path path, EraTable table = eras());

/// The preview of a month and kind.
Preview previewOf(Kind kind, std::optional<QDate> month, EraTable table = eras());

}  // namespace claims
