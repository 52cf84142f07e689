#include "platform/screen/message_door.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/opening_hold.h"
#include "platform/voice/voice_guide.h"

namespace screen {
namespace {

QMessageBox::Icon boxIcon(Icon icon) {
  switch (icon) {
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::Exclamation:
      return QMessageBox::Warning;
    case Icon::Stop:
      return QMessageBox::Critical;
    case Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

struct Captions {
  const char16_t* accept;
  const char16_t* refuse;  ///< nullptr: a message without a choice
};

Captions captions(Buttons buttons) {
  switch (buttons) {
    case Buttons::OkCancel:
      return {u"OK", u"キャンセル"};
    case Buttons::YesNo:
      return {u"はい", u"いいえ"};
    case Buttons::Ok:
      break;
  }
  return {u"OK", nullptr};
}

QPushButton* addButton(QMessageBox& box, const char16_t* caption, QMessageBox::ButtonRole role) {
  QPushButton* button = box.addButton(QString::fromUtf16(caption), role);
  button->setObjectName(button->text());
  button->setAccessibleName(button->text());
  return button;
}

}  // namespace

MessageDoor::MessageDoor(voice::VoiceGuide& voice)
    : m_voice(voice), m_hold(std::make_unique<OpeningHold>(voice)) {}

MessageDoor::~MessageDoor() = default;

void MessageDoor::tell(const QString& text, const QString& title, Icon icon) {
  show(text, Buttons::Ok, title, icon);
}

bool MessageDoor::ask(const QString& text, Buttons buttons, const QString& title, Icon icon) {
  return show(text, buttons, title, icon);
}

bool MessageDoor::askToDrop(const QString& text) {
  return show(text, Buttons::YesNo, QString(), Icon::Question, true);
}

void MessageDoor::tellDataFault(const QString& engineText) {
  tell(QString::fromUtf16(kDataControlText) + engineText, QString(), Icon::Exclamation);
}

void MessageDoor::answerFromQueue(const QList<bool>& answers) {
  m_queued = true;
  m_answers += answers;
}

void MessageDoor::interruptAndProtectNext() {
  m_voice.stopSpeech();
  m_hold->begin();
}

void MessageDoor::forget() {
  m_texts.clear();
  m_titles.clear();
}

bool MessageDoor::show(const QString& text, Buttons buttons, const QString& title, Icon icon,
                       bool startsOnRefusal) {
  const QString heading = title.isNull() ? QString::fromUtf16(kProgramTitle) : title;
  m_texts += text;
  m_titles += heading;
  m_voice.stopSpeech();
  m_voice.speakText(text);
  if (m_queued) return buttons == Buttons::Ok || (!m_answers.isEmpty() && m_answers.takeFirst());

  QMessageBox box(m_parent && m_parent->isVisible() ? m_parent : QApplication::activeWindow());
  box.setObjectName(QStringLiteral("message"));
  box.setWindowTitle(heading);
  box.setTextFormat(Qt::PlainText);
  box.setText(text);
  box.setIcon(boxIcon(icon));
  const Captions names = captions(buttons);
  QPushButton* accept = addButton(box, names.accept, QMessageBox::AcceptRole);
  QPushButton* refuse = names.refuse ? addButton(box, names.refuse, QMessageBox::RejectRole) : accept;
  box.setDefaultButton(startsOnRefusal ? refuse : accept);
  box.setEscapeButton(refuse);
  QObject::connect(qApp, &QApplication::focusChanged, &box, [this, &box](QWidget*, QWidget* now) {
    auto* button = qobject_cast<QPushButton*>(now);
    if (button && box.isAncestorOf(button)) m_voice.speakFocus(button->text());
  });
  // The answer cuts the question before the box closes: a stop afterwards could cut the control that the
  // window manager has given the focus back to by then. Escape presses its button too.
  for (const QPushButton* button : {accept, refuse})
    QObject::connect(button, &QPushButton::released, &box, [this] { m_voice.stopSpeech(); });
  // The question is heard to its end: its first focus waits until then.
  m_hold->begin();
  box.exec();
  // A slow window manager can leave no window active: the keyboard would be dead until the next change.
  if (box.parentWidget() != nullptr && QApplication::activeWindow() == nullptr)
    box.parentWidget()->window()->activateWindow();
  // Afterwards the focus returns to the screen; it must not cut the result that the caller says next.
  m_hold->begin();
  return box.clickedButton() == accept;
}

}  // namespace screen
