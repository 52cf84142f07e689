#include "claims/tests/core/plain_model.h"

#include <map>
#include <set>

namespace claims::testing {
namespace {

struct Model {
  const ClaimRecord& claim;
  const FeeEdition& fees;
  qint64 total = 0;

  void add(const char16_t* column, qint64 times = 1) {
    for (const FeeRow& fee : kFees)
      if (feeColumn(fee.fee) == column) total += times * fees.yen(fee.fee);
  }
  void add(const QString& column, qint64 times = 1) {
    add(reinterpret_cast<const char16_t*>(column.utf16()), times);
  }
  bool ticked(const char16_t* column) const {
    const QString value = claim.named(QString::fromUtf16(column));
    return value == u"-1" || value == u"1" || value == u"true";
  }
  qint64 numberIn(const char16_t* column) const {
    return claim.named(QString::fromUtf16(column)).trimmed().toLongLong();  // 0 for what is no number
  }
  int reports() const { return !ticked(u"yn2") ? 0 : ticked(u"yn4") ? 3 : ticked(u"yn3") ? 2 : 1; }
};

bool isOneOf(const QString& text, const char* letters) {
  return text.size() == 1 && QString::fromLatin1(letters).contains(text);
}

QString token(char letter, int number) { return QLatin1Char(letter) + QString::number(number); }

bool hasToken(const QString& code) {
  for (const char letter : {'g', 'h', 'i', 'j'})
    for (int n = 1; n <= 5; ++n)
      if (code.contains(token(letter, n))) return true;
  return false;
}

void addOldTreatments(Model& model) {
  qint64 massageDays = 0, limbDays = 0, areas = 0, limbs = 0;
  bool areaNumbers = false, limbNumbers = false, firstTaken = !model.ticked(u"初回有無");
  for (int day = 1; day <= 31; ++day) {
    const QString code = model.claim.code(day);
    if (!firstTaken && (isOneOf(code, "abcdefghij") || hasToken(code))) {
      firstTaken = true;
      if (isOneOf(code, "ab")) model.add(u"はり初回");
      if (isOneOf(code, "cd")) model.add(u"灸初回");
      if (isOneOf(code, "ef")) model.add(u"はり灸初回");
    }
    if (isOneOf(code, "ab")) model.add(u"はり");
    if (isOneOf(code, "cd")) model.add(u"灸");
    if (isOneOf(code, "ef")) model.add(u"はり灸");
    if (isOneOf(code, "bdf")) model.add(u"はり電療");
    for (const char letter : {'g', 'i', 'j'}) {
      for (int n = 0; n <= 5; ++n) {
        const bool found = n == 0 ? code == QLatin1Char(letter) : code.contains(token(letter, n));
        if (!found) continue;
        ++massageDays;
        areas += n == 0 ? 1 : n;
        areaNumbers = areaNumbers || n > 0;
        if (letter == 'i') model.add(u"温罨法");
        if (letter == 'j') model.add(u"電気光線器具併用");
      }
    }
    for (int n = 0; n <= 5; ++n) {
      if (n == 0 ? code != u"h" : !code.contains(token('h', n))) continue;
      ++limbDays;
      limbs += n;
      limbNumbers = limbNumbers || n > 0;
    }
  }
  model.add(u"マッサージ1局所", areaNumbers ? areas : massageDays * model.numberIn(u"マッサージ部位数"));
  model.add(u"徒手矯正術", limbNumbers ? limbs : limbDays * model.numberIn(u"徒手矯正数"));
}

void addTwoBands(Model& model) {
  for (int day = 1; day <= 31; ++day) {
    if (model.claim.code(day).isEmpty()) continue;
    for (int km = 1; km <= 20; ++km)
      if (model.claim.visit(day) == QString::number(km))
        model.add(km <= 4 ? u"往診料2Kまで" : u"加算往診料4K");
  }
}

void addSteps(Model& model) {
  std::map<int, const char16_t*> added = {{2, u""},
                                          {4, u"加算往診料2K"},
                                          {6, u"加算往診料4K"},
                                          {8, u"加算往診料6K"},
                                          {10, u"加算往診料8K"},
                                          {12, u"加算往診料10K"},
                                          {14, u"加算往診料12K"},
                                          {16, u"加算往診料14K"}};
  std::multiset<int> visits;
  for (int day = 1; day <= 31; ++day)
    for (const auto& [km, column] : added)
      if (!model.claim.code(day).isEmpty() && model.claim.visit(day) == QString::number(km))
        visits.insert(km);
  if (std::set<int>(visits.begin(), visits.end()).size() > 1) added[12] = u"加算往診料8K";
  for (const int km : visits) {
    model.add(u"往診料2Kまで");
    model.add(added[km]);
  }
}

/// "1", "2", "31", "32" as the fee columns name the forms; null: no 訪問施術.
QString formOf(const QString& visit) {
  for (int n = 1; n <= 20; ++n)
    if (visit == QStringLiteral("v%1").arg(n))
      return QString::fromLatin1(n <= 2 ? (n == 1 ? "1" : "2") : n < 10 ? "31" : "32");
  return {};
}

void addNeedleDays(Model& model) {
  QString first;
  for (int day = 1; day <= 31; ++day) {
    const QString code = model.claim.code(day), visit = model.claim.visit(day);
    if (!isOneOf(code, "abcdef")) continue;
    if (first.isNull()) first = code;
    const bool one = isOneOf(code, "abcd");
    if (visit.isEmpty() || visit == u"t") model.add(one ? u"はり" : u"はり灸");
    if (!formOf(visit).isNull())
      model.add(QStringLiteral("はり訪問施術%1%2").arg(formOf(visit)).arg(one ? 1 : 2));
    if (isOneOf(code, "bdf")) model.add(u"はり電療");
  }
  if (!first.isNull() && model.ticked(u"初回有無"))
    model.add(isOneOf(first, "abcd") ? u"はり初回" : u"はり灸初回");
}

void addMassageDays(Model& model) {
  std::map<QString, std::map<int, int>> days;  // by form, "" the plain days; by number of areas
  for (int day = 1; day <= 31; ++day) {
    const QString code = model.claim.code(day), visit = model.claim.visit(day);
    for (int n = 1; n <= 5; ++n) {
      for (const char letter : {'g', 'i', 'j'}) {
        if (!code.contains(token(letter, n))) continue;
        if (visit.isEmpty() || visit == u"t") ++days[QString()][n];
        if (!formOf(visit).isNull()) ++days[formOf(visit)][n];
        if (letter == 'i') model.add(u"温罨法");
        if (letter == 'j') model.add(u"電気光線器具併用");
      }
      if (n <= 4 && code.contains(token('h', n))) model.add(u"徒手矯正術", n);
    }
  }
  for (const auto& [form, numbers] : days) {
    int shown = 0;
    for (const auto& [areas, count] : numbers) {
      if (++shown > 2) break;
      if (form.isNull())
        model.add(u"マッサージ1局所", qint64{areas} * count);
      else
        model.add(QStringLiteral("マ訪問施術%1%2").arg(form).arg(areas), count);
    }
  }
}

void addVisitSurcharges(Model& model) {
  for (int day = 1; day <= 31; ++day) {
    const QString code = model.claim.code(day), visit = model.claim.visit(day);
    bool treated = isOneOf(code, "abcdef");
    for (const char letter : {'g', 'i', 'j', 'h'})
      for (int n = 1; n <= (letter == 'h' ? 4 : 5); ++n) treated = treated || code.contains(token(letter, n));
    if (!treated) continue;
    if (visit == u"t") model.add(u"突発的な往療");
    if (model.ticked(u"d2") && (visit == u"t" || !formOf(visit).isNull())) model.add(u"特別地域");
  }
  model.add(u"施術報告書交付料", model.reports());
}

}  // namespace

qint64 plainTotal(const ClaimRecord& claim, const FeeEdition& fees, const MonthFlags& flags, bool preview) {
  Model model{claim, fees};
  if (flags.isAfter202410) {
    claim.get(claim::treatmentKind) == u"あマ" ? addMassageDays(model) : addNeedleDays(model);
    addVisitSurcharges(model);
    return model.total;
  }
  addOldTreatments(model);
  preview && !flags.isAfter201806 ? addSteps(model) : addTwoBands(model);
  if (flags.isAfter201810) model.add(u"加算往診料16K", model.reports());
  return model.total;
}

qint64 plainShare(qint64 total, const QString& share) {
  const int tenths = share == u"1割" ? 1 : share == u"2割" ? 2 : share == u"3割" ? 3 : 0;
  return (total * tenths + 9) / 10;
}

}  // namespace claims::testing
