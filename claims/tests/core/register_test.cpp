#include "claims/core/register.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "platform/store/bulk.h"
#include "platform/store/database.h"

namespace claims {
namespace {

using namespace Qt::StringLiterals;

TEST(Register, TheFirstBlankFieldIsFound) {
  struct Case {
    QStringList values;
    int blank;
  };
  const Case cases[] = {{{u"架空"_s, u"1"_s, u"-"_s}, -1},  {{u""_s, u""_s, u"1"_s}, 0},
                        {{u"架空"_s, QString(), u""_s}, 1}, {{u"架空"_s, u"1"_s, u" "_s}, 2},
                        {{u"　"_s, u"1"_s, u"1"_s}, 0},     {{}, -1}};
  for (const Case& each : cases)
    EXPECT_EQ(firstBlank(each.values), each.blank) << each.values.join(u'|').toStdString();
}

TEST(Register, ABlankFieldIsNamed) {
  EXPECT_EQ(blankFieldText(u"TEL"_s),
            u"TELが未入力です。不明の場合でも、仮の文字か数字を必ず入力して下さい。"_s);
}

/// What a row brings to the claim, in the order of the fields.
TEST(Register, FieldsGoToTheirColumnsOfTheClaim) {
  const auto pairs = [](const Register& list) {
    QStringList all;
    for (const RegisterField& field : list.fields)
      all << field.column.text() + u'>' + field.claimColumn.text();
    return all;
  };
  EXPECT_EQ(pairs(kDoctorRegister),
            (QStringList{u"氏名>同意医師氏名"_s, u"フリガナ>同意医師フリガナ"_s, u"病院名>医療機関名"_s,
                         u"住所>同意医師住所"_s, u"TEL>同意医師の電話番号"_s}));
  EXPECT_EQ(pairs(kInsurerRegister),
            (QStringList{u"名称>保険者名称"_s, u"番号>保険者番号"_s, u"所在地>保険者住所"_s}));
}

TEST(Register, FieldsAreLabelledByTheirColumn) {
  for (const Register* list : {&kDoctorRegister, &kInsurerRegister})
    for (const RegisterField& field : list->fields)
      EXPECT_EQ(QString::fromUtf16(field.label), field.column.text());
}

class RegisterFile : public testing::Test {
 protected:
  void SetUp() override {
    const QString path = folder.filePath(u"保険者2000.mdb"_s);
    folders[size_t(kInsurerRegister.folder)] = path;
    ASSERT_TRUE(store::createFresh(path, u"保険者2000.mdb"_s));
  }
  QTemporaryDir folder;
  frame::DataFolders folders;
};

TEST_F(RegisterFile, RowsComeInTheOrderOfEntryAThousandAtMost) {
  ASSERT_TRUE(store::addRows(folders[size_t(kInsurerRegister.folder)], u"保険者"_s, 1001, [](int number) {
                return QHash<QString, store::Value>{{u"名称"_s, u"架空%1"_s.arg(number)},
                                                    {u"番号"_s, QString::number(number)},
                                                    {u"所在地"_s, u"架空市"_s}};
              }).ok());
  const auto rows = readRegister(kInsurerRegister, folders);
  ASSERT_TRUE(rows);
  ASSERT_EQ(rows->size(), 1000);
  EXPECT_EQ(rows->first(), (QStringList{u"架空0"_s, u"0"_s, u"架空市"_s}));
  EXPECT_EQ(rows->last(), (QStringList{u"架空999"_s, u"999"_s, u"架空市"_s}));
}

TEST_F(RegisterFile, AMissingFileIsAFaultWithItsName) {
  folders[size_t(kInsurerRegister.folder)] = folder.filePath(u"無い.mdb"_s);
  const auto rows = readRegister(kInsurerRegister, folders);
  ASSERT_FALSE(rows);
  EXPECT_TRUE(rows.fault().message.contains(u"無い.mdb"_s)) << rows.fault().message.toStdString();
}

}  // namespace
}  // namespace claims
