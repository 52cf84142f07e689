#include "frame/core/date_reader.h"

#include <gtest/gtest.h>

#include <random>

using namespace frame;

namespace {

struct Row {
  const char16_t* text;
  int year, month, day;
};

// Western years worked out by hand: 明治 1867+n, 大正 1911+n, 昭和 1925+n, 平成 1988+n, 令和 2018+n.
const Row kAccepted[] = {
    {u"2019/5/25", 2019, 5, 25},
    {u"2019/05/01", 2019, 5, 1},
    {u"2019-5-25", 2019, 5, 25},
    {u"2019.5.25", 2019, 5, 25},
    {u"2024年10月1日", 2024, 10, 1},
    {u"２０２４／１０／１", 2024, 10, 1},
    {u" 2024/ 5/ 1 ", 2024, 5, 1},
    {u"令和6年10月1日", 2024, 10, 1},
    {u"令和６年１０月１日", 2024, 10, 1},
    {u"令和 6年 5月 1日", 2024, 5, 1},
    {u"令和元年5月1日", 2019, 5, 1},
    {u"平成元年1月8日", 1989, 1, 8},
    {u"昭和64年1月7日", 1989, 1, 7},
    {u"大正1年7月30日", 1912, 7, 30},
    {u"明治45年7月29日", 1912, 7, 29},
    {u"平成31年5月1日", 2019, 5, 1},  // an old era written on
    {u"令和1年1月1日", 2019, 1, 1},   // before the era's first day
    {u"令和6/10/1", 2024, 10, 1},
    {u"令6.10.1", 2024, 10, 1},
    {u"R6/10/1", 2024, 10, 1},
    {u"r06/10/1", 2024, 10, 1},
    {u"s50.3.15", 1975, 3, 15},
    {u"H31-4-30", 2019, 4, 30},
    {u"令和6年2月29日", 2024, 2, 29},
    {u"令和6年10月1", 2024, 10, 1},
    {u"令和6年10月", 2024, 10, 1},
    {u"2024/10", 2024, 10, 1},
    {u"2024/10/1 9:30", 2024, 10, 1},
    {u"令和6年10月1日 13:05:59", 2024, 10, 1},
};

const char16_t* const kRefused[] = {u"",
                                    u" ",
                                    u"令和6年2月30日",
                                    u"令和5年2月29日",
                                    u"2023/2/29",
                                    u"2024/13/1",
                                    u"2024/0/1",
                                    u"2024/1/0",
                                    u"令和0年1月1日",
                                    u"24/10/1",
                                    u"10/1",
                                    u"20241001",
                                    u"令和6年",
                                    u"令和6年10",
                                    u"令和6",
                                    u"令和",
                                    u"慶応3年1月1日",
                                    u"6年10月1日",
                                    u"2024/10/1x",
                                    u"2024/10-1",
                                    u"2024/10/1 24:00",
                                    u"2024/10/1 9:60",
                                    u"元年5月1日",
                                    u"2024//1",
                                    u"R",
                                    u"R1",
                                    u"年月日",
                                    u"令和6年10月1日日",
                                    u"2024年10/1",
                                    u"99999/1/1",
                                    u"令和1000年1月1日"};

}  // namespace

TEST(DateReader, AcceptsTheFormsOfTheDateTest) {
  for (const Row& row : kAccepted) {
    const auto read = readDate(QStringView(row.text), true);
    ASSERT_TRUE(read) << QString::fromUtf16(row.text).toStdString();
    EXPECT_EQ(read->date, QDate(row.year, row.month, row.day)) << QString::fromUtf16(row.text).toStdString();
  }
}

TEST(DateReader, RefusesWhatIsNoDate) {
  for (const char16_t* text : kRefused)
    EXPECT_FALSE(readDate(QStringView(text), true)) << QString::fromUtf16(text).toStdString();
}

TEST(DateReader, WithoutTheEraEveryTextOfReiwaIsRefusedAndNothingElse) {
  for (const Row& row : kAccepted) {
    const QChar first = QString::fromUtf16(row.text)[0];
    const bool reiwa = first == u'令' || first == u'R' || first == u'r';
    EXPECT_EQ(readDate(QStringView(row.text), false).has_value(), !reiwa)
        << QString::fromUtf16(row.text).toStdString();
  }
}

TEST(DateReader, ReadsBackEveryDayInEveryForm) {
  for (QDate day(1868, 1, 25); day < QDate(2060, 1, 1); day = day.addDays(3)) {
    const Era* era = eraOf(day);
    const QString inWords = era->nameText() + QString::number(day.year() - era->baseYear()) +
                            QStringLiteral("年%1月%2日").arg(day.month()).arg(day.day());
    EXPECT_EQ(readDate(inWords, true)->date, day);
    EXPECT_EQ(readDate(day.toString(u"yyyy/M/d"), true)->date, day);
    EXPECT_EQ(readDate(day.toString(u"yyyy-MM-dd"), false)->date, day);
  }
}

TEST(DateReader, AnyTextIsReadOrRefusedAndWhatIsReadIsARealDay) {
  std::mt19937 random(20190501);
  const QString alphabet = QStringLiteral("令和平成昭RrHs元年月日/.-: 0123456789０９　x");
  int accepted = 0;
  for (int round = 0; round < 200000; ++round) {
    QString text;
    for (auto n = random() % 14; n > 0; --n)
      text += alphabet[static_cast<qsizetype>(random() % static_cast<unsigned>(alphabet.size()))];
    if (const auto read = readDate(text, true)) {
      EXPECT_TRUE(read->date.isValid());
      ++accepted;
    }
  }
  EXPECT_GT(accepted, 0);
}
