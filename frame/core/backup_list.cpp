#include "frame/core/backup_list.h"

#include <QFile>
#include <QFileInfo>

#include "platform/text/whole_file.h"

namespace frame {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char kComing[] = "# ";
constexpr qsizetype kSumDigits = 128;

/// As b2sum writes it: a name with a backslash or a line end is written with backslashes, which one
/// before the sum announces.
QByteArray line(const QString& name, const QByteArray& sum) {
  QByteArray written = QFile::encodeName(name);
  const bool special = written.contains('\\') || written.contains('\n') || written.contains('\r');
  written.replace("\\", "\\\\").replace("\n", "\\n").replace("\r", "\\r");
  return (special ? "\\" : "") + sum + "  " + written + '\n';
}

QByteArray unescaped(const QByteArray& written) {
  QByteArray name;
  for (qsizetype i = 0; i < written.size(); ++i) {
    if (written[i] != '\\' || i + 1 == written.size()) {
      name += written[i];
      continue;
    }
    const char letter = written[++i];
    name += letter == 'n' ? '\n' : letter == 'r' ? '\r' : letter;
  }
  return name;
}

}  // namespace

QString BackupList::pathIn(const QString& folder) { return folder + u"/b2sums.txt"_s; }

BackupList BackupList::read(const QString& folder) {
  BackupList list;
  const auto bytes = text::readWholeFile(pathIn(folder));
  if (!bytes) return list;
  for (QByteArray entry : bytes->split('\n')) {
    const bool coming = entry.startsWith(kComing);
    if (coming) entry.remove(0, qstrlen(kComing));
    const bool special = entry.startsWith('\\');
    if (special) entry.remove(0, 1);
    if (entry.size() <= kSumDigits + 2 || entry.mid(kSumDigits, 2) != "  ") continue;
    const QByteArray written = entry.mid(kSumDigits + 2);
    const QString name = QFile::decodeName(special ? unescaped(written) : written);
    (coming ? list.m_coming : list.m_sums).insert(name, entry.first(kSumDigits));
  }
  return list;
}

text::Done BackupList::write(const QString& folder) const {
  QByteArray bytes;
  for (auto entry = m_sums.cbegin(); entry != m_sums.cend(); ++entry)
    bytes += line(entry.key(), entry.value());
  for (auto entry = m_coming.cbegin(); entry != m_coming.cend(); ++entry)
    bytes += kComing + line(entry.key(), entry.value());
  return text::writeWholeFile(pathIn(folder), bytes);
}

QSet<QByteArray> BackupList::sumsOfAny(const QStringList& names) const {
  QSet<QByteArray> sums;
  for (const QString& name : names)
    for (const auto* entries : {&m_sums, &m_coming})
      if (const auto found = entries->constFind(name); found != entries->cend()) sums += found.value();
  return sums;
}

void BackupList::keepStanding(const QString& folder) {
  m_sums.removeIf([&](const auto& entry) { return !QFileInfo::exists(folder + u'/' + entry.key()); });
}

}  // namespace frame
