#include "platform/screen/dialog_speech.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/captions.h"
#include "platform/screen/opening_hold.h"
#include "platform/voice/voice_guide.h"

namespace screen {
namespace {

QString labelOf(const QDialog& dialog, const QWidget* widget) {
  for (const QLabel* label : dialog.findChildren<QLabel*>())
    if (label->buddy() == widget) return spokenCaption(label->text());
  return {};
}

QString captionOf(const QDialog& dialog, const QWidget* widget) {
  if (!widget->accessibleName().isEmpty()) return widget->accessibleName();
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget); button && !button->text().isEmpty())
    return spokenCaption(button->text());
  const QString label = labelOf(dialog, widget);
  return label.isEmpty() ? widget->toolTip() : label;
}

QString valueOf(const QWidget* widget) {
  if (const auto* edit = qobject_cast<const QLineEdit*>(widget)) return edit->text();
  if (const auto* combo = qobject_cast<const QComboBox*>(widget)) return combo->currentText();
  if (const auto* box = qobject_cast<const QSpinBox*>(widget)) return box->text();
  if (const auto* view = qobject_cast<const QAbstractItemView*>(widget))
    return view->currentIndex().data().toString();
  if (const auto* check = qobject_cast<const QCheckBox*>(widget))
    return check->isChecked() ? QStringLiteral("チェック有り") : QStringLiteral("チェック無し");
  return {};
}

}  // namespace

void letSpeak(QDialog& dialog, voice::VoiceGuide& voice) {
  auto* hold = new OpeningHold(voice);
  hold->setParent(&dialog);
  QObject::connect(qApp, &QApplication::focusChanged, &dialog, [&dialog, &voice](QWidget*, QWidget* now) {
    if (!now || now->window() != &dialog) return;
    const bool isButton = qobject_cast<QPushButton*>(now) || qobject_cast<QToolButton*>(now);
    if (isButton)
      voice.speakFocus(captionOf(dialog, now));
    else
      voice.speakField(captionOf(dialog, now), valueOf(now));
  });
  for (QAbstractItemView* view : dialog.findChildren<QAbstractItemView*>()) {
    if (!view->selectionModel()) continue;
    QObject::connect(view->selectionModel(), &QItemSelectionModel::currentChanged, &dialog,
                     [view, &voice](const QModelIndex& now) {
                       if (view->hasFocus()) voice.speakFocus(now.data().toString(), true);
                     });
  }
  voice.stopSpeech();
  voice.speakText(dialog.windowTitle());
  hold->begin();
}

}  // namespace screen
