#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"

namespace claims {

using namespace screen;
using namespace rows;
using Form = ClaimFormScreen;

namespace {

constexpr char16_t kOldSymbolTip[] =
    u"過去の社会保険の際に使用した項目です。現在は入力しても印刷はされません。記号２の方へ入力してください。";
constexpr char16_t kRelationTip[] =
    u"続柄を空白にすると、申請総括表Ⅰ・Ⅱに正確に印刷されません。必ず「本人」等を入力しておき、"
    u"印刷する・しないは「印刷設定」で行ってください。";
constexpr char16_t kInsurerNumberTip[] =
    u"後記高齢の場合は、頭の39を除いた番号をいれてください。"
    u"8文字以上（スペースの空白文字も含む）を入力すると印刷されません。";

/// A box of the right-hand side of the form; 負担割合 joins them at store.
constexpr Check shareBox(ControlName name, Words caption, Binding bind) {
  return tick(name, caption, bind, u"右欄");
}

constexpr Row kRows[] = {
    Page{u"保険証"},
    Group{{u"FrameKind"}, u"申請と保険の種類", 4},
    field({u"txtFields", 10}, u"申請月:", Column{u"申請月"}, 4, u"1から12の数字"),
    field({u"txtFields", 11}, u"請求回数:", Column{u"請求回数"}, 4),
    list({u"Combo1", 0}, u"※保険の種類:", Column{u"保険の種類"}),
    list({u"Combo1", 1}, u"※施術録の保険の種類:", Column{u"保険の種類3"}),
    list({u"Combo1", 2}, u"一部負担金:", Column{u"一部負担金"}),
    Check{.name = {u"Check1"},
          .caption = u"世帯主でない本人",
          .bind = Column{u"保険の種類2"},
          .marksDirty = true},
    tick({u"chkFields", 10}, u"公費負担（乳・障・母）", Column{u"公費負担"}),
    EndGroup{},
    Group{{u"FrameShare"}, u"負担の区分（右欄）", 6},
    shareBox({u"Check9", 0}, u"本人", Column{u"本人"}),
    shareBox({u"Check9", 1}, u"三歳未満", Column{u"就学前"}),
    shareBox({u"Check9", 2}, u"家族", Column{u"家族"}),
    shareBox({u"Check9", 3}, u"高齢9", Column{u"高齢9"}),
    shareBox({u"Check9", 4}, u"高齢8", Column{u"高齢8"}),
    shareBox({u"Check9", 5}, u"高齢7", Column{u"高齢7"}),
    TextField{.name = {u"Text10"}, .caption = u"負担割合:", .bind = Column{u"負担割合"}, .readOnly = true},
    EndGroup{},
    Group{{u"FrameInsurer"}, u"保険者", 3},
    list({u"Combo1", 3}, u"※保険者名称:", Column{u"保険者名称"}, call<&Form::insurerNameChosen>),
    Combo{.name = {u"Combo1", 4},
          .caption = u"保険者番号:",
          .bind = Column{u"保険者番号"},
          .editable = true,
          .tip = kInsurerNumberTip,
          .onEdit = call<&Form::insurerNumberChosen>,
          .onLeave = call<&Form::insurerNumberLeft>},
    list({u"Combo1", 5}, u"保険者住所:", Column{u"保険者住所"}),
    field({u"txtFields", 12}, u"保険証記号１:", Column{u"保険証記号1"}, 14, kOldSymbolTip),
    field({u"txtFields", 13}, u"保険証記号２:", Column{u"保険証記号2"}, 14),
    field({u"txtFields", 14}, u"保険証番号:", Column{u"保険証番号"}, 14),
    field({u"txtFields", 15}, u"資格取得年月日:", Column{u"資格取得年月日"}, 14),
    field({u"txtFields", 16}, u"有効期限:", Column{u"有効期限"}, 14),
    list({u"Combo1", 6}, u"申請欄名称:", Column{u"c6", 2}),
    field({u"txtFields", 17}, u"区市町村番号:", Column{u"区市町村番号"}, 14),
    field({u"txtFields", 18}, u"受給者番号:", Column{u"受給者番号"}, 14),
    field({u"txtFields", 19}, u"区市町村名称:", Column{u"区市町村名称"}),
    field({u"txtFields", 20}, u"公費負担番号:", Column{u"公費負担番号"}, 14),
    field({u"txtFields", 21}, u"公費受給者番号:", Column{u"公費受給者番号"}, 14),
    field({u"txtFields", 22}, u"公費の申請欄名称及び左欄外の名称:", Column{u"c18", 2}),
    field({u"txtFields", 23}, u"師会名:", Column{u"師会名"}),
    field({u"txtFields", 24}, u"後期高齢の登録番号（鍼灸）:", Column{u"c14", 2}, 14),
    field({u"txtFields", 25}, u"後期高齢の登録番号（あマ）:", Column{u"c15", 2}, 14),
    EndGroup{},
    Bar{},
    Command{.name = {u"Command14"},
            .caption = u"保険者登録",
            .run = run<&Form::openBeside>,
            .tip = u"保険者の所在地・名称・番号を入力してから押してください。"},
    Command{.name = {u"Command4"}, .caption = u"西暦", .run = run<&Form::datesToWestern>},
    Command{.name = {u"Command9"}, .caption = u"和暦", .run = run<&Form::datesToEra>},
    EndBar{},
    Group{{u"FrameInsured"}, u"被保険者", 3},
    field({u"txtFields", 26}, u"被保険者のフリガナ:", Column{u"被保険者のフリガナ"}),
    field({u"txtFields", 27}, u"被保険者の氏名:", Column{u"被保険者の氏名"}),
    field({u"txtFields", 28}, u"被保険者の生年月日:", Column{u"被保険者の生年月日"}, 14),
    list({u"Combo1", 7}, u"被保険者の性別:", Column{u"被保険者の性別"}),
    field({u"txtFields", 29}, u"※被保険者との続柄:", Column{u"被保険者との続柄"}, 8, kRelationTip),
    field({u"txtFields", 30}, u"被保険者の郵便番号:", Column{u"被保険者の郵便番号"}, 10),
    field({u"txtFields", 31}, u"被保険者の住所フリガナ:", Column{u"被保険者の住所フリガナ"}, 40),
    field({u"txtFields", 32}, u"被保険者の住所:", Column{u"被保険者の住所"}, 40),
    field({u"txtFields", 33}, u"被保険者の電話番号:", Column{u"被保険者の電話番号"}, 14),
    field({u"txtFields", 34}, u"事業所の名称:", Column{u"事業所の名称"}, 30),
    field({u"txtFields", 35}, u"事業所の所在地:", Column{u"事業所の所在地"}, 40),
    EndGroup{},
    Group{{u"FramePatient"}, u"療養を受ける者", 3},
    field({u"txtFields", 36}, u"療養を受ける者のフリガナ:", Column{u"療養を受ける者のフリガナ"}),
    field({u"txtFields", 37}, u"療養を受ける者の氏名:", Column{u"療養を受ける者の氏名"}),
    field({u"txtFields", 38}, u"療養を受ける者の生年月日:", Column{u"療養を受ける者の生年月日"}, 14),
    list({u"Combo1", 8}, u"療養を受ける者の性別:", Column{u"療養を受ける者の性別"}),
    field({u"txtFields", 39}, u"療養を受ける者の郵便番号:", Column{u"療養を受ける者の郵便番号"}, 10),
    field({u"txtFields", 40}, u"療養を受ける者の住所フリガナ:", Column{u"療養を受ける者の住所フリガナ"}, 40),
    field({u"txtFields", 41}, u"療養を受ける者の住所:", Column{u"療養を受ける者の住所"}, 40),
    field({u"txtFields", 42}, u"療養を受ける者の電話番号:", Column{u"療養を受ける者の電話番号"}, 14),
    EndGroup{},
    Group{{u"FrameMaster"}, u"患者台帳とのつながり", 4},
    field({u"txtFields", 43}, u"台帳の生年月日:", Column{u"生年月日"}, 14),
    shown({u"txtFields", 44}, u"番号1:", Column{u"番号1"}),
    shown({u"txtFields", 45}, u"カルテ番号:", Column{u"カルテ番号"}),
    field({u"txtFields", 46}, u"Flag4:", Column{u"Flag4"}, 6),
    field({u"txtFields", 47}, u"Flag5:", Column{u"Flag5"}, 6),
    EndGroup{},
};

}  // namespace

screen::Rows claimInsuranceRows() { return kRows; }

}  // namespace claims
