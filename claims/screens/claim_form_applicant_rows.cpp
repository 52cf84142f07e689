#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"
#include "platform/store/tables/claims.h"

namespace claims {

using namespace screen;
using namespace rows;
using Form = ClaimFormScreen;

namespace {

constexpr Row kRows[] = {
    Page{u"申請者の確認"},
    Group{{u"FramePractitioner"}, u"施術者", 3},
    field({u"txtFields", 200}, u"施術者氏名:", claim::practitionerName),
    field({u"txtFields", 201}, u"施術者フリガナ:", claim::practitionerKana),
    field({u"txtFields", 202}, u"施術所の名称:", claim::clinicName, 30),
    field({u"txtFields", 203}, u"施術所の所在地:", claim::clinicAddress, 40),
    field({u"txtFields", 204}, u"施術所の所在地カナ:", claim::clinicAddressKana, 40),
    field({u"txtFields", 205}, u"施術所の郵便番号:", claim::clinicZip, 10),
    field({u"txtFields", 206}, u"施術所電話番号:", claim::clinicTelephone, 14),
    TextField{.name = {u"TextClinic"},
              .caption = u"施術所:",
              .bind = Unbound{u"the clinic's name in round brackets, as the form shows it"},
              .width = 30,
              .readOnly = true},
    field({u"txtFields", 207}, u"師会等の機関番号:", claim::institutionNumber, 14),
    EndGroup{},
    Group{{u"FrameBank"}, u"施術者の口座", 3},
    list({u"Combo1", 60}, u"支払い機関区分:", claim::payment),
    list({u"Combo1", 61}, u"預金の種類:", claim::deposit),
    field({u"txtFields", 210}, u"金融機関名:", claim::bank),
    list({u"Combo1", 62}, u"金融機関名種類:", claim::bankKind),
    field({u"txtFields", 211}, u"本店支店名:", claim::branch),
    list({u"Combo1", 63}, u"本店支店名種類:", claim::branchKind),
    field({u"txtFields", 212}, u"郵便局名:", claim::postOffice),
    field({u"txtFields", 213}, u"口座名義カタカナ:", claim::accountHolderKana),
    field({u"txtFields", 214}, u"口座名義:", claim::accountHolder),
    field({u"txtFields", 215}, u"口座番号:", claim::account, 14),
    EndGroup{},
    Group{{u"FrameAgent"}, u"代表者", 3},
    field({u"txtFields", 220}, u"代表者氏名:", claim::agentName),
    field({u"txtFields", 221}, u"代表者フリガナ:", claim::agentKana),
    field({u"txtFields", 222}, u"代表者郵便番号:", claim::agentZip, 10),
    field({u"txtFields", 223}, u"代表者住所:", claim::agentAddress, 40),
    field({u"txtFields", 224}, u"代表者住所フリガナ:", claim::agentAddressKana, 40),
    field({u"txtFields", 225}, u"代表者電話番号:", claim::agentTelephone, 14),
    list({u"Combo1", 64}, u"代表者預金の種類:", claim::agentDeposit),
    field({u"txtFields", 226}, u"代表者金融機関名:", claim::agentBank),
    list({u"Combo1", 65}, u"代表者金融機関名種類:", claim::agentBankKind),
    field({u"txtFields", 227}, u"代表者本店支店名:", claim::agentBranch),
    list({u"Combo1", 66}, u"代表者本店支店名種類:", claim::agentBranchKind),
    field({u"txtFields", 228}, u"代表者郵便局名:", claim::agentPostOffice),
    field({u"txtFields", 229}, u"代表者口座名義カタカナ:", claim::agentAccountHolderKana),
    field({u"txtFields", 230}, u"代表者口座名義:", claim::agentAccountHolder),
    field({u"txtFields", 231}, u"代表者口座番号:", claim::agentAccount, 14),
    EndGroup{},
    Bar{},
    Command{.name = {u"Command13"}, .caption = u"代表者のデータのクリア", .run = run<&Form::clearAgent>},
    EndBar{},
};

}  // namespace

screen::Rows claimApplicantRows() { return kRows; }

}  // namespace claims
