#include "tools/bench/claim_rows.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <random>

#include "claims/core/claim_file.h"
#include "claims/core/claim_store.h"

namespace bench {

namespace {

/// Columns that all claims share.
constexpr std::pair<const char16_t*, const char16_t*> kShared[] = {
    {u"申請年月", u"令和6年10月"},
    {u"申請月", u"10"},
    {u"施術内容", u"鍼灸"},
    {u"保険の種類", u"国保"},
    {u"保険の種類3", u"国民健保"},
    {u"保険者名称", u"例示市"},
    {u"区市町村名称", u"例示市"},
    {u"c6", u"市長"},
    {u"被保険者との続柄", u"妻"},
    {u"療養を受ける者の性別", u"女"},
    {u"発病又は負傷年月日", u"令和6年1月10日"},
    {u"初療年月日", u"令和6年2月3日"},
    {u"実際の同意の年月日", u"令和6年9月1日"},
    {u"要加療期間1", u"令和6年9月1日"},
    {u"要加療期間2", u"令和7年2月28日"},
    {u"請求年月日", u"令和6年11月1日"},
    {u"領収年月日", u"令和6年10月31日"},
    {u"請求区分", u"継続"},
    {u"転帰", u"継続"},
    {u"業務上外のもの", u"その他"},
    {u"d13", u"日常生活のなかで"},
    {u"d15", u"その他"},
    {u"傷病名5", u"-1"},
    {u"傷病名7", u"肩関節周囲炎"},
    {u"同意の傷病名", u"腰痛症、肩関節周囲炎"},
    {u"摘要1", u"往療は医師の指示による"},
    {u"摘要4", u"歩行が困難なため自宅で施術を行った。症状は落ち着いているが痛みが残る。"},
    {u"施術者氏名", u"架空　治子"},
    {u"施術所の名称", u"架空はりきゅう院"},
    {u"施術所の郵便番号", u"001-0002"},
    {u"施術所の所在地", u"例示県架空市架空町三丁目３番３号"},
    {u"施術所電話番号", u"000-000-0002"},
    {u"師会等の機関番号", u"K-0001"},
    {u"支払い機関区分", u"振込"},
    {u"金融機関名", u"架空"},
    {u"金融機関名種類", u"銀行"},
    {u"本店支店名", u"見本"},
    {u"本店支店名種類", u"支店"},
    {u"預金の種類", u"普通"},
    {u"口座番号", u"0123456"},
    {u"口座名義カタカナ", u"カクウ　ハルコ"},
    {u"c21", u"1"},
    {u"初回有無", u"0"},
};

constexpr const char16_t* kSurnames[] = {u"見本", u"架空", u"例示", u"仮名", u"試行"};
constexpr const char16_t* kGiven[] = {u"太郎", u"花子", u"一郎", u"春子", u"次郎", u"夏子", u"三郎"};
constexpr const char16_t* kCodes[] = {u"a", u"b", u"e", u"f"};
constexpr const char16_t* kVisits[] = {u"", u"v1", u"v2", u"v3", u"t"};
constexpr const char16_t* kShares[] = {u"1割", u"2割", u"3割"};

class Maker {
 public:
  claims::ClaimRecord next(int number) {
    claims::ClaimRecord claim;
    for (const auto& [column, text] : kShared) set(claim, column, QString::fromUtf16(text));
    const QString name = any(kSurnames) + u'　' + any(kGiven) + QString::number(number % 10);
    set(claim, u"被保険者の氏名", name);
    set(claim, u"療養を受ける者の氏名", any(kSurnames) + u'　' + any(kGiven));
    set(claim, u"療養を受ける者のフリガナ", QStringLiteral("ミホン　ナナシ%1").arg(number));
    set(claim, u"療養を受ける者の生年月日",
        QStringLiteral("昭和%1年%2月%3日").arg(1 + roll(63)).arg(1 + roll(12)).arg(1 + roll(28)));
    set(claim, u"被保険者の住所",
        QStringLiteral("例示県架空市見本町%1丁目%2番%3号").arg(1 + roll(9)).arg(1 + roll(40)).arg(number));
    set(claim, u"被保険者の郵便番号", QStringLiteral("001-%1").arg(roll(10000), 4, 10, QLatin1Char('0')));
    set(claim, u"被保険者の電話番号", QStringLiteral("000-000-%1").arg(roll(10000), 4, 10, QLatin1Char('0')));
    set(claim, u"保険者番号", QStringLiteral("13%1").arg(roll(10000), 4, 10, QLatin1Char('0')));
    set(claim, u"保険証記号2", QStringLiteral("見本%1").arg(roll(100)));
    set(claim, u"保険証番号", QString::number(1000 + roll(9000)));
    set(claim, u"公費負担番号", QStringLiteral("81%1").arg(roll(1000000), 6, 10, QLatin1Char('0')));
    set(claim, u"公費受給者番号", QString::number(1000000 + roll(9000000)));
    set(claim, u"同意医師氏名", any(kSurnames) + any(kGiven));
    set(claim, u"同意医師住所", QStringLiteral("例示県架空市病院通り%1").arg(1 + roll(99)));
    set(claim, u"d12", QStringLiteral("例示県架空市見本町%1丁目の自宅").arg(1 + roll(9)));
    set(claim, u"d14", QStringLiteral("車椅子を使うため%1").arg(number));
    set(claim, u"一部負担金", any(kShares));
    for (int day = 1 + roll(3); day <= 31; day += 1 + roll(3)) {
      set(claim, QStringLiteral("治療内容%1").arg(day), any(kCodes));
      set(claim, QStringLiteral("往療距離%1").arg(day), any(kVisits));
    }
    return claim;
  }

