#include "claims/core/trim.h"

#include "claims/core/kinds.h"
#include "platform/store/tables/claims.h"

namespace claims {
namespace {

/// Limits of a column in characters, 0: none. The differences between the four columns are the papers' own.
struct LimitRow {
  const char16_t* column;
  int acupuncture, massage;              ///< the claim forms
  int recordAcupuncture, recordMassage;  ///< the treatment record
};

constexpr LimitRow kLimits[] = {
    {u"事業所の名称", 52, 52, 30, 30},
    {u"事業所の所在地", 52, 52, 30, 30},
    {u"被保険者のフリガナ", 0, 22, 0, 22},
    {u"被保険者の氏名", 22, 22, 22, 22},
    {u"被保険者の住所フリガナ", 0, 58, 0, 58},
    {u"被保険者の住所", 60, 60, 39, 39},
    {u"被保険者との続柄", 4, 4, 4, 4},
    {u"傷病名", 50, 50, 50, 50},
    {u"傷病名7", 15, 15, 10, 10},
    {u"傷病名8", 10, 10, 10, 10},
    {u"同意の傷病名", 26, 24, 26, 24},
    {u"同意医師住所", 40, 40, 40, 40},
    {u"摘要1", 14, 14, 14, 14},
    {u"摘要4", 50, 50, 79, 79},
    {u"摘要5", 50, 50, 79, 79},
    {u"摘要6", 50, 50, 37, 37},
    {u"マッサージ部位数", 1, 1, 1, 1},
    {u"施術所の名称", 0, 23, 0, 0},
    {u"施術者フリガナ", 0, 64, 0, 0},
    {u"施術所の所在地", 100, 100, 0, 0},
    {u"施術所の所在地カナ", 0, 41, 0, 0},
    {u"金融機関名", 8, 8, 0, 0},
    {u"本店支店名", 10, 10, 0, 0},
    {u"郵便局名", 10, 10, 0, 0},
    {u"口座名義", 30, 24, 0, 0},
    {u"代表者フリガナ", 0, 64, 0, 0},
    {u"代表者氏名", 37, 30, 0, 0},
    {u"代表者住所", 200, 120, 0, 0},
    {u"代表者住所フリガナ", 0, 27, 0, 0},
    {u"代表者金融機関名", 8, 8, 0, 0},
    {u"代表者本店支店名", 6, 8, 0, 0},
    {u"代表者郵便局名", 7, 8, 0, 0},
    {u"代表者口座名義", 30, 24, 0, 0},
};

int limitOf(const LimitRow& row, TrimForm form, bool massage) {
  if (form == TrimForm::Claim) return massage ? row.massage : row.acupuncture;
  return massage ? row.recordMassage : row.recordAcupuncture;
}

/// The first characters of a text; a character outside the basic plane counts as one and is never halved.
QString firstCharacters(const QString& text, int limit) {
  qsizetype at = 0;
  for (int taken = 0; taken < limit && at < text.size(); ++taken)
    at += text[at].isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
  return text.left(at);
}

constexpr const char16_t* kInsurerColumns[] = {
    u"保険者名称",   u"保険者番号", u"保険者住所",   u"保険証記号1",  u"保険証記号2",   u"保険証番号",
    u"区市町村番号", u"受給者番号", u"区市町村名称", u"公費負担番号", u"公費受給者番号"};

}  // namespace

TrimResult trimForPrint(const ClaimRecord& claim, TrimForm form) {
  TrimResult result{claim, {}};
  const bool massage = kindOf(claim.get(claim::treatmentKind)) == Kind::Massage;
  for (const LimitRow& row : kLimits) {
    const int limit = limitOf(row, form, massage);
    const QString column = columnName(row.column);
    const QString text = claim.get(column);
    if (limit == 0 || text.size() <= limit) continue;
    const QString cut = firstCharacters(text, limit);
    if (cut == text) continue;
    result.claim.set(column, cut);
    result.cut.append(column);
  }
  return result;
}

int printLimit(const QString& column, TrimForm form, bool massage) {
  for (const LimitRow& row : kLimits)
    if (column == row.column) return limitOf(row, form, massage);
  return 0;
}

ClaimRecord trimInsurer(const ClaimRecord& claim) {
  ClaimRecord result = claim;
  for (const char16_t* name : kInsurerColumns) {
    const QString column = columnName(name);
    const QString text = claim.get(column);
    qsizetype begin = 0, end = text.size();
    while (begin < end && text[begin] == u' ') ++begin;
    while (end > begin && text[end - 1] == u' ') --end;
    if (end - begin != text.size()) result.set(column, text.mid(begin, end - begin));
  }
  return result;
}

bool storeTrims(const QString& insurance) {
  return insurance == u"全国健康保険協会" || insurance == u"共済" || insurance == u"組合" ||
         insurance == u"社保";
}

}  // namespace claims
