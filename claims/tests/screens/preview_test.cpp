#include "claims/screens/preview_screen.h"
#include "claims/tests/core/invented_revision.h"
#include "claims/tests/screens/claim_form_fixture.h"
#include "frame/core/installation.h"

// The six fee previews. Fees are those of the notices, sums are worked out beside each case.

namespace claims {
namespace {

/// A claim on display that no form holds.
class ShownClaim final : public ClaimOnDisplay {
 public:
  ClaimRecord record() const override { return claim; }
  FormTicks checks() const override { return {}; }
  quintptr window() const override { return 0; }
  ClaimRecord claim;
};

using Line = std::pair<const char16_t*, const char16_t*>;

struct PreviewCase {
  const char* name;
  const char16_t* screen;
  const char16_t* month;
  const char16_t* kind;
  const char16_t* rate;
  QList<Line> days;   ///< column, entry
  QList<Line> lines;  ///< label, text
  const char16_t* total;
  const char16_t* shareLabel;
  const char16_t* share;
  const char16_t* claim;
};

const PreviewCase kCases[] = {
    // 1,300 x 2 + 1,520 + 30 = 4,150; visits of 2 and 6 km: 1,800 x 2 and one add-on of 1,540.
    // 4,150 + 3,600 + 1,540 = 9,290. Three tenths are 2,787.
    {"AcupunctureInSteps",
     u"施術料金1",
     u"平成30年5月",
     u"鍼灸",
     u"3割",
     {{u"治療内容1", u"a"},
      {u"治療内容8", u"b"},
      {u"治療内容15", u"e"},
      {u"往療距離1", u"2"},
      {u"往療距離8", u"6"}},
     {{u"はり:", u"1,300円 × 2回 ＝ 2,600円"},
      {u"はり灸:", u"1,520円 × 1回 ＝ 1,520円"},
      {u"電療:", u"30円 × 1回 ＝ 30円"},
      {u"往療料（2kmまで）:", u"1,800円 × 2回 ＝ 3,600円"},
      {u"往療料加算（6km）:", u"1,540円 × 1回 ＝ 1,540円"}},
     u"9,290円",
     u"一部負担金 3割:",
     u"2,787円",
     u"6,503円"},
    // areas 2 + 3 = 5 at 285 = 1,425; a hot pack 80; one limb on one day 575; 2,080, one tenth 208.
    {"MassageInSteps",
     u"施術料金2",
     u"平成30年5月",
     u"あマ",
     u"1割",
     {{u"治療内容1", u"i2"}, {u"治療内容2", u"g3h1"}},
     {{u"マッサージ:", u"285円 × 5回 ＝ 1,425円"},
      {u"徒手矯正術:", u"575円 × 1回 ＝ 575円"},
      {u"温罨法:", u"80円 × 1回 ＝ 80円"}},
     u"2,080円",
     u"一部負担金 1割:",
     u"208円",
     u"1,872円"},
    // first treatment of two arts 1,860; 1,610 x 2 = 3,220; 34 x 1; one near visit 2,300, one far 2,550:
    // 9,964. Two tenths are 1,992.8, rounded up 1,993.
    {"AcupunctureInTwoBands",
     u"施術料金2018H",
     u"令和6年5月",
     u"鍼灸",
     u"2割",
     {{u"初回有無", u"-1"},
      {u"治療内容1", u"e"},
      {u"治療内容8", u"f"},
      {u"往療距離1", u"4"},
      {u"往療距離8", u"5"}},
     {{u"初回費用:", u"1,860円 × 1回 ＝ 1,860円"},
      {u"はり灸:", u"1,610円 × 2回 ＝ 3,220円"},
      {u"電療:", u"34円 × 1回 ＝ 34円"},
      {u"往療料（4kmまで）:", u"2,300円 × 1回 ＝ 2,300円"},
      {u"往療料（4km超）:", u"2,550円 × 1回 ＝ 2,550円"}},
     u"9,964円",
     u"一部負担金 2割:",
     u"1,993円",
     u"7,971円"},
    // areas 3 + 3 at 450 = 2,700, the pair of light 300, one report 480: 3,480; three tenths 1,044.
    {"MassageInTwoBands",
     u"施術料金2108A",
     u"令和6年9月",
     u"あマ",
     u"3割",
     {{u"治療内容1", u"g3"}, {u"治療内容8", u"j3"}, {u"yn2", u"-1"}},
     {{u"マッサージ:", u"450円 × 6回 ＝ 2,700円"},
      {u"電気光線器具:", u"300円 × 1回 ＝ 300円"},
      {u"施術報告書交付料:", u"480円 × 1回 ＝ 480円"}},
     u"3,480円",
     u"一部負担金 3割:",
     u"1,044円",
     u"2,436円"},
    // first 1,950; one art 1,610 x 2; two arts 1,770; 電療 100 x 1; a visit to one person 3,910; 突発 2,300
    // with its one art day; special area on both of these: 250 x 2.
    // 1,950 + 3,220 + 1,770 + 100 + 3,910 + 2,300 + 500 = 13,750; three tenths are 4,125.
    {"AcupunctureWithVisits",
     u"施術料金2024H",
     u"令和6年10月",
     u"鍼灸",
     u"3割",
     {{u"初回有無", u"-1"},
      {u"d2", u"1"},
      {u"治療内容1", u"a"},
      {u"治療内容2", u"a"},
      {u"往療距離2", u"v1"},
      {u"治療内容3", u"c"},
      {u"往療距離3", u"t"},
      {u"治療内容4", u"f"}},
     {{u"初回施術:", u"1,950円 × 1回 ＝ 1,950円"},
      {u"はり・きゅう 1術:", u"1,610円 × 2回 ＝ 3,220円"},
      {u"はり・きゅう 2術:", u"1,770円 × 1回 ＝ 1,770円"},
      {u"電気鍼・電気温灸器・電気光線器具:", u"100円 × 1回 ＝ 100円"},
      {u"訪問施術①（1人） 1術:", u"3,910円 × 1回 ＝ 3,910円"},
      {u"突発的な往療:", u"2,300円 × 1回 ＝ 2,300円"},
      {u"特別地域の往療:", u"250円 × 2回 ＝ 500円"}},
     u"13,750円",
     u"一部負担金 3割:",
     u"4,125円",
     u"9,625円"},
    // two areas on two days 900 x 2; two limbs 940; hot pack 180; visits of three persons: two areas 1,360 x
    // 2, and of ten: 1,050. 1,800 + 940 + 180 + 2,720 + 1,050 = 6,690; no rate, no share.
    {"MassageWithVisits",
     u"施術料金2024A",
     u"令和6年10月",
     u"あマ",
     u"",
     {{u"治療内容1", u"g2"},
      {u"治療内容2", u"g2h2"},
      {u"治療内容3", u"g2"},
      {u"往療距離3", u"v3"},
      {u"治療内容4", u"i2"},
      {u"往療距離4", u"v9"},
      {u"治療内容5", u"g2"},
      {u"往療距離5", u"v10"}},
     {{u"マッサージ 2局所:", u"900円 × 2回 ＝ 1,800円"},
      {u"徒手矯正術 2肢:", u"940円 × 1回 ＝ 940円"},
      {u"温罨法:", u"180円 × 1回 ＝ 180円"},
      {u"訪問施術③（3人～9人） 2局所:", u"1,360円 × 2回 ＝ 2,720円"},
      {u"訪問施術③（10人以上） 2局所:", u"1,050円 × 1回 ＝ 1,050円"}},
     u"6,690円",
     u"一部負担金:",
     u"0円",
     u"6,690円"},
    {"NoDayNoMoney",
     u"施術料金2024H",
     u"令和6年10月",
     u"鍼灸",
     u"3割",
     {{u"初回有無", u"-1"}},
     {},
     u"0円",
     u"一部負担金 3割:",
     u"0円",
     u"0円"},
};

class Preview : public ::testing::TestWithParam<PreviewCase> {
 protected:
  static void SetUpTestSuite() {
    s_folder = std::make_unique<QTemporaryDir>();
    const QString source = QStringLiteral(SOURCE_FOLDER);
    ASSERT_TRUE(frame::layOut(s_folder->path(), source + "/data", source + "/templates").ok());
  }
  static void TearDownTestSuite() { s_folder.reset(); }

