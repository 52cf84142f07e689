#include "records/core/search_columns.h"

#include "platform/store/tables/patients.h"

namespace records {

namespace {
constexpr SearchColumn kColumns[] = {
    patients::id,         patients::patientNumber, patients::chartNumber,  {u"フリガナ", patients::kana},
    patients::name,       patients::sex,           patients::birth,        patients::age,
    patients::occupation, patients::company,       patients::zip,          patients::address[1],
    patients::address[2], patients::address[3],    patients::telephone[1], patients::telephone[2],
    patients::mobile,     patients::fax,           patients::keyword[1],   patients::keyword[2],
    patients::group,      patients::referredBy,    patients::referred,     patients::practitioner,
    patients::allotted,   patients::history,       patients::date1,        patients::ownText[1],
    patients::ownText[2], patients::ownText[3],    patients::symptoms,     patients::treatment,
    patients::memo,
};
}  // namespace

std::span<const SearchColumn> searchColumns() { return kColumns; }

QString columnOfCaption(const QString& caption) {
  for (const SearchColumn& row : kColumns)
    if (caption == row.caption) return row.column.text();
  return {};
}

}  // namespace records
