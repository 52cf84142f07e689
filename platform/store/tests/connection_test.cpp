#include "platform/store/connection.h"

#include "platform/store/tests/store_fixture.h"

namespace store {
namespace {

class ConnectionTest : public StoreTest {
 protected:
  Connection connect(const char* file) const {
    Connection connection;
    const Done opened = connection.open(connectionString(path(QString::fromUtf8(file))));
    EXPECT_TRUE(opened.ok()) << (opened ? "" : opened.fault().message.toStdString());
    return connection;
  }
  QString read(Connection& connection, const QString& source, const QString& shown) const {
    Result<Cursor> cursor = Cursor::open(connection, source);
    if (!cursor) return cursor.fault().message;
    QStringList values;
    for (Result<bool> row = cursor->next(); row.ok() && *row; row = cursor->next())
      values += cursor->value(shown);
    return values.join(u' ');
  }
};

TEST_F(ConnectionTest, EverySelectOfTheSubset) {
  fresh(QStringLiteral("保険申請2000_1.mdb"));
  RecordSet set = openSet(QStringLiteral("保険申請2000_1.mdb"), QStringLiteral("保険申請"));
  const char* rows[][3] = {
      {"鍼灸", "2", "令和6年9月1日"}, {"あマ", "1", "令和6年10月1日"}, {"灸", "1", ""}, {"鍼", "3", ""}};
  for (const auto& [kind, rank, until] : rows)
    add(set, {{QStringLiteral("施術内容"), QString::fromUtf8(kind)},
              {QStringLiteral("保険順位"), QString::fromUtf8(rank)},
              {QStringLiteral("要加療期間2"), QString::fromUtf8(until)}});
  Connection connection = connect("保険申請2000_1.mdb");
  const char* cases[][2] = {
      {"SELECT * FROM 保険申請", "1 2 3 4"},
      {"SELECT * FROM 保険申請 ORDER BY ID", "1 2 3 4"},
      {"SELECT * FROM 保険申請 ORDER BY ID desc", "4 3 2 1"},
      {"SELECT * FROM 保険申請 where id = 3", "3"},
      {"SELECT * FROM 保険申請 ORDER BY ID desc,保険順位,被保険者との続柄 desc,被保険者のフリガナ,保険者番号",
       "4 3 2 1"},
      {"SELECT * FROM 保険申請 ORDER BY 保険順位,保険の種類,保険者番号,被保険者との続柄 "
       "desc,被保険者のフリガナ",
       "2 3 1 4"},
      {"SELECT * FROM 保険申請 ORDER BY "
       "保険順位,保険の種類,保険者番号,生年月日,一部負担金,一部負担金2,合計,請求額",
       "2 3 1 4"},
      {"SELECT * FROM 保険申請 WHERE 施術内容 = '鍼灸' or 施術内容 = '鍼' or  施術内容 = '灸' ORDER BY ID "
       "desc,保険順位,被保険者との続柄 desc,被保険者のフリガナ,保険者番号",
       "4 3 1"},
      {"SELECT ID,施術内容 FROM 保険申請 WHERE 要加療期間2 like '%9月%'", "1"},
  };
  for (const auto& [source, ids] : cases)
    EXPECT_EQ(read(connection, QString::fromUtf8(source), QStringLiteral("ID")), QString::fromUtf8(ids))
        << source;
  Result<Cursor> some =
      Cursor::open(connection, QStringLiteral("SELECT 保険の種類,保険者名称,保険者番号 FROM 保険申請"));
  ASSERT_TRUE(some.ok());
  EXPECT_EQ(some->columns(), QStringList({QStringLiteral("保険の種類"), QStringLiteral("保険者名称"),
                                          QStringLiteral("保険者番号")}));
  ASSERT_TRUE(*some->next());
  EXPECT_TRUE(some->value(QStringLiteral("施術内容")).isNull());
}

TEST_F(ConnectionTest, AWalkReadsEveryColumnAndPassesRowsThatWereDeleted) {
  const QString file = QStringLiteral("同意医師2000.mdb"), table = QStringLiteral("同意医師");
  const QStringList columns = {QStringLiteral("氏名"), QStringLiteral("フリガナ"), QStringLiteral("病院名"),
                               QStringLiteral("TEL"), QStringLiteral("住所")};
  fresh(file);
  RecordSet set = openSet(file, table);
  for (int row = 1; row <= 6; ++row) {
    QList<std::pair<QString, QString>> values;
    for (const QString& name : columns) values += {name, name + QString::number(row)};
    add(set, values);
  }
  Connection connection = connect("同意医師2000.mdb");
  Result<Cursor> cursor = Cursor::open(connection, QStringLiteral("SELECT * FROM 同意医師"));
  ASSERT_TRUE(cursor.ok());
  set.setBookmark(4);
  ASSERT_TRUE(set.remove().ok());
  QStringList seen;
  for (Result<bool> row = cursor->next(); row.ok() && *row; row = cursor->next()) {
    const QString number = cursor->value(QStringLiteral("ID"));
    seen += number;
    for (const QString& name : columns) EXPECT_EQ(cursor->value(name), name + number);
    EXPECT_EQ(cursor->value(columns.last()), columns.last() + number);
  }
  EXPECT_EQ(seen.join(u' '), QStringLiteral("1 2 3 5 6"));
}

TEST_F(ConnectionTest, VisitsOfAMonthByNameAndText) {
  fresh(QStringLiteral("カルテ2データ2000.mdb"));
  RecordSet set = openSet(QStringLiteral("カルテ2データ2000.mdb"), QStringLiteral("カルテ"));
  for (const char* day : {"令和6年10月1日", "令和6年1月10日", "令和6年10月2日"})
    add(set, {{QStringLiteral("氏名"), QStringLiteral("見本 太郎")},
              {QStringLiteral("治療日時"), QString::fromUtf8(day)}});
  add(set, {{QStringLiteral("氏名"), QStringLiteral("見本 次郎")},
            {QStringLiteral("治療日時"), QStringLiteral("令和6年10月1日")}});
  Connection connection = connect("カルテ2データ2000.mdb");
  EXPECT_EQ(read(connection,
                 QStringLiteral(
                     "SELECT * FROM カルテ WHERE 氏名 = '見本 太郎' AND 治療日時 like '%10月%' ORDER BY ID"),
                 QStringLiteral("ID")),
            QStringLiteral("1 3"));
}

TEST_F(ConnectionTest, UpdatesWriteTheirRowsAndNothingElse) {
  fresh(QStringLiteral("保険申請2000_1.mdb"));
  RecordSet set = openSet(QStringLiteral("保険申請2000_1.mdb"), QStringLiteral("保険申請"));
  for (int row = 0; row < 3; ++row) add(set, {});
  Connection connection = connect("保険申請2000_1.mdb");
  ASSERT_TRUE(connection.execute(QStringLiteral("UPDATE 保険申請 SET 総括表 = 1 WHERE ID = 2")).ok());
  EXPECT_EQ(column(set, QStringLiteral("総括表")), QStringList({QString(), QStringLiteral("1"), QString()}));
  ASSERT_TRUE(connection.execute(QStringLiteral("UPDATE 保険申請 SET 合計 =100, 請求額 = '70'")).ok());
  EXPECT_EQ(column(set, QStringLiteral("請求額")).join(u' '), QStringLiteral("70 70 70"));
}

TEST_F(ConnectionTest, WhatIsOutsideTheSubsetIsRefused) {
  fresh(QStringLiteral("同意医師2000.mdb"));
  RecordSet set = openSet(QStringLiteral("同意医師2000.mdb"), QStringLiteral("同意医師"));
  add(set, {{QStringLiteral("氏名"), QStringLiteral("架空")}});
  Connection connection = connect("同意医師2000.mdb");
  for (const char* wrong :
       {"DELETE FROM 同意医師", "DROP TABLE 同意医師", "INSERT INTO 同意医師 (氏名) VALUES ('a')",
        "PRAGMA user_version=1", "UPDATE 同意医師 SET 氏名 = 'a'; DROP TABLE 同意医師",
        "UPDATE 同意医師 SET 氏名 = 'a' WHERE ID = 1; DELETE", "UPDATE 同意医師 SET 氏名 = 'a'b'",
        "UPDATE 同意医師 SET", "UPDATE 無い SET a = 1", "UPDATE 同意医師 SET 無い = 1",
        "ALTER TABLE 同意医師 DROP COLUMN 氏名", "ALTER TABLE 同意医師 ADD COLUMN x blob", "",
        "SELECT * FROM 同意医師"})
    EXPECT_FALSE(connection.execute(QString::fromUtf8(wrong)).ok()) << wrong;
  for (const char* wrong : {"SELECT FROM 同意医師", "SELECT * FROM 無い", "SELECT 無い FROM 同意医師",
                            "SELECT * 同意医師", "SELECT * FROM 同意医師 WHERE",
                            "SELECT * FROM 同意医師; DROP TABLE 同意医師", "UPDATE 同意医師 SET 氏名 = 'a'"})
    EXPECT_FALSE(Cursor::open(connection, QString::fromUtf8(wrong)).ok()) << wrong;
  EXPECT_EQ(column(set, QStringLiteral("氏名")), QStringList(QStringLiteral("架空")));
}

TEST_F(ConnectionTest, TablesAreFoundWhateverTheCaseAndTheEnginesOwnAreNot) {
  fresh(QStringLiteral("CLmoji2000.mdb"));
  RecordSet set = openSet(QStringLiteral("CLmoji2000.mdb"), QStringLiteral("CLmoji"));
  add(set, {{QStringLiteral("moji"), QStringLiteral("前")}});
  set.moveFirst();
  Connection connection = connect("CLmoji2000.mdb");
  EXPECT_EQ(
      read(connection, QStringLiteral("select * from clmoji where moji like '%前%'"), QStringLiteral("moji")),
      QStringLiteral("前"));
  ASSERT_TRUE(connection.execute(QStringLiteral("update CLMOJI set MOJI = '後' where id = 1")).ok());
  EXPECT_EQ(set.value(QStringLiteral("moji")), QStringLiteral("後"));
  EXPECT_EQ(
      read(connection, QStringLiteral("select * from clmoji where moji like '%後%'"), QStringLiteral("ID")),
      QStringLiteral("1"));
  for (const char* own : {"sqlite_sequence", "sqlite_master", "sqlite_schema"})
    EXPECT_FALSE(Cursor::open(connection, QStringLiteral("SELECT * FROM ") + QLatin1String(own)).ok()) << own;
}

TEST_F(ConnectionTest, AGrowthRunAddsColumnsOnceAndInAnyType) {
  fresh(QStringLiteral("同意医師2000.mdb"));
  RecordSet set = openSet(QStringLiteral("同意医師2000.mdb"), QStringLiteral("同意医師"));
  add(set, {{QStringLiteral("氏名"), QStringLiteral("架空")}});
  Connection connection = connect("同意医師2000.mdb");
  EXPECT_FALSE(*connection.hasColumn(QStringLiteral("同意医師"), QStringLiteral("e1")));
  const char* types[][2] = {
      {"新TEXT255", "TEXT(255)"}, {"新TEXT", "TEXT"}, {"新integer", "integer"}, {"新yesno", "yesno"}};
  for (const auto& [name, type] : types)
    ASSERT_TRUE(connection
                    .execute(QStringLiteral("ALTER TABLE 同意医師 ADD COLUMN %1 %2")
                                 .arg(QString::fromUtf8(name), QString::fromLatin1(type)))
                    .ok())
        << type;
  EXPECT_TRUE(*connection.hasColumn(QStringLiteral("同意医師"), QStringLiteral("新yesno")));
  EXPECT_FALSE(connection.execute(QStringLiteral("ALTER TABLE 同意医師 ADD COLUMN 新yesno yesno")).ok());
  ASSERT_TRUE(set.refresh().ok());
  EXPECT_EQ(set.value(QStringLiteral("新yesno")), QStringLiteral("0"));
  EXPECT_TRUE(set.value(QStringLiteral("新integer")).isNull());
  ASSERT_TRUE(set.edit().ok());
  ASSERT_TRUE(set.setValue(QStringLiteral("新TEXT"), QString(1000, u'あ')).ok());
  ASSERT_TRUE(set.setValue(QStringLiteral("新yesno"), QStringLiteral("-1")).ok());
  ASSERT_TRUE(set.update().ok());
  EXPECT_EQ(set.value(QStringLiteral("新TEXT")).size(), 1000);
  ASSERT_TRUE(set.edit().ok());
  ASSERT_TRUE(set.setValue(QStringLiteral("新TEXT255"), QString(256, u'あ')).ok());
  EXPECT_FALSE(set.update().ok());
}

TEST_F(ConnectionTest, AConnectionStringIsReadInBothSpellings) {
  fresh(QStringLiteral("保険者2000.mdb"));
  for (const char* form :
       {"provider=Microsoft.jet.OLEDB.4.0;data source=%1", "provider=Microsoft.jet.OLEDB.4.0;Data source=%1",
        "provider=Microsoft.jet.OLEDB.4.0;Data source=%1;"}) {
    Connection connection;
    EXPECT_TRUE(connection.open(QString::fromLatin1(form).arg(path(QStringLiteral("保険者2000.mdb")))).ok())
        << form;
  }
  Connection connection;
  EXPECT_FALSE(connection.open(QStringLiteral("保険者2000.mdb")).ok());
  const Done missing = connection.open(connectionString(path(QStringLiteral("無い.mdb"))));
  ASSERT_FALSE(missing.ok());
  EXPECT_TRUE(missing.fault().message.contains(QStringLiteral("無い.mdb")));
  EXPECT_FALSE(connection.execute(QStringLiteral("UPDATE 保険者 SET 名称 = 'a'")).ok());
}

}  // namespace
}  // namespace store
