#pragma once

#include <QElapsedTimer>
#include <QObject>

#include "platform/store/file_copy.h"
#include "platform/voice/voice_guide.h"

namespace frame {

/// Makes a long copy heard as long as this object lives: its start, and from time to time how far it is. The
/// windows keep painting themselves, but keys, the pointer and close boxes do nothing, so that nothing is
/// pressed twice while there is no answer.
class BackupProgress : public QObject {
 public:
  BackupProgress(voice::VoiceGuide& voice, qint64 bytes);
  ~BackupProgress() override;

  store::CopyWatch watch();
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void copied(qint64 bytes);
  voice::VoiceGuide& m_voice;
  const qint64 m_all;
  qint64 m_done = 0;
  QElapsedTimer m_sinceSaid, m_sincePainted;
};

}  // namespace frame
