#include "claims/core/check_grid.h"

#include "claims/core/tally_visits.h"
#include "platform/store/tables/claims.h"

namespace claims {

using namespace Qt::StringLiterals;
namespace {

bool isOneOf(const QString& text, std::initializer_list<const char16_t*> list) {
  for (const char16_t* entry : list)
    if (text == entry) return true;
  return false;
}

/// Before 2020/12 the numbers could be in fields of the whole claim.
QString looseCodeMessage(const QString& code, const ClaimRecord& claim) {
  if (isOneOf(code, {u"g", u"i", u"j", u"gh"}) && claim.blank(claim::areaCount))
    return u"マッサージ部位数が入力されていません。記入の仕方をご覧ください。"_s;
  if (code == u"h" && claim.blank(claim::limbCount))
    return u"徒手矯正（肢）数が入力されていません。記入の仕方をご覧ください。"_s;
  return {};
}

QString strictCodeMessage(const QString& code) {
  if (isOneOf(code, {u"g", u"i", u"j", u"gh", u"ih", u"jh", u"hg", u"hi", u"hj"}))
    return u"マッサージもしくは変形徒手の部位数が入力されていません。記号の後ろに部位数を記入してください。"
           u"一度「記入の仕方」をご覧ください。"_s;
  if (isOneOf(code, {u"h", u"h1", u"h2", u"h3", u"h4"}))
    return u"徒手矯正の単独では請求出来ません。記入の仕方をご覧ください。"_s;
  return {};
}

/// Manipulation and a hot pack on one day, recognised by the code's first and third character.
bool manipulationWithHeat(const QString& code) {
  if (code.size() < 3) return false;
  const QChar first = code[0], third = code[2];
  return (third == u'h' && (first == u'i' || first == u'j')) ||
         (first == u'h' && (third == u'i' || third == u'j'));
}

/// kept: the message writes 駆幹 for 躯幹.
QString heatWarning() {
  return u"徒手矯正と温罨法及び温罨法と電気光線器具との併施はできません。記号「g」を使用してください。但し、"
         u"「同意書」のマッサージの部位の駆幹にチェックをすれば、印刷も登録も出来るようになります。"_s;
}

/// How many of the numbers 1 to `last` count by the test.
template <class Counts>
int numbersThat(int last, Counts counts) {
  int numbers = 0;
  for (int number = 1; number <= last; ++number)
    if (counts(number) != 0) ++numbers;
  return numbers;
}

constexpr int kForms = 4;

/// More than two numbers of areas under one form of visit.
QString visitNumbersMessage(const VisitsTally& tally) {
  for (int form = 0; form < kForms; ++form) {
    if (numbersThat(5, [&](int areas) { return tally.areaVisits(areas, form); }) < 3) continue;
    // v3 and v4 mean the two bands of the third form here.
    return u"同じ訪問施術（v%1）でマッサージの局数が３つ以上の異なる数字が入っています。"
           u"同じ訪問施術（v%1）では、マッサージの局数は２種類のみにしてください。"_s.arg(form + 1);
  }
  return {};
}

}  // namespace

GridCodes gridCodes(const ClaimRecord& claim) {
  GridCodes codes;
  for (int day = 1; day <= 31; ++day) codes[static_cast<size_t>(day)] = claim.code(day);
  return codes;
}

QString gridFilledMessage(const GridCodes& codes) {
  for (const QString& code : codes)
    if (!code.isEmpty()) return {};
  return u"施術内容が記入されていません。"_s;
}

QString gridMixedMessage(const GridCodes& codes) {
  bool needles = false, massage = false;
  for (const QString& code : codes) {
    if (code.size() != 1) continue;
    needles = needles || (code[0] >= u'a' && code[0] <= u'f');
    massage = massage || (code[0] >= u'g' && code[0] <= u'j');
  }
  return needles && massage ? u"施術内容に鍼灸とマ術が混じっています。"_s : QString();
}

QString gridCodesMessage(const GridCodes& codes, const ClaimRecord& claim, bool isAfter202012,
                         QStringList& warnings) {
  const bool trunk = claim.ticked(claim::trunk);
  for (const QString& code : codes) {
    if (code.isEmpty()) continue;
    const QString message = isAfter202012 ? strictCodeMessage(code) : looseCodeMessage(code, claim);
    if (!message.isNull()) return message;
    if (isAfter202012 && !trunk && manipulationWithHeat(code)) warnings.append(heatWarning());
  }
  return {};
}

QString specialAreaMessage(const ClaimRecord& claim) {
  if (!claim.ticked(claim::specialArea)) return {};
  for (int day = 1; day <= 31; ++day)
    if (!claim.visit(day).isEmpty()) return {};
  return u"往療が無いのに※特別地域に移住する患者へ施術にチェックが入っています。往療距離に記号を入れるか、"
         u"チェックをはずしてください。"_s;
}

QString areaNumbersMessage(const ClaimRecord& claim) {
  const VisitsTally tally = tallyVisits(claim);
  // kept: the text says two or more, the rule is three or more.
  if (numbersThat(5, [&](int areas) { return tally.areaDays(areas); }) >= 3)
    return u"マッサージの局数が２つ以上の異なる数字が入っています。マッサージの局数は２種類のみにしてください。"_s;
  if (numbersThat(4, [&](int limbs) { return tally.count(u'h', limbs); }) >= 2)
    return u"変形徒手矯正術の局数が１つ以上の異なる数字が入っています。"
           u"変形徒手矯正術の局数は１種類のみにしてください。"_s;
  return visitNumbersMessage(tally);
}

QString ledgerGridMessage(const ClaimRecord& claim, const MonthFlags& flags) {
  const GridCodes codes = gridCodes(claim);
  QStringList warnings;  // left to the claim form, whose consent page can answer them
  QString message = gridFilledMessage(codes);
  if (message.isNull()) message = gridMixedMessage(codes);
  if (message.isNull()) message = gridCodesMessage(codes, claim, flags.isAfter202012, warnings);
  if (message.isNull() && flags.isAfter202410) message = visitNumbersMessage(tallyVisits(claim));
  return message;
}

}  // namespace claims
