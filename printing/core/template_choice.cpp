#include "printing/core/template_choice.h"

#include <span>

namespace printing {

namespace {

/// Groups of prefectures and associations that have papers of their own.
enum class Region { Any, Aichi, AichiThree, Tokyo, TokyoFive, Osaka, NaraIshikawa, Group24, Mie };

bool inRegion(Region region, const TemplateQuery& query) {
  const QString& p = query.prefecture;
  switch (region) {
    case Region::Any:
      return true;
    case Region::Aichi:
      return p == u"23";
    case Region::AichiThree:
      return p == u"23" && query.aichi == u"3";
    case Region::Tokyo:
      return p == u"13";
    case Region::TokyoFive:
      return p == u"13" && query.tokyo == u"5";
    case Region::Osaka:
      return p == u"27";
    case Region::NaraIshikawa:
      return p == u"17" || p == u"29";
    case Region::Group24:
      return p == u"33" || p == u"18" || p == u"24";
    case Region::Mie:
      return p == u"24";
  }
  return false;
}

/// The printing routines: each prints one group of editions.
enum class Routine {
  Form900,
  Aimakai900,
  Tokyo900,
  Entrusted,
  Entrusted232,
  Entrusted13,
  Aimakai860,
  Aid820,
  TokyoAid820,
  Sheet2018,
  Oldest,
  Oldest24
};

/// Which routine a screen's option leads to; the first row that fits wins.
struct RoutineRow {
  const char16_t* screen;
  const char16_t* options;  ///< digits of the options it serves; "-" none chosen; nullptr any
  Region region;
  Routine routine;
};

constexpr RoutineRow kRoutines[] = {
    {u"レセプト印刷2024", u"9", Region::Any, Routine::Form900},
    {u"レセプト印刷2024", u"8", Region::AichiThree, Routine::Entrusted},
    {u"レセプト印刷2024", u"8", Region::Aichi, Routine::Entrusted232},
    {u"レセプト印刷2024", u"8", Region::TokyoFive, Routine::Entrusted13},
    {u"レセプト印刷2024", u"8", Region::Any, Routine::Entrusted},
    {u"レセプト印刷2024aimakai", nullptr, Region::Any, Routine::Aimakai900},
    {u"東京助成レセプト印刷2024", nullptr, Region::Any, Routine::Tokyo900},
    {u"石川県の公費レセプト印刷2024", u"9-", Region::Any, Routine::Form900},
    {u"レセプト印刷2018", u"8764", Region::AichiThree, Routine::Entrusted},
    {u"レセプト印刷2018", u"8764", Region::Aichi, Routine::Entrusted232},
    {u"レセプト印刷2018", u"8764", Region::TokyoFive, Routine::Entrusted13},
    {u"レセプト印刷2018", u"8764", Region::Any, Routine::Entrusted},
    {u"レセプト印刷2018", u"53-", Region::Any, Routine::Sheet2018},
    {u"レセプト印刷2018aimakai", u"9", Region::Any, Routine::Aimakai860},
    {u"レセプト印刷2018aimakai", u"8764", Region::Any, Routine::Entrusted232},
    {u"レセプト印刷2018aimakai", u"53-", Region::Any, Routine::Sheet2018},
    {u"東京助成レセプト印刷", nullptr, Region::Any, Routine::TokyoAid820},
    {u"石川県の公費レセプト印刷", u"87", Region::Any, Routine::Aid820},
    // Kept: 24 has a routine of its own here, so its branch of the general routine is never reached.
    {u"レセプト印刷", nullptr, Region::Mie, Routine::Oldest24},
    {u"レセプト印刷", nullptr, Region::Any, Routine::Oldest},
};

struct Suffix {
  Region region;
  const char16_t* text;
};
using Suffixes = std::span<const Suffix>;

constexpr Suffix kAichi23[] = {{Region::AichiThree, u"23"}};
constexpr Suffix kAlways23[] = {{Region::Any, u"23"}};
constexpr Suffix kAlways232[] = {{Region::Any, u"232"}};
constexpr Suffix kAlways13[] = {{Region::Any, u"13"}};
constexpr Suffix kAlways24[] = {{Region::Any, u"24"}};
constexpr Suffix kAlways1724[] = {{Region::Any, u"1724"}};
constexpr Suffix kGeneral[] = {{Region::AichiThree, u"23"},   {Region::Aichi, u"232"},
                               {Region::NaraIshikawa, u"29"}, {Region::Tokyo, u"13"},
                               {Region::Osaka, u"27"},        {Region::Group24, u"1724"}};
constexpr Suffix kForm400[] = {{Region::Aichi, u"23"},
                               {Region::NaraIshikawa, u"29"},
                               {Region::Osaka, u"1724"},
                               {Region::Group24, u"1724"}};

/// An edition: its number, its regional suffixes, and the tick that puts the era into the month line.
struct EditionRow {
  Routine routine;
  const char16_t* option;  ///< digit of the option, "-" none, nullptr any
  const char16_t* number;
  Suffixes suffixes;
  const char16_t* eraCheck;  ///< tick for the letter R; nullptr: never; "*": always
  bool built = false;
};

constexpr EditionRow kEditions[] = {
    {Routine::Form900, nullptr, u"900", {}, u"Check6", true},
    {Routine::Aimakai900, nullptr, u"900", kAlways23, u"*"},
    {Routine::Tokyo900, nullptr, u"900", kAlways13, u"*"},
    {Routine::Entrusted, u"8", u"820", kAichi23, u"Check4"},
    {Routine::Entrusted, u"7", u"810", kAichi23, u"Check3"},
    {Routine::Entrusted, u"6", u"750", kAichi23, u"Check1"},
    {Routine::Entrusted, u"4", u"700", {}, nullptr},
    {Routine::Entrusted13, u"8", u"820", kAlways13, u"*"},
    {Routine::Entrusted13, u"7", u"820", kAlways13, u"*"},
    {Routine::Entrusted13, u"6", u"750", {}, u"Check1"},
    {Routine::Entrusted13, u"4", u"700", {}, nullptr},
    {Routine::Entrusted232, u"8", u"820", kAlways232, nullptr},
    {Routine::Entrusted232, u"7", u"810", kAlways232, nullptr},
    {Routine::Entrusted232, u"6", u"750", kAlways232, nullptr},
    {Routine::Entrusted232, u"4", u"700", kAlways232, nullptr},
    {Routine::Aimakai860, nullptr, u"860", kAlways23, nullptr},
    {Routine::TokyoAid820, nullptr, u"820", kAlways13, u"*"},
    {Routine::Aid820, u"8", u"820", {}, u"Check4"},
    {Routine::Aid820, u"7", u"810", {}, u"Check3"},
    {Routine::Sheet2018, u"5", u"670R", kGeneral, nullptr},
    {Routine::Sheet2018, u"3", u"670", kGeneral, nullptr},
    {Routine::Sheet2018, u"-", u"550", kGeneral, nullptr},
    {Routine::Oldest24, u"2", u"400", kAlways1724, nullptr},
    {Routine::Oldest24, nullptr, u"550", kAlways24, nullptr},
    {Routine::Oldest, u"2", u"400", kForm400, nullptr},
    {Routine::Oldest, nullptr, u"550", kGeneral, nullptr},
};

bool serves(const char16_t* options, QChar option) {
  return options == nullptr || QStringView(options).contains(option);
}

QString tailOf(const EditionRow& row, const TemplateQuery& query) {
  QString tail;
  for (const Suffix& suffix : row.suffixes) {
    if (!inRegion(suffix.region, query)) continue;
    tail = QString::fromUtf16(suffix.text);
    break;
  }
  const QString check = row.eraCheck == nullptr ? QString() : QString::fromUtf16(row.eraCheck);
  if (check == u"*" || query.checks.contains(check)) tail += u'R';
  return tail.isEmpty() ? tail : u'_' + tail;
}

}  // namespace

std::optional<TemplateChoice> chooseTemplate(const TemplateQuery& query) {
  const QChar option = query.option.startsWith(u"Option") ? query.option.back() : QChar(u'-');
  for (const RoutineRow& routine : kRoutines) {
    if (query.screen != QString::fromUtf16(routine.screen) || !serves(routine.options, option) ||
        !inRegion(routine.region, query))
      continue;
    for (const EditionRow& row : kEditions) {
      if (row.routine != routine.routine || !serves(row.option, option)) continue;
      const QString stem =
          query.kind == PrintKind::Acupuncture ? QStringLiteral("HARI_") : QStringLiteral("Massage_");
      const QString name =
          stem + QString::fromUtf16(row.number) + tailOf(row, query) + QStringLiteral(".PRP");
      return TemplateChoice{name, row.built};
    }
  }
  return std::nullopt;
}

TemplateQuery templateQuery(const QString& screen, const PrintSource& source) {
  return {screen,       source.option, source.screenChecks, source.prefecture,
          source.aichi, source.tokyo,  source.kind};
}

}  // namespace printing
