#pragma once

#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"
#include "platform/store/tables/claims.h"

namespace claims::form {

using namespace screen;
using Form = ClaimFormScreen;

/// Page 申請者の確認.
inline constexpr Row kApplicant[] = {
    Page{u"申請者の確認"},
    Group{{u"FramePractitioner"}, u"施術者", 3},
    rows::field({u"txtFields", 200}, u"施術者氏名:", claim::practitionerName),
    rows::field({u"txtFields", 201}, u"施術者フリガナ:", claim::practitionerKana),
    rows::field({u"txtFields", 202}, u"施術所の名称:", claim::clinicName, 30),
    rows::field({u"txtFields", 203}, u"施術所の所在地:", claim::clinicAddress, 40),
    rows::field({u"txtFields", 204}, u"施術所の所在地カナ:", claim::clinicAddressKana, 40),
    rows::field({u"txtFields", 205}, u"施術所の郵便番号:", claim::clinicZip, 10),
    rows::field({u"txtFields", 206}, u"施術所電話番号:", claim::clinicTelephone, 14),
    TextField{.name = {u"TextClinic"},
              .caption = u"施術所:",
              .bind = Unbound{u"the clinic's name in round brackets, as the form shows it"},
              .width = 30,
              .readOnly = true},
    rows::field({u"txtFields", 207}, u"師会等の機関番号:", claim::institutionNumber, 14),
    EndGroup{},
    Group{{u"FrameBank"}, u"施術者の口座", 3},
    rows::list({u"Combo1", 60}, u"支払い機関区分:", claim::payment),
    rows::list({u"Combo1", 61}, u"預金の種類:", claim::deposit),
    rows::field({u"txtFields", 210}, u"金融機関名:", claim::bank),
    rows::list({u"Combo1", 62}, u"金融機関名種類:", claim::bankKind),
    rows::field({u"txtFields", 211}, u"本店支店名:", claim::branch),
    rows::list({u"Combo1", 63}, u"本店支店名種類:", claim::branchKind),
    rows::field({u"txtFields", 212}, u"郵便局名:", claim::postOffice),
    rows::field({u"txtFields", 213}, u"口座名義カタカナ:", claim::accountHolderKana),
    rows::field({u"txtFields", 214}, u"口座名義:", claim::accountHolder),
    rows::field({u"txtFields", 215}, u"口座番号:", claim::account, 14),
    EndGroup{},
    Group{{u"FrameAgent"}, u"代表者", 3},
    rows::field({u"txtFields", 220}, u"代表者氏名:", claim::agentName),
    rows::field({u"txtFields", 221}, u"代表者フリガナ:", claim::agentKana),
    rows::field({u"txtFields", 222}, u"代表者郵便番号:", claim::agentZip, 10),
    rows::field({u"txtFields", 223}, u"代表者住所:", claim::agentAddress, 40),
    rows::field({u"txtFields", 224}, u"代表者住所フリガナ:", claim::agentAddressKana, 40),
    rows::field({u"txtFields", 225}, u"代表者電話番号:", claim::agentTelephone, 14),
    rows::list({u"Combo1", 64}, u"代表者預金の種類:", claim::agentDeposit),
    rows::field({u"txtFields", 226}, u"代表者金融機関名:", claim::agentBank),
    rows::list({u"Combo1", 65}, u"代表者金融機関名種類:", claim::agentBankKind),
    rows::field({u"txtFields", 227}, u"代表者本店支店名:", claim::agentBranch),
    rows::list({u"Combo1", 66}, u"代表者本店支店名種類:", claim::agentBranchKind),
    rows::field({u"txtFields", 228}, u"代表者郵便局名:", claim::agentPostOffice),
    rows::field({u"txtFields", 229}, u"代表者口座名義カタカナ:", claim::agentAccountHolderKana),
    rows::field({u"txtFields", 230}, u"代表者口座名義:", claim::agentAccountHolder),
    rows::field({u"txtFields", 231}, u"代表者口座番号:", claim::agentAccount, 14),
    EndGroup{},
    Bar{},
    Command{.name = {u"Command13"}, .caption = u"代表者のデータのクリア", .run = run<&Form::clearAgent>},
    EndBar{},
};

}  // namespace claims::form
