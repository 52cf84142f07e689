#include "records/core/previous_visit.h"

#include <iterator>

#include "platform/store/tables/visits.h"

namespace records {
namespace {

using visits::detailMemo;
using visits::detailText;

/// In the order of the slots.
constexpr store::Column kColumns[] = {
    visits::name,   visits::birth,         visits::summary, visits::insurerPays, visits::share,
    visits::fee,    visits::patientSerial, detailText[1],   detailText[4],       detailText[7],
    detailText[2],  detailText[5],         detailText[8],   detailText[3],       detailText[6],
    detailText[9],  detailMemo[21],        detailMemo[22],  detailText[11],      detailText[12],
    detailText[13], detailText[14],        detailText[15],  detailText[16],      detailText[17],
    detailText[18], detailText[19],        detailMemo[23],  detailMemo[24],      detailText[20],
    detailText[21], detailText[22],        detailText[23],  detailText[24],      detailText[25],
    detailText[26], detailText[27],        detailText[10],
};
constexpr int kFilledSlots = static_cast<int>(std::size(kColumns));
static_assert(kFilledSlots == 38);
static_assert(kColumns[PreviousVisit::Name - 1] == visits::name);
static_assert(kColumns[PreviousVisit::Birth - 1] == visits::birth);
static_assert(kColumns[PreviousVisit::Summary - 1] == visits::summary);
static_assert(kColumns[PreviousVisit::Insurer - 1] == visits::insurerPays);
static_assert(kColumns[PreviousVisit::Share - 1] == visits::share);
static_assert(kColumns[PreviousVisit::Amount - 1] == visits::fee);
static_assert(kColumns[PreviousVisit::Patient - 1] == visits::patientSerial);

constexpr int kCarried[] = {1, 2, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18};

}  // namespace

void PreviousVisit::take(const std::function<QString(const store::Column&)>& valueOf) {
  clear();
  for (size_t slot = 0; slot < std::size(kColumns); ++slot) m_values[slot] = valueOf(kColumns[slot]);
}

QString PreviousVisit::column(int slot) {
  if (slot < 1 || slot > kFilledSlots) return {};
  return kColumns[slot - 1].text();
}

std::span<const int> PreviousVisit::carriedAtOnce() { return kCarried; }

}  // namespace records
