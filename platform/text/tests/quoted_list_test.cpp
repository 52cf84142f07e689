#include "platform/text/quoted_list.h"

#include <gtest/gtest.h>

#include <random>

using namespace text;

namespace {

struct Row {
  const char16_t* text;
  QStringList fields;
};

QString of(const char16_t* text) { return QString::fromUtf16(text); }

}  // namespace

TEST(QuotedList, EveryFieldIsQuotedAndTheRecordEndsWithCrLf) {
  EXPECT_EQ(writeQuotedList({"a", "", "b,c"}), QStringLiteral("\"a\",\"\",\"b,c\"\r\n"));
  EXPECT_EQ(writeQuotedList({"", ""}), QStringLiteral("\"\",\"\"\r\n"));
  EXPECT_EQ(writeQuotedList({"5\""}), QStringLiteral("\"5\"\"\"\r\n"));
}

TEST(QuotedList, ReadingToleratesWhatHandsAndOlderProgramsWrite) {
  const Row rows[] = {
      {u"\"a\",\"b\"\r\n", {"a", "b"}},
      {u"\"a\",\"b\"", {"a", "b"}},
      {u"a, b ,\"c\"\n", {"a", "b", "c"}},
      {u"\"a\" , \"b\"\r", {"a", "b"}},
      {u"\"a,b\",\"\"\r\n", {"a,b", ""}},
      {u"\"a\r\nb\",c", {"a\r\nb", "c"}},
      {u"\"5\" 3\",x", {"5\" 3", "x"}},
      {u"\"a\",\"never closed", {"a", "never closed"}},
      {u"\"\"\"\",\"\"", {"\"", ""}},
      {u"a,", {"a", ""}},
      {u",", {"", ""}},
      {u"\"a\"\r\n\u001A", {"a"}},
      {u"", {}},
      {u"\r\n\r\n", {}},
      {u"1\n\n2\n", {"1", "2"}},
  };
  for (const Row& row : rows)
    EXPECT_EQ(readQuotedList(of(row.text)), row.fields) << of(row.text).toStdString();
}

TEST(QuotedList, RecordsKeepTheirLines) {
  const QList<QStringList> expected = {{"a", "b"}, {"c"}, {"d", ""}};
  EXPECT_EQ(readQuotedRecords(QStringLiteral("\"a\",\"b\"\r\n\"c\"\n\nd,\n")), expected);
}

TEST(QuotedList, AnyTextReadsBackAsItWasWritten) {
  std::mt19937 random(20241001);
  const QString alphabet = QStringLiteral("\"\",, \t\r\n'あﾞ￥\\;a0");
  for (int round = 0; round < 20000; ++round) {
    QStringList fields;
    const auto count = 1 + random() % 5;
    for (unsigned i = 0; i < count; ++i) {
      QString field(QLatin1String(""));
      for (auto n = random() % 6; n > 0; --n)
        field += alphabet[static_cast<int>(random() % static_cast<unsigned>(alphabet.size()))];
      fields += field;
    }
    EXPECT_EQ(readQuotedRecords(writeQuotedList(fields)), QList<QStringList>{fields});
  }
}

TEST(QuotedList, ReadingEndsOnAnyInput) {
  std::mt19937 random(7);
  const QString alphabet = QStringLiteral("\"\",,\r\n ab");
  for (int round = 0; round < 20000; ++round) {
    QString text;
    for (auto n = random() % 24; n > 0; --n)
      text += alphabet[static_cast<int>(random() % static_cast<unsigned>(alphabet.size()))];
    EXPECT_LE(readQuotedList(text).size(), text.size() + 1);
  }
}
