#include "claims/tests/core/claim_builder.h"

#include <QFile>
#include <QFileInfo>

namespace claims::testing {
namespace {

QList<QStringList> readTable() {
  QFile file(QStringLiteral(SOURCE_FOLDER "/data/fees/editions.csv"));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QList<QStringList> rows;
  for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts))
    rows.append(line.trimmed().split(u','));
  return rows;
}

FeeEdition editionOf(const QStringList& header, const QStringList& row) {
  FeeEdition edition;
  edition.id = row[1].toLongLong();
  for (const FeeRow& fee : kFees) {
    const qsizetype at = header.indexOf(feeColumn(fee.fee));
    if (at >= 0 && !row[at].isEmpty()) edition.set(fee.fee, row[at].toInt());
  }
  return edition;
}

}  // namespace

void setGrid(ClaimRecord& claim, const char16_t* grid) {
  for (const QString& part : QString::fromUtf16(grid).split(u' ', Qt::SkipEmptyParts)) {
    const QStringList sides = part.split(u'=');
    const QStringList days = sides[0].split(u'-'), entry = sides[1].split(u'/');
    for (int day = days.first().toInt(); day <= days.last().toInt(); ++day) {
      claim.set(claim::dayCode[day], entry[0]);
      if (entry.size() > 1) claim.set(claim::dayVisit[day], entry[1]);
    }
  }
}

ClaimRecord makeClaim(const char16_t* month, const char16_t* kind, const char16_t* share,
                      const char16_t* grid, std::initializer_list<Set> columns) {
  ClaimRecord claim;
  claim.set(claim::month, QString::fromUtf16(month));
  claim.set(claim::treatmentKind, QString::fromUtf16(kind));
  claim.set(claim::shareRate, QString::fromUtf16(share));
  setGrid(claim, grid);
  for (const Set& set : columns)
    claim.setNamed(QString::fromUtf16(set.column), QString::fromUtf16(set.value));
  return claim;
}

const frame::EraDates& era() {
  static const text::FixedClock clock(QDate(2025, 1, 15));
  static const frame::EraDates dates(frame::EraCapability::Supported, clock);
  return dates;
}

text::Result<FeeEdition> CsvFees::load(const QString& path) {
  static const QList<QStringList> rows = readTable();
  const QString file = QFileInfo(path).completeBaseName();
  std::optional<FeeEdition> ruling;
  for (const QStringList& row : rows.mid(1)) {
    if (row[0] != file) continue;
    const FeeEdition edition = editionOf(rows[0], row);
    if (!ruling || edition.id > ruling->id) ruling = edition;
  }
  if (!ruling) return text::Fault{path};
  return *ruling;
}

}  // namespace claims::testing
