#include "tools/bench/bench_rows.h"

#include <QStringList>

namespace bench {
namespace {

constexpr const char16_t* kSurnames[] = {u"見本", u"架空", u"例示", u"試験",
                                         u"仮名", u"模型", u"雛形", u"空想"};
constexpr const char16_t* kGiven[] = {u"太郎", u"花子", u"一郎", u"春子", u"次郎", u"夏子", u"三郎", u"秋子"};
constexpr const char16_t* kSyllables[] = {u"ｱ", u"ｲ", u"ｳ", u"ｴ", u"ｵ", u"ｶ", u"ｷ", u"ｸ", u"ｹ", u"ｺ", u"ｻ",
                                          u"ｼ", u"ｽ", u"ｾ", u"ｿ", u"ﾀ", u"ﾁ", u"ﾂ", u"ﾃ", u"ﾄ", u"ﾅ", u"ﾆ",
                                          u"ﾇ", u"ﾈ", u"ﾉ", u"ﾊ", u"ﾋ", u"ﾌ", u"ﾍ", u"ﾎ", u"ﾏ", u"ﾐ"};
constexpr const char16_t* kKinds[] = {u"国保",     u"組合",    u"共済", u"全国健康保険協会",
                                      u"後期高齢", u"退職国保"};
constexpr const char16_t* kRanks[] = {u"4", u"2", u"1", u"3", u"7", u"5"};
constexpr const char16_t* kRelations[] = {u"本人", u"家族", u"妻", u"長男"};
constexpr const char16_t* kShares[] = {u"1割", u"2割", u"3割"};
constexpr const char16_t* kCodes[] = {u"a", u"b", u"e", u"f"};

/// Columns that every claim carries alike.
constexpr std::pair<const char16_t*, const char16_t*> kShared[] = {
    {u"申請年月", u"令和6年10月"},
    {u"申請月", u"10"},
    {u"施術内容", u"鍼灸"},
    {u"施術科目", u"鍼灸"},
    {u"保険の種類3", u"国民健保"},
    {u"保険者住所", u"架空県みほん市見本町１－１"},
    {u"発病又は負傷年月日", u"令和6年1月10日"},
    {u"初療年月日", u"令和6年2月3日"},
    {u"実際の同意の年月日", u"令和6年9月1日"},
    {u"同意の傷病名", u"腰痛症"},
    {u"同意症状", u"関節拘縮"},
    {u"同意医師氏名", u"見本 医太郎"},
    {u"同意医師住所", u"架空県みほん市医院町１－２"},
    {u"医療機関名", u"架空みほん整形外科"},
    {u"要加療期間1", u"令和6年9月1日"},
    {u"要加療期間2", u"令和7年2月28日"},
    {u"請求年月日", u"令和6年11月1日"},
    {u"請求区分", u"継続"},
    {u"転帰", u"継続"},
    {u"業務上外のもの", u"その他"},
    {u"第三者行為によるもの", u"いいえ"},
    {u"入院入院外の別", u"入院外"},
    {u"傷病名5", u"-1"},
    {u"施術者氏名", u"架空 治子"},
    {u"施術所の名称", u"架空はりきゅう院"},
    {u"施術所の所在地", u"架空県みほん市仮町３"},
    {u"施術所電話番号", u"00-0000-0002"},
    {u"金融機関名", u"架空"},
    {u"口座番号", u"0123456"},
    {u"摘要1", u"往療は医師の指示による"},
    {u"同意_患者", u"-1"}};

template <size_t N>
QString any(const char16_t* const (&texts)[N], int number, quint32 purpose) {
  return QString::fromUtf16(texts[lot(number, purpose) % N]);
}

QString reading(int patient) {
  QString kana;
  for (quint32 at = 0; at < 7; ++at)
    kana += at == 3 ? QStringLiteral(" ") : any(kSyllables, patient, 10 + at);
  return kana;
}

QString address(int patient) {
  return QStringLiteral("架空県%1市見本町%2丁目%3番")
      .arg(any(kSurnames, patient, 6))
      .arg(1 + lot(patient, 7) % 9)
      .arg(1 + lot(patient, 8) % 200);
}

}  // namespace

quint32 lot(int number, quint32 purpose) {
  quint32 mixed = static_cast<quint32>(number) * 2654435761u ^ purpose * 40503u;
  mixed ^= mixed >> 15;
  mixed *= 2246822519u;
  return mixed ^ mixed >> 13;
}

QString patientKey(int patient) { return QStringLiteral("2024%1").arg(patient, 7, 10, QLatin1Char('0')); }

QString patientName(int patient) {
  return any(kSurnames, patient, 1) + u' ' + any(kGiven, patient, 2) + QString::number(patient % 1000);
}

QString patientBirth(int patient) {
  return QStringLiteral("昭和%1年%2月%3日")
      .arg(1 + lot(patient, 3) % 63)
      .arg(1 + lot(patient, 4) % 12)
      .arg(1 + lot(patient, 5) % 28);
}

Row patientRow(int number) {
  return {{QStringLiteral("テキスト5"), patientKey(number)},
          {QStringLiteral("カルテ番号"), QString::number(number + 1)},
          {QStringLiteral("氏名"), patientName(number)},
          {QStringLiteral("ふりがな"), reading(number)},
          {QStringLiteral("性別"), lot(number, 9) % 2 ? QStringLiteral("男") : QStringLiteral("女")},
          {QStringLiteral("生年月日"), patientBirth(number)},
          {QStringLiteral("年齢"), QString::number(20 + lot(number, 3) % 80)},
          {QStringLiteral("職業"), QStringLiteral("無職")},
          {QStringLiteral("郵便番号"), QStringLiteral("000-0001")},
          {QStringLiteral("住所1"), address(number)},
          {QStringLiteral("電話1"), QStringLiteral("00-0000-%1").arg(lot(number, 20) % 10000)},
          {QStringLiteral("初診日"), QStringLiteral("令和6年4月1日")},
          {QStringLiteral("症状"), QStringLiteral("腰の重だるさが続き、長く座ると強くなる。")},
          {QStringLiteral("治療"), QStringLiteral("腰部と下肢の経穴に施術した。")}};
}

Row firstHalfRow(int number, int patients) {
  const int patient = number % std::max(patients, 1);
  const quint32 kind = lot(number, 40) % std::size(kKinds);
  Row row;
  for (const auto& [column, text] : kShared) row.insert(QString::fromUtf16(column), QString::fromUtf16(text));
  const QString kana = reading(patient);
  for (const char16_t* column : {u"氏名", u"被保険者の氏名", u"療養を受ける者の氏名"})
    row.insert(QString::fromUtf16(column), patientName(patient));
  for (const char16_t* column : {u"被保険者のフリガナ", u"療養を受ける者のフリガナ"})
    row.insert(QString::fromUtf16(column), kana);
  for (const char16_t* column : {u"生年月日", u"被保険者の生年月日", u"療養を受ける者の生年月日"})
    row.insert(QString::fromUtf16(column), patientBirth(patient));
  for (const char16_t* column : {u"被保険者の住所", u"療養を受ける者の住所"})
    row.insert(QString::fromUtf16(column), address(patient));
  row.insert(QStringLiteral("番号1"), patientKey(patient));
  row.insert(QStringLiteral("保険の種類"), QString::fromUtf16(kKinds[kind]));
  row.insert(QStringLiteral("保険順位"), QString::fromUtf16(kRanks[kind]));
  row.insert(QStringLiteral("保険者番号"),
             QStringLiteral("99%1").arg(lot(number, 41) % 40, 4, 10, QLatin1Char('0')));
  row.insert(QStringLiteral("保険者名称"), QStringLiteral("みほん市%1").arg(lot(number, 41) % 40));
  row.insert(QStringLiteral("保険証番号"), QString::number(1000 + lot(number, 42) % 9000));
  row.insert(QStringLiteral("被保険者との続柄"), any(kRelations, number, 43));
  row.insert(QStringLiteral("一部負担金"), any(kShares, number, 44));
  row.insert(QStringLiteral("申請年月"), QStringLiteral("令和6年%1月").arg(1 + number % 12));
  for (int day = 1 + static_cast<int>(lot(number, 45) % 3); day <= 31; day += 3) {
    row.insert(QStringLiteral("治療内容%1").arg(day), any(kCodes, number, 50 + static_cast<quint32>(day)));
    if (lot(number, 46) % 4 == 0) row.insert(QStringLiteral("往療距離%1").arg(day), QStringLiteral("v1"));
  }
  return row;
}

Row secondHalfRow(int number) {
  return {{QStringLiteral("c1"), QStringLiteral("架空県みほん市仮町３")},
          {QStringLiteral("c6"), QStringLiteral("市町村長")},
          {QStringLiteral("c21"), QStringLiteral("-1")},
          {QStringLiteral("d12"), QStringLiteral("架空県みほん市見本町の自宅")},
          {QStringLiteral("d15"), QStringLiteral("その他")},
          {QStringLiteral("txt dummy1"), QString::number(number + 1)}};
}

}  // namespace bench
