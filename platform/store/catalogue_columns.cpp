#include "platform/store/catalogue_columns.h"

// The columns of every table as they have always been named. "d1..d31" stands for the whole series, upwards
// or downwards; the order is the order of the growth runs, where a run came.

namespace store {
namespace {

using enum ColumnType;

constexpr ColumnsText kPatients[] = {
    {Text255, false,
     u"患者ID,カルテ番号,テキスト5,ふりがな,氏名,性別,生年月日,年齢,職業,会社名,郵便番号,住所1..住所3,"
     u"電話1,電話2,携帯,FAX,キーワード1,キーワード2,区分,紹介してくれた人,紹介した人,担当者,割付"},
    {LongText, false, u"既往症"},
    {Text255, false, u"初診日,日付1,テキスト1..テキスト3"},
    {LongText, false, u"症状,治療,メモ1"},
    {Text255, true,
     u"個人番号1..個人番号3,マ保険種類,マ保険者名,マ保険者番号,マ交付者名,マ記号,マ番号,マ氏名,"
     u"マ生年月日,マ性別,マ適用開始年月日,マ世帯主氏名,マ住所,マ有効期限,マ交付年月日,"
     u"t1..t31,t41..t50"},  // the series stops at 31 and starts again at 41, and stays that way
    {Integer, true, u"tnum1..tnum10"},
    {YesNo, true, u"yn1..yn10"},
    {LongText, true, u"tmemo1..tmemo10"},
};

constexpr ColumnsText kVisits[] = {
    {Text255, false,
     u"氏名,生年月日,治療日時,治療概略,治療金額,保険の一部負担金,保険者負担金,治療日チェック,ETC1"},
    {YesNo, false, u"新患,領収証チェック"},
    {Text255, true, u"d1..d31,e1..e31,f1..f31,txtdummy41..txtdummy50"},
    {Integer, true, u"numdummy21..numdummy25"},
    {YesNo, true, u"yn12,yn11,yn13..yn15"},
    {LongText, true, u"memodummy21..memodummy30"},
};

constexpr ColumnsText kClaims1[] = {
    {Text255, false,
     u"施術科目,区市町村番号,受給者番号,請求転帰,入院期間1,入院日数,負担割合,保険者名称,"
     u"保険者番号,保険の種類,資格取得年月日,有効期限,公費受給者番号,公費負担番号,保険の種類3,"
     u"区市町村名称,師会名,カルテ番号,被保険者の郵便番号,被保険者の住所フリガナ,"
     u"療養を受ける者の性別,被保険者の性別,一部負担金,療養を受ける者の電話番号,"
     u"療養を受ける者の住所,療養を受ける者の住所フリガナ,療養を受ける者の郵便番号,"
     u"療養を受ける者の生年月日,療養を受ける者の氏名,療養を受ける者のフリガナ,被保険者との続柄,"
     u"被保険者の電話番号,被保険者の住所,被保険者の生年月日,被保険者の氏名,被保険者のフリガナ,"
     u"事業所の名称,保険証記号2,保険証記号1,保険証番号,保険者住所,事業所の所在地,"
     u"往療距離31..往療距離1,治療内容31..治療内容1,実際の距離,領収年月日,請求年月日,転帰,"
     u"請求区分,申請月,徒手矯正数,マッサージ部位数,"
     u"同意医師フリガナ,同意症状,摘要2,医療機関名,入院期間2,発病又は負傷年月日,初療年月日,"
     u"同意の傷病名,同意医師の電話番号,同意医師住所,同意の年月日,要加療期間1,要加療期間2,摘要1,"
     u"同意医師氏名,摘要3..摘要6,傷病名7,業務上外のもの,入院入院外の別,第三者行為によるもの,"
     u"傷病名8,実際の同意の年月日,傷病名,発病又は負傷の原因,代表者電話番号,施術所電話番号,"
     u"支払い機関区分,口座番号,代表者口座番号,代表者口座名義,代表者口座名義カタカナ,"
     u"代表者郵便局名,代表者本店支店名種類,代表者本店支店名,代表者金融機関名種類,"
     u"代表者金融機関名,代表者預金の種類,代表者住所フリガナ,代表者住所,代表者郵便番号,代表者氏名,"
     u"代表者フリガナ,本店支店名種類,金融機関名種類,預金の種類,口座名義,口座名義カタカナ,"
     u"郵便局名,師会等の機関番号,施術所の所在地,施術所の名称,施術者氏名,施術所の郵便番号,"
     u"施術者フリガナ,施術所の所在地カナ,金融機関名,本店支店名,施術経過所見,備考,経過,主要症状,"
     u"既往症,Flag5,Flag4,施術内容,番号1,申請年月,請求回数,生年月日,氏名,保険順位,保険証番号1,"
     u"一部負担金2,合計,請求額,施術者Flag1..施術者Flag12,"
     u"はり合計金額,はり合計回数,灸合計金額,灸合計回数,はり灸合計金額,はり灸合計回数,"
     u"はり電療合計金額,はり電療合計回数,灸電療合計金額,灸電療合計回数,はり灸電療合計金額,"
     u"はり灸電療合計回数,マッサージ局所合計金額,マッサージ局所合計回数,徒手矯正術合計金額,"
     u"徒手矯正術合計回数,温罨法合計金額,温罨法合計回数,電気光線器具併用合計金額,"
     u"電気光線器具併用合計回数,治療日数,初回費用,初回,往療距離,往療回数,往療金額1,往療金額2"},
    {YesNo, false,
     u"公費負担,保険の種類2,初回有無,電気光線器具,温あん法,左下肢,右下肢,左上肢,右上肢,躯幹,"
     u"同意_施術者,同意_患者,傷病名1..傷病名6,本人,家族,就学前,高齢7..高齢9"},
    {Integer, false, u"総括表"},
};

constexpr ColumnsText kClaims2[] = {
    {Text255, false,
     u"a1..a31,b1..b31,c1..c18,c21..c30,"
     u"txt dummy1..txt dummy20,txtdummy21..txtdummy30"},
    {LongText, false, u"memo dummy1..memo dummy6,memodummy11..memodummy13"},
    {YesNo, false, u"yn1..yn5,徒手右上肢,徒手右下肢,徒手左上肢,徒手左下肢"},
    {Text255, true, u"d1..d31,e1..e31,txtdummy31..txtdummy40,h2..h4,m2..m4"},
    {Integer, true, u"numdummy16..numdummy20"},
    {YesNo, true, u"yn10,yn6..yn9"},
    {LongText, true, u"memodummy14..memodummy16,h1,m1"},
};

constexpr ColumnsText kRouteWork[] = {{Text255, false, u"施術所,x,y,txtdummy21,txt dummy14,txt dummy15"}};

constexpr ColumnsText kAppointments[] = {
    {Text255, false,
     u"予約NO,患者NO,予約患者,予約時間,予約年,予約月,予約日,予約曜日,日時1,登録日時,メモ1,テキスト1"}};

constexpr ColumnsText kAcupoints[] = {
    {Text255, false,
     u"経穴名漢字,経穴名かな,取穴位置,筋肉,運動神経,知覚神経,血管,刺入方法,主適応,部位,経絡コード"},
    {YesNo, false, u"禁鍼フラグ,禁灸フラグ"}};

constexpr ColumnsText kPhrases1[] = {{Text255, false, u"moji"}};
constexpr ColumnsText kPhrases2[] = {{Text255, false, u"setu1,setu2"}};
constexpr ColumnsText kDoctors[] = {{Text255, false, u"フリガナ,氏名,病院名,TEL,住所"}};
constexpr ColumnsText kInsurers[] = {{Text255, false, u"名称,番号,所在地"}};

constexpr ColumnsText kFees[] = {
    {Text255, false,
     u"はり,はり初回,はり電療,はり電療初回,灸,灸初回,灸電療,灸電療初回,はり灸,はり灸初回,はり灸電療,"
     u"はり灸電療初回,マッサージ1局所,温罨法,電気光線器具併用,徒手矯正術,突発的な往療,加算往診料2K,"
     u"加算往診料4K,特別地域,加算往診料6K,加算往診料8K,加算往診料10K,加算往診料12K,加算往診料16K,"
     u"往診料2Kまで,加算往診料14K,施術報告書交付料,はり訪問施術11,はり訪問施術12,はり訪問施術21,"
     u"はり訪問施術22,はり訪問施術311,はり訪問施術312,はり訪問施術321,はり訪問施術322,"
     u"マ訪問施術11..マ訪問施術15,マ訪問施術21..マ訪問施術25,マ訪問施術311..マ訪問施術315,"
     u"マ訪問施術321..マ訪問施術325"}};

constexpr TableText kTables[] = {
    {u"臨床QV2000N.mdb", 0, u"臨床QV", kPatients},     {u"予約2000.mdb", 1, u"予約", kAppointments},
    {u"保険申請2000_1.mdb", 2, u"保険申請", kClaims1}, {u"保険申請2000_2.mdb", 14, u"保険申請", kClaims2},
    {u"保険申請2000_2.mdb", 14, u"FFA", kRouteWork},   {u"Keiraku2000.mdb", 3, u"経穴", kAcupoints},
    {u"CLmoji2000.mdb", 4, u"CLmoji", kPhrases1},      {u"CL2moji2000.mdb", 5, u"CL2moji", kPhrases2},
    {u"カルテ2データ2000.mdb", 6, u"カルテ", kVisits}, {u"同意医師2000.mdb", 11, u"同意医師", kDoctors},
    {u"保険者2000.mdb", 12, u"保険者", kInsurers},     {u"料金設定2000.mdb", 13, u"料金設定", kFees},
    {u"料金設定2010.mdb", -1, u"料金設定", kFees},     {u"料金設定2013.mdb", -1, u"料金設定", kFees},
    {u"料金設定2016.mdb", -1, u"料金設定", kFees},     {u"料金設定2018.mdb", -1, u"料金設定", kFees},
    {u"料金設定2019.mdb", -1, u"料金設定", kFees},     {u"料金設定2020.mdb", -1, u"料金設定", kFees},
    {u"料金設定2022.mdb", -1, u"料金設定", kFees},     {u"料金設定2024.mdb", -1, u"料金設定", kFees},
    {u"料金設定o2000.mdb", -1, u"料金設定", kFees},    {u"料金設定o2016.mdb", -1, u"料金設定", kFees},
    {u"料金設定o2018.mdb", -1, u"料金設定", kFees},
};

}  // namespace

std::span<const TableText> tableTexts() { return kTables; }

}  // namespace store