  PreviewScreen& open(const PreviewCase& row) {
    m_run.programFolder = s_folder->path();
    m_run.folders[frame::folder::kFees] = s_folder->filePath(qs(u"料金設定2000.mdb"));
    m_shown.claim.set(claim::month, qs(row.month));
    m_shown.claim.set(claim::treatmentKind, qs(row.kind));
    m_shown.claim.set(claim::shareRate, qs(row.rate));
    for (const auto& [column, entry] : row.days) m_shown.claim.setNamed(qs(column), qs(entry));
    m_state.display = &m_shown;
    m_messages.answerFromQueue();
    for (const screen::ScreenRow& declaration : previewScreens())
      if (qs(declaration.name.get()) == qs(row.screen))
        m_screen = std::make_unique<PreviewScreen>(declaration, m_services, m_run, m_state);
    m_screen->onLoad();
    m_screen->opened({});
    return *m_screen;
  }

  static std::unique_ptr<QTemporaryDir> s_folder;
  voice::RecordingChannel m_channel;
  voice::VoiceGuide m_voice{m_channel, m_channel, m_channel};
  screen::MessageDoor m_messages{m_voice};
  RecordingNavigator m_navigator;
  screen::Services m_services{m_voice, m_messages, m_navigator};
  text::FixedClock m_clock{QDate(2024, 11, 5)};
  frame::RunState m_run;
  ClaimsState m_state;
  ShownClaim m_shown;
  std::unique_ptr<PreviewScreen> m_screen;
};
std::unique_ptr<QTemporaryDir> Preview::s_folder;

TEST_P(Preview, ShowsTheLinesThatCountAndTheSums) {
  const PreviewCase& row = GetParam();
  m_run.clock = &m_clock;
  open(row);
  EXPECT_EQ(m_messages.texts(), QStringList());
  QList<std::pair<QString, QString>> lines, wanted;
  for (int i = 0; i < 30; ++i) {
    const QString control = QStringLiteral("Text1(%1)").arg(i);
    if (m_screen->isControlShown(control))
      lines.append({m_screen->caption(control), m_screen->text(control)});
  }
  for (const auto& [label, text] : row.lines) wanted.append({qs(label), qs(text)});
  EXPECT_EQ(lines, wanted);
  EXPECT_EQ(m_screen->text(qs(u"Text2")), qs(row.total));
  EXPECT_EQ(m_screen->caption(qs(u"Text3")), qs(row.shareLabel));
  EXPECT_EQ(m_screen->text(qs(u"Text3")), qs(row.share));
  EXPECT_EQ(m_screen->text(qs(u"Text4")), qs(row.claim));
}

TEST_P(Preview, TellsOfTheTwoNumbersOfAreasOnlyWhereTheyRule) {
  m_run.clock = &m_clock;
  open(GetParam());
  EXPECT_EQ(m_screen->isControlShown(qs(u"Label1")), qs(GetParam().screen) == qs(u"施術料金2024A"));
  EXPECT_EQ(
      m_screen->caption(qs(u"Label1")),
      qs(u"通所及び訪問施術は、異なる局数は２つまで対応。それ以外は表示しませんし、合計にも、含まれません。"));
}

TEST_P(Preview, SpeaksEveryLineByTab) {
  const PreviewCase& row = GetParam();
  m_run.clock = &m_clock;
  open(row);
  m_screen->show();
  QApplication::setActiveWindow(m_screen.get());
  m_screen->focusOn(row.lines.isEmpty() ? qs(u"Text2") : qs(u"Text1(0)"));
  const QString separator(voice::kSpeechSeparator);
  QStringList wanted;
  for (const auto& [label, text] : row.lines) wanted << qs(label) + separator + qs(text);
  wanted << qs(u"合計:") + separator + qs(row.total) << qs(row.shareLabel) + separator + qs(row.share)
         << qs(u"請求額:") + separator + qs(row.claim) << qs(u"施術料金を閉じます") << qs(u"計算式確認");
  m_channel.clear();
  QStringList heard;
  for (int i = 0; i < wanted.size(); ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    heard << m_channel.lastSaid();
  }
  heard.prepend(heard.takeLast());  // Tab leads round: the first line comes last
  EXPECT_EQ(heard, wanted);
}

TEST_P(Preview, NoLineIsCut) {
  m_run.clock = &m_clock;
  open(GetParam());
  m_screen->show();
  for (const QLineEdit* field : m_screen->findChildren<QLineEdit*>()) {
    if (!field->isVisible()) continue;
    EXPECT_GT(field->width(), field->fontMetrics().horizontalAdvance(field->text()))
        << field->text().toStdString();
  }
}

std::string nameOf(const ::testing::TestParamInfo<PreviewCase>& info) { return info.param.name; }
INSTANTIATE_TEST_SUITE_P(Months, Preview, ::testing::ValuesIn(kCases), nameOf);

using PreviewCommands = Preview;

TEST_P(PreviewCommands, CloseAndOpenTheSideCalculator) {
  m_run.clock = &m_clock;
  open(GetParam());
  m_screen->show();
  m_screen->trigger(qs(u"Command2"));
  EXPECT_EQ(m_navigator.shows, QStringList(qs(u"計算式確認")));
  m_screen->trigger(qs(u"Command1"));
  EXPECT_FALSE(m_screen->isVisible());
}

TEST_P(PreviewCommands, WithoutAClaimThereIsNoMoney) {
  m_run.clock = &m_clock;
  open(GetParam());
  m_state.display = nullptr;
  m_screen->opened({});
  EXPECT_FALSE(m_screen->isControlShown(qs(u"Text1(0)")));
  EXPECT_EQ(m_screen->text(qs(u"Text2")), qs(u"0円"));
}

TEST_P(PreviewCommands, AMissingFeeFileIsTold) {
  m_run.clock = &m_clock;
  open(GetParam());
  m_run.folders[frame::folder::kFees] = s_folder->filePath(qs(u"無い.mdb"));
  m_screen->opened({});
  ASSERT_EQ(m_messages.texts().size(), 1);
  EXPECT_TRUE(m_messages.texts()[0].contains(qs(u"無い.mdb")));
  EXPECT_EQ(m_screen->text(qs(u"Text2")), qs(u"0円"));
}

TEST_P(PreviewCommands, AnInventedSurchargeHasItsLine) {
  using testing::InventedRevision;
  m_run.clock = &m_clock;
  open(GetParam());
  const InventedRevision revision;
  const QString last = QStringLiteral("Text1(%1)").arg(GetParam().lines.size());
  EXPECT_FALSE(m_screen->isControlShown(last));
  m_shown.claim.set(claim::month, qs(u"令和60年6月"));
  m_shown.claim.set(InventedRevision::kTick, qs(u"1"));
  PreviewScreen screen(previewScreens()[4], m_services, m_run, m_state, revision.table());
  screen.opened({});
  EXPECT_EQ(screen.caption(last), qs(u"見本加算:"));
  EXPECT_EQ(screen.text(last),
            qs(u"100円 × 2回 ＝ 200円"));  // two visits; the fee is one of the shipped file
  EXPECT_EQ(screen.text(qs(u"Text2")), qs(u"13,950円"));
}

TEST_P(PreviewCommands, EveryEraFitsTheLines) {
  m_run.clock = &m_clock;
  open(GetParam());
  const auto lines = m_screen->findChildren<QLineEdit*>(QRegularExpression(QStringLiteral("^Text1\\(")));
  ASSERT_FALSE(lines.isEmpty());
  for (const Era& era : eras())
    for (const KindRules* rules : {&era.acupuncture, &era.massage})
      EXPECT_LE(std::ranges::count_if(rules->items,
                                      [](const AmountItem& item) { return item.counter && item.charged; }),
                lines.size());
}
INSTANTIATE_TEST_SUITE_P(Commands, PreviewCommands, ::testing::Values(kCases[4]), nameOf);

}  // namespace
}  // namespace claims
