#pragma once

#include <QString>
#include <span>

#include "claims/core/era.h"
#include "frame/core/era_date.h"
#include "platform/store/tables/claims.h"
#include "printing/contract/report_fields.h"
#include "printing/core/form_items.h"
#include "printing/core/print_settings.h"
#include "printing/core/print_source.h"

namespace printing {

/// An item and the column that it shows.
struct ItemRow {
  Item item;
  store::Column column;
};

/// One size of a place: takes texts of up to this many characters.
struct ItemSize {
  int upTo;  ///< inclusive; kAnyLength for the size that takes all the rest
  Item item;
};

/// The boxes of a date.
struct DateItems {
  Item era, year, month, day;
};

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
        month(claims::monthFlags(printSource.claim.get(claim::month), eraDates)) {}

  ReportFields& fields;
  const PrintSource& source;
  const claims::ClaimRecord& claim;
  const PrintSettings settings;
  const frame::EraDates& dates;
  const claims::EraTable eras;  ///< of the amounts
  const claims::MonthFlags month;

  QString value(const store::Column& column) const { return claim.get(column); }
  /// Prints the column's text.
  void copy(Item item, const store::Column& column) { fields.show(item, value(column)); }
  void copy(std::span<const ItemRow> rows);
  /// Shows the mark of each column that is ticked.
  void markTicked(std::span<const ItemRow> rows);
  /// Prints the text; nothing for an empty one.
  void print(Item item, const QString& text) { fields.show(item, text); }
  /// Prints the text in the first size that takes its length; false where none does.
  bool fit(std::span<const ItemSize> sizes, const QString& text);
  /// One character a box, from box `first` on.
  void digits(ItemFamily boxes, const QString& text, int first = 1) {
    fields.digits(boxes.stem(), text, boxes.last(), first);
  }
  void printAt(ItemFamily family, int number, const QString& text) { fields.show(family.at(number), text); }
  void markAt(ItemFamily family, int number) { fields.mark(family.at(number)); }
  void mark(Item item) { fields.mark(item); }
  void markIf(bool wanted, Item item) { fields.markIf(wanted, item); }
  void hide(Item item) { fields.hide(item); }

  bool ticked(const store::Column& column) const { return claim.ticked(column); }
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

void printDate(Sheet& sheet, const DateItems& items, const QString& text);
void printDate(Sheet& sheet, const DateItems& items, QDate date);

/// Place of the text's era among 明治, 大正, 昭和, 平成, 令和, from 1; 0: none.
int eraNumber(const QString& era);

}  // namespace printing
