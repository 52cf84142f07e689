#include "platform/store/text_column.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/store/criteria.h"

namespace store {
namespace {

QString word(std::mt19937& random, unsigned letters) {
  QString text;
  for (unsigned length = random() % 4; length > 0; --length)
    text += QChar(static_cast<char16_t>(u'ア' + 2 * (random() % letters)));
  return random() % 9 == 0 ? QString() : text.isNull() ? QStringLiteral("") : text;
}

QString shown(const TextColumn& column, size_t row) {
  const uint32_t number = (*column.numbers())[row];
  return number == ColumnTexts::kNull ? QString() : column.texts()->text(number).toString();
}

TEST(TextColumn, HoldsItsRowsAndMarksTheTextsThatHoldTheNeedle) {
  std::mt19937 random{9};
  TextColumn column;
  std::vector<QString> model;
  for (int step = 0; step < 2000; ++step) {
    const QString text = word(random, 3);
    const size_t row = model.empty() ? 0 : random() % model.size();
    const unsigned kind = model.size() < 5 ? 0 : random() % 4;
    if (kind < 2) {
      column.append(text);
      model.push_back(text);
    } else if (kind == 2) {
      column.replace(row, text);
      model[row] = text;
    } else {
      column.erase(row);
      model.erase(model.begin() + static_cast<std::ptrdiff_t>(row));
    }
    const QString part = word(random, 3);
    if (part.isEmpty()) continue;
    std::vector<char> marks(column.texts()->count(), 0);
    const LikePattern pattern(u'*' + part + u'*', Wildcard::RowSet);
    column.texts()->markContaining(*pattern.contained(), marks);
    ASSERT_EQ(column.numbers()->size(), model.size());
    for (size_t at = 0; at < model.size(); ++at) {
      ASSERT_EQ(shown(column, at), model[at]) << step;
      ASSERT_EQ(shown(column, at).isNull(), model[at].isNull()) << step;
      ASSERT_EQ(marks[(*column.numbers())[at]] != 0, model[at].contains(part)) << step;
    }
  }
}

TEST(TextColumn, EqualTextsShareOneNumberWhileTheyAreFew) {
  TextColumn column;
  for (int row = 0; row < 100000; ++row) column.append(QString::number(row * 7919LL % 30011));
  EXPECT_EQ(column.texts()->count(), 30012u) << "and NULL";
}

TEST(TextColumn, ManyDifferentTextsStayWhatTheyAre) {
  TextColumn column;
  for (int row = 0; row < 100000; ++row) column.append(QString::number(row * 7919LL % 100003));
  for (int row = 0; row < 100000; row += 97)
    EXPECT_EQ(shown(column, static_cast<size_t>(row)), QString::number(row * 7919LL % 100003));
}

TEST(TextColumn, WhoHoldsTheNumbersKeepsThemThroughLaterChanges) {
  TextColumn column;
  for (const char16_t* text : {u"一", u"二", u"三"}) column.append(text);
  const auto held = column.numbers();
  column.replace(0, u"四");
  column.erase(1);
  EXPECT_EQ(held->size(), 3u);
  EXPECT_EQ(column.texts()->text((*held)[0]), u"一");
  EXPECT_EQ(shown(column, 0), QStringLiteral("四"));
  EXPECT_EQ(shown(column, 1), QStringLiteral("三"));
}

}  // namespace
}  // namespace store
