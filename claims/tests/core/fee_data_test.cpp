// Control totals of the fee tables, added up apart from the program when the table was entered: a fee that
// was changed, moved or swapped shows in the line of its edition.

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>

namespace claims {
namespace {

struct Total {
  const char16_t* file;
  const char16_t* id;
  const char16_t* from;  ///< first day that the edition holds for
  int filled;            ///< fees with a value
  int sum;               ///< of the fees in yen
  int weighted;          ///< of each fee times the number of its column, the first fee being 1
};

const Total kTotals[] = {
    {u"料金設定2010", u"1", u"2006/06/01", 23, 24640, 429850},
    {u"料金設定2010", u"2", u"2008/06/01", 24, 24735, 431140},
    {u"料金設定2013", u"1", u"2010/06/01", 24, 25555, 436145},
    {u"料金設定2016", u"1", u"2013/05/01", 24, 25930, 437400},
    {u"料金設定2016", u"2", u"2014/04/01", 24, 26340, 439825},
    {u"料金設定2018", u"1", u"2016/10/01", 24, 25890, 428175},
    {u"料金設定2019", u"1", u"2018/06/01", 18, 16030, 185060},
    {u"料金設定2019", u"2", u"2018/10/01", 20, 16630, 200960},
    {u"料金設定2020", u"1", u"2018/06/01", 18, 16030, 185060},
    {u"料金設定2020", u"2", u"2018/10/01", 20, 16630, 200960},
    {u"料金設定2020", u"3", u"2019/10/01", 20, 17020, 204030},
    {u"料金設定2022", u"1", u"2020/12/01", 20, 17110, 205970},
    {u"料金設定2024", u"1", u"2022/06/01", 20, 17229, 207750},
    {u"料金設定2000", u"1", u"2024/06/01", 20, 18930, 222070},
    {u"料金設定2000", u"2", u"2024/10/01", 54, 94480, 3171490},
    {u"料金設定o2016", u"1", u"2008/06/01", 24, 24735, 431140},
    {u"料金設定o2016", u"2", u"2010/06/01", 24, 25555, 436145},
    {u"料金設定o2016", u"3", u"2013/05/01", 24, 25930, 437400},
    {u"料金設定o2016", u"4", u"2014/04/01", 24, 26340, 439825},
    {u"料金設定o2018", u"1", u"2016/10/01", 24, 25890, 428175},
    {u"料金設定o2000", u"1", u"2018/06/01", 18, 16030, 185060},
    {u"料金設定o2000", u"2", u"2018/10/01", 20, 16630, 200960},
    {u"料金設定o2000", u"3", u"2019/10/01", 20, 17020, 204030},
    {u"料金設定o2000", u"4", u"2020/12/01", 20, 17110, 205970},
    {u"料金設定o2000", u"5", u"2022/06/01", 20, 17229, 207750},
    {u"料金設定o2000", u"6", u"2024/06/01", 20, 18930, 222070},
    {u"料金設定o2000", u"7", u"2024/10/01", 54, 94480, 3171490},
};

TEST(FeeData, EachEditionHasItsControlTotals) {
  QFile file(QStringLiteral(SOURCE_FOLDER "/data/fees/editions.csv"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QStringList lines = QString::fromUtf8(file.readAll()).trimmed().split(u'\n');
  ASSERT_EQ(lines.size() - 1, qsizetype(std::size(kTotals)));
  for (qsizetype i = 1; i < lines.size(); ++i) {
    const Total& total = kTotals[i - 1];
    const QStringList cells = lines[i].trimmed().split(u',');
    SCOPED_TRACE(cells.mid(0, 3).join(u' ').toStdString());
    EXPECT_EQ(cells[0], QStringView(total.file));
    EXPECT_EQ(cells[1], QStringView(total.id));
    EXPECT_EQ(cells[2], QStringView(total.from));
    constexpr int kFirstFee = 3;
    int filled = 0, sum = 0, weighted = 0;
    for (int column = kFirstFee; column < cells.size(); ++column) {
      if (cells[column].isEmpty()) continue;
      ++filled;
      sum += cells[column].toInt();
      weighted += (column - kFirstFee + 1) * cells[column].toInt();
    }
    EXPECT_EQ(filled, total.filled);
    EXPECT_EQ(sum, total.sum);
    EXPECT_EQ(weighted, total.weighted);
  }
}

}  // namespace
}  // namespace claims
