#include "tools/bench/bench_rows.h"

#include <QStringList>

#include "platform/store/tables/claims.h"
#include "platform/store/tables/patients.h"

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
constexpr std::pair<store::Column, const char16_t*> kShared[] = {
    {claim::month, u"令和6年10月"},
    {claim::monthNumber, u"10"},
    {claim::treatmentKind, u"鍼灸"},
    {claim::subject, u"鍼灸"},
    {claim::printedInsurance, u"国民健保"},
    {claim::insurerAddress, u"架空県みほん市見本町１－１"},
    {claim::onset, u"令和6年1月10日"},
    {claim::firstTreatment, u"令和6年2月3日"},
    {claim::consentDate, u"令和6年9月1日"},
    {claim::consentDisease, u"腰痛症"},
    {claim::consentSymptom, u"関節拘縮"},
    {claim::doctorName, u"見本 医太郎"},
    {claim::doctorAddress, u"架空県みほん市医院町１－２"},
    {claim::hospital, u"架空みほん整形外科"},
    {claim::consentFrom, u"令和6年9月1日"},
    {claim::consentUntil, u"令和7年2月28日"},
    {claim::requestDate, u"令和6年11月1日"},
    {claim::requestKind, u"継続"},
    {claim::outcome, u"継続"},
    {claim::workRelated, u"その他"},
    {claim::thirdParty, u"いいえ"},
    {claim::hospitalised, u"入院外"},
    {claim::diseaseTick[5], u"-1"},
    {claim::practitionerName, u"架空 治子"},
    {claim::clinicName, u"架空はりきゅう院"},
    {claim::clinicAddress, u"架空県みほん市仮町３"},
    {claim::clinicTelephone, u"00-0000-0002"},
    {claim::bank, u"架空"},
    {claim::account, u"0123456"},
    {claim::remark[1], u"往療は医師の指示による"},
    {claim::consentToPatient, u"-1"}};

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
  return {{patients::serial, patientKey(number)},
          {patients::chartNumber, QString::number(number + 1)},
          {patients::name, patientName(number)},
          {patients::kana, reading(number)},
          {patients::sex, lot(number, 9) % 2 ? QStringLiteral("男") : QStringLiteral("女")},
          {patients::birth, patientBirth(number)},
          {patients::age, QString::number(20 + lot(number, 3) % 80)},
          {patients::occupation, QStringLiteral("無職")},
          {patients::zip, QStringLiteral("000-0001")},
          {patients::address[1], address(number)},
          {patients::telephone[1], QStringLiteral("00-0000-%1").arg(lot(number, 20) % 10000)},
          {patients::firstVisit, QStringLiteral("令和6年4月1日")},
          {patients::symptoms, QStringLiteral("腰の重だるさが続き、長く座ると強くなる。")},
          {patients::treatment, QStringLiteral("腰部と下肢の経穴に施術した。")}};
}

Row firstHalfRow(int number, int patients) {
  const int patient = number % std::max(patients, 1);
  const quint32 kind = lot(number, 40) % std::size(kKinds);
  Row row;
  for (const auto& [column, text] : kShared) row.insert(column, QString::fromUtf16(text));
  const QString kana = reading(patient);
  for (const store::Column& column : {claim::name, claim::insuredName, claim::treatedName})
    row.insert(column, patientName(patient));
  for (const store::Column& column : {claim::insuredKana, claim::treatedKana}) row.insert(column, kana);
  for (const store::Column& column : {claim::birth, claim::insuredBirth, claim::treatedBirth})
    row.insert(column, patientBirth(patient));
  for (const store::Column& column : {claim::insuredAddress, claim::treatedAddress})
    row.insert(column, address(patient));
  row.insert(claim::patientSerial, patientKey(patient));
  row.insert(claim::insuranceKind, QString::fromUtf16(kKinds[kind]));
  row.insert(claim::insuranceOrder, QString::fromUtf16(kRanks[kind]));
  row.insert(claim::insurerNumber, QStringLiteral("99%1").arg(lot(number, 41) % 40, 4, 10, QLatin1Char('0')));
  row.insert(claim::insurerName, QStringLiteral("みほん市%1").arg(lot(number, 41) % 40));
  row.insert(claim::cardNumber, QString::number(1000 + lot(number, 42) % 9000));
  row.insert(claim::relation, any(kRelations, number, 43));
  row.insert(claim::shareRate, any(kShares, number, 44));
  row.insert(claim::month, QStringLiteral("令和6年%1月").arg(1 + number % 12));
  for (int day = 1 + static_cast<int>(lot(number, 45) % 3); day <= 31; day += 3) {
    row.insert(claim::dayCode[day], any(kCodes, number, 50 + static_cast<quint32>(day)));
    if (lot(number, 46) % 4 == 0) row.insert(claim::dayVisit[day], QStringLiteral("v1"));
  }
  return row;
}

Row secondHalfRow(int number) {
  return {{claim::startPoint[1], QStringLiteral("架空県みほん市仮町３")},
          {claim::addressee, QStringLiteral("市町村長")},
          {claim::electricNeedle, QStringLiteral("-1")},
          {claim::treatmentPlace, QStringLiteral("架空県みほん市見本町の自宅")},
          {claim::visitReason, QStringLiteral("その他")},
          {claim::periodFrom, QString::number(number + 1)}};
}

}  // namespace bench
