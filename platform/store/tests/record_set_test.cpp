#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

const QString kPatients = QStringLiteral("臨床QV2000N.mdb");
const QString kPatientTable = QStringLiteral("臨床QV");
const QString kName = QStringLiteral("氏名");

class RecordSetTest : public StoreTest {
 protected:
  void SetUp() override {
    fresh(kPatients);
    set = openSet(kPatients, kPatientTable);
  }
  RecordSet set;
};

TEST_F(RecordSetTest, AnEmptyTableStandsBeforeAndBehindItsRows) {
  EXPECT_EQ(set.recordCount(), 0);
  EXPECT_TRUE(set.bof());
  EXPECT_TRUE(set.eof());
  EXPECT_EQ(set.absolutePosition(), -1);
  set.moveNext();
  set.moveLast();
  EXPECT_TRUE(set.eof());
  EXPECT_TRUE(set.value(kName).isNull());
  EXPECT_FALSE(set.edit().ok());
  EXPECT_FALSE(set.remove().ok());
}

TEST_F(RecordSetTest, AddingLeavesTheCurrentRowAndGivesTheNewRowsBookmark) {
  const qint64 first = add(set, {{kName, QStringLiteral("見本 一")}});
  set.moveFirst();
  const qint64 second = add(set, {{kName, QStringLiteral("見本 二")}});
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 2);
  EXPECT_EQ(set.value(kName), QStringLiteral("見本 一"));
  set.setBookmark(set.lastModified());
  EXPECT_EQ(set.value(kName), QStringLiteral("見本 二"));
  EXPECT_EQ(set.absolutePosition(), 1);
}

TEST_F(RecordSetTest, NullAndBlankTextStayDifferent) {
  add(set, {{kName, QString()}, {QStringLiteral("職業"), QStringLiteral("")}});
  set.moveFirst();
  EXPECT_TRUE(set.value(kName).isNull());
  EXPECT_FALSE(set.value(QStringLiteral("職業")).isNull());
  EXPECT_TRUE(set.value(QStringLiteral("職業")).isEmpty());
  EXPECT_TRUE(set.value(QStringLiteral("無い項目")).isNull());
}

TEST_F(RecordSetTest, YesNoReadsMinusOneOrZeroAndNeverNull) {
  const QString tick = QStringLiteral("yn1");
  add(set, {{kName, QStringLiteral("見本")}});
  set.moveFirst();
  EXPECT_EQ(set.value(tick), QStringLiteral("0"));
  ASSERT_TRUE(set.edit().ok());
  ASSERT_TRUE(set.setValue(tick, QStringLiteral("1")).ok());
  ASSERT_TRUE(set.update().ok());
  EXPECT_EQ(set.value(tick), QStringLiteral("-1"));
}

TEST_F(RecordSetTest, AnIdIsNeverUsedTwice) {
  add(set, {{kName, QStringLiteral("見本 一")}});
  add(set, {{kName, QStringLiteral("見本 二")}});
  set.moveLast();
  ASSERT_TRUE(set.remove().ok());
  EXPECT_EQ(add(set, {{kName, QStringLiteral("見本 三")}}), 3);
}

TEST_F(RecordSetTest, RemovingStandsBeforeTheNextRow) {
  for (const char* name : {"a", "b", "c"}) add(set, {{kName, QString::fromLatin1(name)}});
  set.setAbsolutePosition(1);
  ASSERT_TRUE(set.remove().ok());
  EXPECT_EQ(set.value(kName), QStringLiteral("a"));
  set.moveNext();
  EXPECT_EQ(set.value(kName), QStringLiteral("c"));
  set.moveFirst();
  ASSERT_TRUE(set.remove().ok());
  EXPECT_TRUE(set.bof());
  set.moveNext();
  EXPECT_EQ(set.value(kName), QStringLiteral("c"));
}

TEST_F(RecordSetTest, TextsComeBackByteForByte) {
  QStringList texts = {QStringLiteral("ﾊﾝｶｸ 全角Ａ～\r\n\t\"'%*?[]"), QStringLiteral("𠮷野家 髙﨑"),
                       QString(QChar(u'a')) + QChar(u'\0') + QChar(u'b'), QString(QChar(0xD800)),
                       QString(255, QChar(u'あ'))};
  for (const QString& text : texts) add(set, {{kName, text}});
  EXPECT_EQ(column(set, kName), texts);
}

TEST_F(RecordSetTest, LongerTextIsRefusedWithTheColumnsNameAndNeverCut) {
  ASSERT_TRUE(set.addNew().ok());
  ASSERT_TRUE(set.setValue(kName, QString(256, QChar(u'あ'))).ok());
  const Done done = set.update();
  ASSERT_FALSE(done.ok());
  EXPECT_TRUE(done.fault().message.contains(kName));
  EXPECT_TRUE(set.adding());
  EXPECT_EQ(set.value(kName).size(), 256) << "the entry stays for the user to shorten";
  EXPECT_EQ(set.recordCount(), 0);
  set.cancelUpdate();
  EXPECT_EQ(add(set, {{QStringLiteral("tmemo1"), QString(5000, QChar(u'長'))}}), 1);
}

