#include "platform/report/prp_loader.h"

#include <gtest/gtest.h>

#include <QFile>
#include <map>
#include <random>

#include "platform/report/form_check.h"

namespace report {
namespace {

using Files = std::map<QString, QString>;

text::Result<FormPtr> load(const Files& files, const QString& name) {
  return parseForm(name, [&](const QString& wanted) -> text::Result<QString> {
    const auto file = files.find(wanted);
    if (file == files.end()) return text::Fault{QStringLiteral("a template file of this name")};
    return file->second;
  });
}

FormPtr good(const Files& files, const QString& name) {
  const auto form = load(files, name);
  EXPECT_TRUE(form.ok()) << (form.ok() ? "" : form.fault().message.toStdString());
  return form.ok() ? form.value() : std::make_shared<Form>();
}

Item item(const FormPtr& form, const QString& name) {
  const int at = form->find(name);
  EXPECT_GE(at, 0) << name.toStdString();
  return at < 0 ? Item() : form->items[size_t(at)];
}

FormPtr one(const QString& line) { return good({{"A.PRP", "form A\n" + line}}, "A.PRP"); }

struct FaultRow {
  const char* content;
  const char* fault;
};

class LoaderFault : public ::testing::TestWithParam<FaultRow> {};

TEST_P(LoaderFault, namesFileLineAndWhatWasExpected) {
  const auto form =
      load({{"A.PRP", QString::fromUtf8(GetParam().content)}, {"B.PRP", "form B\nbase A\n"}}, "A.PRP");
  ASSERT_FALSE(form.ok());
  EXPECT_EQ(form.fault().message.toStdString(), GetParam().fault);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LoaderFault,
    ::testing::Values(
        FaultRow{"", "A.PRP:1: expected \"form\" and the name of the form"},
        FaultRow{"# nothing\ntext T 1 1 1 1\n", "A.PRP:2: expected \"form\" first"},
        FaultRow{"form A\nblob T 1 1 1 1\n", "A.PRP:2: expected a kind of item or a change, not \"blob\""},
        FaultRow{"form A\ntext T 1 1 1\n", "A.PRP:2: expected the height in mm"},
        FaultRow{"form A\ntext T 1 x 1 1\n", "A.PRP:2: expected the upper edge in mm"},
        FaultRow{"form A\ntext T 1 nan 1 1\n", "A.PRP:2: expected the upper edge in mm"},
        FaultRow{"form A\ntext T 1 1 3000 1\n", "A.PRP:2: expected the width in mm"},
        FaultRow{"form A\ntext T 1 1 0 1\n", "A.PRP:2: expected a width and a height above zero"},
        FaultRow{"form A\ntext T 1 1 1 1 pt 0\n", "A.PRP:2: expected a size above zero"},
        FaultRow{"form A\n\ntext T 1 1 1 1 \"open\n", "A.PRP:3: expected a closing quote"},
        FaultRow{"form A\ntext T 1 1 1 1 bold\n", "A.PRP:2: expected an option or a text in quotes"},
        FaultRow{"form A\ntext T 1 1 1 1\ntext T 2 2 1 1\n",
                 "A.PRP:3: expected a new name, T stands already"},
        FaultRow{"form A\ntext T 1 1 1 1 before U\n", "A.PRP:2: expected the name of an item above, not U"},
        FaultRow{"form A\ntext T9..1 1 1 1 1\n", "A.PRP:2: expected a family like day1..31"},
        FaultRow{"form A\nlabel Text1..3 1 1 9 1 \"a\" \"b\"\n",
                 "A.PRP:2: expected one text, or one for each of the 3 items"},
        FaultRow{"form A\nchoice C\n", "A.PRP:2: expected a word in quotes and its rectangle"},
        FaultRow{"form A\npaper B5\n", "A.PRP:2: expected a paper like A4 or JIS-B5"},
        FaultRow{"form A\nmove T 1 1\n", "A.PRP:2: expected \"base\" before a change"},
        FaultRow{"form A\nbase B\n", "B.PRP:2: expected a base that does not lead back to A.PRP"},
        FaultRow{"form A\nbase C\n", "C.PRP:0: expected a template file of this name"}));

TEST(Loader, keepsDataHiddenAndTheFrameShown) {
  const FormPtr form = one(
      "label Text1 1 1 9 5 \"a\"\nbox Box1 1 1 9 5\nline Line1 1 1 9 1\ntext T 1 1 9 5\ndigits N 1 1 9 5\n"
      "mark M 1 1 9 5\nchoice C \"x\" 1 1 9 5\npicture P 1 1 9 5\ntext S 1 1 9 5 shown\nlabel Text2 1 1 9 5 "
      "hidden");
  for (const char* name : {"Text1", "Box1", "Line1", "S"}) EXPECT_FALSE(item(form, name).hidden) << name;
  for (const char* name : {"T", "N", "M", "C", "P", "Text2"}) EXPECT_TRUE(item(form, name).hidden) << name;
}

TEST(Loader, readsOptionsAndTexts) {
  const FormPtr form = one("text T 1.5 2.25 30 8 pt 7.5 right gothic wrap 2 \"a \"\"b\"\"　c\"");
  const Item t = item(form, "T");
  EXPECT_DOUBLE_EQ(t.rect.x, 1.5);
  EXPECT_DOUBLE_EQ(t.rect.y, 2.25);
  EXPECT_DOUBLE_EQ(t.pt, 7.5);
  EXPECT_EQ(t.align, Align::Right);
  EXPECT_EQ(t.face, Typeface::Gothic);
  EXPECT_EQ(t.lines, 2);
  EXPECT_EQ(t.text, QStringLiteral("a \"b\"　c"));
}

TEST(Loader, laysAFamilyOutInEqualCellsAcrossOrDown) {
  const FormPtr form = one("digits Name0_1..8 10 20 80 5 pt 13\ntext row9..11 0 30 40 30 down");
  EXPECT_EQ(form->items.size(), 11u);
  EXPECT_DOUBLE_EQ(item(form, "Name0_1").rect.x, 10);
  EXPECT_DOUBLE_EQ(item(form, "Name0_8").rect.x, 80);
  EXPECT_DOUBLE_EQ(item(form, "Name0_8").rect.w, 10);
  EXPECT_DOUBLE_EQ(item(form, "row10").rect.y, 40);
  EXPECT_DOUBLE_EQ(item(form, "row11").rect.h, 10);
}

TEST(Loader, namesDifferByEveryLetter) {
  const FormPtr form = one("text dai3_ta1 1 1 9 5\ntext dai3_ta１ 2 1 9 5");
  EXPECT_DOUBLE_EQ(item(form, QStringLiteral("dai3_ta1")).rect.x, 1);
  EXPECT_DOUBLE_EQ(item(form, QStringLiteral("dai3_ta１")).rect.x, 2);
}

TEST(Loader, readsTheSpellingsOfAChoice) {
  const Item c = item(one("choice C circle \"業務上\" 1 2 3 4 \"第三者行為である|第三者行為\" 5 6 7 8"), "C");
  ASSERT_EQ(c.placements.size(), 2u);
  EXPECT_EQ(c.placements[1].words,
            (QStringList{QStringLiteral("第三者行為である"), QStringLiteral("第三者行為")}));
  EXPECT_DOUBLE_EQ(c.placements[1].rect.x, 5);
  EXPECT_EQ(c.shape, Shape::Circle);
}

const QString kBase = QStringLiteral(
    "form A\ntitle 元の様式\npaper A4\nblock 頭\ntext T 1 1 9 5 pt 9\ntext U 1 9 9 5\nlabel Text1 1 1 9 5 "
    "\"a\"\n"
    "digits d1..3 10 10 30 5");

TEST(Base, inheritsAllAndChangesWhatIsTold) {
  const FormPtr form =
      good({{"A.PRP", kBase},
            {"B.PRP",
             "form B\nbase A\nmove T 20 30\nsize T 40 6\nfont T pt 7 gothic right\ntext Text1 \"new\"\n"
             "drop U\nshow d2\nhide Text1\n"}},
           "B.PRP");
  EXPECT_EQ(form->name, "B");
  EXPECT_EQ(form->title, QStringLiteral("元の様式"));
  const Item t = item(form, "T");
  EXPECT_DOUBLE_EQ(t.rect.x, 20);
  EXPECT_DOUBLE_EQ(t.rect.y, 30);
  EXPECT_DOUBLE_EQ(t.rect.w, 40);
  EXPECT_DOUBLE_EQ(t.pt, 7);
  EXPECT_EQ(t.align, Align::Right);
  EXPECT_EQ(form->find("U"), -1);
  EXPECT_EQ(item(form, "Text1").text, "new");
  EXPECT_TRUE(item(form, "Text1").hidden);
  EXPECT_FALSE(item(form, "d2").hidden);
  EXPECT_TRUE(item(form, "d1").hidden);
}

TEST(Base, movesAFamilyAsAWhole) {
  const FormPtr form = good({{"A.PRP", kBase}, {"B.PRP", "form B\nbase A\nmove d1..3 20 15\n"}}, "B.PRP");
  EXPECT_DOUBLE_EQ(item(form, "d1").rect.x, 20);
  EXPECT_DOUBLE_EQ(item(form, "d3").rect.x, 40);
  EXPECT_DOUBLE_EQ(item(form, "d3").rect.y, 15);
}

TEST(Base, putsANewItemIntoTheReadingOrder) {
  const FormPtr form =
      good({{"A.PRP", kBase}, {"B.PRP", "form B\nbase A\ntext G 1 1 4 4 before U\n"}}, "B.PRP");
  EXPECT_EQ(form->find("G") + 1, form->find("U"));
  EXPECT_EQ(item(form, "G").block, item(form, "U").block);
}

TEST(Base, mayBeThreeDeepAndNoDeeper) {
  Files files{{"A.PRP", kBase}};
  for (const auto& [name, base] : {std::pair("B", "A"), {"C", "B"}, {"D", "C"}, {"E", "D"}})
    files[QString(name) + ".PRP"] = QStringLiteral("form %1\nbase %2\n").arg(name, base);
  EXPECT_TRUE(load(files, "D.PRP").ok());
  const auto tooDeep = load(files, "E.PRP");
  ASSERT_FALSE(tooDeep.ok());
  EXPECT_EQ(tooDeep.fault().message, "B.PRP:2: expected at most 3 bases");
}

TEST(Base, refusesToChangeAnItemThatIsNotThere) {
  const auto form = load({{"A.PRP", kBase}, {"B.PRP", "form B\nbase A\ndrop X\n"}}, "B.PRP");
  ASSERT_FALSE(form.ok());
  EXPECT_EQ(form.fault().message, "B.PRP:3: expected the name of an item of the base, not X");
}

TEST(Loader, anyDamageIsAFaultAndNeverMore) {
  QFile file(QStringLiteral(SOURCE_FOLDER "/templates/HARI_900.PRP"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray whole = file.readAll();
  const QByteArray letters =
      "\"#|.-09 \n\t\xFF"
      "az";
  std::mt19937 random(900);
  int faults = 0;
  for (int round = 0; round < 300; ++round) {
    QByteArray bytes = whole;
    for (int i = 0; i < 5; ++i) {
      const qsizetype at = qsizetype(random() % size_t(bytes.size()));
      if (random() % 3 == 0)
        bytes.remove(at, qsizetype(random() % 40));
      else
        bytes[at] = letters[qsizetype(random() % size_t(letters.size()))];
    }
    const auto form = load({{"A.PRP", QString::fromUtf8(bytes)}}, "A.PRP");
    if (form.ok()) continue;
    ++faults;
    EXPECT_TRUE(form.fault().message.startsWith("A.PRP:") && form.fault().message.contains(": expected "))
        << form.fault().message.toStdString();
  }
  EXPECT_GT(faults, 50);
}

TEST(Papers, jisSizesAreNotTheIsoOnes) {
  EXPECT_DOUBLE_EQ(findPaper("JIS-B5")->w, 182);
  EXPECT_DOUBLE_EQ(findPaper("JIS-B5")->h, 257);
  EXPECT_EQ(findPaper("B5"), nullptr);
}

TEST(FrameNames, areTheFourFamiliesWithANumber) {
  for (const char* name : {"Text1", "Box1000", "Line7", "waku_12"}) EXPECT_TRUE(isFrameName(name)) << name;
  for (const char* name : {"Text", "Text1a", "Texts1", "Name1", "waku1", "day1"})
    EXPECT_FALSE(isFrameName(name)) << name;
}

TEST(Check, tellsWhatIsWrongWithAReadableForm) {
  const FormPtr form =
      good({{"A.PRP",
             "form A\ntext T 200 10 20 5\ntext U 10 10 20 2 pt 10\nlabel Caption 1 1 9 5 \"x\"\n"
             "mark Text9 1 1 5 5\ntext V 10 20 20 5 pt 9 wrap 2\ntext W 10 290 20 7 pt 9"}},
           "A.PRP");
  EXPECT_EQ(checkForm(*form).join("\n").toStdString(),
            "A.PRP:2: T is off the page\n"
            "A.PRP:3: U is 2 mm for type of 3.53 mm\n"
            "A.PRP:4: Caption is part of the frame but not named Text, Box, Line or waku_\n"
            "A.PRP:5: Text9 is a data item with a name of the frame\n"
            "A.PRP:6: V is 5 mm for type of 6.35 mm");
}

}  // namespace
}  // namespace report
