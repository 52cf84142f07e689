#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "claims/core/amounts.h"
#include "claims/core/area_boxes.h"

namespace claims {

/// The column of the record: h1 (acupuncture) or m1 (massage).
store::Column recordColumn(Kind kind);

/// The comma-joined record of a claim from 2024/10: field 0 is the mark of the version that rules the claim's
/// month, the others are whole numbers, each at the field of its item (docs/amount-record.md). Null for
/// claims of other months.
QString amountRecord(const ClaimAmounts& amounts, const AreaBoxes& boxes);

/// A stored record and what its fields are.
struct AmountRecord {
  const KindRules* rules;
  const RecordVersion* version;
  QStringList fields;  ///< field 0 is the mark

  /// A field as a number; 0 for a field that the record has not.
  qint64 number(int field) const;
  /// Whether the line of an item has a count.
  bool counted(const AmountItem& item) const { return number(item.field.first + 1) != 0; }
};

/// Reads a record of a kind by the version that its mark names; nothing for any other text.
std::optional<AmountRecord> readAmountRecord(const QString& record, Kind kind, EraTable table = eras());

/// The fields of a stored record of either kind by their number; empty where the text is no such record.
QStringList amountRecordFields(const QString& record, EraTable table = eras());

}  // namespace claims
