#include "claims/core/claim_store.h"
#include "claims/core/print_settings.h"
#include "claims/screens/claim_form_rows.h"
#include "claims/tests/screens/claim_form_fixture.h"
#include "platform/screen/control_book.h"
#include "platform/screen/testing/screen_probe.h"
#include "platform/store/catalogue.h"

// The form as it is declared: every column in reach, names, speech.

namespace claims {

namespace {

using ClaimFormPages = ClaimFormTest;

/// Columns of the tables that no control shows, each with its reason.
struct Unshown {
  int half;
  const char16_t* pattern;  ///< whole name, as a regular expression
  const char16_t* why;
};
constexpr Unshown kUnshown[] = {
    {1, u"保険順位", u"derived from 保険の種類 at store"},
    {1, u"保険証番号1", u"a key of the lists, written by no page"},
    {1, u"総括表", u"the mark of summary printing"},
    {1, u"施術者Flag\\d+", u"flags of the older clinic profile"},
    {2, u"d1|d1[7-9]|d2\\d|d3[01]", u"reserve columns of a growth run, read by nothing"},
    {2, u"e\\d+", u"reserve columns of a growth run, read by nothing"},
    {2, u"txtdummy3[1-9]|txtdummy40", u"reserve columns of a growth run, read by nothing"},
    {2, u"numdummy\\d+", u"reserve numbers; the first keeps the summary code"},
    {2, u"yn[6-9]|yn10", u"reserve columns of a growth run, read by nothing"},
    {2, u"txt dummy12", u"a switch of an older page, read by nothing"},
};

bool isCalculated(int half, const QString& column) {
  for (const store::Column& name : half == 1 ? calculatedColumns() : calculatedColumnsSecond())
    if (column == name.text()) return true;
  return false;
}

bool isUnshown(int half, const QString& column) {
  if (column == u"ID" || isCalculated(half, column)) return true;
  for (const Unshown& row : kUnshown)
    if (row.half == half &&
        QRegularExpression(QRegularExpression::anchoredPattern(qs(row.pattern))).match(column).hasMatch())
      return true;
  return false;
}

TEST_F(ClaimFormPages, EveryColumnOfBothHalvesIsOnAControlOrHasItsReason) {
  openNew(acupuncture());
  QHash<int, QSet<QString>> shown;
  for (const int half : {1, 2})
    for (const screen::Control* bound : m_form->controls().boundTo(half)) shown[half].insert(bound->column());
  for (const store::TableRow& table : store::catalogue()) {
    const int half = qs(table.file) == u"保険申請2000_1.mdb" && qs(table.table) == u"保険申請"   ? 1
                     : qs(table.file) == u"保険申請2000_2.mdb" && qs(table.table) == u"保険申請" ? 2
                                                                                                 : 0;
    if (half == 0) continue;
    for (const store::ColumnRow& column : table.columns) {
      const QString name = qs(column.name);
      EXPECT_TRUE(shown[half].contains(name) || isUnshown(half, name))
          << "half " << half << ": " << name.toStdString();
    }
  }
}

TEST_F(ClaimFormPages, EveryBoundColumnIsInItsTableAndBoundOnce) {
  QHash<QString, QString> seen;
  openNew(acupuncture());
  for (const int half : {1, 2}) {
    const QString file = half == 1 ? qs(u"保険申請2000_1.mdb") : qs(u"保険申請2000_2.mdb");
    const store::TableRow* table = store::tableOfFile(file);
    ASSERT_NE(table, nullptr);
    for (const screen::Control* bound : m_form->controls().boundTo(half)) {
      EXPECT_NE(store::findColumn(*table, bound->column()), nullptr)
          << bound->name().toStdString() << " " << bound->column().toStdString();
      const QString key = QString::number(half) + bound->column();
      EXPECT_FALSE(seen.contains(key)) << bound->column().toStdString();
      seen.insert(key, bound->name());
    }
  }
}

/// Controls whose caption is not the name of their column.
constexpr std::pair<const char16_t*, const char16_t*> kOtherNames[] = {
    // Insurance card.
    {u"世帯主でない本人", u"保険の種類2"},
    {u"施術録の保険の種類", u"保険の種類3"},
    {u"公費負担（乳・障・母）", u"公費負担"},
    {u"三歳未満", u"就学前"},
    {u"保険証記号１", u"保険証記号1"},
    {u"保険証記号２", u"保険証記号2"},
    {u"申請欄名称", u"c6"},
    {u"公費の申請欄名称及び左欄外の名称", u"c18"},
    {u"後期高齢の登録番号（鍼灸）", u"c14"},
    {u"後期高齢の登録番号（あマ）", u"c15"},
    {u"台帳の生年月日", u"生年月日"},
    // Consent.
    {u"神経痛", u"傷病名1"},
    {u"リウマチ", u"傷病名2"},
    {u"頸腕症候群", u"傷病名3"},
    {u"五十肩", u"傷病名4"},
    {u"腰痛症", u"傷病名5"},
    {u"頸椎捻挫後遺症", u"傷病名6"},
    {u"傷病名 その他", u"傷病名7"},
    {u"傷病名 付記", u"傷病名8"},
    {u"業務上外のもの その他の内容", u"d13"},
    {u"入院期間（自）", u"入院期間1"},
    {u"入院期間（至）", u"入院期間2"},
    {u"実際にレセプトへ記入する同意の年月日", u"実際の同意の年月日"},
    {u"同意の傷病名の追記", u"memodummy11"},
    {u"要加療期間（自）", u"要加療期間1"},
    {u"要加療期間（至）", u"要加療期間2"},
    {u"同意を受けた者 施術者", u"同意_施術者"},
    {u"同意を受けた者 患者", u"同意_患者"},
    {u"マッサージ 躯幹", u"躯幹"},
    {u"マッサージ 右上肢", u"右上肢"},
    {u"マッサージ 左上肢", u"左上肢"},
    {u"マッサージ 右下肢", u"右下肢"},
    {u"マッサージ 左下肢", u"左下肢"},
    {u"徒手矯正 右上肢", u"徒手右上肢"},
    {u"徒手矯正 左上肢", u"徒手左上肢"},
    {u"徒手矯正 右下肢", u"徒手右下肢"},
    {u"徒手矯正 左下肢", u"徒手左下肢"},
    {u"マッサージ 躯幹 施術回数", u"d3"},
    {u"マッサージ 右上肢 施術回数", u"d4"},
    {u"マッサージ 左上肢 施術回数", u"d5"},
    {u"マッサージ 右下肢 施術回数", u"d6"},
    {u"マッサージ 左下肢 施術回数", u"d7"},
    {u"徒手矯正 右上肢 施術回数", u"d8"},
    {u"徒手矯正 左上肢 施術回数", u"d9"},
    {u"徒手矯正 右下肢 施術回数", u"d10"},
    {u"徒手矯正 左下肢 施術回数", u"d11"},
    // Treatment.
    {u"※特別地域（加算）での施術", u"d2"},
    {u"１．電気鍼", u"c21"},
    {u"２．電気温灸器", u"c22"},
    {u"３．電気光線器具", u"c23"},
    {u"施術した場所", u"d12"},
    {u"往療又は訪問の理由", u"d15"},
    {u"往療又は訪問の理由 その他の内容", u"d14"},
    {u"施術報告書交付", u"yn2"},
    {u"施術報告書を２通交付した", u"yn3"},
    {u"３通の施術報告書を交付した", u"yn4"},
    {u"施術報告書交付年月日（必須）", u"txtdummy27"},
    {u"前回の施術報告書交付年月", u"txtdummy28"},
    {u"往療内訳の表示", u"yn1"},
    {u"右欄外に印刷する", u"yn5"},
    // Prints and print settings.
    {u"往療起点の登録1", u"c1"},
    {u"往療起点の登録2", u"c2"},
    {u"往療起点の登録3", u"c3"},
    {u"新摘要欄の内容", u"memodummy14"},
    {u"施術期間（自）", u"txt dummy1"},
    {u"施術期間（至）", u"txt dummy2"},
    {u"左欄外保険者名の印字", u"txt dummy3"},
    {u"公費負担番号の印字", u"txt dummy4"},
    {u"男女の印字", u"txt dummy9"},
    {u"委任欄（償還払い時）", u"txt dummy10"},
    {u"申請欄（保険者の頭に○）", u"txt dummy11"},
    {u"委任欄の被保険者の氏名の印字", u"txt dummy13"},
    {u"続柄の印字", u"txtdummy26"},
    {u"申請欄の氏名の印字", u"c8"},
    {u"右上の給付割合の○", u"c9"},
    {u"施術証明欄に代表者委任の印字", u"c10"},
    {u"一部負担金を", u"c11"},
    {u"施術証明欄・申請欄・委任欄の年月日", u"c13"},
    {u"別添1（様式第6号）の印字", u"c16"},
    {u"支払機関欄の口座", u"txt dummy5"},
    {u"施術証明欄の住所・氏名", u"txt dummy6"},
    {u"同意医師欄の印字", u"txt dummy7"},
    {u"金額欄の印字", u"txt dummy8"},
    {u"総括表の種別", u"c12"},
    {u"受領委任", u"c24"},
};

/// The column that a caption means: the one of its name, of a day, of a reserve field, or of the table above.
QString columnOfCaption(const QString& caption) {
  if (caption.startsWith(u'※') && !caption.contains(u'（')) return columnOfCaption(caption.mid(1));
  for (const auto& [name, column] : kOtherNames)
    if (caption == qs(name)) return qs(column);
  static const QRegularExpression cell(qs(u"^(\\d+)日 (.+)$"));
  if (const auto day = cell.match(caption); day.hasMatch()) {
    const QHash<QString, QString> stems = {{qs(u"治療内容"), qs(u"治療内容")},
                                           {qs(u"往療人数"), qs(u"往療距離")},
                                           {qs(u"往療起点"), qs(u"a")},
                                           {qs(u"同一建物"), qs(u"b")}};
    return stems.value(day.captured(2)) + day.captured(1);
  }
  if (caption.startsWith(u"予備 ")) return caption.mid(3);
  return caption;
}

TEST_F(ClaimFormPages, EveryControlShowsTheColumnThatItsCaptionNames) {
  openNew(acupuncture());
  int bound = 0;
  for (const int half : {1, 2})
    for (const screen::Control* control : m_form->controls().boundTo(half)) {
      QString caption = control->caption();
      if (caption.endsWith(u':')) caption.chop(1);
      EXPECT_EQ(control->column(), columnOfCaption(caption)) << control->name().toStdString();
      ++bound;
    }
  EXPECT_GT(bound, 300);
}

TEST_F(ClaimFormPages, TheSevenPagesAreInTheirOrder) {
  QStringList pages;
  for (const screen::Row& row : kClaimFormScreen.rows)
    if (const auto* page = std::get_if<screen::Page>(&row)) pages << qs(page->caption.get());
  EXPECT_EQ(pages, QStringList({qs(u"保険証"), qs(u"同意書"), qs(u"治療"), qs(u"各種印刷"), qs(u"印刷設定"),
                                qs(u"既往症"), qs(u"申請者の確認")}));
}

struct SettingGroup {
  const char16_t* column;
  int frame;
  const char16_t *family, *caption, *first, *second, *storedFirst, *storedSecond;
};

TEST_F(ClaimFormPages, PrintSettingsAreThoseOfTheRules) {
  QHash<QString, const screen::Options*> groups;
  for (const screen::Row& row : kClaimFormScreen.rows)
    if (const auto* options = std::get_if<screen::Options>(&row))
      groups.insert(qs(options->bind.column()), options);
  const SettingGroup rows[] = {
      {u"txt dummy1", 1, u"Option1", u"施術期間（自）", u"最初の治療日", u"１日", u"0", u"1"},
      {u"txt dummy2", 2, u"Option2", u"施術期間（至）", u"月末日", u"最終の治療日", u"0", u"1"},
      {u"txt dummy3", 3, u"Option3", u"左欄外保険者名の印字", u"左欄外保険者名を印刷する",
       u"左欄外保険者名を印刷しない", u"0", u"1"},
      {u"txt dummy4", 4, u"Option4", u"公費負担番号の印字", u"公費負担番号を印刷する",
       u"公費負担番号を印刷しない", u"0", u"1"},
      {u"txt dummy9", 5, u"Option5", u"男女の印字", u"男女を印刷する", u"男女を印刷しない", u"0", u"1"},
      {u"txt dummy10", 6, u"Option6", u"委任欄（償還払い時）", u"印刷する", u"すべて印刷しない", u"0", u"1"},
      {u"txt dummy11", 7, u"Option7", u"申請欄（保険者の頭に○）", u"申請欄の○を印刷する",
       u"申請欄の○を印刷しない", u"0", u"1"},
      {u"txt dummy13", 8, u"Option8", u"委任欄の被保険者の氏名の印字", u"委任欄の被保険者の氏名を印刷する",
       u"委任欄の被保険者の氏名を印刷しない", u"0", u"1"},
      {u"txtdummy26", 9, u"Option13", u"続柄の印字", u"続柄を印刷する", u"続柄を印刷しない", u"0", u"1"},
      {u"c8", 10, u"Option9", u"申請欄の氏名の印字", u"申請欄の氏名を印刷する", u"申請欄の氏名を印刷しない",
       u"0", u"1"},
      {u"c9", 11, u"Option10", u"右上の給付割合の○", u"給付割合の○を印刷する", u"給付割合の○を印刷しない",
       u"0", u"1"},
      {u"c10", 12, u"Option11", u"施術証明欄に代表者委任の印字", u"代表者委任を印刷する",
       u"代表者委任を印刷しない", u"0", u"1"},
      {u"c11", 13, u"Option12", u"一部負担金を", u"標準計算", u"公費があるため０円にする", u"0", u"1"},
      {u"c13", 14, u"Option14", u"施術証明欄・申請欄・委任欄の年月日", u"年月日を印刷する",
       u"年月日を印刷しない", u"0", u"1"},
      {u"c16", 15, u"Option16", u"別添1（様式第6号）の印字", u"別添1を印刷する", u"別添1を印刷しない", u"0",
       u"1"},
      {u"txt dummy5", 16, u"Option17", u"支払機関欄の口座", u"施術者の口座", u"代表者の口座", u"1", u"0"},
      {u"txt dummy6", 17, u"Option18", u"施術証明欄の住所・氏名", u"施術者の住所・氏名",
       u"代表者の住所・氏名", u"1", u"0"},
      {u"txt dummy7", 18, u"Option19", u"同意医師欄の印字", u"同意医師欄を印刷する",
       u"同意医師欄を印刷しない", u"1", u"0"},
      {u"txt dummy8", 19, u"Option20", u"金額欄の印字", u"金額欄を印刷する", u"金額欄を印刷しない", u"1",
       u"0"},
  };
  for (const SettingGroup& row : rows) {
    const screen::Options* group = groups.value(qs(row.column));
    ASSERT_NE(group, nullptr) << qs(row.column).toStdString();
    EXPECT_EQ(qs(group->name.family()), qs(u"FrameSet"));
    EXPECT_EQ(group->name.index(), row.frame);
    EXPECT_EQ(qs(group->caption.get()), qs(row.caption));
    ASSERT_EQ(group->choices.size(), 2u);
    for (int i = 0; i < 2; ++i) {
      const screen::Choice& button = group->choices[size_t(i)];
      EXPECT_EQ(qs(button.caption.get()), qs(i == 0 ? row.first : row.second));
      EXPECT_EQ(qs(button.value), qs(i == 0 ? row.storedFirst : row.storedSecond));
      EXPECT_EQ(qs(button.name.family()), qs(row.family));
      EXPECT_EQ(button.name.index(), i);
    }
  }
}

TEST_F(ClaimFormPages, TicksForPrintingAreTheCheckBoxesOfTheForm) {
  QStringList boxes, unbound, known;
  for (const screen::Row& row : claimFormDeclaration().rows)
    if (const auto* check = std::get_if<screen::Check>(&row)) {
      boxes << qs(check->name.family());
      if (!check->bind.bound()) unbound << boxes.last();
    }
  for (const TickName<FormTicks>& row : kFormTicks)
    if (onClaimForm(row)) known << qs(row.control);
  for (const QString& name : known) EXPECT_TRUE(boxes.contains(name)) << name.toStdString();
  for (const QString& name : unbound) EXPECT_TRUE(known.contains(name)) << name.toStdString();
}

TEST_F(ClaimFormPages, EachTickReachesPrintingUnderItsOwnName) {
  openNew(acupuncture());
  const std::pair<const char16_t*, FormTicks> rows[] = {
      {u"Check5", {.olderPaper = true}}, {u"Check6", {.olderPaperItemsOnly = true}},
      {u"Check7", {.publicAid = true}},  {u"Check8", {.freeVisits = true}},
      {u"Check13", {.itemsOnly = true}}, {u"Check17", {.eraLetter = true}},
      {u"Check50", {.delegated = true}}};
  EXPECT_EQ(m_form->checks(), FormTicks());
  for (const auto& [box, expected] : rows) {
    m_form->setChecked(qs(box), true);
    EXPECT_EQ(m_form->checks(), expected) << qs(box).toStdString();
    m_form->setChecked(qs(box), false);
  }
}

TEST_F(ClaimFormPages, EveryControlOfEitherKindIsNamedSpokenAndReached) {
  for (ClaimRecord claim : {acupuncture(), massage()}) {
    m_form.reset();
    claim.setNamed(qs(u"yn1"), qs(u"-1"));  // with the rows of the visit table
    openNew(claim);
    screen::testing::ScreenProbe probe(*m_form, m_channel);
    probe.open();
    const QStringList faults = probe.faults();
    EXPECT_TRUE(faults.isEmpty()) << faults.join(u'\n').toStdString();
  }
}

TEST_F(ClaimFormPages, EveryFieldOfTheSevenPagesIsATabStop) {
  openNew(massage());
  screen::testing::ScreenProbe probe(*m_form, m_channel);
  probe.open();
  QStringList stops;
  for (const screen::testing::Stop& stop : probe.stops()) stops << stop.control;
  for (const char16_t* control : {u"txtFields(0)", u"Combo1(3)", u"txtFields(71)", u"Text5(31)", u"Text6(31)",
                                  u"Command23", u"FrameSet(15)", u"txtFields(144)", u"txtFields(231)"})
    EXPECT_TRUE(stops.contains(qs(control))) << qs(control).toStdString();
}

TEST_F(ClaimFormPages, DayCellsSayTheirDayAndRow) {
  openNew(acupuncture());
  goTo(qs(u"txtFields(0)"));
  const std::pair<const char16_t*, const char16_t*> cells[] = {{u"Text5(1)", u"1日 治療内容\u00fea"},
                                                               {u"Text5(31)", u"31日 治療内容\u00fe"},
                                                               {u"Text6(15)", u"15日 往療人数\u00fe"}};
  for (const auto& [cell, said] : cells) {
    m_channel.clear();
    m_form->focusOn(qs(cell));
    EXPECT_EQ(m_channel.lastSaid(), qs(said)) << qs(cell).toStdString();
  }
}

TEST_F(ClaimFormPages, OpeningSaysTheHeadingAndTheMust) {
  openNew(acupuncture());
  EXPECT_EQ(m_form->openingTexts(), QStringList({qs(u"保険申請"), qs(u"※は必ず入力してください")}));
}

}  // namespace
}  // namespace claims
