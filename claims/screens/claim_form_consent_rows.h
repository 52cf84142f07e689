#pragma once

#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"
#include "frame/core/routes.h"
#include "frame/core/routes_unbuilt.h"
#include "platform/store/tables/claims.h"

namespace claims::form {

using namespace screen;
using Form = ClaimFormScreen;
namespace unbuilt = routes::unbuilt;

inline constexpr char16_t kDiseases[] = u"傷病名";

/// The count next to a consented area or limb; it is stored with the claim.
constexpr TextField count(ControlName name, Words caption, Binding bind) {
  return rows::field(name, caption, bind, 4);
}

/// Page 同意書.
inline constexpr Row kConsent[] = {
    Page{u"同意書"},
    Group{{u"FrameDisease"}, u"傷病", 4},
    rows::field({u"txtFields", 60}, u"傷病名:", claim::disease, 30),
    rows::tick({u"chkFields", 0}, u"神経痛", claim::diseaseTick[1], kDiseases),
    rows::tick({u"chkFields", 1}, u"リウマチ", claim::diseaseTick[2], kDiseases),
    rows::tick({u"chkFields", 2}, u"頸腕症候群", claim::diseaseTick[3], kDiseases),
    rows::tick({u"chkFields", 3}, u"五十肩", claim::diseaseTick[4], kDiseases),
    rows::tick({u"chkFields", 4}, u"腰痛症", claim::diseaseTick[5], kDiseases),
    rows::tick({u"chkFields", 5}, u"頸椎捻挫後遺症", claim::diseaseTick[6], kDiseases),
    rows::field({u"txtFields", 61}, u"傷病名 その他:", claim::diseaseOther),
    rows::field({u"txtFields", 62}, u"傷病名 付記:", claim::diseaseNote),
    rows::field({u"txtFields", 63}, u"発病又は負傷年月日:", claim::onset, 16),
    rows::field({u"txtFields", 64}, u"発病又は負傷の原因:", claim::cause, 30),
    rows::field({u"txtFields", 65}, u"※初療年月日:", claim::firstTreatment, 16),
    rows::list({u"Combo1", 20}, u"業務上外のもの:", claim::workRelated),
    TextField{.name = {u"txtFields", 106},
              .caption = u"業務上外のもの その他の内容:",
              .bind = claim::workRelatedOther,
              .limit = 24},
    rows::list({u"Combo1", 21}, u"第三者行為によるもの:", claim::thirdParty),
    rows::list({u"Combo1", 22}, u"入院入院外の別:", claim::hospitalised),
    rows::field({u"txtFields", 66}, u"入院期間（自）:", claim::hospitalFrom, 14),
    rows::field({u"txtFields", 67}, u"入院期間（至）:", claim::hospitalUntil, 14),
    rows::field({u"txtFields", 68}, u"入院日数:", claim::hospitalDays, 4),
    EndGroup{},
    Group{{u"FrameConsent"}, u"同意", 3},
    rows::field({u"txtFields", 70}, u"同意の年月日:", claim::consentDateKept, 16, u"控えの日付です。"),
    rows::field({u"txtFields", 71}, u"実際にレセプトへ記入する同意の年月日:", claim::consentDate, 16),
    rows::field({u"txtFields", 72}, u"同意の傷病名:", claim::consentDisease),
    rows::memo({u"txtFields", 73}, u"同意の傷病名の追記:", claim::consentNote, rows::kLongText),
    rows::list({u"Combo1", 23}, u"同意症状:", claim::consentSymptom),
    rows::field({u"txtFields", 74}, u"要加療期間（自）:", claim::consentFrom, 16),
    rows::field({u"txtFields", 75}, u"要加療期間（至）:", claim::consentUntil, 16),
    rows::tick({u"chkFields", 20}, u"同意を受けた者 施術者", claim::consentToPractitioner, nullptr,
               call<&Form::consentReceiverToggled>),
    rows::tick({u"chkFields", 21}, u"同意を受けた者 患者", claim::consentToPatient, nullptr,
               call<&Form::consentReceiverToggled>),
    rows::list({u"Combo1", 24}, u"同意医師氏名:", claim::doctorName, call<&Form::doctorChosen>),
    rows::field({u"txtFields", 76}, u"同意医師フリガナ:", claim::doctorKana),
    rows::list({u"Combo1", 25}, u"医療機関名:", claim::hospital),
    rows::field({u"txtFields", 77}, u"同意医師住所:", claim::doctorAddress, 40),
    rows::field({u"txtFields", 78}, u"同意医師の電話番号:", claim::doctorTelephone, 14),
    EndGroup{},
    Bar{},
    Command{.name = {u"Command12"},
            .caption = u"同意医師登録",
            .run = run<&Form::openRegister<routes::DoctorRegister>>,
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
    rows::tick({u"chkFields", 22}, u"マッサージ 躯幹", claim::trunk),
    count({u"Text31", 0}, u"マッサージ 躯幹 施術回数:", claim::areaDays[3]),
    rows::tick({u"chkFields", 23}, u"マッサージ 右上肢", claim::rightArm),
    count({u"Text31", 1}, u"マッサージ 右上肢 施術回数:", claim::areaDays[4]),
    rows::tick({u"chkFields", 24}, u"マッサージ 左上肢", claim::leftArm),
    count({u"Text31", 2}, u"マッサージ 左上肢 施術回数:", claim::areaDays[5]),
    rows::tick({u"chkFields", 25}, u"マッサージ 右下肢", claim::rightLeg),
    count({u"Text31", 3}, u"マッサージ 右下肢 施術回数:", claim::areaDays[6]),
    rows::tick({u"chkFields", 26}, u"マッサージ 左下肢", claim::leftLeg),
    count({u"Text31", 4}, u"マッサージ 左下肢 施術回数:", claim::areaDays[7]),
    rows::tick({u"chkFields", 27}, u"徒手矯正 右上肢", claim::limbRightArm),
    count({u"Text41", 0}, u"徒手矯正 右上肢 施術回数:", claim::limbDays[8]),
    rows::tick({u"chkFields", 28}, u"徒手矯正 左上肢", claim::limbLeftArm),
    count({u"Text41", 1}, u"徒手矯正 左上肢 施術回数:", claim::limbDays[9]),
    rows::tick({u"chkFields", 29}, u"徒手矯正 右下肢", claim::limbRightLeg),
    count({u"Text41", 2}, u"徒手矯正 右下肢 施術回数:", claim::limbDays[10]),
    rows::tick({u"chkFields", 30}, u"徒手矯正 左下肢", claim::limbLeftLeg),
    count({u"Text41", 3}, u"徒手矯正 左下肢 施術回数:", claim::limbDays[11]),
    rows::tick({u"chkFields", 31}, u"温あん法", claim::warm, u"同意"),
    rows::tick({u"chkFields", 32}, u"電気光線器具", claim::warmLight, u"同意"),
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
    rows::field({u"txtFields", 80}, u"摘要1:", claim::remark[1], 30),
    rows::list({u"Combo1", 26}, u"摘要2:", claim::remark[2]),
    rows::list({u"Combo1", 27}, u"摘要3:", claim::remark[3]),
    rows::field({u"txtFields", 81}, u"摘要4:", claim::remark[4], 50),
    rows::field({u"txtFields", 82}, u"摘要5:", claim::remark[5], 50),
    rows::field({u"txtFields", 83}, u"摘要6:", claim::remark[6], 50),
    EndGroup{},
};

}  // namespace claims::form
