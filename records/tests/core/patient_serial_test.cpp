#include "records/core/patient_serial.h"

#include <gtest/gtest.h>

namespace records {
namespace {

const QDate kToday(2024, 6, 15);

struct SerialCase {
  const char* what;
  QString last, next;
};

class PatientSerialTest : public testing::TestWithParam<SerialCase> {};

TEST_P(PatientSerialTest, FollowsTheLastRecord) {
  EXPECT_EQ(nextSerial(GetParam().last, kToday), GetParam().next) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, PatientSerialTest,
    testing::Values(
        SerialCase{"empty table", QString(), QStringLiteral("20240615001")},
        SerialCase{"second of the day", QStringLiteral("20240615001"), QStringLiteral("20240615002")},
        SerialCase{"ninth to tenth", QStringLiteral("20240615009"), QStringLiteral("20240615010")},
        SerialCase{"next day", QStringLiteral("20240614007"), QStringLiteral("20240615001")},
        SerialCase{"last record of a later day", QStringLiteral("20240616003"),
                   QStringLiteral("20240615001")},
        SerialCase{"thousandth of a day rolls the date over", QStringLiteral("20240615999"),
                   QStringLiteral("20240616000")},
        SerialCase{"blank serial", QStringLiteral(""), QStringLiteral("20240615001")},
        SerialCase{"foreign text", QStringLiteral("A-17"), QStringLiteral("20240615001")}));

TEST(PatientSerial, MonthAndDayHaveTwoDigits) {
  EXPECT_EQ(nextSerial(QString(), QDate(2025, 1, 2)), QStringLiteral("20250102001"));
}

TEST(JoinedAddress, IsWholeUpTo39Characters) {
  const QString half(QStringLiteral("あ").repeated(20));
  EXPECT_EQ(joinedAddress(half, half.left(19), QString()), half + half.left(19));
  EXPECT_EQ(joinedAddress(half, half, QStringLiteral("い")).size(), 39);
  EXPECT_EQ(joinedAddress(half, half, QStringLiteral("い")), (half + half).left(39));
  EXPECT_EQ(joinedAddress(QStringLiteral("甲"), QString(), QStringLiteral("乙")), QStringLiteral("甲乙"));
}

TEST(JoinedAddress, NeverCutsACharacterInHalf) {
  const QString head = QStringLiteral("あ").repeated(38);
  EXPECT_EQ(joinedAddress(head, QString::fromUcs4(U"\U00020BB7"), QStringLiteral("丁目")), head);
}

}  // namespace
}  // namespace records
