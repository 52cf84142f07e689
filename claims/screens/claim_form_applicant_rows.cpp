#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"

namespace claims {

using namespace screen;
using namespace rows;
using Form = ClaimFormScreen;

namespace {

constexpr Row kRows[] = {
    Page{u"申請者の確認"},
    Group{{u"FramePractitioner"}, u"施術者", 3},
    field({u"txtFields", 200}, u"施術者氏名:", Column{u"施術者氏名"}),
    field({u"txtFields", 201}, u"施術者フリガナ:", Column{u"施術者フリガナ"}),
    field({u"txtFields", 202}, u"施術所の名称:", Column{u"施術所の名称"}, 30),
    field({u"txtFields", 203}, u"施術所の所在地:", Column{u"施術所の所在地"}, 40),
    field({u"txtFields", 204}, u"施術所の所在地カナ:", Column{u"施術所の所在地カナ"}, 40),
    field({u"txtFields", 205}, u"施術所の郵便番号:", Column{u"施術所の郵便番号"}, 10),
    field({u"txtFields", 206}, u"施術所電話番号:", Column{u"施術所電話番号"}, 14),
    TextField{.name = {u"TextClinic"},
              .caption = u"施術所:",
              .bind = Unbound{u"the clinic's name in round brackets, as the form shows it"},
              .width = 30,
              .readOnly = true},
    field({u"txtFields", 207}, u"師会等の機関番号:", Column{u"師会等の機関番号"}, 14),
    EndGroup{},
    Group{{u"FrameBank"}, u"施術者の口座", 3},
    list({u"Combo1", 60}, u"支払い機関区分:", Column{u"支払い機関区分"}),
    list({u"Combo1", 61}, u"預金の種類:", Column{u"預金の種類"}),
    field({u"txtFields", 210}, u"金融機関名:", Column{u"金融機関名"}),
    list({u"Combo1", 62}, u"金融機関名種類:", Column{u"金融機関名種類"}),
    field({u"txtFields", 211}, u"本店支店名:", Column{u"本店支店名"}),
    list({u"Combo1", 63}, u"本店支店名種類:", Column{u"本店支店名種類"}),
    field({u"txtFields", 212}, u"郵便局名:", Column{u"郵便局名"}),
    field({u"txtFields", 213}, u"口座名義カタカナ:", Column{u"口座名義カタカナ"}),
    field({u"txtFields", 214}, u"口座名義:", Column{u"口座名義"}),
    field({u"txtFields", 215}, u"口座番号:", Column{u"口座番号"}, 14),
    EndGroup{},
    Group{{u"FrameAgent"}, u"代表者", 3},
    field({u"txtFields", 220}, u"代表者氏名:", Column{u"代表者氏名"}),
    field({u"txtFields", 221}, u"代表者フリガナ:", Column{u"代表者フリガナ"}),
    field({u"txtFields", 222}, u"代表者郵便番号:", Column{u"代表者郵便番号"}, 10),
    field({u"txtFields", 223}, u"代表者住所:", Column{u"代表者住所"}, 40),
    field({u"txtFields", 224}, u"代表者住所フリガナ:", Column{u"代表者住所フリガナ"}, 40),
    field({u"txtFields", 225}, u"代表者電話番号:", Column{u"代表者電話番号"}, 14),
    list({u"Combo1", 64}, u"代表者預金の種類:", Column{u"代表者預金の種類"}),
    field({u"txtFields", 226}, u"代表者金融機関名:", Column{u"代表者金融機関名"}),
    list({u"Combo1", 65}, u"代表者金融機関名種類:", Column{u"代表者金融機関名種類"}),
    field({u"txtFields", 227}, u"代表者本店支店名:", Column{u"代表者本店支店名"}),
    list({u"Combo1", 66}, u"代表者本店支店名種類:", Column{u"代表者本店支店名種類"}),
    field({u"txtFields", 228}, u"代表者郵便局名:", Column{u"代表者郵便局名"}),
    field({u"txtFields", 229}, u"代表者口座名義カタカナ:", Column{u"代表者口座名義カタカナ"}),
    field({u"txtFields", 230}, u"代表者口座名義:", Column{u"代表者口座名義"}),
    field({u"txtFields", 231}, u"代表者口座番号:", Column{u"代表者口座番号"}, 14),
    EndGroup{},
    Bar{},
    Command{.name = {u"Command13"}, .caption = u"代表者のデータのクリア", .run = run<&Form::clearAgent>},
    EndBar{},
};

}  // namespace

screen::Rows claimApplicantRows() { return kRows; }

}  // namespace claims
