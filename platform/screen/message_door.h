#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <memory>

class QWidget;

namespace voice {
class VoiceGuide;
}

namespace screen {

class OpeningHold;

enum class Buttons { Ok, OkCancel, YesNo };
enum class Icon { None, Information, Question, Exclamation, Stop };

/// Title of a message whose text gives none.
inline constexpr char16_t kProgramTitle[] = u"治療台帳";
inline constexpr char16_t kNotFoundTitle[] = u"Not found";
inline constexpr char16_t kNotFoundText[] = u"該当がありません。";
inline constexpr char16_t kDataControlText[] = u"ﾃﾞｰﾀ ｺﾝﾄﾛｰﾙで次のｴﾗｰが発生しました :";

/// The one door for messages and questions: spoken, then shown, then remembered. Buttons are named as the
/// texts say (OK, キャンセル, はい, いいえ), never by the toolkit's language.
class MessageDoor {
 public:
  explicit MessageDoor(voice::VoiceGuide& voice);
  virtual ~MessageDoor();

  /// A message with an OK button.
  void tell(const QString& text, const QString& title = QString(), Icon icon = Icon::None);
  /// A question; true for OK or はい. Escape and the close box are the refusal.
  bool ask(const QString& text, Buttons buttons = Buttons::OkCancel, const QString& title = QString(),
           Icon icon = Icon::Question);
  /// はい or いいえ to losing what was typed; it starts on いいえ, so that Enter loses nothing.
  bool askToDrop(const QString& text);
  /// A fault of the database after the data-control label.
  void tellDataFault(const QString& engineText);

  /// What is said next is heard to its end: until the user presses a key, the focus waits for it. For a
  /// result that is spoken while a window closes and the focus goes back.
  void interruptAndProtectNext();

  /// Tests: answers for the coming questions, in order. With a queue (even an empty one after
  /// answerFromQueue()) nothing is shown; an unanswered question is refused.
  void answerFromQueue(const QList<bool>& answers = {});
  /// Every text shown or asked so far, newest last.
  const QStringList& texts() const { return m_texts; }
  const QStringList& titles() const { return m_titles; }
  void forget();
  /// The window that messages belong to.
  void setParent(QWidget* window) { m_parent = window; }

 private:
  bool show(const QString& text, Buttons buttons, const QString& title, Icon icon,
            bool startsOnRefusal = false);
  voice::VoiceGuide& m_voice;
  QWidget* m_parent = nullptr;
  QStringList m_texts, m_titles;
  QList<bool> m_answers;
  bool m_queued = false;
  std::unique_ptr<OpeningHold> m_hold;
};

}  // namespace screen
