#include "printing/core/template_choice.h"

#include "printing/core/template_rows.h"

namespace printing {

namespace {

using frame::Prefecture;

bool inRegion(Region region, const PrintSource& source) {
  const Prefecture p = source.prefecture;
  switch (region) {
    case Region::Any:
      return true;
    case Region::Aichi:
      return p == Prefecture::Aichi;
    case Region::AichiAcupunctureAssociation:
      return p == Prefecture::Aichi && source.aichi == frame::AichiSubmission::AcupunctureAssociation;
    case Region::Tokyo:
      return p == Prefecture::Tokyo;
    case Region::TokyoAcupunctureAssociation:
      return p == Prefecture::Tokyo && source.tokyo == frame::TokyoSubmission::AcupunctureAssociation;
    case Region::Osaka:
      return p == Prefecture::Osaka;
    case Region::NaraIshikawa:
      return p == Prefecture::Nara || p == Prefecture::Ishikawa;
    case Region::OkayamaFukuiMie:
      return p == Prefecture::Okayama || p == Prefecture::Fukui || p == Prefecture::Mie;
    case Region::Mie:
      return p == Prefecture::Mie;
  }
  return false;
}

bool printsEra(EraWord era, const PrintTicks& ticks) {
  return era.always || (era.tick != nullptr && ticks.*era.tick);
}

/// "_13R": the suffix of the region and the letter of the era word.
QString tailOf(const TemplateRow& row, const PrintSource& source) {
  QString tail;
  for (const Suffix& suffix : row.suffixes) {
    if (!inRegion(suffix.region, source)) continue;
    tail = QString::fromUtf16(suffix.text);
    break;
  }
  if (printsEra(row.era, source.ticks)) tail += u'R';
  return tail.isEmpty() ? tail : u'_' + tail;
}

}  // namespace

std::optional<TemplateChoice> chooseTemplate(PrintScreen screen, const PrintSource& source) {
  for (const RoutineRow& routine : kRoutines) {
    if (routine.screen != screen || !routine.editions.contains(source.edition) ||
        !inRegion(routine.region, source))
      continue;
    for (const TemplateRow& row : kTemplates) {
      if (row.routine != routine.routine || !row.editions.contains(source.edition)) continue;
      const QString stem = source.acupuncture() ? QStringLiteral("HARI_") : QStringLiteral("Massage_");
      return TemplateChoice{
          stem + QString::fromUtf16(row.number) + tailOf(row, source) + QStringLiteral(".PRP"), row.built};
    }
  }
  return std::nullopt;
}

}  // namespace printing
