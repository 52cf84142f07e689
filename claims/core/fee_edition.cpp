#include "claims/core/fee_edition.h"

namespace claims {
namespace {

constexpr size_t kCount = static_cast<size_t>(Fee::Count);

std::array<QString, kCount> columnNames() {
  constexpr const char16_t* plain[] = {
      u"はり",         u"はり初回",       u"はり電療",        u"はり電療初回",  u"灸",
      u"灸初回",       u"灸電療",         u"灸電療初回",      u"はり灸",        u"はり灸初回",
      u"はり灸電療",   u"はり灸電療初回", u"マッサージ1局所", u"温罨法",        u"電気光線器具併用",
      u"徒手矯正術",   u"突発的な往療",   u"加算往診料2K",    u"加算往診料4K",  u"特別地域",
      u"加算往診料6K", u"加算往診料8K",   u"加算往診料10K",   u"加算往診料12K", u"加算往診料16K",
      u"往診料2Kまで", u"加算往診料14K",  u"施術報告書交付料"};
  constexpr const char16_t* forms[] = {u"1", u"2", u"31", u"32"};
  std::array<QString, kCount> names;
  size_t at = 0;
  for (const char16_t* name : plain) names[at++] = QString::fromUtf16(name);
  const auto visits = [&](const QString& stem, int last) {
    for (const char16_t* form : forms)
      for (int number = 1; number <= last; ++number)
        names[at++] = stem + QString::fromUtf16(form) + QString::number(number);
  };
  visits(QStringLiteral("はり訪問施術"), 2);
  visits(QStringLiteral("マ訪問施術"), 5);
  return names;
}

Fee offset(Fee base, int by) { return static_cast<Fee>(static_cast<int>(base) + by); }

}  // namespace

const QString& feeColumn(Fee fee) {
  static const auto names = columnNames();
  return names.at(static_cast<size_t>(fee));
}

Fee hariVisitFee(int form, int arts) { return offset(Fee::HariVisit, form * 2 + arts - 1); }

Fee massageVisitFee(int form, int areas) { return offset(Fee::MassageVisit, form * 5 + areas - 1); }

}  // namespace claims
