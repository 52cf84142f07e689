#include "platform/report/file_printer.h"

#include <QDir>

namespace report {

namespace {

constexpr int kMaxFilesPerSecond = 100000;

text::Fault cannotWrite() {
  return {QStringLiteral(
      "フォルダ「印刷」に書き込めません。ディスクの空き容量とフォルダの書き込みの権限を確認してください。")};
}

}  // namespace

FilePrinter::FilePrinter(const QString& programFolder, std::shared_ptr<const text::Clock> clock)
    : m_folder(QDir(programFolder).filePath(QStringLiteral("印刷"))), m_clock(std::move(clock)) {
  if (!m_clock) m_clock = std::make_shared<text::SystemClock>();
}

QString FilePrinter::fileStem(const QString& title) {
  QString stem = title.trimmed();
  for (QChar& c : stem)
    if (c < u' ' || QStringView(u"/\\:*?\"<>|").contains(c)) c = u'_';
  if (stem.startsWith(u'.')) stem[0] = u'_';
  stem.truncate(60);  // a file name holds 255 bytes, a kanji takes 3
  return stem.isEmpty() ? QStringLiteral("印刷") : stem;
}

bool FilePrinter::open(const QString& title) {
  m_title = title;
  if (!QDir().mkpath(m_folder)) return false;
  m_file = std::make_unique<QTemporaryFile>(QDir(m_folder).filePath(QStringLiteral(".XXXXXX.part")));
  return m_file->open();
}

text::Done FilePrinter::take(const QByteArray& pdf) {
  if (!m_file || m_file->write(pdf) != pdf.size() || !m_file->flush()) return cannotWrite();
  m_file->setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
  const QString stem = QDir(m_folder).filePath(QStringLiteral("%1_%2").arg(
      fileStem(m_title), m_clock->now().toString(QStringLiteral("yyyyMMdd_HHmmss"))));
  for (int n = 1; n <= kMaxFilesPerSecond; ++n) {
    const QString name = n == 1 ? stem : QStringLiteral("%1_%2").arg(stem).arg(n);
    if (!QFile::exists(name + QStringLiteral(".pdf")) && m_file->rename(name + QStringLiteral(".pdf"))) {
      m_file->setAutoRemove(false);
      m_file.reset();
      return {};
    }
  }
  return cannotWrite();
}

}  // namespace report
