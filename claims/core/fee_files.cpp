#include "claims/core/fee_files.h"

namespace claims {
namespace {

constexpr FeeFileRow kNational[] = {
    {{2024, 6}, u"料金設定2000.mdb"}, {{2022, 6}, u"料金設定2024.mdb"},  {{2020, 12}, u"料金設定2022.mdb"},
    {{2018, 6}, u"料金設定2020.mdb"}, {{2016, 10}, u"料金設定2018.mdb"}, {{2013, 5}, u"料金設定2016.mdb"},
    {{2010, 6}, u"料金設定2013.mdb"}, {{1, 1}, u"料金設定2010.mdb"},
};
constexpr FeeFileRow kOsaka[] = {
    {{2018, 6}, u"料金設定o2000.mdb"},
    {{2016, 10}, u"料金設定o2018.mdb"},
    {{1, 1}, u"料金設定o2016.mdb"},
};
constexpr char16_t kCurrent[] = u"料金設定2000.mdb";

}  // namespace

std::span<const FeeFileRow> feeFileRows(FeeSet set) {
  if (set == FeeSet::Osaka) return kOsaka;
  return kNational;
}

QString pickFeeFile(QDate claimMonth, std::span<const FeeFileRow> rows) {
  for (const FeeFileRow& row : rows)
    if (row.from.holdsIn(claimMonth)) return QString::fromUtf16(row.file);
  return QString::fromUtf16(rows.back().file);
}

QString pickFeeFile(QDate claimMonth, FeeSet set) { return pickFeeFile(claimMonth, feeFileRows(set)); }

FeeFiles::FeeFiles(QString folder, const frame::DataFolders& folders)
    : FeeFiles(std::move(folder), folders[frame::folder::kFees]) {}

QString FeeFiles::path(QDate claimMonth, FeeSet set) const {
  const QString file =
      set == FeeSet::National ? pickFeeFile(claimMonth, national) : pickFeeFile(claimMonth, set);
  return file == kCurrent ? current : programFolder + u'/' + file;
}

}  // namespace claims
