#include "printing/core/form_items.h"

#include <gtest/gtest.h>

#include <QSet>

#include "platform/report/prp_loader.h"

// The table of items against the templates, both ways.

namespace printing {
namespace {

report::FormPtr formOf(const char* file) {
  const auto form = report::loadForm(QStringLiteral(SOURCE_FOLDER "/templates"), QString::fromUtf8(file));
  EXPECT_TRUE(form) << file;
  return form ? form.value() : nullptr;
}

QStringList namesOf(const FormItem& row) {
  const QString stem = QString::fromUtf16(row.name);
  if (row.last == 0) return {stem};
  QStringList names;
  for (int number = row.first; number <= row.last; ++number) names << stem + QString::number(number);
  return names;
}

struct Paper {
  const char* file;
  Holds only;  ///< of the rows that one kind alone holds
};
constexpr Paper kPapers[] = {{"HARI_900.PRP", Holds::Acupuncture},
                             {"HARI_900_R.PRP", Holds::Acupuncture},
                             {"Massage_900.PRP", Holds::Massage},
                             {"Massage_900_R.PRP", Holds::Massage}};

TEST(FormItems, TheFormsHoldTheItemsOfTheTable) {
  for (const Paper& paper : kPapers) {
    const report::FormPtr form = formOf(paper.file);
    ASSERT_TRUE(form);
    for (const FormItem& row : kFormItems)
      for (const QString& name : namesOf(row)) {
        // The era word of the month is on the forms with the letter R alone.
        if (name == u"GG4" && !form->name.endsWith(u"_R")) continue;
        EXPECT_EQ(form->find(name) >= 0, row.holds == Holds::Both || row.holds == paper.only)
            << paper.file << ' ' << name.toStdString();
      }
  }
}

TEST(FormItems, TheTableHoldsWhatTheFormsLeaveToBeFilled) {
  QSet<QString> known;
  for (const FormItem& row : kFormItems)
    for (const QString& name : namesOf(row)) known.insert(name);
  for (const Paper& paper : kPapers) {
    const report::FormPtr form = formOf(paper.file);
    ASSERT_TRUE(form);
    for (const report::Item& item : form->items) {
      const bool filled = item.hidden && !item.name.startsWith(u"dain");
      EXPECT_TRUE(!filled || known.contains(item.name)) << paper.file << ' ' << item.name.toStdString();
    }
  }
}

TEST(FormItems, ARowThatNoFormHoldsSaysWhy) {
  for (const FormItem& row : kFormItems)
    EXPECT_EQ(row.holds == Holds::Neither, row.why != nullptr) << QString::fromUtf16(row.name).toStdString();
}

TEST(FormItems, NoItemIsListedTwice) {
  QSet<QString> seen;
  for (const FormItem& row : kFormItems)
    for (const QString& name : namesOf(row)) {
      EXPECT_FALSE(seen.contains(name)) << name.toStdString();
      seen.insert(name);
    }
}

}  // namespace
}  // namespace printing
