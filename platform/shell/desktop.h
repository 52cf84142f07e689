#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "platform/text/result.h"

class QDialog;

namespace shell {

class FilePicker;

/// The desktop around the program: viewers, pickers, clipboard, text editor. Nothing here waits for another
/// program, and every call that can fail gives the fault in words.
class Desktop {
 public:
  /// Opens a file with the viewer that the desktop has for its kind. A missing file is a fault.
  text::Done openFile(const QString& path);
  text::Done openWebPage(const QString& address);
  /// Puts a text before the user in the desktop's text editor, as a file named after `title` in the
  /// folder of passing files.
  text::Done openText(const QString& title, const QString& content);
  /// Starts a program with arguments and does not wait for it.
  text::Done startProgram(const QString& program, const QStringList& arguments = {});

  /// The chosen file, "" if the user cancelled. `filter`: "Data(*.mdb)|*.mdb", pairs of words and patterns.
  QString pickFile(const QString& filter, const QString& current = QString());
  /// The chosen file name for writing; it may be new.
  QString pickFileToWrite(const QString& filter, const QString& current = QString());
  /// The chosen folder without a slash at the end, "" if the user cancelled.
  QString pickFolder(const QString& title, const QString& current = QString());

  void copyText(const QString& text);
  QString copiedText() const;

  /// Called with each picker before it shows: the program lets it speak.
  void setDialogGuide(std::function<void(QDialog&)> guide) { m_guide = std::move(guide); }
  /// Tests: nothing is opened or shown; pickers answer from the queue, an empty queue is giving up.
  void answerFromQueue(const QStringList& answers = {});
  /// Files, addresses and programs opened so far.
  const QStringList& opened() const { return m_opened; }

 private:
  text::Done open(const QString& what, const QString& address, const QString& mimeType);
  QString pick(FilePicker& picker);
  QStringList m_answers, m_opened;
  std::function<void(QDialog&)> m_guide;
  QString m_copied;
  bool m_queued = false;
};

}  // namespace shell
