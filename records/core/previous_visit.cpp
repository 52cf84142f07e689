#include "records/core/previous_visit.h"

namespace records {
namespace {

/// In the order of the slots.
constexpr const char16_t* kColumns[] = {
    u"氏名",     u"生年月日",    u"治療概略",    u"保険者負担金", u"保険の一部負担金",
    u"治療金額", u"ETC1",        u"d1",          u"d4",           u"d7",
    u"d2",       u"d5",          u"d8",          u"d3",           u"d6",
    u"d9",       u"memodummy21", u"memodummy22", u"d11",          u"d12",
    u"d13",      u"d14",         u"d15",         u"d16",          u"d17",
    u"d18",      u"d19",         u"memodummy23", u"memodummy24",  u"d20",
    u"d21",      u"d22",         u"d23",         u"d24",          u"d25",
    u"d26",      u"d27",         u"d10",
};
static_assert(std::size(kColumns) == 38);

constexpr int kCarried[] = {1, 2, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18};

}  // namespace

void PreviousVisit::take(const std::function<QString(const QString&)>& valueOf) {
  clear();
  for (int slot = 1; slot <= static_cast<int>(std::size(kColumns)); ++slot)
    m_values[static_cast<size_t>(slot - 1)] = valueOf(column(slot));
}

QString PreviousVisit::column(int slot) {
  if (slot < 1 || slot > static_cast<int>(std::size(kColumns))) return {};
  return QString::fromUtf16(kColumns[slot - 1]);
}

std::span<const int> PreviousVisit::carriedAtOnce() { return kCarried; }

}  // namespace records
