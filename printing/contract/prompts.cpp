#include "printing/contract/prompts.h"

namespace printing {

namespace {

struct PromptRow {
  const char16_t* screen;
  bool family;  ///< also the screens whose names go on after this one
  const char16_t* prompt;
};

constexpr char16_t kClaims[] =
    u"レセプトデータの印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。";
constexpr char16_t kMonth[] =
    u"指定年月のレセプトデータの印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。";
constexpr char16_t kBlankForms[] =
    u"レセプト用紙の印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。";
constexpr char16_t kNewSummary[] =
    u"新しい総括表の印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。";

constexpr PromptRow kPrompts[] = {
    {u"大阪レセプト印刷", false,
     u"レセプトデータの印刷を行います。大阪市専用の用紙をプリンタにセットして下さい。"},
    {u"大阪年月印刷", false,
     u"指定年月のレセプトデータの印刷を行います。大阪専用の用紙をプリンタにセットして下さい。"},
    {u"東京助成レセプト印刷", true, kClaims},
    {u"石川県の公費レセプト印刷", true, kClaims},
    {u"レセプト印刷", true, kClaims},
    {u"年月印刷", true, kMonth},
    {u"用紙印刷", true, kBlankForms},
    {u"施術録単体印刷", false,
     u"レセプトデータを施術録として印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。"},
    {u"施術録", false, u"従来の総括表の印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。"},
    {u"施術録2", false, kNewSummary},
    {u"施術録3", false, kNewSummary},
    {u"総括表700_2", false,
     u"申請総括票－Ⅱの印刷を行います。プリンタオプションで縦にして、Ａ４サイズの用紙をプリンタにセットして下"
     u"さい。"},
    {u"総括表700_1", false,
     u"申請総括票－Ⅰの印刷を行います。プリンタオプションで縦にして、Ａ４サイズの用紙をプリンタにセットして下"
     u"さい。"},
    {u"同意期限一ヶ月", false,
     u"現在表示している一覧の印刷を行います。Ａ４サイズの用紙をプリンタにセットして下さい。"},
};

}  // namespace

QString promptOf(const QString& screen) {
  for (const PromptRow& row : kPrompts) {
    const QString name = QString::fromUtf16(row.screen);
    if (screen == name || (row.family && screen.startsWith(name))) return QString::fromUtf16(row.prompt);
  }
  return QString();
}

}  // namespace printing
