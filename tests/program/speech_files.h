#pragma once

#include <QStringList>

namespace program {

/// The transcripts of one set, in the folder tests/speech/<set>: compared with the files, or written to them
/// where the environment variable REWRITE_SPEECH is set (scripts/speech does that).
class SpeechFiles {
 public:
  explicit SpeechFiles(const QString& set);

  /// Empty where the file holds these lines; else what differs and how to rewrite the file.
  QString compare(const QString& file, const QStringList& lines);
  /// Files of the folder that compare() was not called for; when rewriting they are removed and not reported.
  QStringList leftOver();

 private:
  QString m_folder;
  bool m_rewrites;
  QStringList m_compared;
};

/// The first lines that differ, each as the file has it (-) and as it is heard (+); at most `limit` pairs.
QString firstDifferences(const QStringList& stored, const QStringList& heard, int limit = 5);

}  // namespace program
