// Random months against a model written as plainly as the rules read.
#include <gtest/gtest.h>

#include <random>

#include "claims/core/amounts.h"
#include "claims/tests/core/claim_builder.h"
#include "claims/tests/core/plain_model.h"

namespace claims {
namespace {

constexpr const char16_t* kMonths[] = {
    u"平成20年3月",  u"平成22年5月", u"平成22年6月", u"平成25年4月", u"平成25年5月",  u"平成28年9月",
    u"平成28年10月", u"平成30年5月", u"平成30年6月", u"平成30年9月", u"平成30年10月", u"平成31年4月",
    u"令和1年5月",   u"令和2年11月", u"令和2年12月", u"令和4年5月",  u"令和4年6月",   u"令和6年5月",
    u"令和6年6月",   u"令和6年9月",  u"令和6年10月", u"令和6年12月", u"令和7年10月",  u"令和8年1月"};
constexpr const char16_t* kCodes[] = {
    u"a",    u"b",    u"c",    u"d",    u"e",    u"f",    u"g",    u"h",  u"i",  u"j",  u"gh", u"ih",
    u"g1",   u"g2",   u"g3",   u"g4",   u"g5",   u"i1",   u"i2",   u"j3", u"j5", u"h1", u"h2", u"h5",
    u"g2h1", u"g3h2", u"h3g2", u"i1h2", u"j2h1", u"g1g2", u"g1i2", u"z",  u"A",  u"g6"};
constexpr const char16_t* kVisits[] = {u"t", u"v1", u"v2", u"v3", u"v9", u"v10", u"v20", u"v21", u"1", u"2",
                                       u"4", u"5",  u"6",  u"8",  u"12", u"16",  u"20",  u"21",  u"0"};
constexpr const char16_t* kShares[] = {u"1割", u"2割", u"3割", u""};
constexpr const char16_t* kKinds[] = {u"鍼灸", u"鍼", u"灸", u"あマ", u"あマ", u"あマ"};
constexpr const char16_t* kNumbers[] = {u"3", u"2", u" 4", u"x", u""};

class Dice {
 public:
  explicit Dice(unsigned seed) : m_engine(seed) {}
  bool once(int in) { return m_engine() % static_cast<unsigned>(in) == 0; }
  template <size_t N>
  const char16_t* of(const char16_t* const (&list)[N]) {
    return list[m_engine() % N];
  }
  /// One of the first entries, so that a month's entries are like each other.
  template <size_t N>
  const char16_t* of(const char16_t* const (&list)[N], size_t from, size_t count) {
    return list[(from + m_engine() % count) % N];
  }
  size_t below(size_t end) { return m_engine() % end; }

 private:
  std::mt19937 m_engine;
};

ClaimRecord randomClaim(Dice& dice) {
  ClaimRecord claim =
      testing::makeClaim(dice.of(kMonths), dice.of(kKinds), dice.of(kShares), u"",
                         {{u"マッサージ部位数", dice.of(kNumbers)}, {u"徒手矯正数", dice.of(kNumbers)}});
  const size_t codes = dice.below(std::size(kCodes)), visits = dice.below(std::size(kVisits));
  const size_t codeCount = 1 + dice.below(std::size(kCodes)), visitCount = 1 + dice.below(std::size(kVisits));
  for (int day = 1; day <= 31; ++day) {
    if (dice.once(2)) claim.set(claim::dayCode[day], QString::fromUtf16(dice.of(kCodes, codes, codeCount)));
    if (dice.once(3))
      claim.set(claim::dayVisit[day], QString::fromUtf16(dice.of(kVisits, visits, visitCount)));
  }
  for (const char16_t* tick : {u"初回有無", u"yn2", u"yn3", u"yn4", u"d2"})
    if (dice.once(2)) claim.setNamed(QString::fromUtf16(tick), QStringLiteral("1"));
  return claim;
}

TEST(RandomClaims, AgreeWithThePlainModel) {
  testing::CsvFees fees;
  const FeeFiles files(QStringLiteral("/p"), QStringLiteral("/p/料金設定2000.mdb"));
  QHash<QString, FeeEdition> editions;
  Dice dice(20241001);
  for (int round = 0; round < 3000; ++round) {
    const ClaimRecord claim = randomClaim(dice);
    const MonthFlags flags = monthFlags(claim.get(claim::month), testing::era());
    const QString path = files.path(*flags.month);
    if (!editions.contains(path)) editions.insert(path, fees.load(path).value());
    for (const Path way : {Path::Store, Path::Preview}) {
      const ClaimAmounts computed = amounts(claim, editions[path], flags, way);
      const qint64 total = testing::plainTotal(claim, editions[path], flags, way == Path::Preview);
      const qint64 share = testing::plainShare(total, claim.get(claim::shareRate));
      ASSERT_EQ(computed.total, total) << round;
      ASSERT_EQ(computed.share, share) << round;
      ASSERT_EQ(computed.claim, total - share) << round;
    }
  }
}

}  // namespace
}  // namespace claims
