#pragma once

#include <QString>
#include <QStringList>

#include "platform/store/record_set.h"

namespace store {

/// Walks a text of the closed query subset piece by piece.
class Scanner {
 public:
  explicit Scanner(const QString& text) : m_text(text) {}

  bool atEnd();
  /// Takes the word if it stands next, whatever its case; it must end where the word ends.
  bool takeWord(QStringView word);
  bool takeMark(QStringView mark);
  /// A bare word up to a blank or one of the marks of the subset, or a name between square brackets.
  QString takeName();
  /// A text between single quotes; a quote ends it. Fails where the closing one is missing.
  Result<QString> takeQuoted();
  /// A value: quoted, or bare up to a blank or a comma.
  Result<QString> takeValue();

  /// All that is left.
  QString takeRest();

  /// The engine's text for a wrong query.
  Fault fault() const;

 private:
  void skipBlanks();
  const QString m_text;
  qsizetype m_at = 0;
};

}  // namespace store
