#include "platform/screen/captions.h"

#include <gtest/gtest.h>

namespace screen {
namespace {

struct CaptionCase {
  const char* caption;
  const char* shown;
  const char* spoken;
  const char* accessible;
};

class Captions : public ::testing::TestWithParam<CaptionCase> {};

TEST_P(Captions, HaveTheirThreeForms) {
  const QString caption = QString::fromUtf8(GetParam().caption);
  EXPECT_EQ(shownCaption(caption).toStdString(), GetParam().shown);
  EXPECT_EQ(spokenCaption(caption).toStdString(), GetParam().spoken);
  EXPECT_EQ(accessibleCaption(caption).toStdString(), GetParam().accessible);
}

INSTANTIATE_TEST_SUITE_P(All, Captions,
                         ::testing::Values(CaptionCase{"氏名:", "氏名:", "氏名:", "氏名"},
                                           CaptionCase{"住所：", "住所：", "住所：", "住所"},
                                           CaptionCase{"※氏名 : ", "※氏名 : ", "※氏名 : ", "※氏名"},
                                           CaptionCase{"登録(&S)", "登録(&S)", "登録", "登録"},
                                           CaptionCase{"先頭 (F1)", "先頭 (F1)", "先頭 (F1)", "先頭 (F1)"},
                                           CaptionCase{"&Save", "&Save", "Save", "Save"},
                                           CaptionCase{"はり & 灸", "はり && 灸", "はり & 灸", "はり & 灸"},
                                           CaptionCase{"はり&&灸", "はり&&灸", "はり&灸", "はり&灸"},
                                           CaptionCase{"はり&灸", "はり&&灸", "はり&灸", "はり&灸"},
                                           CaptionCase{"&", "&&", "&", "&"},
                                           CaptionCase{":", ":", ":", ":"}));

TEST(CaptionFamily, NumbersEveryPlace) {
  EXPECT_EQ(numbered(u"%1日 治療内容%1", 31).toStdString(), "31日 治療内容31");
  EXPECT_EQ(numbered(u"氏名", 3).toStdString(), "氏名");
}

}  // namespace
}  // namespace screen
