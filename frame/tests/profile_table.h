#pragma once

#include <QString>

namespace frame::test {

using namespace Qt::Literals::StringLiterals;

/// A field of the clinic profile by the description of the file and the screen: place in qv.dat, control and
/// caption on 登録, and the claim column that a new claim copies it into (blank: none).
struct ProfileRow {
  int slot;
  QString control;
  QString caption;
  QString claimColumn;
};

/// All fields with a text or a tick of their own. あマ含む (63) and the two associations (17, 89) are chosen
/// by several controls.
inline const ProfileRow kProfileTable[] = {
    {29, u"Text1"_s, u"施術者氏名:"_s, u"施術者氏名"_s},
    {58, u"Text27"_s, u"施術者氏名フリガナ:"_s, u"施術者フリガナ"_s},
    {30, u"Text2"_s, u"施術所の所在地:"_s, u"施術所の所在地"_s},
    {33, u"Text5"_s, u"施術所の所在地カナ:"_s, u"施術所の所在地カナ"_s},
    {31, u"Text3"_s, u"施設名称:"_s, u"施術所の名称"_s},
    {32, u"Text4"_s, u"施術者郵便番号:"_s, u"施術所の郵便番号"_s},
    {61, u"Text30"_s, u"施術所の電話番号:"_s, u"施術所電話番号"_s},
    {34, u"Combo1(4)"_s, u"支払機関区分:"_s, u"支払い機関区分"_s},
    {35, u"Combo1(5)"_s, u"預金の種類:"_s, u"預金の種類"_s},
    {36, u"Text8"_s, u"金融機関名:"_s, u"金融機関名"_s},
    {64, u"Combo1(0)"_s, u"金融機関の種類:"_s, u"金融機関名種類"_s},
    {37, u"Text9"_s, u"本店支店名:"_s, u"本店支店名"_s},
    {65, u"Combo1(1)"_s, u"本店支店の種類:"_s, u"本店支店名種類"_s},
    {38, u"Text10"_s, u"郵便局名:"_s, u"郵便局名"_s},
    {80, u"Text33"_s, u"金融機関コード:"_s, {}},
    {39, u"Text11"_s, u"会員の機関番号:"_s, u"師会等の機関番号"_s},
    {82, u"Text34"_s, u"会員の機関番号  鍼:"_s, {}},
    {83, u"Text35"_s, u"会員の機関番号 あマ:"_s, {}},
    {40, u"Text12"_s, u"口座名義カタカナ:"_s, u"口座名義カタカナ"_s},
    {41, u"Text13"_s, u"口座名義:"_s, u"口座名義"_s},
    {42, u"Text14"_s, u"口座番号:"_s, u"口座番号"_s},
    {43, u"Text15"_s, u"代表者フリガナ:"_s, u"代表者フリガナ"_s},
    {44, u"Text16"_s, u"代表者氏名:"_s, u"代表者氏名"_s},
    {45, u"Text17"_s, u"代表者住所フリガナ:"_s, u"代表者住所フリガナ"_s},
    {59, u"Text28"_s, u"代表者住所:"_s, u"代表者住所"_s},
    {60, u"Text29"_s, u"代表者郵便番号:"_s, u"代表者郵便番号"_s},
    {62, u"Text31"_s, u"代表者電話番号:"_s, u"代表者電話番号"_s},
    {46, u"Combo1(6)"_s, u"代表者預金の種類:"_s, u"代表者預金の種類"_s},
    {47, u"Text19"_s, u"代表者金融機関名:"_s, u"代表者金融機関名"_s},
    {66, u"Combo1(2)"_s, u"代表者金融機関の種類:"_s, u"代表者金融機関名種類"_s},
    {48, u"Text20"_s, u"代表者本店支店名:"_s, u"代表者本店支店名"_s},
    {67, u"Combo1(3)"_s, u"代表者本店支店の種類:"_s, u"代表者本店支店名種類"_s},
    {49, u"Text21"_s, u"代表者郵便局名:"_s, u"代表者郵便局名"_s},
    {81, u"Text36"_s, u"代表者金融機関コード:"_s, {}},
    {50, u"Text22"_s, u"代表者口座名義カタカナ:"_s, u"代表者口座名義カタカナ"_s},
    {51, u"Text23"_s, u"代表者口座名義:"_s, u"代表者口座名義"_s},
    {52, u"Text24"_s, u"代表者口座番号:"_s, u"代表者口座番号"_s},
    {56, u"Text25"_s, u"所属師会名:"_s, u"師会名"_s},
    {57, u"Text26"_s, u"所属師会の会長名:"_s, {}},
    {75, u"Text6"_s, u"施術者登録番号:"_s, {}},
    {74, u"Text7"_s, u"欄外番号:"_s, {}},
    {78, u"Text18"_s, u"後期高齢者医療登録番号鍼:"_s, {}},
    {79, u"Text32"_s, u"後期高齢者医療登録番号あ:"_s, {}},
    {84, u"Combo1(7)"_s, u"保健所登録区分:"_s, {}},
    {86, u"Text37"_s, u"メールアドレス:"_s, {}},
    {87, u"Text38"_s, u"登録記号番号:"_s, {}},
    {76, u"Check2"_s, u"本人の続柄印刷: 印刷する"_s, {}},
    {77, u"Check3"_s, u"後期高齢被保険者氏名印刷: 印刷する"_s, {}},
    {27, u"Check4"_s, u"申請欄の氏名印刷: 印刷する"_s, {}},
};

}  // namespace frame::test
