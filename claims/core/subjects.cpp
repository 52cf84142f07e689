#include "claims/core/subjects.h"

namespace claims {
namespace {

/// Whether any line of the art passes the test.
template <class Test>
bool anyLine(const ClaimAmounts& amounts, Art art, Test test) {
  for (size_t i = 0; i < amounts.items().size(); ++i)
    if (amounts.items()[i].art == art && test(amounts.lines[static_cast<qsizetype>(i)])) return true;
  return false;
}

bool paid(const ClaimAmounts& amounts, Art art) {
  return anyLine(amounts, art, [](const AmountLine& line) { return line.amount != 0; });
}

QString needles(bool hari, bool kyu, bool both) {
  if (both || (hari && kyu)) return QStringLiteral("鍼灸");
  if (hari) return QStringLiteral("鍼");
  return kyu ? QStringLiteral("灸") : QString();
}

/// Days with one of two letters, plain and by every visit form.
bool anyDay(const VisitsTally& tally, char16_t first, char16_t second) {
  int days = 0;
  for (const char16_t letter : {first, second}) {
    days += tally.count(letter);
    for (int form = 0; form < 4; ++form) days += tally.visitsOf(letter).of(form);
  }
  return days != 0;
}

}  // namespace

QString twoBandSubject(const ClaimAmounts& amounts) {
  const char16_t first = amounts.twoBand.first;
  if (first > u'f') return QStringLiteral("マ術");
  if (first != 0) return needles(first <= u'b', first == u'c' || first == u'd', first >= u'e');
  const QString subject =
      needles(paid(amounts, Art::Hari), paid(amounts, Art::Kyu), paid(amounts, Art::HariKyu));
  if (!subject.isNull()) return subject;
  return paid(amounts, Art::Massage) ? QStringLiteral("マ術") : QString();
}

QString visitsAcupunctureSubject(const ClaimAmounts& amounts) {
  const VisitsTally& tally = amounts.visits;
  return needles(anyDay(tally, u'a', u'b'), anyDay(tally, u'c', u'd'), anyDay(tally, u'e', u'f'));
}

QString visitsMassageSubject(const ClaimAmounts& amounts) {
  const bool any = anyLine(amounts, Art::Massage, [](const AmountLine& line) { return line.count != 0; });
  return any ? QStringLiteral("マ術") : QString();
}

}  // namespace claims