TEST_F(RecordSetTest, NumberColumnsRefuseWhatIsNoNumber) {
  const QString number = QStringLiteral("tnum1");
  for (const char* wrong : {"12a", "1.5", "99999999999"}) {
    ASSERT_TRUE(set.addNew().ok());
    ASSERT_TRUE(set.setValue(number, QString::fromLatin1(wrong)).ok());
    const Done done = set.update();
    ASSERT_FALSE(done.ok()) << wrong;
    EXPECT_TRUE(done.fault().message.contains(number));
  }
  set.cancelUpdate();
  add(set, {{number, QStringLiteral("-12")}});
  set.moveFirst();
  EXPECT_EQ(set.value(number), QStringLiteral("-12"));
}

TEST_F(RecordSetTest, ColumnsAreFoundWhateverTheCaseButNotTheWidth) {
  add(set, {{QStringLiteral("T1"), QStringLiteral("x")}});
  set.moveFirst();
  EXPECT_EQ(set.value(QStringLiteral("t1")), QStringLiteral("x"));
  EXPECT_EQ(set.value(QStringLiteral("id")), QStringLiteral("1"));
  EXPECT_TRUE(set.value(QStringLiteral("ｔ1")).isNull());
  ASSERT_TRUE(set.addNew().ok());
  EXPECT_FALSE(set.setValue(QStringLiteral("ｔ1"), QStringLiteral("x")).ok());
}

TEST_F(RecordSetTest, ASetOnTheSameFileSeesWhatAnotherSetWrote) {
  add(set, {{kName, QStringLiteral("前")}});
  set.moveFirst();
  EXPECT_EQ(set.value(kName), QStringLiteral("前"));
  RecordSet other = openSet(kPatients, kPatientTable);
  ASSERT_TRUE(other.edit().ok());
  ASSERT_TRUE(other.setValue(kName, QStringLiteral("後")).ok());
  ASSERT_TRUE(other.update().ok());
  EXPECT_EQ(set.value(kName), QStringLiteral("後"));
  EXPECT_EQ(set.valueAt(0, kName), QStringLiteral("後"));
}

TEST_F(RecordSetTest, CancelGivesTheStoredValueBack) {
  add(set, {{kName, QStringLiteral("前")}});
  set.moveFirst();
  ASSERT_TRUE(set.edit().ok());
  ASSERT_TRUE(set.setValue(kName, QStringLiteral("後")).ok());
  EXPECT_EQ(set.value(kName), QStringLiteral("後"));
  set.cancelUpdate();
  EXPECT_EQ(set.value(kName), QStringLiteral("前"));
  EXPECT_FALSE(set.editing());
}

TEST_F(RecordSetTest, AFilteredSetIsACopyAndFiltersNarrow) {
  for (const char* name : {"ab", "b", "ac", "abc"}) add(set, {{kName, QString::fromLatin1(name)}});
  set.setFilter(QStringLiteral("氏名 like '*a*' "));
  Result<RecordSet> a = set.openRecordset();
  ASSERT_TRUE(a.ok());
  EXPECT_EQ(column(*a, kName), QStringList({"ab", "ac", "abc"}));
  EXPECT_EQ(set.recordCount(), 4);
  a->setFilter(QStringLiteral("氏名 like '*b*'"));
  a->setSort(QStringLiteral("ID DESC"));
  Result<RecordSet> both = a->openRecordset();
  ASSERT_TRUE(both.ok());
  EXPECT_EQ(column(*both, kName), QStringList({"abc", "ab"}));
}

TEST_F(RecordSetTest, FindWalksTheHitsAndKeepsTheRowWhereNoneIsLeft) {
  for (const char* name : {"a", "b", "a", "c"}) add(set, {{kName, QString::fromLatin1(name)}});
  const QString criteria = QStringLiteral("氏名 = 'A'");
  ASSERT_TRUE(set.findFirst(criteria).ok());
  EXPECT_EQ(set.absolutePosition(), 0);
  ASSERT_TRUE(set.findNext(criteria).ok());
  EXPECT_EQ(set.absolutePosition(), 2);
  EXPECT_FALSE(set.noMatch());
  ASSERT_TRUE(set.findNext(criteria).ok());
  EXPECT_TRUE(set.noMatch());
  EXPECT_EQ(set.absolutePosition(), 2);
}

TEST_F(RecordSetTest, RefreshKeepsFilterOrderAndRow) {
  for (const char* name : {"a1", "b", "a2"}) add(set, {{kName, QString::fromLatin1(name)}});
  set.setFilter(QStringLiteral("氏名 like 'a*'"));
  set.setSort(QStringLiteral("氏名 DESC"));
  Result<RecordSet> some = set.openRecordset();
  ASSERT_TRUE(some.ok());
  some->moveLast();
  add(set, {{kName, QStringLiteral("a3")}});
  ASSERT_TRUE(some->refresh().ok());
  EXPECT_EQ(column(*some, kName), QStringList({"a3", "a2", "a1"}));
  EXPECT_EQ(some->value(kName), QStringLiteral("a1"));
}

}  // namespace
}  // namespace store