 private:
  static void set(claims::ClaimRecord& claim, QStringView column, const QString& text) {
    claim.setNamed(column.toString(), text);
  }
  int roll(int sides) { return static_cast<int>(m_random() % static_cast<unsigned>(sides)); }
  template <size_t N>
  QString any(const char16_t* const (&texts)[N]) {
    return QString::fromUtf16(texts[roll(static_cast<int>(N))]);
  }
  std::mt19937 m_random{20241001};
};

text::Result<QString> freshFile(const QString& folder, const QString& name) {
  const QString path = QDir(folder).filePath(name);
  QFile::remove(path);
  const auto made = store::createFresh(path, name);
  if (!made) return made.fault();
  return path;
}

}  // namespace

QString programFolder() { return QCoreApplication::applicationDirPath() + QStringLiteral("/../program"); }

text::Result<StoredClaims> storeClaims(const QString& folder, int count) {
  StoredClaims stored;
  for (auto* path : {&stored.first, &stored.second}) {
    const auto made = freshFile(folder, path == &stored.first ? QStringLiteral("保険申請2000_1.mdb")
                                                              : QStringLiteral("保険申請2000_2.mdb"));
    if (!made) return made.fault();
    *path = made.value();
  }
  auto file = claims::ClaimFile::open(stored.first, stored.second);
  if (!file) return file.fault();

  const text::FixedClock clock(QDate(2024, 11, 5));
  const frame::EraDates dates(frame::EraCapability::Supported, clock);
  const claims::FeeFiles files(programFolder(), programFolder() + QStringLiteral("/料金設定2000.mdb"));
  claims::StoredFees fees;
  Maker maker;
  const auto done = file->together([&]() -> text::Done {
    for (int number = 1; number <= count; ++number) {
      const auto computed = claims::storeClaim(maker.next(number), {dates, files, fees});
      if (computed.calculation) return *computed.calculation;
      const auto id = file->add(computed.claim);
      if (!id) return id.fault();
      stored.ids << id.value();
    }
    return {};
  });
  if (!done) return done.fault();
  return stored;
}

}  // namespace bench
