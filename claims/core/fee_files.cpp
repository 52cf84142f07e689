#include "claims/core/fee_files.h"

#include <span>

#include "claims/core/rule_dates.h"

namespace claims {
namespace {

/// A file and the first claim month that it holds for.
struct FileRow {
  rule::Date from;
  const char16_t* file;
};

// Newest first; the last row holds for all earlier months too.
constexpr FileRow kNational[] = {
    {{2024, 6}, u"料金設定2000.mdb"}, {{2022, 6}, u"料金設定2024.mdb"},  {{2020, 12}, u"料金設定2022.mdb"},
    {{2018, 6}, u"料金設定2020.mdb"}, {{2016, 10}, u"料金設定2018.mdb"}, {{2013, 5}, u"料金設定2016.mdb"},
    {{2010, 6}, u"料金設定2013.mdb"}, {{1, 1}, u"料金設定2010.mdb"},
};
constexpr FileRow kOsaka[] = {
    {{2018, 6}, u"料金設定o2000.mdb"},
    {{2016, 10}, u"料金設定o2018.mdb"},
    {{1, 1}, u"料金設定o2016.mdb"},
};
constexpr char16_t kCurrent[] = u"料金設定2000.mdb";

}  // namespace

QString pickFeeFile(QDate claimMonth, FeeSet set) {
  const std::span<const FileRow> rows =
      set == FeeSet::Osaka ? std::span<const FileRow>(kOsaka) : std::span<const FileRow>(kNational);
  for (const FileRow& row : rows)
    if (claimMonth >= row.from.date()) return QString::fromUtf16(row.file);
  return QString::fromUtf16(rows.back().file);
}

FeeFiles::FeeFiles(QString folder, const frame::DataFolders& folders)
    : FeeFiles(std::move(folder), folders[frame::folder::kFees]) {}

QString FeeFiles::path(QDate claimMonth, FeeSet set) const {
  const QString file = pickFeeFile(claimMonth, set);
  return file == kCurrent ? current : programFolder + u'/' + file;
}

}  // namespace claims
