#include "platform/voice/kana_reader.h"

#include <gtest/gtest.h>

#include <QList>

#include "platform/voice/speech_text.h"
#include "platform/voice/spoken_numbers.h"
#include "platform/voice/spoken_words.h"

using namespace voice;

namespace {

struct Row {
  const char16_t* written;
  const char16_t* said;
};

QString u(const char16_t* text) { return QString::fromUtf16(text); }

bool holdsKanji(const QString& text) {
  for (const uint code : text.toUcs4())
    if ((code >= 0x3400 && code <= 0x9FFF) || code >= 0x20000 || code == u'々') return true;
  return false;
}

class KanaReaderTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!reader.hasDictionary()) GTEST_SKIP() << "no dictionary of Japanese on this system";
  }
  KanaReader reader;
};

}  // namespace

TEST(SpokenNumbers, DatesAndTimesAreSaidAsPeopleSayThem) {
  const Row rows[] = {
      {u"4月1日", u"シガツツイタチ"},
      {u"10月1日", u"10ガツツイタチ"},
      {u"7月20日", u"シチガツハツカ"},
      {u"9月14日", u"クガツジュウヨッカ"},
      {u"12月24日", u"12ガツニジュウヨッカ"},
      {u"1月10日", u"1ガツトオカ"},
      {u"2月2日", u"2ガツフツカ"},
      {u"3月3日", u"3ガツミッカ"},
      {u"5月4日", u"5ガツヨッカ"},
      {u"6月5日", u"6ガツイツカ"},
      {u"8月6日", u"8ガツムイカ"},
      {u"11月7日", u"11ガツナノカ"},
      {u"1月8日", u"1ガツヨウカ"},
      {u"1月9日", u"1ガツココノカ"},
      {u"1月31日", u"1ガツ31ニチ"},
      {u"6年", u"6ネン"},
      {u"4年", u"ヨネン"},
      {u"34年", u"30ヨネン"},
      {u"2024/10/1", u"2020ヨネン10ガツツイタチ"},
      {u"2019/5/25", u"2019ネン5ガツ25ニチ"},
      {u"10:30", u"10ジ30プン"},
      {u"4:05", u"ヨジ5フン"},
      {u"19:00", u"10クジ"},
      {u"1日間", u"1ニチ間"},
      {u"1人2人3人4人", u"ヒトリフタリ3ニンヨニン"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(spokenNumbers(u(row.written)).toStdString(), u(row.said).toStdString());
}

TEST(SpokenNumbers, QuantitiesAreNumbersAndMarksAreDigits) {
  const Row rows[] = {
      {u"1,234円", u"1234円"},
      {u"1,234,567円", u"1234567円"},
      {u"3割", u"3割"},
      {u"1.5", u"1.5"},
      {u"01130012", u"0 1 1 3 0 0 1 2"},
      {u"20241001001", u"2 0 2 4 1 0 0 1 0 0 1"},
      {u"07", u"0 7"},
      {u"03-1234-5678", u"0 3ノ1 2 3 4ノ5 6 7 8"},
      {u"1-2-3", u"1ノ2ノ3"},
      {u"1,2", u"1,2"},
      {u"", u""},
  };
  for (const Row& row : rows)
    EXPECT_EQ(spokenNumbers(u(row.written)).toStdString(), u(row.said).toStdString());
}

TEST(SpokenWords, SignsAreSaidAndSeparatorsPause) {
  const Row rows[] = {{u"※", u"コメジルシ"},
                      {u"①⑳", u"マル1マル20"},
                      {u"～", u"カラ"},
                      {u"氏名:\u00FE見本", u"氏名、、見本"},
                      {u"（注）", u"、注、"},
                      {u"𠮷", u"吉"},
                      {u"㈱", u"カブ"},
                      {u"×", u"バツ"},
                      {u"1:× 2", u"1、バツ 2"},
                      {u"3 × 往療", u"3 バツ 往療"},
                      {u"1610円 × 2回 = 3220円", u"1610円 カケル 2回 イコール 3220円"},
                      {u"12×3", u"12カケル3"}};
  for (const Row& row : rows) EXPECT_EQ(spokenSigns(u(row.written)).toStdString(), u(row.said).toStdString());
}

TEST_F(KanaReaderTest, ProductOfAmountsIsReadAsOne) {
  EXPECT_EQ(reader.read(u(u"はり 1,610円 × 2回 ＝ 3,220円")).toStdString(),
            u(u"ハリ 1610エン カケル 2カイ イコール 3220エン").toStdString());
}

TEST(SpokenWords, WidthsBecomeReadable) {
  EXPECT_EQ(readableWidth(u(u"ﾃﾞｰﾀ　ＡＢ１２！ﾊﾟ")), u(u"データ AB12!パ"));
}

TEST(SpokenWords, TheLongestWordOfTheTradeIsTaken) {
  const Row rows[] = {
      {u"鍼灸師会", u"シンキュウシカイ"}, {u"往療料", u"オウリョウリョウ"}, {u"往療", u"オウリョウ"},
      {u"温罨法", u"オンアンポウ"},       {u"罨法", u"アンポウ"},           {u"鍼", u"ハリ"}};
  for (const Row& row : rows)
    EXPECT_EQ(tradeReadings(u(row.written)).toStdString(), u(row.said).toStdString());
}

TEST(SpeechText, AVoiceThatReadsKanjiGetsTheTextWithPauses) {
  EXPECT_EQ(textWithPauses(u(u"※氏名:\u00FE見本　花子")), u(u"コメジルシ氏名:、見本　花子"));
  EXPECT_EQ(textWithPauses(u(u"住所:\u00FE")), u(u"住所:"));
  EXPECT_EQ(textWithPauses(u(u"\u00FE")), QString(""));
}

TEST_F(KanaReaderTest, WordsOfTheTradeAreReadAsInTheTrade) {
  const Row rows[] = {
      {u"鍼灸", u"シンキュウ"},
      {u"往療料", u"オウリョウリョウ"},
      {u"頸腕症候群", u"ケイワンショウコウグン"},
      {u"温罨法", u"オンアンポウ"},
      {u"初検料", u"ショケンリョウ"},
      {u"施術者氏名:", u"セジュツシャシメイ"},
      {u"療養費支給申請書", u"リョウヨウヒシキュウシンセイショ"},
      {u"被保険者の生年月日", u"ヒホケンシャノセイネンガッピ"},
      {u"治療台帳を起動しました", u"チリョウダイチョウヲキドウシマシタ"},
      {u"令和６年１０月１日", u"レイワ6ネン10ガツツイタチ"},
      {u"令和元年5月1日", u"レイワガンネン5ガツツイタチ"},
      {u"４月１日", u"シガツツイタチ"},
      {u"検索データが０件です。", u"ケンサクデータガ0ケンデス"},
      {u"続柄:\u00FE本人", u"ツヅキガラ、ホンニン"},
      {u"①～③", u"マル1カラマル3"},
      {u"ﾃﾞｰﾀ", u"データ"},
      {u"新しい患者を追加しますか？", u"アタラシイカンジャヲツイカシマスカ?"},
      {u"往　療　料　　　 ４.０  kmまで", u"オウリョウリョウ 4.0 kmマデ"},
      {u"施術証明欄", u"セジュツショウメイラン"},
      {u"申請年月", u"シンセイネンゲツ"},
      {u"この方のカルテを閉じますか？", u"コノカタノカルテヲトジマスカ?"},
      {u"コンピューター", u"コンピュウター"},
      {u"髙橋", u"タカハシ"},
      {u"", u""},
  };
  for (const Row& row : rows)
    EXPECT_EQ(reader.read(u(row.written)).toStdString(), u(row.said).toStdString())
        << u(row.written).toStdString();
}

TEST_F(KanaReaderTest, NoKanjiIsLeft) {
  for (const char16_t* text :
       {u"右カーソルキーを押し、上カーソルキーで前回分を音声致します", u"躯幹 右上肢 左下肢",
        u"変形徒手矯正術", u"愛知県鍼灸マッサージ師会に提出", u"後期高齢者医療登録番号鍼:",
        u"保健所登録区分:", u"合谷 足三里 肩井", u"鬱 麤 龘 𩸽 々 〆切", u"𠮷 﨑 邉 濵 瀨"})
    EXPECT_FALSE(holdsKanji(reader.read(u(text)))) << reader.read(u(text)).toStdString();
}

TEST_F(KanaReaderTest, EveryKanjiOfTheFormsIsSaidSomehow) {
  QString all;
  for (char16_t code = 0x4E00; code < 0x9FA0; ++code) all += QChar(code);
  for (qsizetype at = 0; at < all.size(); at += 200) EXPECT_FALSE(holdsKanji(reader.read(all.mid(at, 200))));
}
