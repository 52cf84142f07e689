#pragma once

#include <QSet>
#include <QString>
#include <optional>

#include "printing/core/print_source.h"

namespace printing {

/// What the choice of a claim form's template depends on.
struct TemplateQuery {
  QString screen;        ///< printing screen
  QString option;        ///< chosen edition, blank: none
  QSet<QString> checks;  ///< ticks of the printing screen
  QString prefecture;
  QString aichi;
  QString tokyo;
  PrintKind kind = PrintKind::Acupuncture;
};

/// A chosen edition.
struct TemplateChoice {
  QString fileName;  ///< "HARI_900_R.PRP"
  bool built;        ///< this program holds the template and its mapping
};

/// The edition by screen, option, ticks, prefecture and association; nothing where no row fits (no option
/// chosen).
std::optional<TemplateChoice> chooseTemplate(const TemplateQuery& query);

/// The query of a source on a printing screen.
TemplateQuery templateQuery(const QString& screen, const PrintSource& source);

}  // namespace printing
