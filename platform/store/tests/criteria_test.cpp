#include "platform/store/criteria.h"

#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

const QString kPatients = QStringLiteral("臨床QV2000N.mdb");

/// Five rows: name, address, age, keyword; hits are told by ID.
class CriteriaTest : public StoreTest {
 protected:
  void SetUp() override {
    fresh(kPatients);
    set = openSet(kPatients, QStringLiteral("臨床QV"));
    const char* rows[][4] = {{"サトウ 一", "架空県", "9", "a"},
                             {"ｻﾄｳ 二", "見本県", "60", "A"},
                             {"さとう 三", "架空市", "100", "b"},
                             {"見本 四", "100%の町", "", "Ａ"},
                             {"a*b?", "", "x", ""}};
    for (const auto& [name, address, age, keyword] : rows)
      add(set, {{QStringLiteral("氏名"), QString::fromUtf8(name)},
                {QStringLiteral("住所1"), QString::fromUtf8(address)},
                {QStringLiteral("年齢"), QString::fromUtf8(age)},
                {QStringLiteral("キーワード1"), QString::fromUtf8(keyword)},
                {QStringLiteral("tnum1"), QString::fromUtf8(age[0] == 'x' ? "" : age)}});
  }
  /// IDs of the filtered set, or the fault's text.
  QString hits(const QString& criteria) {
    set.setFilter(criteria);
    const Result<RecordSet> found = set.openRecordset();
    return found ? column(*found, QStringLiteral("ID")).join(u' ') : found.fault().message;
  }
  RecordSet set;
};

struct Case {
  const char* criteria;
  const char* ids;
};

TEST_F(CriteriaTest, EveryFormOfTheSubset) {
  const Case cases[] = {
      {"", "1 2 3 4 5"},
      {"  ", "1 2 3 4 5"},
      {"氏名 like '*さとう*' ", "1 2 3"},
      {"氏名 like 'ｻﾄｳ*'", "1 2 3"},
      {"氏名 like '*三'", "3"},
      {"氏名 like 'サトウ ?'", "1 2 3"},
      {"氏名 like 'さとう'", ""},
      {"氏名 LIKE '*'", "1 2 3 4 5"},
      {"キーワード1 like 'a' or キーワード1 like 'b'", "1 2 3 4"},
      {"キーワード1 ='ａ'", "1 2 4"},
      {"キーワード1 = ''", "5"},
      {"氏名='見本 四'", "4"},
      {"住所1 like '*架空*' or 住所2 like '*架空*' or 住所3 like '*架空*'", "1 3"},
      {"住所1 like '*架空*' and 氏名 like '*三*'", "3"},
      {"住所1 like '*見本*' or 住所1 like '*架空*' and 氏名 like '*三*'", "2 3"},
      {"氏名 like '*さとう*' order by ID", "1 2 3"},
      {"氏名 like '*さとう*' order by ID ", "1 2 3"},
      {"氏名 like '*さとう*' order by ID desc", "3 2 1"},
      {"ID = 3", "3"},
      {"Id = 3", "3"},
      {"id=3 ", "3"},
      {"ID = 99", ""},
      {"ID >= 4", "4 5"},
      {"年齢 >=60", "2 3"},
      {"年齢 <= 60", "1 2"},
      {"年齢 > 60", "3"},
      {"年齢 like 60", "2"},
      {"tnum1 = 060", "2"},
      {"tnum1 < 60", "1"},
      {"yn1 = 0", "1 2 3 4 5"},
      {"yn1 = true", ""},
      {"yn1 <> -1", "1 2 3 4 5"},
      {"氏名 like '*＊*'", "5"},  // a full-width star is a letter
      {"住所1 like '*%*'", "4"},  // no wildcard in row-set criteria
      {"[氏名] like '*四'", "4"},
  };
  for (const Case& one : cases)
    EXPECT_EQ(hits(QString::fromUtf8(one.criteria)), QString::fromUtf8(one.ids)) << one.criteria;
}

TEST_F(CriteriaTest, AQuoteInASearchedTextGivesTheEnginesText) {
  for (const char* text : {"'", "a'b", "''", "'''", "*'", "' ", "'; DROP TABLE 臨床QV; --", "' and", "' or",
                           "x' y", "' or 1", "') or ('a'='a"}) {
    const QString answer = hits(QStringLiteral("氏名 like '*%1*' ").arg(QString::fromUtf8(text)));
    EXPECT_TRUE(answer.contains(QStringLiteral("構文"))) << text << ": " << answer.toStdString();
  }
  set.setFilter({});
  EXPECT_EQ(set.openRecordset()->recordCount(), 5) << "nothing else ran";
}

