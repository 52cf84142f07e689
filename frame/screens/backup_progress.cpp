#include "frame/screens/backup_progress.h"

#include <QCoreApplication>
#include <QEvent>

namespace frame {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 kSayEvery = 10'000;  ///< milliseconds
constexpr qint64 kPaintEvery = 50;

}  // namespace

BackupProgress::BackupProgress(voice::VoiceGuide& voice, qint64 bytes) : m_voice(voice), m_all(bytes) {
  QCoreApplication::instance()->installEventFilter(this);
  m_sinceSaid.start();
  m_sincePainted.start();
  m_voice.speakText(u"データをバックアップしています。お待ち下さい。"_s);
}

// Keys that were pressed during the copy leave the queue before the message that reports its end.
BackupProgress::~BackupProgress() { QCoreApplication::processEvents(); }

store::CopyWatch BackupProgress::watch() {
  return {[this](qint64 bytes) { copied(bytes); }, {}};
}

void BackupProgress::copied(qint64 bytes) {
  m_done += bytes;
  if (m_sinceSaid.elapsed() >= kSayEvery && m_all > 0) {
    m_sinceSaid.restart();
    m_voice.speakText(u"バックアップ中です。%1パーセント"_s.arg(std::min<qint64>(m_done * 100 / m_all, 99)));
  }
  if (m_sincePainted.elapsed() < kPaintEvery) return;
  m_sincePainted.restart();
  QCoreApplication::processEvents();
}

bool BackupProgress::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::Close:
      event->ignore();
      return true;
    default:
      return false;
  }
}

}  // namespace frame
