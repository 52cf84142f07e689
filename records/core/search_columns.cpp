#include "records/core/search_columns.h"

#include <vector>

#include "platform/store/tables/patients.h"
#include "records/core/patient_columns.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

std::span<const SearchColumn> searchColumns() {
  static const std::vector<SearchColumn> columns = [] {
    std::vector<SearchColumn> all{{patients::id.text(), patients::id}};
    for (const store::Column& column : kPatientColumns)
      all.push_back({column == patients::kana ? u"フリガナ"_s : column.text(), column});
    for (const store::Column& column : {patients::treatment, patients::memo})
      all.push_back({column.text(), column});
    return all;
  }();
  return columns;
}

QString columnOfCaption(const QString& caption) {
  for (const SearchColumn& row : searchColumns())
    if (caption == row.caption) return row.column.text();
  return {};
}

}  // namespace records
