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

inline constexpr char16_t kOldSymbolTip[] =
    u"過去の社会保険の際に使用した項目です。現在は入力しても印刷はされません。記号２の方へ入力してください。";
inline constexpr char16_t kRelationTip[] =
    u"続柄を空白にすると、申請総括表Ⅰ・Ⅱに正確に印刷されません。必ず「本人」等を入力しておき、"
    u"印刷する・しないは「印刷設定」で行ってください。";
inline constexpr char16_t kInsurerNumberTip[] =
    u"後記高齢の場合は、頭の39を除いた番号をいれてください。"
    u"8文字以上（スペースの空白文字も含む）を入力すると印刷されません。";

/// A box of the right-hand side of the form; 負担割合 joins them at store.
constexpr Check shareBox(ControlName name, Words caption, Binding bind) {
  return rows::tick(name, caption, bind, u"右欄");
}

/// Page 保険証.
inline constexpr Row kInsurance[] = {
    Page{u"保険証"},
    Group{{u"FrameKind"}, u"申請と保険の種類", 4},
    rows::field({u"txtFields", 10}, u"申請月:", claim::monthNumber, 4, u"1から12の数字"),
    rows::field({u"txtFields", 11}, u"請求回数:", claim::requestCount, 4),
    rows::list({u"Combo1", 0}, u"※保険の種類:", claim::insuranceKind),
    rows::list({u"Combo1", 1}, u"※施術録の保険の種類:", claim::printedInsurance),
    rows::list({u"Combo1", 2}, u"一部負担金:", claim::shareRate),
    Check{.name = {u"Check1"}, .caption = u"世帯主でない本人", .bind = claim::notHead, .marksDirty = true},
    rows::tick({u"chkFields", 10}, u"公費負担（乳・障・母）", claim::publicAid),
    EndGroup{},
    Group{{u"FrameShare"}, u"負担の区分（右欄）", 6},
    shareBox({u"Check9", 0}, u"本人", claim::isInsured),
    shareBox({u"Check9", 1}, u"三歳未満", claim::isPreschool),
    shareBox({u"Check9", 2}, u"家族", claim::isFamily),
    shareBox({u"Check9", 3}, u"高齢9", claim::elderly[9]),
    shareBox({u"Check9", 4}, u"高齢8", claim::elderly[8]),
    shareBox({u"Check9", 5}, u"高齢7", claim::elderly[7]),
    TextField{.name = {u"Text10"}, .caption = u"負担割合:", .bind = claim::shareTicks, .readOnly = true},
    EndGroup{},
    Group{{u"FrameInsurer"}, u"保険者", 3},
    rows::list({u"Combo1", 3}, u"※保険者名称:", claim::insurerName, call<&Form::insurerNameChosen>),
    Combo{.name = {u"Combo1", 4},
          .caption = u"保険者番号:",
          .bind = claim::insurerNumber,
          .editable = true,
          .tip = kInsurerNumberTip,
          .onEdit = call<&Form::insurerNumberChosen>,
          .onLeave = call<&Form::insurerNumberLeft>},
    rows::list({u"Combo1", 5}, u"保険者住所:", claim::insurerAddress),
    rows::field({u"txtFields", 12}, u"保険証記号１:", claim::cardSymbol1, 14, kOldSymbolTip),
    rows::field({u"txtFields", 13}, u"保険証記号２:", claim::cardSymbol2, 14),
    rows::field({u"txtFields", 14}, u"保険証番号:", claim::cardNumber, 14),
    rows::field({u"txtFields", 15}, u"資格取得年月日:", claim::qualifiedFrom, 14),
    rows::field({u"txtFields", 16}, u"有効期限:", claim::validUntil, 14),
    rows::list({u"Combo1", 6}, u"申請欄名称:", claim::addressee),
    rows::field({u"txtFields", 17}, u"区市町村番号:", claim::municipalityNumber, 14),
    rows::field({u"txtFields", 18}, u"受給者番号:", claim::recipientNumber, 14),
    rows::field({u"txtFields", 19}, u"区市町村名称:", claim::municipalityName),
    rows::field({u"txtFields", 20}, u"公費負担番号:", claim::publicAidNumber, 14),
    rows::field({u"txtFields", 21}, u"公費受給者番号:", claim::publicAidRecipient, 14),
    rows::field({u"txtFields", 22}, u"公費の申請欄名称及び左欄外の名称:", claim::publicAidAddressee),
    rows::field({u"txtFields", 23}, u"師会名:", claim::associationName),
    rows::field({u"txtFields", 24}, u"後期高齢の登録番号（鍼灸）:", claim::registrationHari, 14),
    rows::field({u"txtFields", 25}, u"後期高齢の登録番号（あマ）:", claim::registrationMassage, 14),
    EndGroup{},
    Bar{},
    Command{.name = {u"Command14"},
            .caption = u"保険者登録",
            .run = run<&Form::openRegister<routes::InsurerRegister>>,
            .tip = u"保険者の所在地・名称・番号を入力してから押してください。"},
    Command{.name = {u"Command4"}, .caption = u"西暦", .run = run<&Form::datesToWestern>},
    Command{.name = {u"Command9"}, .caption = u"和暦", .run = run<&Form::datesToEra>},
    EndBar{},
    Group{{u"FrameInsured"}, u"被保険者", 3},
    rows::field({u"txtFields", 26}, u"被保険者のフリガナ:", claim::insuredKana),
    rows::field({u"txtFields", 27}, u"被保険者の氏名:", claim::insuredName),
    rows::field({u"txtFields", 28}, u"被保険者の生年月日:", claim::insuredBirth, 14),
    rows::list({u"Combo1", 7}, u"被保険者の性別:", claim::insuredSex),
    rows::field({u"txtFields", 29}, u"※被保険者との続柄:", claim::relation, 8, kRelationTip),
    rows::field({u"txtFields", 30}, u"被保険者の郵便番号:", claim::insuredZip, 10),
    rows::field({u"txtFields", 31}, u"被保険者の住所フリガナ:", claim::insuredAddressKana, 40),
    rows::field({u"txtFields", 32}, u"被保険者の住所:", claim::insuredAddress, 40),
    rows::field({u"txtFields", 33}, u"被保険者の電話番号:", claim::insuredTelephone, 14),
    rows::field({u"txtFields", 34}, u"事業所の名称:", claim::employerName, 30),
    rows::field({u"txtFields", 35}, u"事業所の所在地:", claim::employerAddress, 40),
    EndGroup{},
    Group{{u"FramePatient"}, u"療養を受ける者", 3},
    rows::field({u"txtFields", 36}, u"療養を受ける者のフリガナ:", claim::treatedKana),
    rows::field({u"txtFields", 37}, u"療養を受ける者の氏名:", claim::treatedName),
    rows::field({u"txtFields", 38}, u"療養を受ける者の生年月日:", claim::treatedBirth, 14),
    rows::list({u"Combo1", 8}, u"療養を受ける者の性別:", claim::treatedSex),
    rows::field({u"txtFields", 39}, u"療養を受ける者の郵便番号:", claim::treatedZip, 10),
    rows::field({u"txtFields", 40}, u"療養を受ける者の住所フリガナ:", claim::treatedAddressKana, 40),
    rows::field({u"txtFields", 41}, u"療養を受ける者の住所:", claim::treatedAddress, 40),
    rows::field({u"txtFields", 42}, u"療養を受ける者の電話番号:", claim::treatedTelephone, 14),
    EndGroup{},
    Group{{u"FrameMaster"}, u"患者台帳とのつながり", 4},
    rows::field({u"txtFields", 43}, u"台帳の生年月日:", claim::birth, 14),
    rows::shown({u"txtFields", 44}, u"番号1:", claim::patientSerial),
    rows::shown({u"txtFields", 45}, u"カルテ番号:", claim::chartNumber),
    rows::field({u"txtFields", 46}, u"Flag4:", claim::flag4, 6),
    rows::field({u"txtFields", 47}, u"Flag5:", claim::flag5, 6),
    EndGroup{},
};

}  // namespace claims::form
