#include "claims/core/fee_files.h"

#include <array>

#include "platform/store/tables/fees.h"

namespace claims {
namespace {

template <size_t Count>
constexpr std::array<FeeFileRow, Count> rowsOf(const fees::File (&files)[Count]) {
  std::array<FeeFileRow, Count> rows{};
  for (size_t i = 0; i < Count; ++i) rows[i] = {{files[i].year, files[i].month}, files[i].name};
  return rows;
}

constexpr auto kNational = rowsOf(fees::nationalFiles);
constexpr auto kOsaka = rowsOf(fees::osakaFiles);

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
  return file == fees::nationalFiles[0].name ? current : programFolder + u'/' + file;
}

}  // namespace claims
