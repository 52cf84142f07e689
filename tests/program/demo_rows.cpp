#include "tests/program/demo_rows.h"

#include <QDir>

#include "frame/core/settings_slots.h"
#include "platform/store/bulk.h"
#include "platform/store/catalogue.h"

namespace program {
namespace {

using namespace Qt::StringLiterals;
using DemoRow = QHash<QString, store::Value>;

constexpr char16_t kPatients[] = u"臨床QV2000N.mdb";
constexpr char16_t kBookings[] = u"予約2000.mdb";
constexpr char16_t kVisits[] = u"カルテ2データ2000.mdb";
constexpr char16_t kClaims1[] = u"保険申請2000_1.mdb";
constexpr char16_t kClaims2[] = u"保険申請2000_2.mdb";
constexpr char16_t kDoctors[] = u"同意医師2000.mdb";
constexpr char16_t kInsurers[] = u"保険者2000.mdb";

constexpr const char16_t* kFilledFiles[] = {kPatients, kBookings, kVisits,  kClaims1,
                                            kClaims2,  kDoctors,  kInsurers};

/// What a column holds in the first and in the second row in the place of its name.
struct Exact {
  const char16_t* file;
  const char16_t* column;
  const char16_t* first;
  const char16_t* second;
};

constexpr char16_t kSerial[] = u"20240401001";
constexpr char16_t kOtherSerial[] = u"20240401002";

// The visits and claims are all of the first patient: a massage claim of October and, newer, an acupuncture
// claim of November 2024.
constexpr Exact kExact[] = {
    {kPatients, u"テキスト5", kSerial, kOtherSerial},
    {kPatients, u"生年月日", u"昭和28年3月5日", u"昭和51年11月30日"},
    {kPatients, u"初診日", u"令和6年4月1日", u"令和6年4月2日"},
    {kBookings, u"テキスト1", kSerial, kOtherSerial},
    {kBookings, u"予約年", u"2024", u"2024"},
    {kBookings, u"予約月", u"11", u"11"},
    {kBookings, u"予約日", u"5", u"5"},
    {kBookings, u"予約曜日", u"火曜日", u"火曜日"},
    {kBookings, u"予約時間", u"9:30", u"14:00"},
    {kVisits, u"ETC1", kSerial, kSerial},
    {kVisits, u"治療日時", u"令和6年11月1日", u"令和6年11月5日"},
    {kVisits, u"治療日チェック", u"2024/11/1", u"2024/11/5"},
    {kVisits, u"治療金額", u"4100", u"4200"},
    {kVisits, u"保険の一部負担金", u"310", u"320"},
    {kVisits, u"保険者負担金", u"1100", u"1200"},
    {kClaims1, u"番号1", kSerial, kSerial},
    {kClaims1, u"氏名", u"氏名", u"氏名"},
    {kClaims1, u"申請年月", u"令和6年10月", u"令和6年11月"},
    {kClaims1, u"施術内容", u"あマ", u"鍼灸"},
    {kClaims1, u"一部負担金", u"2割", u"3割"},
    {kClaims1, u"被保険者の生年月日", u"昭和28年3月5日", u"昭和28年3月6日"},
    {kClaims1, u"療養を受ける者の生年月日", u"昭和28年3月7日", u"昭和28年3月8日"},
    {kClaims1, u"初療年月日", u"令和6年4月1日", u"令和6年4月2日"},
    {kClaims1, u"資格取得年月日", u"令和6年4月3日", u"令和6年4月4日"},
    {kClaims1, u"有効期限", u"令和7年3月30日", u"令和7年3月31日"},
    {kClaims1, u"請求年月日", u"令和6年11月1日", u"令和6年12月1日"},
    {kClaims1, u"領収年月日", u"令和6年11月2日", u"令和6年12月2日"},
    {kClaims1, u"同意の年月日", u"令和6年5月1日", u"令和6年5月2日"},
    {kClaims1, u"実際の同意の年月日", u"令和6年5月3日", u"令和6年5月4日"},
    {kClaims1, u"要加療期間1", u"令和6年5月5日", u"令和6年5月6日"},
    {kClaims1, u"要加療期間2", u"令和6年11月20日", u"令和6年11月30日"},
    {kClaims2, u"txt dummy1", u"1", u"2"},
    {kClaims2, u"txtdummy28", u"令和6年5月", u"令和6年6月"},
};

/// The day of a column of a series: 7 for 治療内容7; 0 for another column.
int dayOf(const QString& column, const QString& series) {
  return column.startsWith(series) ? column.mid(series.size()).toInt() : 0;
}

/// Entries that the day grid takes: letters a to f (acupuncture), g1 to j5 (massage), v1 to v20 (visits).
QString gridEntry(const QString& column, int row) {
  if (const int day = dayOf(column, u"往療距離"_s)) return u"v%1"_s.arg((day - 1) % 20 + 1);
  const int day = dayOf(column, u"治療内容"_s);
  if (day == 0) return {};
  const QString massage = QChar(u'g' + day % 4) + QString::number(day % 5 + 1);
  return row == 1 ? massage : QString(QChar(u'a' + day % 6));
}

store::Value filler(const store::ColumnRow& column, int position, int row) {
  const QString name = QString::fromUtf16(column.name);
  if (const QString entry = gridEntry(name, row); !entry.isEmpty()) return entry;
  switch (column.type) {
    case store::ColumnType::YesNo:
      return (position + row) % 2 == 0 ? u"-1"_s : u"0"_s;
    case store::ColumnType::Integer:
      return QString::number(position * 10 + row);
    default:
      return row == 1 ? name : name + u'２';
  }
}

DemoRow demoRow(const store::TableRow& table, int number) {
  DemoRow row;
  int position = 0;
  for (const store::ColumnRow& column : table.columns)
    if (column.type != store::ColumnType::Counter)
      row.insert(QString::fromUtf16(column.name), filler(column, ++position, number));
  for (const Exact& exact : kExact)
    if (QStringView(exact.file) == QStringView(table.file))
      row.insert(QString::fromUtf16(exact.column),
                 QString::fromUtf16(number == 1 ? exact.first : exact.second));
  return row;
}

}  // namespace

text::Done addDemoRows(const QString& programFolder) {
  for (const char16_t* file : kFilledFiles) {
    const QString name = QString::fromUtf16(file);
    const store::TableRow* table = store::tableOfFile(name);
    if (!table) return text::Fault{u"not in the catalogue: "_s + name};
    const text::Done added =
        store::addRows(QDir(programFolder).filePath(name), QString::fromUtf16(table->table),
                       {demoRow(*table, 1), demoRow(*table, 2)});
    if (!added) return added;
  }
  return {};
}

text::Done addDemoSettings(const QString& programFolder) {
  constexpr std::pair<int, int> kTextFields[] = {{18, 20}, {22, 26}, {29, 52}, {56, 62},
                                                 {64, 67}, {74, 75}, {78, 84}, {86, 87}};
  const QString path = QDir(programFolder).filePath(u"qv.dat"_s);
  auto settings = frame::readSettingsFile(path);
  if (!settings) return settings.fault();
  for (const auto& [first, last] : kTextFields)
    for (int field = first; field <= last; ++field) (*settings)[field] = u"設定%1"_s.arg(field);
  return frame::writeSettingsFile(path, *settings);
}

}  // namespace program
