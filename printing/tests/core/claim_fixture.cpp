#include "printing/tests/core/claim_fixture.h"

namespace printing::tests {

Filled& Filled::record(std::initializer_list<std::pair<int, int>> fields) {
  const bool acupuncture = source.acupuncture();
  QStringList numbers;
  for (int i = 0; i <= (acupuncture ? 48 : 60); ++i) numbers << QStringLiteral("0");
  numbers[0] = acupuncture ? QStringLiteral("鍼データ集結ver9.0") : QStringLiteral("あマデータ集結ver9.0");
  for (const auto& [field, value] : fields) numbers[field] = QString::number(value);
  source.claim.setNamed(acupuncture ? QStringLiteral("h1") : QStringLiteral("m1"), numbers.join(u','));
  return *this;
}

SpyEngine& Filled::fill() {
  engine = SpyEngine();
  ReportFields fields(engine);
  if (source.form.itemsOnly) fields.hideFrame();
  hideClaim900(fields, source);
  fillClaim900(fields, source, frame::EraDates(capability, m_clock));
  return engine;
}

namespace {

void practice(Filled& filled) {
  frame::ClinicProfile& profile = filled.source.profile;
  profile[frame::slot::kRegistration] = QStringLiteral("登録第０００１号");
  profile[frame::slot::kHealthOffice] = QStringLiteral("施術所所在地");
  filled.source.prefecture = frame::Prefecture::Hokkaido;
  filled.source.aichi = frame::AichiSubmission::AcupunctureAssociation;
  filled.source.edition = Edition::From202410;
}

void common(Filled& filled) {
  practice(filled);
  filled.set({{u"申請年月", u"令和6年10月"},
              {u"保険の種類", u"国保"},
              {u"保険の種類3", u"国民健保"},
              {u"保険者番号", u"138057"},
              {u"保険証記号2", u"見本"},
              {u"保険証番号", u"1234"},
              {u"公費負担番号", u"81136015"},
              {u"公費受給者番号", u"1234567"},
              {u"区市町村名称", u"架空市"},
              {u"c6", u"市長"},
              {u"師会名", u"見本センター"},
              {u"師会等の機関番号", u"K-001"},
              {u"被保険者の氏名", u"見本太郎"},
              {u"被保険者の郵便番号", u"001-0001"},
              {u"被保険者の住所", u"北海道架空市見本町１－１"},
              {u"被保険者の電話番号", u"000-000-0001"},
              {u"被保険者との続柄", u"妻"},
              {u"療養を受ける者の氏名", u"見本花子"},
              {u"療養を受ける者のフリガナ", u"ミホンハナコ"},
              {u"療養を受ける者の生年月日", u"昭和25年3月4日"},
              {u"療養を受ける者の性別", u"女"},
              {u"発病又は負傷年月日", u"令和6年1月上旬"},
              {u"発病又は負傷の原因", u"不詳"},
              {u"初療年月日", u"令和6年2月3日"},
              {u"請求区分", u"継続"},
              {u"転帰", u"継続"},
              {u"業務上外のもの", u"その他"},
              {u"d13", u"日常生活"},
              {u"d12", u"架空の家"},
              {u"d15", u"その他"},
              {u"d14", u"車椅子のため"},
              {u"一部負担金", u"3割"},
              {u"家族", u"1"},
              {u"摘要1", u"摘要一"},
              {u"摘要2", u"摘要二"},
              {u"摘要4", u"摘要四"},
              {u"実際の同意の年月日", u"令和6年9月1日"},
              {u"要加療期間1", u"令和6年9月1日"},
              {u"要加療期間2", u"令和7年2月28日"},
              {u"同意医師氏名", u"例示一郎"},
              {u"同意医師住所", u"架空市例示町２－２"},
              {u"同意の傷病名", u"腰痛症"},
              {u"請求年月日", u"令和6年11月1日"},
              {u"領収年月日", u"令和6年10月31日"},
              {u"施術者氏名", u"架空次郎"},
              {u"施術所の名称", u"架空治療院"},
              {u"施術所の郵便番号", u"001-0002"},
              {u"施術所の所在地", u"北海道架空市架空町３－３"},
              {u"施術所電話番号", u"000-000-0002"},
              {u"支払い機関区分", u"振込"},
              {u"金融機関名", u"架空"},
              {u"金融機関名種類", u"銀行"},
              {u"本店支店名", u"見本"},
              {u"本店支店名種類", u"支店"},
              {u"預金の種類", u"普通"},
              {u"口座番号", u"0123456"},
              {u"口座名義カタカナ", u"カクウジロウ"}});
}

}  // namespace

Filled fullAcupuncture() {
  Filled filled;
  common(filled);
  filled.set({{u"施術内容", u"鍼灸"},
              {u"治療内容1", u"e"},
              {u"治療内容8", u"e"},
              {u"往療距離8", u"v1"},
              {u"治療内容15", u"b"},
              {u"往療距離15", u"t"},
              {u"治療内容22", u"b"},
              {u"往療距離22", u"v3"},
              {u"初回有無", u"1"},
              {u"傷病名1", u"1"},
              {u"傷病名5", u"-1"},
              {u"傷病名7", u"肩関節炎"},
              {u"傷病名8", u"右"},
              {u"c21", u"1"},
              {u"txtdummy28", u"令和6年5月"}});
  // 初検料 100; art counts 2 and 2; 通所 both rows; 訪問１ the upper row alone; 電療; 往療; totals.
  filled.record({{1, 100},  {2, 2},     {3, 2},    {4, 1610},   {5, 1},     {6, 1610}, {7, 1770}, {8, 1},
                 {9, 1770}, {10, 3910}, {11, 2},   {12, 7820},  {34, 100},  {35, 2},   {36, 200}, {40, 2300},
                 {41, 1},   {42, 2300}, {45, 480}, {46, 14280}, {47, 4284}, {48, 9996}});
  return filled;
}

Filled fullMassage() {
  Filled filled(PrintKind::Massage);
  common(filled);
  filled.set({{u"施術内容", u"あマ"},
              {u"治療内容2", u"g2h1"},
              {u"治療内容9", u"g2"},
              {u"往療距離9", u"v2"},
              {u"同意症状", u"筋萎縮"},
              {u"d3", u"2"},
              {u"d4", u"2"},
              {u"d8", u"1"},
              {u"memodummy11", u"歩行困難"}});
  filled.record({{1, 2},
                 {2, 2},
                 {6, 1},
                 {10, 900},
                 {11, 1},
                 {12, 900},
                 {16, 3200},
                 {17, 1},
                 {18, 3200},
                 {19, 3650},
                 {20, 1},
                 {21, 3650},
                 {46, 450},
                 {47, 1},
                 {48, 450},
                 {58, 8200},
                 {59, 2460},
                 {60, 5740}});
  return filled;
}

}  // namespace printing::tests
