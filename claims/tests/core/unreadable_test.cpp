// Files that cannot be read for a while: the readings of the claims end with the engine's fault, never with a
// short list or an edition without fees, and read whole when the cause is gone.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "claims/core/claim_file.h"
#include "claims/core/consent_watch.h"
#include "claims/core/fee_source.h"
#include "claims/core/month_claims.h"
#include "claims/core/register.h"
#include "platform/store/bulk.h"
#include "platform/store/testing/broken_file.h"

namespace claims {
namespace {

using namespace Qt::Literals::StringLiterals;
using store::broken::DamagedPage;
using store::broken::LockedFile;

class UnreadableClaims : public testing::Test {
 protected:
  /// Five rows on pages of their own, which differ in the marker column.
  QString filled(const QString& file, const QString& marker,
                 const QHash<QString, store::Value>& others = {}) {
    const QString at = folder.filePath(file);
    EXPECT_TRUE(store::createFresh(at, file).ok());
    const store::TableRow& table = *store::tableOfFile(file);
    QList<QHash<QString, store::Value>> rows;
    for (int row = 1; row <= 5; ++row) {
      QHash<QString, store::Value> values = others;
      values.insert(marker, nameOf(row));
      rows += store::broken::pageOfRow(table, values);
    }
    EXPECT_TRUE(store::addRows(at, QString::fromUtf16(table.table), rows).ok());
    return at;
  }
  static QString nameOf(int row) { return u"見本の行%1番"_s.arg(row); }

  /// `read` under a lock and over a damaged row is a fault with the file's name; else it is whole.
  template <class Read>
  void expectFaults(const QString& at, const Read& read) {
    const auto expectFault = [&](const QString& cause) {
      const auto found = read();
      ASSERT_FALSE(found.ok()) << cause.toStdString();
      const QString& message = found.fault().message;
      EXPECT_TRUE(message.contains(cause) && message.contains(QFileInfo(at).fileName()))
          << message.toStdString();
    };
    {
      const LockedFile other(at);
      expectFault(u"使用中"_s);
    }
    EXPECT_TRUE(read().ok());
    {
      const DamagedPage page(at, nameOf(3));
      expectFault(u"壊れている"_s);
    }
    EXPECT_TRUE(read().ok());
  }

  QTemporaryDir folder;
};

TEST_F(UnreadableClaims, ConsentWatch) {
  const QString at = filled(u"保険申請2000_1.mdb"_s, u"氏名"_s,
                            {{u"要加療期間2"_s, u"令和6年11月20日"_s}, {u"施術内容"_s, u"鍼灸"_s}});
  const text::FixedClock clock(QDate(2024, 11, 5));
  const frame::EraDates dates(frame::EraCapability::Supported, clock);
  expectFaults(at, [&] { return consentsRunningOut(at, dates); });
  EXPECT_EQ(consentsRunningOut(at, dates)->size(), 5);
}

TEST_F(UnreadableClaims, Registers) {
  frame::DataFolders folders;
  const QString at = filled(u"同意医師2000.mdb"_s, u"氏名"_s);
  folders[size_t(kDoctorRegister.folder)] = at;
  expectFaults(at, [&] { return readRegister(kDoctorRegister, folders); });
  EXPECT_EQ(readRegister(kDoctorRegister, folders)->size(), 5);
}

TEST_F(UnreadableClaims, MonthOfClaims) {
  const QString at = filled(u"保険申請2000_1.mdb"_s, u"氏名"_s, {{u"申請年月"_s, u"令和6年10月"_s}});
  expectFaults(at, [&] { return holdsMonth(at, u"令和6年10月"_s); });
  EXPECT_TRUE(*holdsMonth(at, u"令和6年10月"_s));
}

TEST_F(UnreadableClaims, BothHalvesOfAClaim) {
  for (const int half : {0, 1}) {
    QTemporaryDir place;
    std::swap(folder, place);
    const QString first = filled(u"保険申請2000_1.mdb"_s, u"氏名"_s),
                  second = filled(u"保険申請2000_2.mdb"_s, u"a1"_s);
    auto file = ClaimFile::open(first, second);
    ASSERT_TRUE(file.ok());
    const DamagedPage page(half == 0 ? first : second, nameOf(3));
    EXPECT_FALSE(file->read(3).ok());
    EXPECT_TRUE(file->read(5).ok());
  }
}

// An edition that was read half would compute with fees of zero.
TEST_F(UnreadableClaims, FeeEdition) {
  const QString at = folder.filePath(u"料金設定2024.mdb"_s);
  ASSERT_TRUE(store::createFresh(at, u"料金設定2024.mdb"_s).ok());
  ASSERT_TRUE(store::addRows(at, u"料金設定"_s, {{{u"はり"_s, u"1550"_s}}, {{u"はり"_s, u"1610"_s}}}).ok());
  StoredFees fees;
  {
    const LockedFile other(at);
    const auto edition = fees.load(at);
    ASSERT_FALSE(edition.ok());
    EXPECT_TRUE(edition.fault().message.contains(u"使用中")) << edition.fault().message.toStdString();
  }
  const auto edition = fees.load(at);
  ASSERT_TRUE(edition.ok()) << "the fault was not kept in the place of the edition";
  EXPECT_EQ(edition->yen(Fee::Hari), 1610);
}

// The row is there, and its later fees cannot be read.
TEST_F(UnreadableClaims, FeeEditionThatGoesOnInALostPage) {
  const QString file = u"料金設定2024.mdb"_s, at = folder.filePath(file), marker = nameOf(1);
  ASSERT_TRUE(store::createFresh(at, file).ok());
  QHash<QString, store::Value> row;
  for (const store::ColumnRow& column : store::tableOfFile(file)->columns)
    if (column.type == store::ColumnType::Text255)
      row.insert(QString::fromUtf16(column.name), QString(200, u'1'));
  row.insert(u"はり"_s, u"1610"_s);
  row.insert(u"加算往診料4K"_s, marker);
  ASSERT_TRUE(store::addRows(at, u"料金設定"_s, {row}).ok());
  StoredFees fees;
  DamagedPage page(at, marker, store::broken::RowPart::Overflow);
  const auto edition = fees.load(at);
  ASSERT_FALSE(edition.ok()) << "fees of zero would be charged";
  EXPECT_TRUE(edition.fault().message.contains(u"壊れている")) << edition.fault().message.toStdString();
  page.repair();
  ASSERT_TRUE(fees.load(at).ok());
  EXPECT_EQ(fees.load(at)->yen(Fee::Hari), 1610);
}

}  // namespace
}  // namespace claims
