#include "claims/core/carry_forward.h"

#include "claims/core/print_settings.h"
#include "frame/core/eras.h"
#include "platform/text/number.h"
#include "platform/text/width.h"

namespace claims {
namespace {

/// The era that a text begins with; nullptr: none.
const frame::Era* eraNamed(QStringView text) {
  for (const frame::Era& era : frame::eras())
    if (text.startsWith(QStringView(era.name))) return &era;
  return nullptr;
}

/// The whole number that a text is, 0 where it is none.
int wholeNumber(const QString& text) {
  const QString digits = text::asciiDigits(text).trimmed();
  bool ok = false;
  const int number = digits.toInt(&ok);
  return ok && number > 0 ? number : 0;
}

struct EraMonth {
  const frame::Era* era = nullptr;
  int year = 0;
  int month = 0;
};

std::optional<EraMonth> parseEraMonth(const QString& text) {
  const qsizetype yearEnd = text.indexOf(u'年', 2);
  const qsizetype monthEnd = yearEnd < 0 ? -1 : text.indexOf(u'月', yearEnd);
  if (monthEnd < 0) return std::nullopt;
  EraMonth result;
  result.era = eraNamed(text);
  const QString year = text.mid(2, yearEnd - 2);
  result.year = year.trimmed() == u"元" ? 1 : wholeNumber(year);
  result.month = wholeNumber(text.mid(yearEnd + 1, monthEnd - yearEnd - 1));
  if (!result.era || result.year == 0 || result.month == 0 || result.month > 12) return std::nullopt;
  return result;
}

QString eraMonthText(const QString& era, int year, int month) {
  return era + QString::number(year) + u'年' + QString::number(month) + u'月';
}

// The pages 保険証, 同意書 and 申請者の確認, the sickness columns and the claim's keys. The print settings
// follow in carryForward() from their own table.
constexpr const char16_t* kCarried[] = {
    // keys
    u"番号1",
    u"Flag4",
    u"Flag5",
    u"カルテ番号",
    u"氏名",
    u"生年月日",
    u"施術内容",
    u"保険順位",
    u"保険証番号1",
    u"numdummy16",
    // 保険証
    u"保険の種類",
    u"保険の種類2",
    u"保険の種類3",
    u"一部負担金",
    u"負担割合",
    u"本人",
    u"家族",
    u"就学前",
    u"高齢7",
    u"高齢8",
    u"高齢9",
    u"公費負担",
    u"保険者名称",
    u"保険者番号",
    u"保険者住所",
    u"保険証記号1",
    u"保険証記号2",
    u"保険証番号",
    u"資格取得年月日",
    u"有効期限",
    u"区市町村番号",
    u"受給者番号",
    u"区市町村名称",
    u"公費負担番号",
    u"公費受給者番号",
    u"師会名",
    u"被保険者のフリガナ",
    u"被保険者の氏名",
    u"被保険者の生年月日",
    u"被保険者の性別",
    u"被保険者の郵便番号",
    u"被保険者の住所",
    u"被保険者の住所フリガナ",
    u"被保険者の電話番号",
    u"被保険者との続柄",
    u"事業所の名称",
    u"事業所の所在地",
    u"療養を受ける者の氏名",
    u"療養を受ける者のフリガナ",
    u"療養を受ける者の生年月日",
    u"療養を受ける者の性別",
    u"療養を受ける者の郵便番号",
    u"療養を受ける者の住所",
    u"療養を受ける者の住所フリガナ",
    u"療養を受ける者の電話番号",
    u"c6",
    u"c12",
    u"c18",
    u"c24",
    // 同意書
    u"傷病名",
    u"傷病名1",
    u"傷病名2",
    u"傷病名3",
    u"傷病名4",
    u"傷病名5",
    u"傷病名6",
    u"傷病名7",
    u"傷病名8",
    u"発病又は負傷年月日",
    u"発病又は負傷の原因",
    u"初療年月日",
    u"同意の年月日",
    u"実際の同意の年月日",
    u"同意の傷病名",
    u"同意症状",
    u"memodummy11",
    u"同意医師氏名",
    u"同意医師フリガナ",
    u"同意医師住所",
    u"同意医師の電話番号",
    u"医療機関名",
    u"要加療期間1",
    u"要加療期間2",
    u"同意_施術者",
    u"同意_患者",
    u"躯幹",
    u"右上肢",
    u"左上肢",
    u"右下肢",
    u"左下肢",
    u"徒手右上肢",
    u"徒手左上肢",
    u"徒手右下肢",
    u"徒手左下肢",
    u"温あん法",
    u"電気光線器具",
    u"入院期間1",
    u"入院期間2",
    u"入院日数",
    u"摘要1",
    u"摘要2",
    u"摘要3",
    u"摘要4",
    u"摘要5",
    u"摘要6",
    // 既往症 to 備考
    u"既往症",
    u"主要症状",
    u"経過",
    u"施術経過所見",
    u"備考",
    // 申請者の確認
    u"施術者氏名",
    u"施術者フリガナ",
    u"施術所の名称",
    u"施術所の所在地",
    u"施術所の所在地カナ",
    u"施術所の郵便番号",
    u"施術所電話番号",
    u"師会等の機関番号",
    u"支払い機関区分",
    u"金融機関名",
    u"金融機関名種類",
    u"本店支店名",
    u"本店支店名種類",
    u"預金の種類",
    u"口座番号",
    u"口座名義",
    u"口座名義カタカナ",
    u"郵便局名",
    u"代表者氏名",
    u"代表者フリガナ",
    u"代表者郵便番号",
    u"代表者住所",
    u"代表者住所フリガナ",
    u"代表者電話番号",
    u"代表者金融機関名",
    u"代表者金融機関名種類",
    u"代表者本店支店名",
    u"代表者本店支店名種類",
    u"代表者預金の種類",
    u"代表者口座番号",
    u"代表者口座名義",
    u"代表者口座名義カタカナ",
    u"代表者郵便局名",
    u"c14",
    u"c15",
};

void copy(const ClaimRecord& from, ClaimRecord& to, const char16_t* name) {
  const QString column = QString::fromUtf16(name);
  if (from.has(column)) to.set(column, from.get(column));
}

}  // namespace

std::optional<NextMonth> nextMonth(const QString& claimMonth) {
  const auto from = parseEraMonth(claimMonth);
  if (!from) return std::nullopt;
  const int month = from->month == 12 ? 1 : from->month + 1;
  const int year = from->month == 12 ? from->year + 1 : from->year;
  const QDate first(from->era->baseYear() + year, month, 1);
  const frame::Era* now = frame::eraOf(first);
  // Beyond its last day an era gives way to the next; before its first day what was typed stands.
  const bool past = now && now->begin() > from->era->begin();
  const frame::Era& era = past ? *now : *from->era;
  const QString text = eraMonthText(era.nameText(), first.year() - era.baseYear(), month);
  return NextMonth{text, QString::number(month)};
}

QString carryForwardRefusal(const ClaimRecord& claim) {
  if (claim.blank(QStringLiteral("請求回数")))
    return QStringLiteral("申請回数が空欄です。記入してください。");
  if (claim.blank(QStringLiteral("申請年月")))
    return QStringLiteral("申請年月が空欄です。記入してください。");
  return {};
}

std::span<const char16_t* const> carriedColumns() { return kCarried; }

ClaimRecord carryForward(const ClaimRecord& claim) {
  ClaimRecord next;
  for (const char16_t* name : kCarried) copy(claim, next, name);
  for (const PrintSetting& setting : printSettings()) copy(claim, next, setting.column);
  for (const NewClaimDefault& hidden : hiddenPrintDefaults()) copy(claim, next, hidden.column);
  // 社保 and 政管健保 were taken over by 全国健康保険協会 in 2008; old claims pass on the new name.
  if (claim.get(QStringLiteral("保険の種類")) == u"社保")
    next.set(QStringLiteral("保険の種類"), QStringLiteral("全国健康保険協会"));
  if (claim.get(QStringLiteral("保険の種類3")) == u"政管健保")
    next.set(QStringLiteral("保険の種類3"), QStringLiteral("全国健康保険協会"));
  next.set(QStringLiteral("請求区分"), QStringLiteral("継続"));
  next.set(QStringLiteral("業務上外のもの"), QStringLiteral("その他"));
  next.set(QStringLiteral("第三者行為によるもの"), QStringLiteral("いいえ"));
  next.set(QStringLiteral("入院入院外の別"), QStringLiteral("入院外"));
  if (const auto month = nextMonth(claim.get(QStringLiteral("申請年月")))) {
    next.set(QStringLiteral("申請年月"), month->month);
    next.set(QStringLiteral("申請月"), month->number);
  }
  next.set(QStringLiteral("請求回数"),
           QString::number(text::intOf(claim.get(QStringLiteral("請求回数"))) + 1));
  return next;
}

QString clinicBoxText(const QString& clinicName) { return QStringLiteral("施術所（") + clinicName + u'）'; }

QStringList secondCarryMessages() {
  return {QStringLiteral("連続した「翌月への継続」は行えません。"),
          QStringLiteral("「閉じる」でレセプト一覧へ戻り、レセプト一覧の「更新」を押して、改めて選択して、"),
          QStringLiteral("レセプトデータへ戻って下さい。")};
}

QStringList carryQuestion() {
  return {QStringLiteral("この患者の新しいレセプトを追加しますか？"),
          QStringLiteral("追加されるデータは閉じるボタンを押してもレセプト一覧表には最初表示されません。"),
          QStringLiteral("表示させるにはレセプト一覧表の画面での「更新」ボタンを押して下さい。")};
}

}  // namespace claims
