#include "platform/shell/desktop.h"

#include <QtWidgets/QtWidgets>

#include "platform/shell/file_picker.h"

namespace shell {
namespace {

text::Fault cannotOpen(const QString& what) {
  return {QStringLiteral("%1 を開くことが出来ません。").arg(what)};
}

bool isInstalled(const QString& program) { return !QStandardPaths::findExecutable(program).isEmpty(); }

/// A viewer that writes into a terminal needs one.
bool isUsable(const QString& desktopFile) {
  QFile file(QStandardPaths::locate(QStandardPaths::ApplicationsLocation, desktopFile));
  if (!file.open(QIODevice::ReadOnly) || !file.readAll().contains("Terminal=true")) return true;
  return isInstalled(QStringLiteral("x-terminal-emulator"));
}

/// Whether this desktop has anything to open such a thing with. Its opener would start and give up without a
/// word, and the user would wait for a window that never comes.
bool hasViewer(const QString& mimeType) {
  constexpr int kReplyTimeout = 2000;
  const QString asker = QStringLiteral("xdg-mime");
  if (!isInstalled(asker)) return true;  // nobody to ask: the opener reports a failure itself
  QProcess question;
  question.start(asker, {QStringLiteral("query"), QStringLiteral("default"), mimeType});
  if (!question.waitForFinished(kReplyTimeout)) return true;
  const QByteArray viewer = question.readAllStandardOutput().trimmed();
  if (!viewer.isEmpty()) return isUsable(QString::fromUtf8(viewer));
  // Where no program is named for the kind, the opener falls back on a browser.
  const QStringList browsers{QStringLiteral("x-www-browser"), QStringLiteral("firefox"),
                             QStringLiteral("chromium")};
  return qEnvironmentVariableIsSet("BROWSER") || std::any_of(browsers.begin(), browsers.end(), isInstalled);
}

}  // namespace

text::Done Desktop::open(const QString& what, const QString& address, const QString& mimeType) {
  m_opened += what;
  if (m_queued || (hasViewer(mimeType) && QDesktopServices::openUrl(QUrl(address)))) return {};
  return cannotOpen(what);
}

text::Done Desktop::openFile(const QString& path) {
  if (!QFileInfo::exists(path)) return cannotOpen(path);
  return open(path, QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()).toString(QUrl::FullyEncoded),
              QMimeDatabase().mimeTypeForFile(path).name());
}

text::Done Desktop::openWebPage(const QString& address) {
  return open(address, address, QStringLiteral("x-scheme-handler/") + QUrl(address).scheme());
}

text::Done Desktop::openText(const QString& title, const QString& content) {
  const QString path =
      QDir::temp().filePath(QStringLiteral("%1-%2.txt").arg(title).arg(QCoreApplication::applicationPid()));
  QFile file(path);
  // Only the user may read it: the text may be a patient's.
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return cannotOpen(path);
  file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  const QByteArray bytes = content.toUtf8();
  if (file.write(bytes) != bytes.size() || !file.flush()) return cannotOpen(path);
  file.close();
  return openFile(path);
}

text::Done Desktop::startProgram(const QString& program, const QStringList& arguments) {
  m_opened += program;
  if (m_queued || QProcess::startDetached(program, arguments)) return {};
  return cannotOpen(program);
}

QString Desktop::pick(FilePicker& picker) {
  if (m_guide) m_guide(picker);
  if (picker.exec() != QDialog::Accepted) return {};
  return picker.selectedFiles().value(0);
}

QString Desktop::pickFile(const QString& filter, const QString& current) {
  if (m_queued) return m_answers.isEmpty() ? QString() : m_answers.takeFirst();
  FilePicker picker(QApplication::activeWindow(), QStringLiteral("ファイルの選択"), current);
  picker.setFileMode(QFileDialog::ExistingFile);
  picker.setNameFilters(nameFilters(filter));
  return pick(picker);
}

QString Desktop::pickFileToWrite(const QString& filter, const QString& current) {
  if (m_queued) return m_answers.isEmpty() ? QString() : m_answers.takeFirst();
  FilePicker picker(QApplication::activeWindow(), QStringLiteral("保存するファイルの選択"), current);
  picker.setAcceptMode(QFileDialog::AcceptSave);
  picker.setNameFilters(nameFilters(filter));
  return pick(picker);
}

QString Desktop::pickFolder(const QString& title, const QString& current) {
  if (m_queued) return m_answers.isEmpty() ? QString() : m_answers.takeFirst();
  FilePicker picker(QApplication::activeWindow(), title, current);
  picker.setFileMode(QFileDialog::Directory);
  picker.setOption(QFileDialog::ShowDirsOnly);
  return pick(picker);
}

void Desktop::copyText(const QString& text) {
  m_copied = text;
  if (!m_queued) QGuiApplication::clipboard()->setText(text);
}

QString Desktop::copiedText() const { return m_queued ? m_copied : QGuiApplication::clipboard()->text(); }

void Desktop::answerFromQueue(const QStringList& answers) {
  m_queued = true;
  m_answers += answers;
}

}  // namespace shell
