#include "claims/core/checks.h"

#include <gtest/gtest.h>

#include "claims/tests/core/claim_builder.h"

namespace claims {
namespace {

using testing::era;
using testing::makeClaim;
using testing::Set;
using testing::setGrid;

/// A claim that passes both lists.
ClaimRecord soundClaim(const char16_t* month = u"令和6年10月", const char16_t* grid = u"1=a 2=e") {
  return makeClaim(month, u"鍼灸", u"3割", grid,
                   {{u"保険者名称", u"見本組合"},
                    {u"保険の種類", u"組合"},
                    {u"保険の種類3", u"組合健保"},
                    {u"初療年月日", u"令和6年4月1日"}});
}

ClaimRecord with(ClaimRecord claim, std::initializer_list<Set> columns) {
  for (const Set& set : columns)
    claim.setNamed(QString::fromUtf16(set.column), QString::fromUtf16(set.value));
  return claim;
}

void expectStop(const CheckResult& result, const char16_t* message) {
  EXPECT_TRUE(result.stop);
  ASSERT_EQ(result.messages.size(), 1);
  EXPECT_EQ(result.messages[0], message);
}

void expectPass(const CheckResult& result) {
  EXPECT_FALSE(result.stop);
  EXPECT_TRUE(result.messages.isEmpty()) << result.messages.join(u'|').toStdString();
}

struct FailRow {
  const char* name;
  const char16_t *column, *value, *message;
};

constexpr char16_t kPlainReport[] = u"前回の施術報告書交付年月が正しく入力されていません。";
constexpr char16_t kLongReport[] =
    u"前回の施術報告書交付年月が正しく入力されていません。日まで入れずに、令和6年5月のように月までにして、"
    u"和暦で入力してください。";

// The fields that both lists test, in their order.
const FailRow kCommon[] = {
    {"printed_kind", u"保険の種類3", u"", u"施術録の保険の種類が選択されていません。"},
    {"month_blank", u"申請年月", u"", u"申請年月が入力されていません。"},
    {"month_wrong", u"申請年月", u"令和6年13月", u"申請年月が正しく入力されていません。"},
    {"first_day_blank", u"初療年月日", u"", u"初療年月日が入力されていません。"},
    {"first_day_wrong", u"初療年月日", u"さくねん", u"初療年月日が正しく入力されていません。"},
    {"birth", u"被保険者の生年月日", u"昭和50年2月30日", u"被保険者の生年月日が正しく入力されていません。"},
    {"valid_until", u"有効期限", u"x", u"有効期限が正しく入力されていません。"},
    {"entitled", u"資格取得年月日", u"x", u"資格取得日が正しく入力されていません。"},
    {"requested", u"請求年月日", u"x", u"請求年月日が正しく入力されていません。"},
    {"received", u"領収年月日", u"x", u"領収年月日が正しく入力されていません。"},
    {"treated_birth", u"療養を受ける者の生年月日", u"x",
     u"療養を受ける者の生年月日が正しく入力されていません。"},
    {"consent", u"同意の年月日", u"x", u"同意年月日が正しく入力されていません。"},
    {"real_consent", u"実際の同意の年月日", u"x",
     u"実際にレセプトへ記入する同意の年月日が正しく入力されていません。"},
    {"care_from", u"要加療期間1", u"x", u"要加療期間(自)が正しく入力されていません。"},
    {"care_to", u"要加療期間2", u"x", u"要加療期間(至)が正しく入力されていません。"},
};

TEST(BothChecks, ASoundClaimPasses) {
  expectPass(checkClaimFull(soundClaim(), era()));
  expectPass(checkClaimFast(soundClaim(), era(), {}));
}

TEST(BothChecks, FieldsOneByOne) {
  for (const FailRow& row : kCommon) {
    SCOPED_TRACE(row.name);
    const ClaimRecord claim = with(soundClaim(), {{row.column, row.value}});
    expectStop(checkClaimFull(claim, era()), row.message);
    expectStop(checkClaimFast(claim, era(), {}), row.message);
  }
}

TEST(BothChecks, TheEarlierFieldSpeaksFirst) {
  // Break the fields from the last to the first: the message follows.
  ClaimRecord claim = soundClaim();
  for (auto row = std::rbegin(kCommon); row != std::rend(kCommon); ++row) {
    SCOPED_TRACE(row->name);
    claim.setNamed(QString::fromUtf16(row->column), QString::fromUtf16(row->value));
    expectStop(checkClaimFull(claim, era()), row->message);
    expectStop(checkClaimFast(claim, era(), {}), row->message);
  }
}

TEST(BothChecks, BlankDatesPassButTwo) {
  ClaimRecord claim = soundClaim();
  for (const FailRow& row : kCommon)
    if (QStringView(row.value) == u"x") claim.setNamed(QString::fromUtf16(row.column), QStringLiteral(""));
  expectPass(checkClaimFull(claim, era()));
}

TEST(BothChecks, DatesInEveryForm) {
  for (const char16_t* date : {u"令和6年4月1日", u"令和元年5月1日", u"2024/4/1", u"R6/4/1", u"r06/4/1",
                               u"平成31年4月30日", u"昭和50年3月15日", u"平成16年1月1日"}) {
    const ClaimRecord claim = with(soundClaim(), {{u"初療年月日", date}, {u"有効期限", date}});
    expectPass(checkClaimFull(claim, era()));
  }
}

TEST(BothChecks, EmptyGrid) {
  const char16_t* message = u"施術内容が記入されていません。";
  expectStop(checkClaimFull(soundClaim(u"令和6年10月", u""), era()), message);
  expectStop(checkClaimFast(soundClaim(u"令和6年10月", u""), era(), {}), message);
  expectPass(checkClaimFast(soundClaim(u"令和6年10月", u"31=a"), era(), {}));
}

TEST(BothChecks, NeedlesAndMassageMixed) {
  const char16_t* message = u"施術内容に鍼灸とマ術が混じっています。";
  for (const char16_t* grid : {u"1=a 2=g", u"1=j 31=f", u"5=h 6=c", u"1=i 2=b"}) {
    expectStop(checkClaimFull(soundClaim(u"令和2年1月", grid), era()), message);
    expectStop(checkClaimFast(soundClaim(u"令和2年1月", grid), era(), {}), message);
  }
  // only the single letters count as mixed
  expectPass(checkClaimFast(soundClaim(u"令和2年1月", u"1=a 2=g2"), era(), {}));
}

TEST(FullCheck, InsurersNameComesFirst) {
  const ClaimRecord claim = with(soundClaim(), {{u"保険者名称", u""}, {u"保険の種類3", u""}});
  expectStop(checkClaimFull(claim, era()), u"保険証の保険者名が記入されていません。");
  expectStop(checkClaimFast(claim, era(), {}), u"施術録の保険の種類が選択されていません。");
}

TEST(FastCheck, KindOfInsuranceComesFirst) {
  const ClaimRecord claim = with(soundClaim(), {{u"保険の種類", u""}, {u"保険の種類3", u""}});
  expectStop(checkClaimFast(claim, era(), {}), u"保険の種類が選択されていません。");
  expectStop(checkClaimFull(claim, era()), u"施術録の保険の種類が選択されていません。");
}

TEST(FullCheck, MonthNumber) {
  for (int month = 1; month <= 12; ++month) {
    ClaimRecord claim = soundClaim();
    claim.setNamed(QStringLiteral("申請月"), QString::number(month));
    expectPass(checkClaimFull(claim, era()));
  }
  for (const char16_t* text : {u"0", u"13", u"01", u"１", u"10月"}) {
    const ClaimRecord claim = with(soundClaim(), {{u"申請月", text}});
    expectStop(checkClaimFull(claim, era()), u"申請月が正しく入力されていません。");
    expectPass(checkClaimFast(claim, era(), {}));
  }
}

TEST(FullCheck, ReportDate) {
  const ClaimRecord ticked = with(soundClaim(), {{u"yn2", u"-1"}});
  expectStop(checkClaimFull(ticked, era()), u"施術報告書交付年月日（必須）の欄に日付が入力されていません。");
  expectStop(checkClaimFull(with(ticked, {{u"txtdummy27", u"きのう"}}), era()),
             u"施術報告書交付年月日（必須）の欄に日付が正確ではありません。");
  expectPass(checkClaimFull(with(ticked, {{u"txtdummy27", u"令和6年10月3日"}}), era()));
  expectPass(checkClaimFull(with(soundClaim(), {{u"txtdummy27", u"きのう"}}), era()));
  expectPass(checkClaimFast(ticked, era(), {}));
}

TEST(BothChecks, MonthOfThePreviousReport) {
  const struct {
    const char16_t *text, *full, *fast;
  } rows[] = {{u"", nullptr, nullptr},
              {u"令和6年5月", nullptr, nullptr},
              {u"平成31年4月", nullptr, nullptr},
              {u"令和6年5月3日", kLongReport, kPlainReport},
              {u"2024/5", kLongReport, kPlainReport},
              {u"2", kLongReport, kPlainReport},
              {u"R6年5月", kPlainReport, kPlainReport},
              {u"昭和64年1月", kPlainReport, kPlainReport},
              {u"6年5月", kPlainReport, kPlainReport}};
  for (const auto& row : rows) {
    const ClaimRecord claim = with(soundClaim(), {{u"txtdummy28", row.text}});
    const CheckResult full = checkClaimFull(claim, era()), fast = checkClaimFast(claim, era(), {});
    row.full ? expectStop(full, row.full) : expectPass(full);
    row.fast ? expectStop(fast, row.fast) : expectPass(fast);
  }
}

TEST(FullCheck, SpecialAreaNeedsAVisit) {
  const ClaimRecord claim = with(soundClaim(), {{u"d2", u"1"}});
  expectStop(
      checkClaimFull(claim, era()),
      u"往療が無いのに※特別地域に移住する患者へ施術にチェックが入っています。往療距離に記号を入れるか、"
      u"チェックをはずしてください。");
  expectPass(checkClaimFast(claim, era(), {}));
  ClaimRecord visited = claim;
  setGrid(visited, u"31=a/v1");
  expectPass(checkClaimFull(visited, era()));
  expectPass(checkClaimFull(with(soundClaim(), {{u"d2", u"0"}}), era()));
}

TEST(FastCheck, OpenWindowsStop) {
  const struct {
    const char16_t *screen, *message;
  } rows[] = {{u"施術報告書",
               u"施術報告書の印刷の窓が開いています。そちらの窓の「閉じる」を押して、閉じてください。"
               u"（後ろに隠れている可能性があります。）"},
              {u"往療内訳表",
               u"往療内訳表印刷の窓が開いています。そちらの窓の「閉じる」を押して、閉じてください。"
               u"（後ろに隠れている可能性があります。）"},
              {u"frm1年16回以上印刷は",
               u"１年・月１６回以上の理由書印刷の窓が開いています。そちらの窓の「閉じる」を押して、"
               u"閉じてください。（後ろに隠れている可能性があります。）"},
              {u"frm1年16回以上印刷マ",
               u"１年・月１６回以上の理由書印刷の窓が開いています。そちらの窓の「閉じる」を押して、"
               u"閉じてください。（後ろに隠れている可能性があります。）"}};
  for (const auto& row : rows) {
    const QStringList open{QStringLiteral("frmレセプトフォーム"), QString::fromUtf16(row.screen)};
    expectStop(checkClaimFast(soundClaim(), era(), open), row.message);
    // fields first, windows then, the report's month last
    expectStop(checkClaimFast(with(soundClaim(), {{u"要加療期間2", u"x"}}), era(), open),
               u"要加療期間(至)が正しく入力されていません。");
    expectStop(checkClaimFast(with(soundClaim(), {{u"txtdummy28", u"2024/5"}}), era(), open), row.message);
  }
  expectPass(checkClaimFast(soundClaim(), era(), {QStringLiteral("frmレセプトフォーム")}));
}

TEST(SingleWindows, TheCopyWindowStopsWhatAsksForIt) {
  const QStringList copy{QStringLiteral("施術報告書コピー")};
  EXPECT_EQ(openWindowMessage(copy, true),
            u"施術報告書のコピーの窓が開いています。そちらの窓の「閉じる」を押して、閉じてください。"
            u"（後ろに隠れている可能性があります。）");
  EXPECT_TRUE(openWindowMessage(copy, false).isNull());
  EXPECT_TRUE(openWindowMessage({}, true).isNull());
}

TEST(InsurerNumber, ALeading39OfTheElderlyIsTold) {
  const QString message = QStringLiteral("後期高齢の場合､保険者番号の頭にある39は削除してください");
  EXPECT_EQ(insurerNumberMessage(QStringLiteral("後期高齢"), QStringLiteral("39994017")), message);
  EXPECT_TRUE(insurerNumberMessage(QStringLiteral("後期高齢"), QStringLiteral("994017")).isNull());
  EXPECT_TRUE(insurerNumberMessage(QStringLiteral("後期高齢"), QStringLiteral("3")).isNull());
  EXPECT_TRUE(insurerNumberMessage(QStringLiteral("国民健保"), QStringLiteral("39994017")).isNull());
}

}  // namespace
}  // namespace claims
