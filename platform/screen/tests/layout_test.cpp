#include "platform/screen/layout.h"

#include <gtest/gtest.h>

#include <QtWidgets/QtWidgets>

namespace screen {
namespace {

struct ColumnsCase {
  int declared, character, display, fitting;
};

class FittingColumns : public ::testing::TestWithParam<ColumnsCase> {};

TEST_P(FittingColumns, FollowFontAndDisplay) {
  const ColumnsCase& each = GetParam();
  EXPECT_EQ(fittingColumns(each.declared, each.character, each.display), each.fitting);
}

INSTANTIATE_TEST_SUITE_P(All, FittingColumns,
                         ::testing::Values(ColumnsCase{5, 13, 1280, 5},  // the default
                                           ColumnsCase{5, 12, 1920, 5},  // never more than declared
                                           ColumnsCase{5, 26, 1280, 2},  // twice the font: 2.5
                                           ColumnsCase{2, 26, 1280, 1},  // twice the font
                                           ColumnsCase{5, 26, 2560,
                                                       5},  // twice the font on twice the display
                                           ColumnsCase{11, 13, 1024, 9},  // a small display: 8.8
                                           ColumnsCase{2, 13, 1024, 2},   // 1.6
                                           ColumnsCase{1, 60, 800, 1}));  // at least one

TEST(WrappedCaption, BreaksWhereTheLineIsFull) {
  EXPECT_EQ(wrapped(QStringLiteral("一二三四五"), 5), QStringLiteral("一二三四五"));
  EXPECT_EQ(wrapped(QStringLiteral("一二三四五六七"), 3), QStringLiteral("一二三\n四五六\n七"));
  EXPECT_EQ(wrapped(QString(), 3), QString());
}

TEST(FieldWidth, PathOfSixtyFourHalfWidthCharactersIsSeenWhole) {
  QLineEdit field;
  fitWidth(&field, 64);
  const QString path = QStringLiteral("/home/mihon/clinic/data/").leftJustified(64, u'n');
  EXPECT_GE(field.minimumWidth(), field.fontMetrics().horizontalAdvance(u'あ') * path.size() / 2);
}

TEST(FamilyOfOneALine, FieldTakesTheLineBesideItsCaption) {
  QWidget host;
  Family family(&host, 1);
  auto* label = new QLabel(QStringLiteral("見本"), &host);
  auto* field = new QLineEdit(&host);
  fitWidth(field, 40);
  family.add(label, field);
  host.resize(900, 60);
  host.layout()->activate();
  EXPECT_GT(field->geometry().left(), label->geometry().right());
  EXPECT_LT(std::abs(field->geometry().center().y() - label->geometry().center().y()), 3);
  EXPECT_GE(field->geometry().right(), 890);
}

}  // namespace
}  // namespace screen
