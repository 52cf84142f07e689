#include "platform/screen/control_check.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/captions.h"
#include "platform/screen/layout.h"
#include "platform/screen/screen.h"

namespace screen {
namespace {

constexpr char16_t kTicked[] = u"チェック有り";
constexpr char16_t kNotTicked[] = u"チェック無し";

/// yes/no columns hold -1; other programs may have written 1 or True.
bool meansYes(const QString& value) {
  return value == QLatin1String("-1") || value == QLatin1String("1") ||
         value.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0;
}

}  // namespace

CheckControl::CheckControl(Screen& screen, const Check& row, QWidget* parent)
    : Control(screen, row.name, QString::fromUtf16(row.caption.get())),
      m_box(new QCheckBox(wrapped(shownCaption(m_caption)), parent)),
      m_on(QString::fromUtf16(row.on)),
      m_off(QString::fromUtf16(row.off)),
      m_group(row.group ? QString::fromUtf16(row.group) : QString()),
      m_marksDirty(row.marksDirty) {
  m_box->setObjectName(m_name);
  m_prefix = m_group;
  nameWidgets();
  QObject::connect(m_box, &QCheckBox::toggled, m_box, [this] {
    if (isQuiet()) return;
    if (m_marksDirty) m_screen.markCheckChanged();
    edited();
  });
}

QWidget* CheckControl::widget() const { return m_box; }

void CheckControl::speak(voice::VoiceGuide& voice, QWidget*) const {
  const QString state = QString::fromUtf16(checked() ? kTicked : kNotTicked);
  voice.speakFocus(spokenCaption(m_caption) + voice::kSpeechSeparator + state, true);
}

QString CheckControl::text() const { return checked() ? m_on : m_off; }

void CheckControl::setCaption(const QString& caption) {
  m_box->setText(wrapped(shownCaption(caption)));
  Control::setCaption(caption);
}

void CheckControl::setPrefix(const QString& prefix) {
  if (m_group.isEmpty()) Control::setPrefix(prefix);
}

bool CheckControl::checked() const { return m_box->isChecked(); }

void CheckControl::setChecked(bool on) {
  quietly([&] { m_box->setChecked(on); });
}

void CheckControl::showText(const QString& text) {
  m_box->setChecked(text == m_on || (meansYes(m_on) && meansYes(text)));
}

}  // namespace screen
