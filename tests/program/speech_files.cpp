#include "tests/program/speech_files.h"

#include <QDir>
#include <QFile>

namespace program {

using namespace Qt::StringLiterals;

SpeechFiles::SpeechFiles(const QString& set)
    : m_folder(QStringLiteral(SOURCE_FOLDER "/tests/speech/") + set),
      m_rewrites(qEnvironmentVariableIsSet("REWRITE_SPEECH")) {}

QString SpeechFiles::compare(const QString& file, const QStringList& lines) {
  m_compared += file;
  QFile stored(QDir(m_folder).filePath(file));
  if (m_rewrites) {
    if (!QDir().mkpath(m_folder) || !stored.open(QIODevice::WriteOnly)) return stored.errorString();
    const QByteArray text = lines.join(u'\n').toUtf8() + '\n';
    return stored.write(text) == text.size() ? QString() : stored.errorString();
  }
  const QString howTo = u"\nscripts/speech rewrites the transcripts."_s;
  if (!stored.open(QIODevice::ReadOnly)) return stored.fileName() + u": "_s + stored.errorString() + howTo;
  QStringList before = QString::fromUtf8(stored.readAll()).split(u'\n');
  before.removeLast();  // what follows the last new line
  if (before == lines) return {};
  return stored.fileName() + u":\n"_s + firstDifferences(before, lines) + howTo;
}

QStringList SpeechFiles::leftOver() {
  QStringList files = QDir(m_folder).entryList(QDir::Files);
  files.removeIf([this](const QString& file) { return m_compared.contains(file); });
  if (!m_rewrites) return files;
  files.removeIf([this](const QString& file) { return QFile::remove(QDir(m_folder).filePath(file)); });
  return files;
}

QString firstDifferences(const QStringList& stored, const QStringList& heard, int limit) {
  QStringList report;
  for (qsizetype i = 0; i < std::max(stored.size(), heard.size()) && limit > 0; ++i) {
    if (i < stored.size() && i < heard.size() && stored[i] == heard[i]) continue;
    if (i < stored.size()) report += u"  %1 - %2"_s.arg(i + 1).arg(stored[i]);
    if (i < heard.size()) report += u"  %1 + %2"_s.arg(i + 1).arg(heard[i]);
    --limit;
  }
  return report.join(u'\n');
}

}  // namespace program
