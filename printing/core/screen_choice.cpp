#include "printing/core/screen_choice.h"

#include <iterator>

namespace printing {

namespace {

using frame::AichiSubmission;
using frame::Prefecture;

/// What a row asks for besides the month.
enum class If { Always, AichiAssociation, TokyoAid, IshikawaAid };

/// One row of the choice; the first that fits wins.
struct ChoiceRow {
  int from;  ///< first claim month as yyyymm
  If condition;
  PrintScreen screen;
};

constexpr ChoiceRow kChoice[] = {
    {202410, If::AichiAssociation, PrintScreen::AichiAssociation2024},
    {202410, If::TokyoAid, PrintScreen::TokyoAid2024},
    {202410, If::IshikawaAid, PrintScreen::IshikawaAid2024},
    {202410, If::Always, PrintScreen::General2024},
    {201806, If::AichiAssociation, PrintScreen::AichiAssociation2018},
    {201806, If::TokyoAid, PrintScreen::TokyoAid2018},
    {201806, If::IshikawaAid, PrintScreen::IshikawaAid2018},
    {201806, If::Always, PrintScreen::General2018},
    {0, If::Always, PrintScreen::Oldest},
};
constexpr const ChoiceRow& kLast = kChoice[std::size(kChoice) - 1];
static_assert(kLast.from == 0 && kLast.condition == If::Always, "every claim has a printing screen");

bool holds(If condition, const ScreenQuery& query) {
  switch (condition) {
    case If::Always:
      return true;
    case If::AichiAssociation:
      return query.prefecture == Prefecture::Aichi && query.aichi != AichiSubmission::AcupunctureAssociation;
    case If::TokyoAid:
      return query.prefecture == Prefecture::Tokyo && query.publicAid;
    case If::IshikawaAid:
      return query.prefecture == Prefecture::Ishikawa && query.publicAid;
  }
  return false;
}

Edition presetOf2018(const frame::EraDates& dates, const QString& claimMonth, const QString& summaryKind) {
  const bool ordinary = summaryKind == u"0";
  if (claimMonth.startsWith(u"令和")) {
    const auto month = dates.claimMonthToDate(claimMonth);
    const bool from202012 = month && *month >= QDate(2020, 12, 1);
    return ordinary || from202012 ? Edition::From202104 : Edition::From201901Reiwa;
  }
  if (claimMonth.startsWith(u"平成")) return ordinary ? Edition::From201810Heisei : Edition::From201901Heisei;
  return Edition::None;
}

}  // namespace

PrintScreen choosePrintScreen(const ScreenQuery& query) {
  const int month = query.month.year() * 100 + query.month.month();
  for (const ChoiceRow& row : kChoice)
    if (month >= row.from && holds(row.condition, query)) return row.screen;
  return kLast.screen;
}

Edition presetEdition(PrintScreen screen, const frame::EraDates& dates, const QString& claimMonth,
                      const QString& summaryKind) {
  return screen == PrintScreen::General2018 ? presetOf2018(dates, claimMonth, summaryKind)
                                            : rowOf(screen).preset;
}

PrintTicks presetTicks(Prefecture prefecture) {
  // Shizuoka asks for the era word in the claim month of every form.
  if (prefecture == Prefecture::Shizuoka) return {.eraOn202104 = true, .eraOn202410 = true};
  return {};
}

}  // namespace printing
