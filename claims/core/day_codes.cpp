#include "claims/core/day_codes.h"

namespace claims {

using namespace Qt::StringLiterals;

DayCode::DayCode(const QString& code) : m_blank(code.isEmpty()) {
  if (code.size() == 1 && code[0] >= u'a' && code[0] <= u'j') m_exact = m_leading = code[0].unicode();
  for (qsizetype at = 0; at + 1 < code.size(); ++at) {
    const char16_t letter = code[at].unicode();
    const char16_t digit = code[at + 1].unicode();
    if (letter < u'g' || letter > u'j' || digit < u'1' || digit > u'5') continue;
    m_tokens |= 1U << bit(letter, digit - u'0');
    if (m_leading == 0) m_leading = letter;
  }
}

namespace {

/// A whole number without sign, blanks or leading zeros, 1 to 20; 0: not one.
int oneToTwenty(QStringView text) {
  if (text.isEmpty() || text.size() > 2 || text[0] == u'0') return 0;
  int number = 0;
  for (const QChar c : text) {
    if (c < u'0' || c > u'9') return 0;
    number = number * 10 + (c.unicode() - u'0');
  }
  return number <= 20 ? number : 0;
}

}  // namespace

VisitForm visitForm(const QString& entry) {
  if (entry.isEmpty()) return VisitForm::None;
  if (entry == u"t") return VisitForm::Sudden;
  const int patients = entry[0] == u'v' ? oneToTwenty(QStringView(entry).mid(1)) : 0;
  if (patients == 0) return VisitForm::Unknown;
  if (patients == 1) return VisitForm::One;
  if (patients == 2) return VisitForm::Two;
  return patients <= 9 ? VisitForm::Small : VisitForm::Large;
}

int visitDistance(const QString& entry) { return oneToTwenty(entry); }

QString codeEntryMessage(const QString& code, Kind kind) {
  const char16_t letter = code.size() == 1 ? code[0].unicode() : 0;
  const bool wrong = kind == Kind::Acupuncture ? letter >= u'g' && letter <= u'j'
                                               : kind == Kind::Massage && letter >= u'a' && letter <= u'f';
  return wrong ? u"治療内容が正しくありません。"_s : QString();
}

QString visitEntryMessage(const QString& entry, bool isAfter202410) {
  if (entry.isEmpty()) return {};
  if (isAfter202410) {
    return visitForm(entry) == VisitForm::Unknown
               ? u"往療距離が正しくありません。「記入の仕方」をクリックし、ご確認ください。"_s
               : QString();
  }
  return visitDistance(entry) == 0 ? u"往療距離が正しくありません。"_s : QString();
}

}  // namespace claims
