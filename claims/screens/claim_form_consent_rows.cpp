#include "claims/core/generic_columns.h"
#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"

namespace claims {

using namespace screen;
using namespace rows;
using Form = ClaimFormScreen;

namespace {

constexpr char16_t kDiseases[] = u"傷病名";

/// Count beside a consented area or limb, kept with the claim.
constexpr TextField count(ControlName name, Words caption, Binding bind) {
  return field(name, caption, bind, 4);
}

constexpr Row kRows[] = {
    Page{u"同意書"},
    Group{{u"FrameDisease"}, u"傷病", 4},
    field({u"txtFields", 60}, u"傷病名:", Column{u"傷病名"}, 30),
    tick({u"chkFields", 0}, u"神経痛", Column{u"傷病名1"}, kDiseases),
    tick({u"chkFields", 1}, u"リウマチ", Column{u"傷病名2"}, kDiseases),
    tick({u"chkFields", 2}, u"頸腕症候群", Column{u"傷病名3"}, kDiseases),
    tick({u"chkFields", 3}, u"五十肩", Column{u"傷病名4"}, kDiseases),
    tick({u"chkFields", 4}, u"腰痛症", Column{u"傷病名5"}, kDiseases),
    tick({u"chkFields", 5}, u"頸椎捻挫後遺症", Column{u"傷病名6"}, kDiseases),
    field({u"txtFields", 61}, u"傷病名 その他:", Column{u"傷病名7"}),
    field({u"txtFields", 62}, u"傷病名 付記:", Column{u"傷病名8"}),
    field({u"txtFields", 63}, u"発病又は負傷年月日:", Column{u"発病又は負傷年月日"}, 16),
    field({u"txtFields", 64}, u"発病又は負傷の原因:", Column{u"発病又は負傷の原因"}, 30),
    field({u"txtFields", 65}, u"※初療年月日:", Column{u"初療年月日"}, 16),
    list({u"Combo1", 20}, u"業務上外のもの:", Column{u"業務上外のもの"}),
    TextField{.name = {u"txtFields", 106},
              .caption = u"業務上外のもの その他の内容:",
              .bind = Column{u"d13", 2},
              .limit = 24},
    list({u"Combo1", 21}, u"第三者行為によるもの:", Column{u"第三者行為によるもの"}),
    list({u"Combo1", 22}, u"入院入院外の別:", Column{u"入院入院外の別"}),
    field({u"txtFields", 66}, u"入院期間（自）:", Column{u"入院期間1"}, 14),
    field({u"txtFields", 67}, u"入院期間（至）:", Column{u"入院期間2"}, 14),
    field({u"txtFields", 68}, u"入院日数:", Column{u"入院日数"}, 4),
    EndGroup{},
    Group{{u"FrameConsent"}, u"同意", 3},
    field({u"txtFields", 70}, u"同意の年月日:", Column{u"同意の年月日"}, 16, u"控えの日付です。"),
    field({u"txtFields", 71}, u"実際にレセプトへ記入する同意の年月日:", Column{u"実際の同意の年月日"}, 16),
    field({u"txtFields", 72}, u"同意の傷病名:", Column{u"同意の傷病名"}),
    memo({u"txtFields", 73}, u"同意の傷病名の追記:", Column{column::kConsentNote, 2}, kLongText),
    list({u"Combo1", 23}, u"同意症状:", Column{u"同意症状"}),
    field({u"txtFields", 74}, u"要加療期間（自）:", Column{u"要加療期間1"}, 16),
    field({u"txtFields", 75}, u"要加療期間（至）:", Column{u"要加療期間2"}, 16),
    tick({u"chkFields", 20}, u"同意を受けた者 施術者", Column{u"同意_施術者"}, nullptr,
         call<&Form::consentReceiverToggled>),
    tick({u"chkFields", 21}, u"同意を受けた者 患者", Column{u"同意_患者"}, nullptr,
         call<&Form::consentReceiverToggled>),
    list({u"Combo1", 24}, u"同意医師氏名:", Column{u"同意医師氏名"}, call<&Form::doctorChosen>),
    field({u"txtFields", 76}, u"同意医師フリガナ:", Column{u"同意医師フリガナ"}),
    list({u"Combo1", 25}, u"医療機関名:", Column{u"医療機関名"}),
    field({u"txtFields", 77}, u"同意医師住所:", Column{u"同意医師住所"}, 40),
    field({u"txtFields", 78}, u"同意医師の電話番号:", Column{u"同意医師の電話番号"}, 14),
    EndGroup{},
    Bar{},
    Command{.name = {u"Command12"},
            .caption = u"同意医師登録",
            .run = run<&Form::openBeside>,
            .tip = u"同意医師の各項目に入力後押してください。"},
    Command{.name = {u"Command28"},
            .caption = u"西暦",
            .run = run<&Form::datesToWestern>,
            .say = u"同意書の日付を西暦にします"},
    Command{.name = {u"Command27"},
            .caption = u"和暦",
            .run = run<&Form::datesToEra>,
            .say = u"同意書の日付を和暦にします"},
    EndBar{},
    Group{{u"FrameAreas"}, u"同意部位と施術回数", 4},
    tick({u"chkFields", 22}, u"マッサージ 躯幹", Column{u"躯幹"}),
    count({u"Text31", 0}, u"マッサージ 躯幹 施術回数:", Column{u"d3", 2}),
    tick({u"chkFields", 23}, u"マッサージ 右上肢", Column{u"右上肢"}),
    count({u"Text31", 1}, u"マッサージ 右上肢 施術回数:", Column{u"d4", 2}),
    tick({u"chkFields", 24}, u"マッサージ 左上肢", Column{u"左上肢"}),
    count({u"Text31", 2}, u"マッサージ 左上肢 施術回数:", Column{u"d5", 2}),
    tick({u"chkFields", 25}, u"マッサージ 右下肢", Column{u"右下肢"}),
    count({u"Text31", 3}, u"マッサージ 右下肢 施術回数:", Column{u"d6", 2}),
    tick({u"chkFields", 26}, u"マッサージ 左下肢", Column{u"左下肢"}),
    count({u"Text31", 4}, u"マッサージ 左下肢 施術回数:", Column{u"d7", 2}),
    tick({u"chkFields", 27}, u"徒手矯正 右上肢", Column{u"徒手右上肢", 2}),
    count({u"Text41", 0}, u"徒手矯正 右上肢 施術回数:", Column{u"d8", 2}),
    tick({u"chkFields", 28}, u"徒手矯正 左上肢", Column{u"徒手左上肢", 2}),
    count({u"Text41", 1}, u"徒手矯正 左上肢 施術回数:", Column{u"d9", 2}),
    tick({u"chkFields", 29}, u"徒手矯正 右下肢", Column{u"徒手右下肢", 2}),
    count({u"Text41", 2}, u"徒手矯正 右下肢 施術回数:", Column{u"d10", 2}),
    tick({u"chkFields", 30}, u"徒手矯正 左下肢", Column{u"徒手左下肢", 2}),
    count({u"Text41", 3}, u"徒手矯正 左下肢 施術回数:", Column{u"d11", 2}),
    tick({u"chkFields", 31}, u"温あん法", Column{u"温あん法"}, u"同意"),
    tick({u"chkFields", 32}, u"電気光線器具", Column{u"電気光線器具"}, u"同意"),
    EndGroup{},
    Bar{},
    Command{.name = {u"CommandBoxes"},
            .caption = u"↑↓再代入",
            .run = run<&Form::refillBoxes>,
            .say = u"同意部位の施術回数を入れ直します"},
    EndBar{},
    Note{.name = {u"LabelAreas"},
         .caption =
             u"※マッサージの局所数が異なる日がある場合、その日の局所を指定するデータがない為、　　　　　"
             u"同意部位と施術回数が異なります。右側の施術回数を正しく変更してください。　　　　　　　　　　　"
             u"そのままの数値が申請書に印刷されます。印刷する前に必ず各回数をご確認ください。"},
    Group{{u"FrameRemarks"}, u"摘要", 2},
    field({u"txtFields", 80}, u"摘要1:", Column{u"摘要1"}, 30),
    list({u"Combo1", 26}, u"摘要2:", Column{u"摘要2"}),
    list({u"Combo1", 27}, u"摘要3:", Column{u"摘要3"}),
    field({u"txtFields", 81}, u"摘要4:", Column{u"摘要4"}, 50),
    field({u"txtFields", 82}, u"摘要5:", Column{u"摘要5"}, 50),
    field({u"txtFields", 83}, u"摘要6:", Column{u"摘要6"}, 50),
    EndGroup{},
};

}  // namespace

screen::Rows claimConsentRows() { return kRows; }

}  // namespace claims
