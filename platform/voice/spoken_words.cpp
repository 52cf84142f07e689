#include "platform/voice/spoken_words.h"

#include <QHash>
#include <QList>
#include <algorithm>

#include "platform/text/width.h"
#include "platform/voice/voice_channel.h"

namespace voice {
namespace {

struct Spoken {
  const char16_t* written;
  const char16_t* said;
};

constexpr Spoken kSigns[] = {
    {u"※", u"コメジルシ"},
    {u"～", u"カラ"},
    {u"〜", u"カラ"},
    {u"~", u"カラ"},
    {u"㈱", u"カブ"},
    {u"㈲", u"ユウ"},
    {u"℡", u"デンワ"},
    {u"〒", u"ユウビンバンゴウ"},
    {u"℃", u"ド"},
    {u"％", u"パーセント"},
    {u"%", u"パーセント"},
    {u"○", u"マル"},
    {u"〇", u"マル"},
    {u"◯", u"マル"},
    {u"●", u"クロマル"},
    {u"◎", u"ニジュウマル"},
    {u"×", u"バツ"},
    {u"△", u"サンカク"},
    {u"▲", u"クロサンカク"},
    {u"□", u"シカク"},
    {u"■", u"クロシカク"},
    {u"☆", u"ホシ"},
    {u"★", u"クロボシ"},
    {u"◇", u"ヒシガタ"},
    {u"◆", u"クロヒシガタ"},
    {u"→", u"ヤジルシ"},
    {u"←", u"ヒダリヤジルシ"},
    {u"↑", u"ウエヤジルシ"},
    {u"↓", u"シタヤジルシ"},
    {u"＋", u"プラス"},
    {u"+", u"プラス"},
    {u"＝", u"イコール"},
    {u"=", u"イコール"},
    {u"＆", u"アンド"},
    {u"&", u"アンド"},
    {u"＠", u"アットマーク"},
    {u"@", u"アットマーク"},
    {u"￥", u"エン"},
    {u"÷", u"ワル"},
    {u"㎝", u"センチ"},
    {u"㎏", u"キロ"},
    {u"㎞", u"キロ"},
    {u"㎜", u"ミリ"},
    {u"㎡", u"ヘイホウメートル"},
    {u"髙", u"高"},
    {u"﨑", u"崎"},
    {u"邊", u"辺"},
    {u"邉", u"辺"},
    {u"齋", u"斎"},
    {u"齊", u"斉"},
    {u"德", u"徳"},
    {u"濵", u"浜"},
    {u"濱", u"浜"},
    {u"桒", u"桑"},
    {u"廣", u"広"},
    {u"澤", u"沢"},
    {u"眞", u"真"},
    {u"嶋", u"島"},
    {u"嶌", u"島"},
    {u"惠", u"恵"},
    {u"國", u"国"},
    {u"櫻", u"桜"},
    {u"龍", u"竜"},
    {u"瀨", u"瀬"},
    {u"𠮷", u"吉"},
    {u"栁", u"柳"},
    {u"藪", u"薮"},
    {u"淸", u"清"},
};

constexpr QChar kPause = u'、';
constexpr QChar kWideBlank = u'　';

/// Each becomes a pause.
constexpr QStringView kPauses =
    u"、，,・･：:；;（）()「」『』【】［］[]〔〕｛｝{}＜＞<>《》〈〉/"
    u"／|｜…‥。．\n\r\t\"”“'’‘_＿*＊#＃!！^~\\＼";

/// Words of the trade. Written as on the screens and forms of insurance claims.
constexpr Spoken kTradeWords[] = {
    {u"コメジルシ印", u"コメジルシ"},
    {u"鍼灸", u"シンキュウ"},
    {u"鍼灸師", u"シンキュウシ"},
    {u"鍼灸師会", u"シンキュウシカイ"},
    {u"鍼師", u"ハリシ"},
    {u"灸師", u"キュウシ"},
    {u"鍼", u"ハリ"},
    {u"灸", u"キュウ"},
    {u"お灸", u"オキュウ"},
    {u"施術", u"セジュツ"},
    {u"施術者", u"セジュツシャ"},
    {u"施術所", u"セジュツショ"},
    {u"施術料", u"セジュツリョウ"},
    {u"施術録", u"セジュツロク"},
    {u"往療", u"オウリョウ"},
    {u"往療料", u"オウリョウリョウ"},
    {u"往診料", u"オウシンリョウ"},
    {u"往療日", u"オウリョウビ"},
    {u"初検", u"ショケン"},
    {u"初検料", u"ショケンリョウ"},
    {u"初療", u"ショリョウ"},
    {u"初療日", u"ショリョウビ"},
    {u"再検料", u"サイケンリョウ"},
    {u"電療", u"デンリョウ"},
    {u"電療料", u"デンリョウリョウ"},
    {u"温罨法", u"オンアンポウ"},
    {u"罨法", u"アンポウ"},
    {u"躯幹", u"クカン"},
    {u"頸腕症候群", u"ケイワンショウコウグン"},
    {u"頚腕症候群", u"ケイワンショウコウグン"},
    {u"頸腕", u"ケイワン"},
    {u"頚腕", u"ケイワン"},
    {u"頸椎", u"ケイツイ"},
    {u"頚椎", u"ケイツイ"},
    {u"頸肩腕", u"ケイケンワン"},
    {u"頸部", u"ケイブ"},
    {u"頚部", u"ケイブ"},
    {u"捻挫", u"ネンザ"},
    {u"後遺症", u"コウイショウ"},
    {u"五十肩", u"ゴジュウカタ"},
    {u"腰痛症", u"ヨウツウショウ"},
    {u"拘縮", u"コウシュク"},
    {u"筋麻痺", u"キンマヒ"},
    {u"片麻痺", u"カタマヒ"},
    {u"麻痺", u"マヒ"},
    {u"変形徒手矯正術", u"ヘンケイトシュキョウセイジュツ"},
    {u"徒手矯正", u"トシュキョウセイ"},
    {u"経穴", u"ケイケツ"},
    {u"経絡", u"ケイラク"},
    {u"穴名", u"ケツメイ"},
    {u"局所", u"キョクショ"},
    {u"右上肢", u"ミギジョウシ"},
    {u"左上肢", u"ヒダリジョウシ"},
    {u"右下肢", u"ミギカシ"},
    {u"左下肢", u"ヒダリカシ"},
    {u"上肢", u"ジョウシ"},
    {u"下肢", u"カシ"},
    {u"療養費", u"リョウヨウヒ"},
    {u"支給申請書", u"シキュウシンセイショ"},
    {u"被保険者", u"ヒホケンシャ"},
    {u"保険者", u"ホケンシャ"},
    {u"被保険者証", u"ヒホケンシャショウ"},
    {u"受領委任", u"ジュリョウイニン"},
    {u"同意医師", u"ドウイイシ"},
    {u"同意書", u"ドウイショ"},
    {u"再同意", u"サイドウイ"},
    {u"総括表", u"ソウカツヒョウ"},
    {u"集計表", u"シュウケイヒョウ"},
    {u"続柄", u"ツヅキガラ"},
    {u"転帰", u"テンキ"},
    {u"摘要", u"テキヨウ"},
    {u"傷病名", u"ショウビョウメイ"},
    {u"師会", u"シカイ"},
    {u"師会名", u"シカイメイ"},
    {u"欄外", u"ランガイ"},
    {u"翌月", u"ヨクゲツ"},
    {u"前月", u"ゼンゲツ"},
    {u"元年", u"ガンネン"},
    {u"明治", u"メイジ"},
    {u"大正", u"タイショウ"},
    {u"昭和", u"ショウワ"},
    {u"平成", u"ヘイセイ"},
    {u"令和", u"レイワ"},
    {u"本日", u"ホンジツ"},

    {u"1術", u"イチジュツ"},
    {u"2術", u"ニジュツ"},

    {u"1通", u"イッツウ"},
    {u"年月", u"ネンゲツ"},
    {u"年月日", u"ネンガッピ"},
    {u"生年月日", u"セイネンガッピ"},
    {u"新患", u"シンカン"},
    {u"当地払", u"トウチバライ"},
    {u"脈診", u"ミャクシン"},
    {u"腹診", u"フクシン"},
    {u"舌診", u"ゼッシン"},
    {u"補寫", u"ホシャ"},
    {u"補瀉", u"ホシャ"},
    {u"刺入方法", u"シニュウホウホウ"},
    {u"刺入", u"シニュウ"},
    {u"取穴", u"シュケツ"},
    {u"禁鍼", u"キンシン"},
    {u"禁灸", u"キンキュウ"},
    {u"温あん法", u"オンアンポウ"},
    {u"筋萎縮", u"キンイシュク"},
    {u"往 療 料", u"オウリョウリョウ"},
    {u"駆幹", u"クカン"},
    {u"併施", u"ヘイシ"},
    {u"受療委任", u"ジュリョウイニン"},
    {u"正しく", u"タダシク"},
    {u"この方", u"コノカタ"},
    {u"領 収 証", u"リョウシュウショウ"},
    {u"住 所", u"ジュウショ"},
    {u" 様", u" サマ"},
    {u"高外", u"コウガイ"},
    {u"歳", u"サイ"},
    {u"データ送", u"データオクリ"},
    {u"人体図", u"ジンタイズ"},
    {u"主訴", u"シュソ"},
    {u"既往症", u"キオウショウ"},
    {u"現病歴", u"ゲンビョウレキ"},
    {u"診察券", u"シンサツケン"},

};

QHash<QString, QString> signTable() {
  QHash<QString, QString> table;
  for (const Spoken& sign : kSigns) table[QString::fromUtf16(sign.written)] = QString::fromUtf16(sign.said);
  for (char16_t n = 1; n <= 20; ++n) {
    table[QString(QChar(static_cast<char16_t>(u'①' + n - 1)))] = QStringLiteral("マル%1").arg(n);
    table[QString(QChar(static_cast<char16_t>(u'⑴' + n - 1)))] = QStringLiteral("カッコ%1").arg(n);
  }
  for (char16_t n = 1; n <= 10; ++n)
    table[QString(QChar(static_cast<char16_t>(u'Ⅰ' + n - 1)))] = QStringLiteral("ローマスウジ%1").arg(n);
  return table;
}

struct Word {
  QString written, said;
};

QList<Word> wordsByLength() {
  QList<Word> words;
  for (const Spoken& word : kTradeWords)
    words.append({QString::fromUtf16(word.written), QString::fromUtf16(word.said)});
  std::stable_sort(words.begin(), words.end(),
                   [](const Word& a, const Word& b) { return a.written.size() > b.written.size(); });
  return words;
}

bool isHalfKana(QChar c) { return c >= QChar(0xFF61) && c <= QChar(0xFF9F); }
bool isFullAscii(QChar c) { return c > QChar(0xFF00) && c < QChar(0xFF5F); }

/// Whether the × at the place belongs to a product, "1,610円 × 2回", and is no cross of a form.
bool multiplies(const QString& text, qsizetype at) {
  qsizetype before = at - 1, behind = at + 1;
  while (before >= 0 && text[before] == u' ') --before;
  while (behind < text.size() && text[behind] == u' ') ++behind;
  constexpr QStringView kUnits = u"円回人日枚通%";
  const auto figure = [](QChar c) { return c >= u'0' && c <= u'9'; };
  return before >= 0 && behind < text.size() && figure(text[behind]) &&
         (figure(text[before]) || kUnits.contains(text[before]));
}

}  // namespace

QString readableWidth(const QString& text) {
  QString result;
  for (qsizetype at = 0; at < text.size();) {
    qsizetype end = at;
    while (end < text.size() && isHalfKana(text[end])) ++end;
    if (end > at) {
      result += text::toFullWidth(text.mid(at, end - at));
      at = end;
    } else {
      const bool folds = isFullAscii(text[at]) || text[at] == kWideBlank;
      result += folds ? text::toHalfWidth(text.mid(at, 1)) : text.mid(at, 1);
      ++at;
    }
  }
  return result;
}

QString spokenSigns(const QString& text) {
  static const QHash<QString, QString> table = signTable();
  QString result;
  for (qsizetype at = 0; at < text.size(); ++at) {
    const bool pair = text[at].isHighSurrogate() && at + 1 < text.size();
    const QString sign = text.mid(at, pair ? 2 : 1);
    at += pair ? 1 : 0;
    if (sign == u"×" && multiplies(text, at))
      result += QStringLiteral("カケル");
    else if (const auto said = table.constFind(sign); said != table.constEnd())
      result += *said;
    else if (sign[0] == kSpeechSeparator || kPauses.contains(sign))
      result += kPause;
    else
      result += sign;
  }
  return result;
}

QString tradeReadings(const QString& text) {
  static const QList<Word> words = wordsByLength();
  QString result = text;
  for (const Word& word : words) result.replace(word.written, word.said);
  return result;
}

}  // namespace voice
