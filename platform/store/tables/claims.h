#pragma once

#include "platform/store/column.h"

// 保険申請: a claim is two rows of one ID, a row in each half. No column name but ID occurs in both halves.

namespace claim {

namespace detail {
using enum store::ColumnType;
inline constexpr store::ColumnsText kFirstHalfText[] = {
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
inline constexpr auto kFirstHalfRows = store::columnRows<kFirstHalfText>();
inline constexpr store::ColumnsText kSecondHalfText[] = {
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
inline constexpr auto kSecondHalfRows = store::columnRows<kSecondHalfText>();
inline constexpr store::ColumnsText kRouteWorkText[] = {
    {Text255, false, u"施術所,x,y,txtdummy21,txt dummy14,txt dummy15"}};
inline constexpr auto kRouteWorkRows = store::columnRows<kRouteWorkText>();
}  // namespace detail

/// The first half.
inline constexpr store::Table firstHalf(u"保険申請", detail::kFirstHalfRows);
/// The second half.
inline constexpr store::Table secondHalf(u"保険申請", detail::kSecondHalfRows);
/// Work table of the route sort, in the file of the second half.
inline constexpr store::Table routeWork(u"FFA", detail::kRouteWorkRows);

// ---- First half: key and month ----
inline constexpr store::Column id = firstHalf[u"ID"];  ///< of both halves
inline constexpr store::Column month =
    firstHalf[u"申請年月"];  ///< the claim's month, an era month: picks era, fees and forms
inline constexpr store::Column monthNumber = firstHalf[u"申請月"];  ///< "1" to "12"
inline constexpr store::Column requestCount = firstHalf[u"請求回数"];
inline constexpr store::Column patientSerial = firstHalf[u"番号1"];  ///< the patient's PatientSerial
inline constexpr store::Column flag4 = firstHalf[u"Flag4"];
inline constexpr store::Column flag5 = firstHalf[u"Flag5"];
inline constexpr store::Column chartNumber = firstHalf[u"カルテ番号"];
inline constexpr store::Column name = firstHalf[u"氏名"];       ///< of the register
inline constexpr store::Column birth = firstHalf[u"生年月日"];  ///< of the register

// ---- Kind ----
inline constexpr store::Column treatmentKind = firstHalf[u"施術内容"];  ///< 鍼灸, 鍼, 灸, あマ
inline constexpr store::Column subject = firstHalf[u"施術科目"];  ///< derived at store; NULL: never stored
inline constexpr store::Column insuranceKind = firstHalf[u"保険の種類"];
inline constexpr store::Column notHead = firstHalf[u"保険の種類2"];  ///< 世帯主でない本人
inline constexpr store::Column printedInsurance = firstHalf[u"保険の種類3"];
inline constexpr store::Column insuranceOrder = firstHalf[u"保険順位"];  ///< first key of the claim lists
inline constexpr store::Column shareRate = firstHalf[u"一部負担金"];     ///< 1割, 2割, 3割
inline constexpr store::Column shareTicks = firstHalf[u"負担割合"];  ///< ticks of the right-hand box joined
inline constexpr store::Column isInsured = firstHalf[u"本人"];
inline constexpr store::Column isFamily = firstHalf[u"家族"];
inline constexpr store::Column isPreschool = firstHalf[u"就学前"];
inline constexpr store::Series elderly = firstHalf.series(u"高齢", 7, 9);
inline constexpr store::Column publicAid = firstHalf[u"公費負担"];

// ---- Insurer ----
inline constexpr store::Column insurerName = firstHalf[u"保険者名称"];
inline constexpr store::Column insurerNumber = firstHalf[u"保険者番号"];
inline constexpr store::Column insurerAddress = firstHalf[u"保険者住所"];
inline constexpr store::Column cardSymbol1 = firstHalf[u"保険証記号1"];  ///< no longer printed
inline constexpr store::Column cardSymbol2 = firstHalf[u"保険証記号2"];
inline constexpr store::Column cardNumber = firstHalf[u"保険証番号"];
inline constexpr store::Column cardNumber1 = firstHalf[u"保険証番号1"];  ///< stored only
inline constexpr store::Column qualifiedFrom = firstHalf[u"資格取得年月日"];
inline constexpr store::Column validUntil = firstHalf[u"有効期限"];
inline constexpr store::Column municipalityNumber = firstHalf[u"区市町村番号"];
inline constexpr store::Column recipientNumber = firstHalf[u"受給者番号"];
inline constexpr store::Column municipalityName = firstHalf[u"区市町村名称"];
inline constexpr store::Column publicAidNumber = firstHalf[u"公費負担番号"];
inline constexpr store::Column publicAidRecipient = firstHalf[u"公費受給者番号"];
inline constexpr store::Column associationName = firstHalf[u"師会名"];

// ---- Insured person ----
inline constexpr store::Column insuredKana = firstHalf[u"被保険者のフリガナ"];
inline constexpr store::Column insuredName = firstHalf[u"被保険者の氏名"];
inline constexpr store::Column insuredBirth = firstHalf[u"被保険者の生年月日"];
inline constexpr store::Column insuredSex = firstHalf[u"被保険者の性別"];
inline constexpr store::Column insuredZip = firstHalf[u"被保険者の郵便番号"];
inline constexpr store::Column insuredAddress = firstHalf[u"被保険者の住所"];
inline constexpr store::Column insuredAddressKana = firstHalf[u"被保険者の住所フリガナ"];
inline constexpr store::Column insuredTelephone = firstHalf[u"被保険者の電話番号"];
inline constexpr store::Column relation =
    firstHalf[u"被保険者との続柄"];  ///< never blank: the summary sheets need it
inline constexpr store::Column employerName = firstHalf[u"事業所の名称"];
inline constexpr store::Column employerAddress = firstHalf[u"事業所の所在地"];

// ---- Person treated ----
inline constexpr store::Column treatedName = firstHalf[u"療養を受ける者の氏名"];
inline constexpr store::Column treatedKana = firstHalf[u"療養を受ける者のフリガナ"];
inline constexpr store::Column treatedBirth = firstHalf[u"療養を受ける者の生年月日"];
inline constexpr store::Column treatedSex = firstHalf[u"療養を受ける者の性別"];
inline constexpr store::Column treatedZip = firstHalf[u"療養を受ける者の郵便番号"];
inline constexpr store::Column treatedAddress = firstHalf[u"療養を受ける者の住所"];
inline constexpr store::Column treatedAddressKana = firstHalf[u"療養を受ける者の住所フリガナ"];
inline constexpr store::Column treatedTelephone = firstHalf[u"療養を受ける者の電話番号"];

// ---- Illness and consent ----
inline constexpr store::Column disease = firstHalf[u"傷病名"];
inline constexpr store::Series diseaseTick =
    firstHalf.series(u"傷病名", 1, 6);  ///< 神経痛, リウマチ, 頸腕症候群, 五十肩, 腰痛症, 頸椎捻挫後遺症
inline constexpr store::Column diseaseOther = firstHalf[u"傷病名7"];
inline constexpr store::Column diseaseNote = firstHalf[u"傷病名8"];
inline constexpr store::Column onset = firstHalf[u"発病又は負傷年月日"];
inline constexpr store::Column cause = firstHalf[u"発病又は負傷の原因"];
inline constexpr store::Column firstTreatment = firstHalf[u"初療年月日"];
inline constexpr store::Column consentDateKept = firstHalf[u"同意の年月日"];    ///< for the record only
inline constexpr store::Column consentDate = firstHalf[u"実際の同意の年月日"];  ///< the date that counts
inline constexpr store::Column consentDisease = firstHalf[u"同意の傷病名"];
inline constexpr store::Column consentSymptom = firstHalf[u"同意症状"];
inline constexpr store::Column doctorName = firstHalf[u"同意医師氏名"];
inline constexpr store::Column doctorKana = firstHalf[u"同意医師フリガナ"];
inline constexpr store::Column doctorAddress = firstHalf[u"同意医師住所"];
inline constexpr store::Column doctorTelephone = firstHalf[u"同意医師の電話番号"];
inline constexpr store::Column hospital = firstHalf[u"医療機関名"];
inline constexpr store::Column consentFrom = firstHalf[u"要加療期間1"];
inline constexpr store::Column consentUntil = firstHalf[u"要加療期間2"];
inline constexpr store::Column consentToPractitioner = firstHalf[u"同意_施術者"];
inline constexpr store::Column consentToPatient = firstHalf[u"同意_患者"];
inline constexpr store::Column trunk = firstHalf[u"躯幹"];
inline constexpr store::Column rightArm = firstHalf[u"右上肢"];
inline constexpr store::Column leftArm = firstHalf[u"左上肢"];
inline constexpr store::Column rightLeg = firstHalf[u"右下肢"];
inline constexpr store::Column leftLeg = firstHalf[u"左下肢"];
inline constexpr store::Column warm = firstHalf[u"温あん法"];
inline constexpr store::Column warmLight = firstHalf[u"電気光線器具"];
inline constexpr store::Column workRelated = firstHalf[u"業務上外のもの"];
inline constexpr store::Column thirdParty = firstHalf[u"第三者行為によるもの"];
inline constexpr store::Column hospitalised = firstHalf[u"入院入院外の別"];
inline constexpr store::Column hospitalFrom = firstHalf[u"入院期間1"];
inline constexpr store::Column hospitalUntil = firstHalf[u"入院期間2"];
inline constexpr store::Column hospitalDays = firstHalf[u"入院日数"];
inline constexpr store::Series remark = firstHalf.series(u"摘要", 1, 6);
inline constexpr store::Column history = firstHalf[u"既往症"];
inline constexpr store::Column mainSymptoms = firstHalf[u"主要症状"];
inline constexpr store::Column course = firstHalf[u"経過"];
inline constexpr store::Column findings = firstHalf[u"施術経過所見"];
inline constexpr store::Column remarks = firstHalf[u"備考"];

// ---- Treatment days ----
inline constexpr store::Series dayCode = firstHalf.series(u"治療内容", 1, 31);
inline constexpr store::Series dayVisit =
    firstHalf.series(u"往療距離", 1, 31);  ///< distance before 2024/10, number of patients from then on
inline constexpr store::Column areaCount = firstHalf[u"マッサージ部位数"];
inline constexpr store::Column limbCount = firstHalf[u"徒手矯正数"];
inline constexpr store::Column hasFirst = firstHalf[u"初回有無"];
inline constexpr store::Column realDistance = firstHalf[u"実際の距離"];
inline constexpr store::Column outcome = firstHalf[u"転帰"];
inline constexpr store::Column requestKind = firstHalf[u"請求区分"];     ///< 新規, 継続
inline constexpr store::Column requestOutcome = firstHalf[u"請求転帰"];  ///< stored only
inline constexpr store::Column requestDate = firstHalf[u"請求年月日"];
inline constexpr store::Column receiptDate = firstHalf[u"領収年月日"];

// ---- Written by the calculation ----
inline constexpr store::Column hariSum = firstHalf[u"はり合計金額"];
inline constexpr store::Column hariTimes = firstHalf[u"はり合計回数"];
inline constexpr store::Column kyuSum = firstHalf[u"灸合計金額"];
inline constexpr store::Column kyuTimes = firstHalf[u"灸合計回数"];
inline constexpr store::Column hariKyuSum = firstHalf[u"はり灸合計金額"];
inline constexpr store::Column hariKyuTimes = firstHalf[u"はり灸合計回数"];
inline constexpr store::Column hariElectricSum = firstHalf[u"はり電療合計金額"];
inline constexpr store::Column hariElectricTimes = firstHalf[u"はり電療合計回数"];
inline constexpr store::Column kyuElectricSum = firstHalf[u"灸電療合計金額"];
inline constexpr store::Column kyuElectricTimes = firstHalf[u"灸電療合計回数"];
inline constexpr store::Column hariKyuElectricSum = firstHalf[u"はり灸電療合計金額"];
inline constexpr store::Column hariKyuElectricTimes = firstHalf[u"はり灸電療合計回数"];
inline constexpr store::Column massageSum = firstHalf[u"マッサージ局所合計金額"];
inline constexpr store::Column massageTimes = firstHalf[u"マッサージ局所合計回数"];
inline constexpr store::Column limbSum = firstHalf[u"徒手矯正術合計金額"];
inline constexpr store::Column limbTimes = firstHalf[u"徒手矯正術合計回数"];
inline constexpr store::Column warmSum = firstHalf[u"温罨法合計金額"];
inline constexpr store::Column warmTimes = firstHalf[u"温罨法合計回数"];
inline constexpr store::Column warmLightSum = firstHalf[u"電気光線器具併用合計金額"];
inline constexpr store::Column warmLightTimes = firstHalf[u"電気光線器具併用合計回数"];
inline constexpr store::Column treatmentDays = firstHalf[u"治療日数"];
inline constexpr store::Column firstFee = firstHalf[u"初回費用"];
inline constexpr store::Column first = firstHalf[u"初回"];
inline constexpr store::Column total = firstHalf[u"合計"];
inline constexpr store::Column share = firstHalf[u"一部負担金2"];
inline constexpr store::Column claimed = firstHalf[u"請求額"];
inline constexpr store::Column visitDistance = firstHalf[u"往療距離"];
inline constexpr store::Column visitTimes = firstHalf[u"往療回数"];
inline constexpr store::Column visitSum1 = firstHalf[u"往療金額1"];
inline constexpr store::Column visitSum2 = firstHalf[u"往療金額2"];
inline constexpr store::Column onSummary = firstHalf[u"総括表"];  ///< 1: on a summary sheet

// ---- Practitioner, as at the time the claim was made ----
inline constexpr store::Column practitionerName = firstHalf[u"施術者氏名"];
inline constexpr store::Column practitionerKana = firstHalf[u"施術者フリガナ"];
inline constexpr store::Column clinicName = firstHalf[u"施術所の名称"];
inline constexpr store::Column clinicAddress = firstHalf[u"施術所の所在地"];
inline constexpr store::Column clinicAddressKana = firstHalf[u"施術所の所在地カナ"];
inline constexpr store::Column clinicZip = firstHalf[u"施術所の郵便番号"];
inline constexpr store::Column clinicTelephone = firstHalf[u"施術所電話番号"];
inline constexpr store::Column institutionNumber = firstHalf[u"師会等の機関番号"];
inline constexpr store::Column payment = firstHalf[u"支払い機関区分"];
inline constexpr store::Column bank = firstHalf[u"金融機関名"];
inline constexpr store::Column bankKind = firstHalf[u"金融機関名種類"];
inline constexpr store::Column branch = firstHalf[u"本店支店名"];
inline constexpr store::Column branchKind = firstHalf[u"本店支店名種類"];
inline constexpr store::Column deposit = firstHalf[u"預金の種類"];
inline constexpr store::Column account = firstHalf[u"口座番号"];
inline constexpr store::Column accountHolder = firstHalf[u"口座名義"];
inline constexpr store::Column accountHolderKana = firstHalf[u"口座名義カタカナ"];
inline constexpr store::Column postOffice = firstHalf[u"郵便局名"];
inline constexpr store::Series practitionerFlag = firstHalf.series(u"施術者Flag", 1, 12);

// ---- Representative ----
inline constexpr store::Column agentName = firstHalf[u"代表者氏名"];
inline constexpr store::Column agentKana = firstHalf[u"代表者フリガナ"];
inline constexpr store::Column agentZip = firstHalf[u"代表者郵便番号"];
inline constexpr store::Column agentAddress = firstHalf[u"代表者住所"];
inline constexpr store::Column agentAddressKana = firstHalf[u"代表者住所フリガナ"];
inline constexpr store::Column agentTelephone = firstHalf[u"代表者電話番号"];
inline constexpr store::Column agentBank = firstHalf[u"代表者金融機関名"];
inline constexpr store::Column agentBankKind = firstHalf[u"代表者金融機関名種類"];
inline constexpr store::Column agentBranch = firstHalf[u"代表者本店支店名"];
inline constexpr store::Column agentBranchKind = firstHalf[u"代表者本店支店名種類"];
inline constexpr store::Column agentDeposit = firstHalf[u"代表者預金の種類"];
inline constexpr store::Column agentAccount = firstHalf[u"代表者口座番号"];
inline constexpr store::Column agentAccountHolder = firstHalf[u"代表者口座名義"];
inline constexpr store::Column agentAccountHolderKana = firstHalf[u"代表者口座名義カタカナ"];
inline constexpr store::Column agentPostOffice = firstHalf[u"代表者郵便局名"];

// ---- Second half. It holds what came later, in columns whose generic names were never changed: their
// meaning is given here, once. ----
inline constexpr store::Column secondId = secondHalf[u"ID"];                 ///< the same number as `id`
inline constexpr store::Series visitStart = secondHalf.series(u"a", 1, 31);  ///< 往療内訳: 往療起点 of a day
inline constexpr store::Series sameBuilding =
    secondHalf.series(u"b", 1, 31);  ///< 往療内訳: 同一建物 of a day
inline constexpr store::Series startPoint = secondHalf.series(u"c", 1, 3);  ///< 往療起点の登録
inline constexpr store::Column treatmentSpare4 = secondHalf[u"c4"];         ///< page 治療, stored and shown
inline constexpr store::Column treatmentSpare5 = secondHalf[u"c5"];         ///< page 治療, stored and shown
inline constexpr store::Column addressee = secondHalf[u"c6"];           ///< 申請欄名称 (官職宛名)
inline constexpr store::Column spareC7 = secondHalf[u"c7"];             ///< stored and shown only
inline constexpr store::Column printApplicantName = secondHalf[u"c8"];  ///< print setting
inline constexpr store::Column printShareCircles = secondHalf[u"c9"];   ///< print setting
inline constexpr store::Column printProxyWords = secondHalf[u"c10"];    ///< print setting
inline constexpr store::Column shareAsComputed = secondHalf[u"c11"];    ///< print setting
inline constexpr store::Column summaryKind = secondHalf[u"c12"];        ///< 総括表の種別 (Text50)
inline constexpr store::Column printDates = secondHalf[u"c13"];         ///< print setting
inline constexpr store::Column registrationHari =
    secondHalf[u"c14"];  ///< registration number of late-elderly acupuncture claims
inline constexpr store::Column registrationMassage = secondHalf[u"c15"];  ///< the same of massage claims
inline constexpr store::Column printAttachment = secondHalf[u"c16"];      ///< print setting
inline constexpr store::Column spareC17 = secondHalf[u"c17"];             ///< stored and shown only
inline constexpr store::Column publicAidAddressee = secondHalf[u"c18"];  ///< 公費の申請欄名称及び左欄外の名称
inline constexpr store::Column electricNeedle = secondHalf[u"c21"];  ///< １．電気鍼, "1" or "0"
inline constexpr store::Column electricMoxa = secondHalf[u"c22"];    ///< ２．電気温灸器, "1" or "0"
inline constexpr store::Column electricLight = secondHalf[u"c23"];   ///< ３．電気光線器具, "1" or "0"
inline constexpr store::Column delegated = secondHalf[u"c24"];       ///< 受領委任 (Check50), "1" or "0"
inline constexpr store::Series spareC = secondHalf.series(u"c", 25, 30);  ///< stored and shown only

// Print settings, "0" the first and "1" the second choice, and notes.
inline constexpr store::Column periodFrom =
    secondHalf[u"txt dummy1"];  ///< print setting 施術期間（自）; in a claim never stored it holds the ID
                                ///< that joins the halves
inline constexpr store::Column periodTo = secondHalf[u"txt dummy2"];  ///< print setting 施術期間（至）
inline constexpr store::Column printMargin = secondHalf[u"txt dummy3"];  ///< print setting 左欄外保険者名
inline constexpr store::Column printPublicAidNumber = secondHalf[u"txt dummy4"];  ///< print setting
inline constexpr store::Column printBank =
    secondHalf[u"txt dummy5"];  ///< 支払機関欄の口座: "1" is the practitioner
inline constexpr store::Column printProof = secondHalf[u"txt dummy6"];  ///< 施術証明欄の住所・氏名
inline constexpr store::Column printDoctor = secondHalf[u"txt dummy7"];   ///< 同意医師欄の印字
inline constexpr store::Column printAmounts = secondHalf[u"txt dummy8"];  ///< 金額欄の印字
inline constexpr store::Column printSex = secondHalf[u"txt dummy9"];      ///< print setting
inline constexpr store::Column printMandate =
    secondHalf[u"txt dummy10"];  ///< print setting 委任欄（償還払い時）
inline constexpr store::Column printRequestMark =
    secondHalf[u"txt dummy11"];  ///< print setting 申請欄（保険者の頭に○）
inline constexpr store::Column spareText12 = secondHalf[u"txt dummy12"];       ///< stored only
inline constexpr store::Column printMandateName = secondHalf[u"txt dummy13"];  ///< print setting
inline constexpr store::Series spareText =
    secondHalf.series(u"txt dummy", 14, 20);                                       ///< stored and shown only
inline constexpr store::Series noteText = secondHalf.series(u"txtdummy", 21, 24);  ///< notes of the routes
inline constexpr store::Column printNewRemarks =
    secondHalf[u"txtdummy25"];  ///< 印刷する of 新摘要欄: "0" leaves the remarks out
inline constexpr store::Column printRelation = secondHalf[u"txtdummy26"];  ///< print setting 続柄
inline constexpr store::Column reportDate = secondHalf[u"txtdummy27"];  ///< 施術報告書交付年月日（必須）
inline constexpr store::Column lastReportMonth = secondHalf[u"txtdummy28"];  ///< 前回の施術報告書交付年月
inline constexpr store::Column noteText29 = secondHalf[u"txtdummy29"];              ///< note
inline constexpr store::Column noteText30 = secondHalf[u"txtdummy30"];              ///< note
inline constexpr store::Series spareMemo = secondHalf.series(u"memo dummy", 1, 6);  ///< notes
inline constexpr store::Column consentNote = secondHalf[u"memodummy11"];  ///< printed after 同意の傷病名
inline constexpr store::Column spareMemo12 = secondHalf[u"memodummy12"];  ///< stored and shown only
inline constexpr store::Column spareMemo13 = secondHalf[u"memodummy13"];  ///< stored and shown only
inline constexpr store::Column newRemarks = secondHalf[u"memodummy14"];   ///< 新摘要欄
inline constexpr store::Column spareMemo15 = secondHalf[u"memodummy15"];  ///< stored and shown only
inline constexpr store::Column spareMemo16 = secondHalf[u"memodummy16"];  ///< stored and shown only

// Ticks.
inline constexpr store::Column showVisitTable = secondHalf[u"yn1"];  ///< 往療内訳の表示
inline constexpr store::Column report = secondHalf[u"yn2"];          ///< 施術報告書交付
inline constexpr store::Column reportTwice = secondHalf[u"yn3"];     ///< 施術報告書を２通交付した
inline constexpr store::Column reportThrice = secondHalf[u"yn4"];  ///< ３通の施術報告書を交付した
inline constexpr store::Column printInMargin = secondHalf[u"yn5"];          ///< 右欄外に印刷する
inline constexpr store::Series spareMark = secondHalf.series(u"yn", 6, 9);  ///< reserve
inline constexpr store::Column spareMark10 =
    secondHalf[u"yn10"];  ///< reserve; the growth run made it before yn6
inline constexpr store::Column limbRightArm = secondHalf[u"徒手右上肢"];
inline constexpr store::Column limbRightLeg = secondHalf[u"徒手右下肢"];
inline constexpr store::Column limbLeftArm = secondHalf[u"徒手左上肢"];
inline constexpr store::Column limbLeftLeg = secondHalf[u"徒手左下肢"];

// Columns of the growth run.
inline constexpr store::Column spareD1 = secondHalf[u"d1"];  ///< stored only
inline constexpr store::Column specialArea = secondHalf[u"d2"];  ///< ※特別地域（加算）での施術, "1" or "0"
inline constexpr store::Series areaDays =
    secondHalf.series(u"d", 3, 7);  ///< 施術回数 of 躯幹, 右上肢, 左上肢, 右下肢, 左下肢
inline constexpr store::Series limbDays =
    secondHalf.series(u"d", 8, 11);  ///< 施術回数 of the limbs 右上肢, 左上肢, 右下肢, 左下肢
inline constexpr store::Column treatmentPlace = secondHalf[u"d12"];  ///< 施術した場所
inline constexpr store::Column workRelatedOther = secondHalf[u"d13"];  ///< 業務上外のもの: detail of その他
inline constexpr store::Column visitReasonOther =
    secondHalf[u"d14"];  ///< 往療又は訪問の理由: detail of その他
inline constexpr store::Column visitReason = secondHalf[u"d15"];          ///< 往療又は訪問の理由
inline constexpr store::Column spareD16 = secondHalf[u"d16"];             ///< stored and shown only
inline constexpr store::Series spareD = secondHalf.series(u"d", 17, 31);  ///< reserve
inline constexpr store::Series spareE = secondHalf.series(u"e", 1, 31);   ///< reserve
inline constexpr store::Series spareText31 = secondHalf.series(u"txtdummy", 31, 40);  ///< reserve
inline constexpr store::Column summaryCode =
    secondHalf[u"numdummy16"];  ///< code for the summary sheets: 111/222, 11/22, 1/2
inline constexpr store::Series spareNumber = secondHalf.series(u"numdummy", 17, 20);  ///< reserve
inline constexpr store::Column hariRecord = secondHalf[u"h1"];  ///< amount record of an acupuncture claim
inline constexpr store::Column hariTotal = secondHalf[u"h2"];
inline constexpr store::Column hariShare = secondHalf[u"h3"];
inline constexpr store::Column hariClaimed = secondHalf[u"h4"];
inline constexpr store::Column massageRecord = secondHalf[u"m1"];  ///< amount record of a massage claim
inline constexpr store::Column massageTotal = secondHalf[u"m2"];
inline constexpr store::Column massageShare = secondHalf[u"m3"];
inline constexpr store::Column massageClaimed = secondHalf[u"m4"];

}  // namespace claim
