#include "claims/core/amount_record.h"

namespace claims {
namespace {

/// Joins the numbers of a record behind its mark.
class Writer {
 public:
  explicit Writer(const char16_t* mark) : m_text(QString::fromUtf16(mark)) { m_text.reserve(200); }

  void add(qint64 number) { m_text.append(u',').append(QString::number(number)); }
  void add(const AmountLine& line) {
    add(line.unit);
    add(line.count);
    add(line.amount);
  }
  void add(const ClaimAmounts& amounts) {
    add(amounts.total);
    add(amounts.share);
    add(amounts.claim);
  }
  /// A box of the form; a blank one counts as 0.
  void addBox(const QString& box) { add(box.toLongLong()); }

  QString text() const { return m_text; }

 private:
  QString m_text;
};

QString acupunctureRecord(const ClaimAmounts& amounts) {
  const AcupunctureLines& lines = amounts.acupuncture;
  Writer writer(kAcupunctureMark);
  writer.add(lines.first.amount);
  for (const int days : lines.artDays) writer.add(days);
  for (const AmountLine& line : lines.art) writer.add(line);
  for (const auto& form : lines.visit)
    for (const AmountLine& line : form) writer.add(line);
  for (const AmountLine* line : {&lines.electric, &lines.special, &lines.sudden, &lines.report})
    writer.add(*line);
  writer.add(amounts);
  return writer.text();
}

QString massageRecord(const ClaimAmounts& amounts, const AreaBoxes& boxes) {
  const MassageLines& lines = amounts.massage;
  Writer writer(kMassageMark);
  for (const QString& box : boxes.areas) writer.addBox(box);
  for (const QString& box : boxes.limbs) writer.addBox(box);
  for (const auto& row : lines.area)
    for (const AmountLine& line : row) writer.add(line);
  for (const AmountLine* line :
       {&lines.warm, &lines.warmLight, &lines.limbTotal, &lines.special, &lines.sudden, &lines.report})
    writer.add(*line);
  writer.add(amounts);
  return writer.text();
}

}  // namespace

QString amountRecord(const ClaimAmounts& amounts, const AreaBoxes& boxes) {
  if (amounts.regime != Regime::Visits) return {};
  return amounts.kind == Kind::Massage ? massageRecord(amounts, boxes) : acupunctureRecord(amounts);
}

QStringList amountRecordFields(const QString& record) {
  const QStringList fields = record.split(u',');
  const bool known = (fields[0] == kAcupunctureMark && fields.size() == acupuncture_field::kLast + 1) ||
                     (fields[0] == kMassageMark && fields.size() == massage_field::kLast + 1);
  return known ? fields : QStringList();
}

}  // namespace claims
