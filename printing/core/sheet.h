#pragma once

#include <QString>

#include "claims/core/era.h"
#include "frame/core/era_date.h"
#include "printing/contract/report_fields.h"
#include "printing/core/print_settings.h"
#include "printing/core/print_source.h"

namespace printing {

/// One page of a claim form while it is being filled.
struct Sheet {
  Sheet(ReportFields& reportFields, const PrintSource& printSource, const frame::EraDates& eraDates,
        claims::EraTable eraTable)
      : fields(reportFields),
        source(printSource),
        claim(printSource.claim),
        settings(printSource.claim, printSource.profile),
        dates(eraDates),
        eras(eraTable),
        month(claims::monthFlags(printSource.claim.get(QStringLiteral("申請年月")), eraDates)) {}

  ReportFields& fields;
  const PrintSource& source;
  const claims::ClaimRecord& claim;
  const PrintSettings settings;
  const frame::EraDates& dates;
  const claims::EraTable eras;  ///< of the amounts
  const claims::MonthFlags month;

  QString value(QStringView column) const { return claim.get(column.toString()); }
  /// The item with the column's text.
  void show(QStringView item, QStringView column) { fields.show(item, value(column)); }
  bool ticked(QStringView column) const { return claim.ticked(column.toString()); }
  /// Unbound tick of the claim form, tick of the printing screen.
  bool claimCheck(QStringView name) const { return source.claimChecks.contains(name.toString()); }
  bool screenCheck(QStringView name) const { return source.screenChecks.contains(name.toString()); }
  bool lateElderly() const;
  bool insuranceIs(std::initializer_list<const char16_t*> kinds) const;
};

/// A date cut for the boxes of a form. The day keeps what was typed there (上旬).
struct DateWords {
  QString era, year, month, day;
};

/// Era, year, month and day of a date text, of an era month (令和6年10月), or of an era date whose day is a
/// word. Blank parts where the text cannot be read.
DateWords dateWords(const QString& text, const frame::EraDates& dates);

/// The date in the items `GG<n>`, `YY<n>`, `MM<n>`, `DD<n>`.
void showDate(Sheet& sheet, const QString& number, const QString& text);
void showDate(Sheet& sheet, const QString& number, QDate date);

/// Place of the text's era among 明治, 大正, 昭和, 平成, 令和, from 1; 0: none.
int eraNumber(const QString& era);

}  // namespace printing
