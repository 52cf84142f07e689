#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"
#include "platform/store/tables/claims.h"

namespace claims {

using namespace screen;
using namespace rows;
using Form = ClaimFormScreen;

namespace {

// The stored text is the index of the button. A button names what it switches: its caption is all that is
// heard on it.
constexpr Choice kChoices1[] = {{{u"Option1", 0}, u"最初の治療日", u"0"}, {{u"Option1", 1}, u"１日", u"1"}};
constexpr Choice kChoices2[] = {{{u"Option2", 0}, u"月末日", u"0"}, {{u"Option2", 1}, u"最終の治療日", u"1"}};
constexpr Choice kChoices3[] = {{{u"Option3", 0}, u"左欄外保険者名を印刷する", u"0"},
                                {{u"Option3", 1}, u"左欄外保険者名を印刷しない", u"1"}};
constexpr Choice kChoices4[] = {{{u"Option4", 0}, u"公費負担番号を印刷する", u"0"},
                                {{u"Option4", 1}, u"公費負担番号を印刷しない", u"1"}};
constexpr Choice kChoices5[] = {{{u"Option5", 0}, u"男女を印刷する", u"0"},
                                {{u"Option5", 1}, u"男女を印刷しない", u"1"}};
constexpr Choice kChoices6[] = {{{u"Option6", 0}, u"印刷する", u"0"},
                                {{u"Option6", 1}, u"すべて印刷しない", u"1"}};
constexpr Choice kChoices7[] = {{{u"Option7", 0}, u"申請欄の○を印刷する", u"0"},
                                {{u"Option7", 1}, u"申請欄の○を印刷しない", u"1"}};
constexpr Choice kChoices8[] = {{{u"Option8", 0}, u"委任欄の被保険者の氏名を印刷する", u"0"},
                                {{u"Option8", 1}, u"委任欄の被保険者の氏名を印刷しない", u"1"}};
constexpr Choice kChoices9[] = {{{u"Option13", 0}, u"続柄を印刷する", u"0"},
                                {{u"Option13", 1}, u"続柄を印刷しない", u"1"}};
constexpr Choice kChoices10[] = {{{u"Option9", 0}, u"申請欄の氏名を印刷する", u"0"},
                                 {{u"Option9", 1}, u"申請欄の氏名を印刷しない", u"1"}};
constexpr Choice kChoices11[] = {{{u"Option10", 0}, u"給付割合の○を印刷する", u"0"},
                                 {{u"Option10", 1}, u"給付割合の○を印刷しない", u"1"}};
constexpr Choice kChoices12[] = {{{u"Option11", 0}, u"代表者委任を印刷する", u"0"},
                                 {{u"Option11", 1}, u"代表者委任を印刷しない", u"1"}};
constexpr Choice kChoices13[] = {{{u"Option12", 0}, u"標準計算", u"0"},
                                 {{u"Option12", 1}, u"公費があるため０円にする", u"1"}};
constexpr Choice kChoices14[] = {{{u"Option14", 0}, u"年月日を印刷する", u"0"},
                                 {{u"Option14", 1}, u"年月日を印刷しない", u"1"}};
constexpr Choice kChoices15[] = {{{u"Option16", 0}, u"別添1を印刷する", u"0"},
                                 {{u"Option16", 1}, u"別添1を印刷しない", u"1"}};
// These four hold "1" for the first button and "0" for the second, as the claims that carry them always did.
constexpr Choice kChoices16[] = {{{u"Option17", 0}, u"施術者の口座", u"1"},
                                 {{u"Option17", 1}, u"代表者の口座", u"0"}};
constexpr Choice kChoices17[] = {{{u"Option18", 0}, u"施術者の住所・氏名", u"1"},
                                 {{u"Option18", 1}, u"代表者の住所・氏名", u"0"}};
constexpr Choice kChoices18[] = {{{u"Option19", 0}, u"同意医師欄を印刷する", u"1"},
                                 {{u"Option19", 1}, u"同意医師欄を印刷しない", u"0"}};
constexpr Choice kChoices19[] = {{{u"Option20", 0}, u"金額欄を印刷する", u"1"},
                                 {{u"Option20", 1}, u"金額欄を印刷しない", u"0"}};

/// A switch of the print settings: a column, "0" or "1", written back at once when a button is pressed.
constexpr Options setting(ControlName name, Words caption, Binding bind, std::span<const Choice> choices) {
  Options row{.name = name, .caption = caption, .bind = bind, .choices = choices};
  row.marksDirty = true;
  row.onChoose = call<&Form::printSettingChosen>;
  return row;
}

constexpr Row kRows[] = {
    Page{u"印刷設定"},
    Note{.name = {u"LabelSettings"},
         .caption =
             u"※印刷設定を変更した場合は、必ず「登録」を押してから「印刷」もしくは他の動作をしてください。"},
    Group{{u"FrameSettings", 1}, u"印刷の設定 １", 1},
    setting({u"FrameSet", 1}, u"施術期間（自）", claim::periodFrom, kChoices1),
    setting({u"FrameSet", 2}, u"施術期間（至）", claim::periodTo, kChoices2),
    setting({u"FrameSet", 3}, u"左欄外保険者名の印字", claim::printMargin, kChoices3),
    setting({u"FrameSet", 4}, u"公費負担番号の印字", claim::printPublicAidNumber, kChoices4),
    setting({u"FrameSet", 5}, u"男女の印字", claim::printSex, kChoices5),
    setting({u"FrameSet", 6}, u"委任欄（償還払い時）", claim::printMandate, kChoices6),
    setting({u"FrameSet", 7}, u"申請欄（保険者の頭に○）", claim::printRequestMark, kChoices7),
    setting({u"FrameSet", 8}, u"委任欄の被保険者の氏名の印字", claim::printMandateName, kChoices8),
    setting({u"FrameSet", 9}, u"続柄の印字", claim::printRelation, kChoices9),
    setting({u"FrameSet", 10}, u"申請欄の氏名の印字", claim::printApplicantName, kChoices10),
    EndGroup{},
    Group{{u"FrameSettings", 2}, u"印刷の設定 ２", 1},
    setting({u"FrameSet", 11}, u"右上の給付割合の○", claim::printShareCircles, kChoices11),
    setting({u"FrameSet", 12}, u"施術証明欄に代表者委任の印字", claim::printProxyWords, kChoices12),
    setting({u"FrameSet", 13}, u"一部負担金を", claim::shareAsComputed, kChoices13),
    setting({u"FrameSet", 14}, u"施術証明欄・申請欄・委任欄の年月日", claim::printDates, kChoices14),
    setting({u"FrameSet", 15}, u"別添1（様式第6号）の印字", claim::printAttachment, kChoices15),
    setting({u"FrameSet", 16}, u"支払機関欄の口座", claim::printBank, kChoices16),
    setting({u"FrameSet", 17}, u"施術証明欄の住所・氏名", claim::printProof, kChoices17),
    setting({u"FrameSet", 18}, u"同意医師欄の印字", claim::printDoctor, kChoices18),
    setting({u"FrameSet", 19}, u"金額欄の印字", claim::printAmounts, kChoices19),
    EndGroup{},
    Group{{u"FrameSummary"}, u"総括表と受領委任", 2},
    TextField{.name = {u"Text50"}, .caption = u"総括表の種別:", .bind = claim::summaryKind, .width = 6},
    flag({u"Check50"}, u"受領委任", claim::delegated),
    EndGroup{},
};

}  // namespace

screen::Rows claimPrintSettingsRows() { return kRows; }

}  // namespace claims
