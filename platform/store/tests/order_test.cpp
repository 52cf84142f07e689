#include "platform/store/order.h"

#include "platform/store/collation.h"
#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

const QString kClaims = QStringLiteral("保険申請2000_1.mdb");
const QString kTable = QStringLiteral("保険申請");

class OrderTest : public StoreTest {
 protected:
  void SetUp() override {
    fresh(kClaims);
    set = openSet(kClaims, kTable);
  }
  void fill(const char* columnName, std::initializer_list<const char*> values) {
    for (const char* value : values) {
      const QString text = value ? QString::fromUtf8(value) : QString();
      add(set, {{QString::fromUtf8(columnName), text}});
    }
  }
  QString sorted(const char* order, const char* shown) {
    set.setSort(QString::fromUtf8(order));
    const Result<RecordSet> copy = set.openRecordset();
    return copy ? column(*copy, QString::fromUtf8(shown)).join(u' ') : copy.fault().message;
  }
  RecordSet set;
};

TEST_F(OrderTest, TheInsuredComesBeforeTheFamilyWhenTheRelationDescends) {
  fill("被保険者との続柄", {"家族", "本人", "妻", "長男"});
  const QString relations = sorted("被保険者との続柄 desc", "被保険者との続柄");
  EXPECT_TRUE(relations.startsWith(QStringLiteral("本人 "))) << relations.toStdString();
  // The order of the national character set: 家 in row 18, 妻 in row 26, 長 in row 36, 本 in row 43.
  EXPECT_EQ(sorted("被保険者との続柄 ASC", "被保険者との続柄"), QStringLiteral("家族 妻 長男 本人"));
}

TEST_F(OrderTest, KanaGoByTheSyllabaryWhateverTheirForm) {
  fill("被保険者のフリガナ", {"ﾜﾀﾅﾍﾞ", "アオキ", "さとう", "ｱｲﾀﾞ", "カトウ", "がくぶ"});
  EXPECT_EQ(sorted("被保険者のフリガナ ASC", "被保険者のフリガナ"),
            QStringLiteral("ｱｲﾀﾞ アオキ がくぶ カトウ さとう ﾜﾀﾅﾍﾞ"));
}

TEST_F(OrderTest, TextsOfDigitsSortAsTextsAndNumbersByValue) {
  fill("一部負担金", {"3割", "10割", "1割", "2割"});
  EXPECT_EQ(sorted("一部負担金 ASC", "一部負担金"), QStringLiteral("10割 1割 2割 3割"));
  fill("総括表", {"10", "9", "-1"});
  set.setFilter(QStringLiteral("総括表 >= -5"));
  EXPECT_EQ(sorted("総括表 DESC", "総括表"), QStringLiteral("10 9 -1"));
}

TEST_F(OrderTest, NullComesFirstAndTiesGoById) {
  fill("氏名", {"b", nullptr, "a", "b", ""});
  EXPECT_EQ(sorted("氏名 ASC", "ID"), QStringLiteral("2 5 3 1 4"));
  EXPECT_EQ(sorted("氏名 DESC", "ID"), QStringLiteral("1 4 3 5 2"));
}

TEST_F(OrderTest, AKeyBehindTheIdDecidesNothing) {
  fill("保険順位", {"1", "2", "3"});
  EXPECT_EQ(sorted("ID desc,保険順位,被保険者との続柄 desc,被保険者のフリガナ,保険者番号", "ID"),
            QStringLiteral("3 2 1"));
}

TEST_F(OrderTest, SeveralKeysDecideOneAfterAnother) {
  const char* rows[][4] = {{"2", "国保", "本人", "ｱ"},
                           {"1", "組合", "妻", "ｲ"},
                           {"1", "組合", "本人", "ｳ"},
                           {"1", "共済", "妻", "ｴ"},
                           {"1", "組合", "妻", "ｱ"}};
  for (const auto& [rank, kind, relation, kana] : rows)
    add(set, {{QStringLiteral("保険順位"), QString::fromUtf8(rank)},
              {QStringLiteral("保険の種類"), QString::fromUtf8(kind)},
              {QStringLiteral("被保険者との続柄"), QString::fromUtf8(relation)},
              {QStringLiteral("被保険者のフリガナ"), QString::fromUtf8(kana)}});
  EXPECT_EQ(sorted("保険順位,保険の種類,保険者番号,被保険者との続柄 desc,被保険者のフリガナ", "ID"),
            QStringLiteral("4 3 5 2 1"));
}

TEST_F(OrderTest, WrongOrdersAreTold) {
  for (const char* wrong : {"氏名 up", "氏名,", ",氏名", "氏名 desc asc"}) {
    set.setSort(QString::fromUtf8(wrong));
    EXPECT_FALSE(set.openRecordset().ok()) << wrong;
  }
  EXPECT_TRUE(sorted("無い項目 ASC", "ID").contains(QStringLiteral("無い項目")));
}

TEST(Collation, ShadowDatesCompareAsDates) {
  const QStringList rising = {QStringLiteral(""),          QStringLiteral("1999/12/31"),
                              QStringLiteral("2020/1/8"),  QStringLiteral("2020/1/20"),
                              QStringLiteral("2020/2/1"),  QStringLiteral("2020/10/1"),
                              QStringLiteral("2020/12/1"), QStringLiteral("未定")};
  for (int i = 1; i < rising.size(); ++i)
    EXPECT_LT(dateSortKey(rising[i - 1]).compare(dateSortKey(rising[i])), 0) << rising[i].toStdString();
}

TEST(Collation, NumbersInTextsCompareByValue) {
  EXPECT_LT(compareByNumbers(u"令和6年9月30日", u"令和6年10月1日"), 0);
  EXPECT_LT(compareByNumbers(u"2024/9/30", u"2024/10/1"), 0);
  EXPECT_EQ(compareByNumbers(u"2024/09/30", u"2024/9/30"), 0);
  EXPECT_LT(compareByNumbers(u"平成31年4月30日", u"令和1年5月1日"), 0);
  EXPECT_LT(compareByNumbers(u"", u"1"), 0);
}

TEST(Collation, KeysCompareAsTheTextsDo) {
  const QStringList texts = {QStringLiteral("ア"),        QStringLiteral("ｱ"), QStringLiteral("亜"),
                             QStringLiteral("見本 太郎"), QStringLiteral(""),  QStringLiteral("1"),
                             QString(300, QChar(u'長'))};
  for (const QString& a : texts)
    for (const QString& b : texts) {
      const int byKey = japaneseSortKey(a).compare(japaneseSortKey(b));
      const int direct = compareJapanese(a, b);
      EXPECT_EQ(byKey < 0, direct < 0);
      EXPECT_EQ(byKey > 0, direct > 0);
    }
}

}  // namespace
}  // namespace store
