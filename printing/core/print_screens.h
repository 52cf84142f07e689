#pragma once

#include <QString>
#include <optional>
#include <span>

#include "frame/core/routes.h"
#include "printing/core/edition.h"

namespace printing {

/// The screens that print one claim. Each asks for the edition of the paper.
enum class PrintScreen {
  General2024,
  AichiAssociation2024,
  TokyoAid2024,
  IshikawaAid2024,
  General2018,
  AichiAssociation2018,
  TokyoAid2018,
  IshikawaAid2018,
  Oldest,
};

/// An option button of a printing screen.
struct EditionOption {
  Edition edition;
  const char16_t* control;  ///< name of the button, and the value of its group
};

/// A printing screen and the editions that it offers.
struct PrintScreenRow {
  PrintScreen screen;
  screen::ScreenName name;
  std::span<const EditionOption> editions;
  Edition preset;  ///< chosen when the screen opens; None: the claim decides, or nothing is chosen

  constexpr const char16_t* controlOf(Edition edition) const {
    for (const EditionOption& option : editions)
      if (option.edition == edition) return option.control;
    return nullptr;
  }
  constexpr bool offers(Edition edition) const { return controlOf(edition) != nullptr; }
};

namespace options {
inline constexpr EditionOption kGeneral2024[] = {{Edition::From202410, u"Option9"},
                                                 {Edition::From202104, u"Option8"}};
inline constexpr EditionOption kNewestOf2024[] = {{Edition::From202410, u"Option9"}};
inline constexpr EditionOption kTokyoAid2024[] = {{Edition::From202104, u"Option8"},
                                                  {Edition::From202012, u"Option7"}};
inline constexpr EditionOption kGeneral2018[] = {
    {Edition::From202104, u"Option8"},       {Edition::From202012, u"Option7"},
    {Edition::From201901Reiwa, u"Option6"},  {Edition::From201810Reiwa, u"Option5"},
    {Edition::From201901Heisei, u"Option4"}, {Edition::From201810Heisei, u"Option3"},
    {Edition::VisitsUpTo2km, u"Option2"},    {Edition::VisitsUpTo4km, u"Option1"}};
inline constexpr EditionOption kAichiAssociation2018[] = {
    {Edition::AichiAssociation, u"Option9"}, {Edition::From202104, u"Option8"},
    {Edition::From202012, u"Option7"},       {Edition::From201901Reiwa, u"Option6"},
    {Edition::From201810Reiwa, u"Option5"},  {Edition::From201901Heisei, u"Option4"},
    {Edition::From201810Heisei, u"Option3"}, {Edition::VisitsUpTo2km, u"Option2"},
    {Edition::VisitsUpTo4km, u"Option1"}};
inline constexpr EditionOption kIshikawaAid2018[] = {{Edition::From202104, u"Option8"},
                                                     {Edition::From202012, u"Option7"}};
inline constexpr EditionOption kOldest[] = {{Edition::UpToVersion511, u"Option2"},
                                            {Edition::AfterVersion511, u"Option1"}};
}  // namespace options

/// In the order of PrintScreen.
inline constexpr PrintScreenRow kPrintScreens[] = {
    {PrintScreen::General2024, routes::ClaimPrint2024::screen, options::kGeneral2024, Edition::From202410},
    {PrintScreen::AichiAssociation2024, routes::ClaimPrint2024Aichi::screen, options::kNewestOf2024,
     Edition::From202410},
    {PrintScreen::TokyoAid2024, routes::TokyoAidPrint2024::screen, options::kTokyoAid2024, Edition::None},
    {PrintScreen::IshikawaAid2024, routes::IshikawaAidPrint2024::screen, options::kNewestOf2024,
     Edition::From202410},
    {PrintScreen::General2018, routes::ClaimPrint2018::screen, options::kGeneral2018, Edition::None},
    {PrintScreen::AichiAssociation2018, routes::ClaimPrint2018Aichi::screen, options::kAichiAssociation2018,
     Edition::AichiAssociation},
    {PrintScreen::TokyoAid2018, routes::TokyoAidPrint::screen, {}, Edition::None},
    {PrintScreen::IshikawaAid2018, routes::IshikawaAidPrint::screen, options::kIshikawaAid2018,
     Edition::None},
    {PrintScreen::Oldest, routes::ClaimPrint::screen, options::kOldest, Edition::None},
};

constexpr const PrintScreenRow& rowOf(PrintScreen screen) {
  return kPrintScreens[static_cast<std::size_t>(screen)];
}

/// Whether each screen has its row, and no screen presets an edition that it lacks.
consteval bool printScreensAreSound() {
  for (std::size_t i = 0; i < std::size(kPrintScreens); ++i) {
    const PrintScreenRow& row = kPrintScreens[i];
    if (row.screen != static_cast<PrintScreen>(i)) return false;
    if (row.preset != Edition::None && !row.offers(row.preset)) return false;
  }
  return std::size(kPrintScreens) == static_cast<std::size_t>(PrintScreen::Oldest) + 1;
}
static_assert(printScreensAreSound());

inline QString nameOf(PrintScreen screen) { return rowOf(screen).name; }

/// The printing screen of this name; nothing where the name is none of theirs.
std::optional<PrintScreen> printScreenNamed(const QString& name);
/// The edition of an option button of the screen; None for a blank name, Unknown for one that it lacks.
Edition editionNamed(PrintScreen screen, const QString& control);

}  // namespace printing