TEST_F(CriteriaTest, WrongQueriesAreTold) {
  for (const char* wrong :
       {"氏名", "氏名 like", "氏名 = 'a", "= 'a'", "氏名 == 'a'", "氏名 = 'a' 職業 = 'b'", "氏名 = 'a' order",
        "氏名 = 'a' order by", "氏名 = 'a' order by ID, ", "(氏名 = 'a')"})
    EXPECT_TRUE(hits(QString::fromUtf8(wrong)).contains(QStringLiteral("構文"))) << wrong;
  EXPECT_TRUE(hits(QStringLiteral("無い項目 = 'a'")).contains(QStringLiteral("無い項目")));
  EXPECT_TRUE(hits(QStringLiteral("氏名 = 'a' order by 無い項目")).contains(QStringLiteral("無い項目")));
  EXPECT_FALSE(set.findFirst(QStringLiteral("氏名 = 'a'b'")).ok());
  EXPECT_TRUE(set.noMatch());
}

TEST_F(CriteriaTest, NullFitsNothingButBlankTextDoes) {
  ASSERT_TRUE(set.addNew().ok());
  ASSERT_TRUE(set.update().ok());
  EXPECT_EQ(hits(QStringLiteral("氏名 like '*'")), QStringLiteral("1 2 3 4 5"));
  EXPECT_EQ(hits(QStringLiteral("住所1 = ''")), QStringLiteral("5"));
  EXPECT_EQ(hits(QStringLiteral("氏名 <> 'x'")), QStringLiteral("1 2 3 4 5"));
  EXPECT_EQ(hits(QStringLiteral("ID = 6")), QStringLiteral("6"));
}

TEST_F(CriteriaTest, SearchesFollowEveryWriteOfThisProgram) {
  const QString criteria = QStringLiteral("氏名 like '*ｻﾄｳ*'");
  EXPECT_EQ(hits(criteria), QStringLiteral("1 2 3"));
  set.setBookmark(2);
  ASSERT_TRUE(set.edit().ok());
  ASSERT_TRUE(set.setValue(QStringLiteral("氏名"), QStringLiteral("別 二")).ok());
  ASSERT_TRUE(set.update().ok());
  EXPECT_EQ(hits(criteria), QStringLiteral("1 3"));
  set.setBookmark(1);
  ASSERT_TRUE(set.remove().ok());
  EXPECT_EQ(hits(criteria), QStringLiteral("3"));
  add(set, {{QStringLiteral("氏名"), QStringLiteral("佐藤（サトウ）")}});
  EXPECT_EQ(hits(criteria), QStringLiteral("3 6"));
}

TEST(LikePattern, MatchesWholeTextsWithRunsAndSingleLetters) {
  const struct {
    const char16_t* pattern;
    const char16_t* text;
    bool fits;
  } cases[] = {{u"*", u"", true},         {u"?", u"", false},      {u"a*c", u"abbc", true},
               {u"a*c", u"ac", true},     {u"a*c", u"acd", false}, {u"*ab*ab", u"abab", true},
               {u"*ab*ab", u"ab", false}, {u"a?c", u"abc", true},  {u"a?c", u"ac", false},
               {u"?", u"𠮷", true},       {u"??", u"𠮷", false},   {u"**", u"x", true},
               {u"*a?", u"baab", true},   {u"", u"", true},        {u"", u"a", false},
               {u"%", u"%", true},        {u"%", u"a", false}};
  for (const auto& one : cases)
    EXPECT_EQ(LikePattern(QString::fromUtf16(one.pattern), Wildcard::RowSet).matches(one.text), one.fits)
        << QString::fromUtf16(one.pattern).toStdString() << " " << QString::fromUtf16(one.text).toStdString();
  EXPECT_TRUE(LikePattern(QStringLiteral("%月%"), Wildcard::Statement).matches(u"1月2日"));
  EXPECT_FALSE(LikePattern(QStringLiteral("*月*"), Wildcard::Statement).matches(u"1月2日"));
}

}  // namespace
}  // namespace store
