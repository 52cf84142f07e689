#include "claims/core/amounts_parts.h"

namespace claims {
namespace {

constexpr int kForms = 4;
constexpr const char16_t* kFormLabels[kForms] = {u"訪問施術①（1人）", u"訪問施術②（2人）",
                                                 u"訪問施術③（3人～9人）", u"訪問施術③（10人以上）"};

AmountLine line(int unit, int count) {
  if (count == 0) return {};
  return {unit, count, qint64{unit} * count};
}

void appendRow(ClaimAmounts& result, const QString& label, const AmountLine& line) {
  if (line.count != 0) result.rows.append({label, line.unit, line.count, line.amount});
}

QString formLabel(int form, const QString& number) {
  return QString::fromUtf16(kFormLabels[form]) + u' ' + number;
}

/// What both kinds are charged beside the treatment.
template <class Lines>
void fillSurcharges(const ClaimRecord& claim, const ClaimAmounts& result, Lines& lines) {
  const FeeEdition& fees = result.fees;
  lines.sudden = line(fees.yen(Fee::Sudden), result.visits.suddenDays);
  const bool special = claim.ticked(QStringLiteral("d2"));
  lines.special = line(fees.yen(Fee::SpecialArea), special ? result.visits.visitDays : 0);
  lines.report = line(fees.yen(Fee::Report), reportCount(claim));
}

template <class Lines>
void addSurchargeRows(ClaimAmounts& result, const Lines& lines) {
  appendRow(result, QStringLiteral("突発的な往療"), lines.sudden);
  appendRow(result, QStringLiteral("特別地域の往療"), lines.special);
  appendRow(result, QStringLiteral("施術報告書交付料"), lines.report);
}

void fillAcupuncture(const ClaimRecord& claim, ClaimAmounts& result) {
  const VisitsTally& tally = result.visits;
  const FeeEdition& fees = result.fees;
  AcupunctureLines& lines = result.acupuncture;
  if (claim.ticked(QStringLiteral("初回有無")) && tally.first != 0)
    lines.first = line(fees.yen(tally.first <= u'd' ? Fee::HariFirst : Fee::HariKyuFirst), 1);
  lines.art[0] = line(fees.yen(Fee::Hari), tally.oneArt);
  lines.art[1] = line(fees.yen(Fee::HariKyu), tally.twoArts);
  lines.electric = line(fees.yen(Fee::HariElectric), tally.electric);
  lines.artDays[0] = tally.oneArt;
  lines.artDays[1] = tally.twoArts;
  for (int form = 0; form < kForms; ++form) {
    for (int arts = 1; arts <= 2; ++arts) {
      const int days = tally.artVisits(arts, form);
      lines.visit[form][arts - 1] = line(fees.yen(hariVisitFee(form, arts)), days);
      lines.artDays[arts - 1] += days;
    }
  }
  fillSurcharges(claim, result, lines);
}

void addAcupunctureRows(ClaimAmounts& result) {
  const AcupunctureLines& lines = result.acupuncture;
  const QString arts[] = {QStringLiteral("1術"), QStringLiteral("2術")};
  appendRow(result, QStringLiteral("初回施術"), lines.first);
  appendRow(result, QStringLiteral("はり・きゅう 1術"), lines.art[0]);
  appendRow(result, QStringLiteral("はり・きゅう 2術"), lines.art[1]);
  appendRow(result, QStringLiteral("電気鍼・電気温灸器・電気光線器具"), lines.electric);
  for (int form = 0; form < kForms; ++form)
    for (int i = 0; i < 2; ++i)
      if (lines.visit[form][i].count != 0) appendRow(result, formLabel(form, arts[i]), lines.visit[form][i]);
  addSurchargeRows(result, lines);
}

/// Days with one of two letters, plain and by every visit form.
bool anyDay(const VisitsTally& tally, char16_t first, char16_t second) {
  int days = 0;
  for (const char16_t letter : {first, second}) {
    days += tally.count(letter);
    for (int form = 0; form < kForms; ++form) days += tally.visitsOf(letter).of(form);
  }
  return days != 0;
}

QString acupunctureSubject(const ClaimAmounts& result) {
  const bool hari = anyDay(result.visits, u'a', u'b');
  const bool kyu = anyDay(result.visits, u'c', u'd');
  if (result.acupuncture.artDays[1] != 0 || (hari && kyu)) return QStringLiteral("鍼灸");
  if (hari) return QStringLiteral("鍼");
  return kyu ? QStringLiteral("灸") : QString();
}

/// The two lowest numbers of areas of plain days (row 0) or of a visit form (rows 1 to 4).
void fillAreas(ClaimAmounts& result, int row) {
  MassageLines& lines = result.massage;
  int place = 0;
  for (int areas = 1; areas <= 5 && place < 2; ++areas) {
    const int days = row == 0 ? result.visits.areaDays(areas) : result.visits.areaVisits(areas, row - 1);
    if (days == 0) continue;
    const int unit = row == 0 ? areas * result.fees.yen(Fee::MassageArea)
                              : result.fees.yen(massageVisitFee(row - 1, areas));
    lines.areasOf[row][place] = areas;
    lines.area[row][place++] = line(unit, days);
  }
}

void fillMassage(const ClaimRecord& claim, ClaimAmounts& result) {
  const VisitsTally& tally = result.visits;
  const FeeEdition& fees = result.fees;
  MassageLines& lines = result.massage;
  for (int row = 0; row <= kForms; ++row) fillAreas(result, row);
  int limbs = 0;
  for (int number = 1; number <= 4; ++number) {
    const int days = tally.count(u'h', number);
    lines.limb[number - 1] = line(number * fees.yen(Fee::Limb), days);
    limbs += number * days;
  }
  lines.limbTotal = line(fees.yen(Fee::Limb), limbs);
  lines.warm = line(fees.yen(Fee::Warm), tally.warm);
  lines.warmLight = line(fees.yen(Fee::WarmLight), tally.warmLight);
  fillSurcharges(claim, result, lines);
}

void addAreaRows(ClaimAmounts& result, int row) {
  const MassageLines& lines = result.massage;
  for (int place = 0; place < 2; ++place) {
    if (lines.area[row][place].count == 0) continue;
    const QString areas = QString::number(lines.areasOf[row][place]) + QStringLiteral("局所");
    appendRow(result, row == 0 ? QStringLiteral("マッサージ ") + areas : formLabel(row - 1, areas),
              lines.area[row][place]);
  }
}

void addMassageRows(ClaimAmounts& result) {
  const MassageLines& lines = result.massage;
  addAreaRows(result, 0);
  for (int number = 1; number <= 4; ++number)
    if (lines.limb[number - 1].count != 0)
      appendRow(result, QStringLiteral("徒手矯正術 %1肢").arg(number), lines.limb[number - 1]);
  appendRow(result, QStringLiteral("温罨法"), lines.warm);
  appendRow(result, QStringLiteral("電気光線器具併用"), lines.warmLight);
  for (int row = 1; row <= kForms; ++row) addAreaRows(result, row);
  addSurchargeRows(result, lines);
}

QString massageSubject(const MassageLines& lines) {
  bool any = lines.limbTotal.count != 0 || lines.warm.count != 0 || lines.warmLight.count != 0;
  for (const auto& row : lines.area) any = any || row[0].count != 0;
  return any ? QStringLiteral("マ術") : QString();
}

}  // namespace

void computeVisits(const ClaimRecord& claim, ClaimAmounts& result) {
  result.visits = tallyVisits(claim);
  result.treatmentDays = result.visits.treatmentDays;
  if (result.kind == Kind::Massage) {
    fillMassage(claim, result);
    addMassageRows(result);
    result.subject = massageSubject(result.massage);
  } else {
    fillAcupuncture(claim, result);
    addAcupunctureRows(result);
    result.subject = acupunctureSubject(result);
  }
}

}  // namespace claims
