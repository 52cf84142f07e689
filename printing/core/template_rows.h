#pragma once

#include <span>

#include "printing/core/print_screens.h"
#include "printing/core/print_ticks.h"

// Which template each edition of each printing screen takes, as data.

namespace printing {

/// Groups of prefectures and associations that have papers of their own.
enum class Region {
  Any,
  Aichi,
  AichiAcupunctureAssociation,
  Tokyo,
  TokyoAcupunctureAssociation,
  Osaka,
  NaraIshikawa,
  OkayamaFukuiMie,
  Mie,
};

/// The printing routines: each prints one group of editions.
enum class Routine {
  Form900,
  AichiAssociation900,
  TokyoAid900,
  Delegated,
  DelegatedAichiAssociation,
  DelegatedTokyo,
  AichiAssociation860,
  IshikawaAid820,
  TokyoAid820,
  NotDelegated,
  Oldest,
  OldestMie,
};
inline constexpr Routine kLastRoutine = Routine::OldestMie;

/// The routine of a screen's editions; the first row that fits wins.
struct RoutineRow {
  PrintScreen screen;
  EditionSet editions;
  Region region;
  Routine routine;
};

/// A suffix of the template's name in a region.
struct Suffix {
  Region region;
  const char16_t* text;
};

/// When the template with the era word in the claim month is taken (letter R).
struct EraWord {
  bool always = false;
  bool PrintTicks::*tick = nullptr;
};
inline constexpr EraWord kNoEraWord{};
inline constexpr EraWord kEraWord{.always = true};
constexpr EraWord eraWordIf(bool PrintTicks::*tick) { return {.tick = tick}; }

/// The template of an edition: number, regional suffixes (the first that fits), era word.
struct TemplateRow {
  Routine routine;
  EditionSet editions;
  const char16_t* number;
  std::span<const Suffix> suffixes;
  EraWord era;
  bool built = false;  ///< this program holds the template and its mapping
};

namespace editions {
using enum Edition;
inline constexpr EditionSet kDelegated = {From202104, From202012, From201901Reiwa, From201901Heisei};
/// The papers with two lines for visits print where no edition is chosen.
inline constexpr EditionSet kVisitLines = {None, VisitsUpTo2km, VisitsUpTo4km};
inline constexpr EditionSet kNotDelegated = {From201810Reiwa, From201810Heisei, None, VisitsUpTo2km,
                                             VisitsUpTo4km};
}  // namespace editions

inline constexpr RoutineRow kRoutines[] = {
    {PrintScreen::General2024, {Edition::From202410}, Region::Any, Routine::Form900},
    {PrintScreen::General2024,
     {Edition::From202104},
     Region::AichiAcupunctureAssociation,
     Routine::Delegated},
    {PrintScreen::General2024, {Edition::From202104}, Region::Aichi, Routine::DelegatedAichiAssociation},
    {PrintScreen::General2024,
     {Edition::From202104},
     Region::TokyoAcupunctureAssociation,
     Routine::DelegatedTokyo},
    {PrintScreen::General2024, {Edition::From202104}, Region::Any, Routine::Delegated},
    {PrintScreen::AichiAssociation2024, EditionSet::all(), Region::Any, Routine::AichiAssociation900},
    {PrintScreen::TokyoAid2024, EditionSet::all(), Region::Any, Routine::TokyoAid900},
    {PrintScreen::IshikawaAid2024, {Edition::From202410, Edition::None}, Region::Any, Routine::Form900},
    {PrintScreen::General2018, editions::kDelegated, Region::AichiAcupunctureAssociation, Routine::Delegated},
    {PrintScreen::General2018, editions::kDelegated, Region::Aichi, Routine::DelegatedAichiAssociation},
    {PrintScreen::General2018, editions::kDelegated, Region::TokyoAcupunctureAssociation,
     Routine::DelegatedTokyo},
    {PrintScreen::General2018, editions::kDelegated, Region::Any, Routine::Delegated},
    {PrintScreen::General2018, editions::kNotDelegated, Region::Any, Routine::NotDelegated},
    {PrintScreen::AichiAssociation2018,
     {Edition::AichiAssociation},
     Region::Any,
     Routine::AichiAssociation860},
    {PrintScreen::AichiAssociation2018, editions::kDelegated, Region::Any,
     Routine::DelegatedAichiAssociation},
    {PrintScreen::AichiAssociation2018, editions::kNotDelegated, Region::Any, Routine::NotDelegated},
    {PrintScreen::TokyoAid2018, EditionSet::all(), Region::Any, Routine::TokyoAid820},
    {PrintScreen::IshikawaAid2018,
     {Edition::From202104, Edition::From202012},
     Region::Any,
     Routine::IshikawaAid820},
    // Kept: Mie has a routine of its own here, so its suffix of the general routine is never reached.
    {PrintScreen::Oldest, EditionSet::all(), Region::Mie, Routine::OldestMie},
    {PrintScreen::Oldest, EditionSet::all(), Region::Any, Routine::Oldest},
};

namespace suffixes {
inline constexpr Suffix kAichiAcupuncture[] = {{Region::AichiAcupunctureAssociation, u"23"}};
inline constexpr Suffix k23[] = {{Region::Any, u"23"}};
inline constexpr Suffix k232[] = {{Region::Any, u"232"}};
inline constexpr Suffix k13[] = {{Region::Any, u"13"}};
inline constexpr Suffix k24[] = {{Region::Any, u"24"}};
inline constexpr Suffix k1724[] = {{Region::Any, u"1724"}};
inline constexpr Suffix kGeneral[] = {{Region::AichiAcupunctureAssociation, u"23"},
                                      {Region::Aichi, u"232"},
                                      {Region::NaraIshikawa, u"29"},
                                      {Region::Tokyo, u"13"},
                                      {Region::Osaka, u"27"},
                                      {Region::OkayamaFukuiMie, u"1724"}};
inline constexpr Suffix kForm400[] = {{Region::Aichi, u"23"},
                                      {Region::NaraIshikawa, u"29"},
                                      {Region::Osaka, u"1724"},
                                      {Region::OkayamaFukuiMie, u"1724"}};
}  // namespace suffixes

inline constexpr EraWord kEra201901 = eraWordIf(&PrintTicks::eraOn201901);
inline constexpr EraWord kEra202012 = eraWordIf(&PrintTicks::eraOn202012);
inline constexpr EraWord kEra202104 = eraWordIf(&PrintTicks::eraOn202104);
inline constexpr EraWord kEra202410 = eraWordIf(&PrintTicks::eraOn202410);

/// In each routine the first row that fits wins.
inline constexpr TemplateRow kTemplates[] = {
    {Routine::Form900, EditionSet::all(), u"900", {}, kEra202410, true},
    {Routine::AichiAssociation900, EditionSet::all(), u"900", suffixes::k23, kEraWord},
    {Routine::TokyoAid900, EditionSet::all(), u"900", suffixes::k13, kEraWord},
    {Routine::Delegated, {Edition::From202104}, u"820", suffixes::kAichiAcupuncture, kEra202104},
    {Routine::Delegated, {Edition::From202012}, u"810", suffixes::kAichiAcupuncture, kEra202012},
    {Routine::Delegated, {Edition::From201901Reiwa}, u"750", suffixes::kAichiAcupuncture, kEra201901},
    {Routine::Delegated, {Edition::From201901Heisei}, u"700", {}, kNoEraWord},
    {Routine::DelegatedTokyo, {Edition::From202104, Edition::From202012}, u"820", suffixes::k13, kEraWord},
    {Routine::DelegatedTokyo, {Edition::From201901Reiwa}, u"750", {}, kEra201901},
    {Routine::DelegatedTokyo, {Edition::From201901Heisei}, u"700", {}, kNoEraWord},
    {Routine::DelegatedAichiAssociation, {Edition::From202104}, u"820", suffixes::k232, kNoEraWord},
    {Routine::DelegatedAichiAssociation, {Edition::From202012}, u"810", suffixes::k232, kNoEraWord},
    {Routine::DelegatedAichiAssociation, {Edition::From201901Reiwa}, u"750", suffixes::k232, kNoEraWord},
    {Routine::DelegatedAichiAssociation, {Edition::From201901Heisei}, u"700", suffixes::k232, kNoEraWord},
    {Routine::AichiAssociation860, EditionSet::all(), u"860", suffixes::k23, kNoEraWord},
    {Routine::TokyoAid820, EditionSet::all(), u"820", suffixes::k13, kEraWord},
    {Routine::IshikawaAid820, {Edition::From202104}, u"820", {}, kEra202104},
    {Routine::IshikawaAid820, {Edition::From202012}, u"810", {}, kEra202012},
    {Routine::NotDelegated, {Edition::From201810Reiwa}, u"670R", suffixes::kGeneral, kNoEraWord},
    {Routine::NotDelegated, {Edition::From201810Heisei}, u"670", suffixes::kGeneral, kNoEraWord},
    {Routine::NotDelegated, editions::kVisitLines, u"550", suffixes::kGeneral, kNoEraWord},
    {Routine::OldestMie, {Edition::UpToVersion511}, u"400", suffixes::k1724, kNoEraWord},
    {Routine::OldestMie, EditionSet::all(), u"550", suffixes::k24, kNoEraWord},
    {Routine::Oldest, {Edition::UpToVersion511}, u"400", suffixes::kForm400, kNoEraWord},
    {Routine::Oldest, EditionSet::all(), u"550", suffixes::kGeneral, kNoEraWord},
};

/// Whether a row holds for the edition on the screen, whatever the region.
consteval bool hasRoutine(PrintScreen screen, Edition edition) {
  for (const RoutineRow& row : kRoutines)
    if (row.screen == screen && row.region == Region::Any && row.editions.contains(edition)) return true;
  return false;
}

consteval bool hasTemplate(Routine routine, Edition edition) {
  for (const TemplateRow& row : kTemplates)
    if (row.routine == routine && row.editions.contains(edition)) return true;
  return false;
}

/// Every edition that a screen offers has a routine wherever the clinic is.
consteval bool everyOptionHasARoutine() {
  for (const PrintScreenRow& screen : kPrintScreens)
    for (const EditionOption& option : screen.editions)
      if (!hasRoutine(screen.screen, option.edition)) return false;
  return true;
}
static_assert(everyOptionHasARoutine());

/// Every edition that a routine is called with has a template.
consteval bool everyRoutineHasItsTemplates() {
  for (const RoutineRow& row : kRoutines)
    for (int i = 0; i < kEditions; ++i)
      if (row.editions.contains(static_cast<Edition>(i)) &&
          !hasTemplate(row.routine, static_cast<Edition>(i)))
        return false;
  return true;
}
static_assert(everyRoutineHasItsTemplates());

/// Every routine is called by a screen and has a template, and no template serves an edition that its routine
/// is never called with.
consteval bool everyTemplateIsReached() {
  for (int i = 0; i <= static_cast<int>(kLastRoutine); ++i) {
    bool called = false, printed = false;
    for (const RoutineRow& row : kRoutines) called |= row.routine == static_cast<Routine>(i);
    for (const TemplateRow& row : kTemplates) printed |= row.routine == static_cast<Routine>(i);
    if (!called || !printed) return false;
  }
  for (const TemplateRow& paper : kTemplates) {
    bool reached = false;
    for (const RoutineRow& row : kRoutines)
      for (int i = 0; i < kEditions; ++i)
        reached |= row.routine == paper.routine && row.editions.contains(static_cast<Edition>(i)) &&
                   paper.editions.contains(static_cast<Edition>(i));
    if (!reached) return false;
  }
  return true;
}
static_assert(everyTemplateIsReached());

}  // namespace printing
