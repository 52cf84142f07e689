#include "platform/screen/control_frame.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/captions.h"
#include "platform/screen/scroll_pane.h"
#include "platform/voice/voice_guide.h"

namespace screen {

NoteControl::NoteControl(Screen& screen, const Note& row, QWidget* parent)
    : Control(screen, row.name, QString::fromUtf16(row.caption.get())),
      m_text(new QLabel(m_caption, parent)),
      m_spoken(row.spoken) {
  m_text->setObjectName(m_name);
  m_text->setTextFormat(Qt::PlainText);
  m_text->setWordWrap(isLong());
}

bool NoteControl::isLong() const {
  constexpr qsizetype kShortText = 24;
  return m_caption.size() > kShortText || m_caption.contains(u'\n');
}

QWidget* NoteControl::widget() const { return m_text; }

void NoteControl::setCaption(const QString& caption) {
  m_caption = caption;
  m_text->setWordWrap(m_text->wordWrap() || isLong());
  m_text->setText(caption);
}

GroupControl::GroupControl(Screen& screen, const Group& row, QWidget* parent)
    : Control(screen, row.name, QString::fromUtf16(row.caption.get())),
      m_frame(new QGroupBox(shownCaption(accessibleCaption(m_caption)), parent)) {
  m_frame->setObjectName(m_name);
  nameWidgets();
}

QWidget* GroupControl::widget() const { return m_frame; }

void GroupControl::setCaption(const QString& caption) {
  m_frame->setTitle(shownCaption(accessibleCaption(caption)));
  Control::setCaption(caption);
}

TabsControl::TabsControl(Screen& screen, QWidget* parent, voice::VoiceGuide& voice)
    : Control(screen, ControlName{u"TabStrip1"}, QString()), m_tabs(new QTabWidget(parent)) {
  m_tabs->setObjectName(m_name);
  m_tabs->tabBar()->setObjectName(m_name + QLatin1String(".tabs"));
  m_tabs->setFocusPolicy(Qt::NoFocus);  // the frame around would be a second tab stop of the bar
  m_tabs->tabBar()->setFocusPolicy(Qt::StrongFocus);
  m_tabs->setUsesScrollButtons(true);
  QObject::connect(m_tabs, &QTabWidget::currentChanged, m_tabs, [this, &voice] {
    nameWidgets();
    if (!isQuiet() && m_tabs->tabBar()->hasFocus()) speak(voice, nullptr);
  });
}

QWidget* TabsControl::widget() const { return m_tabs; }

QList<QWidget*> TabsControl::focusWidgets() const { return {m_tabs->tabBar()}; }

QWidget* TabsControl::namedWidget() const { return m_tabs->tabBar(); }

void TabsControl::speak(voice::VoiceGuide& voice, QWidget*) const {
  if (!isQuiet()) voice.speakFocus(spokenCaption(text()));
}

QString TabsControl::text() const { return m_captions.value(m_tabs->currentIndex()); }

QString TabsControl::accessibleName() const { return accessibleCaption(text()); }

QWidget* TabsControl::addPage(const QString& caption) {
  auto* pane = new ScrollPane(m_tabs);
  auto* content = new QWidget;
  pane->setWidget(content);
  m_captions += caption;
  quietly([&] { m_tabs->addTab(pane, shownCaption(caption)); });
  nameWidgets();
  return content;
}

void TabsControl::step(int by) {
  const int count = m_tabs->count();
  if (count == 0) return;
  // The bar takes the focus unheard, so that only the page that comes is said.
  quietly([this] { m_tabs->tabBar()->setFocus(Qt::OtherFocusReason); });
  m_tabs->setCurrentIndex((m_tabs->currentIndex() + by + count) % count);
}

void TabsControl::showPageOf(const QWidget* widget) {
  for (int i = 0; i < m_tabs->count(); ++i)
    if (m_tabs->widget(i)->isAncestorOf(widget)) quietly([&] { m_tabs->setCurrentIndex(i); });
}

void TabsControl::showText(const QString& caption) {
  const qsizetype index = m_captions.indexOf(caption);
  if (index >= 0) m_tabs->setCurrentIndex(static_cast<int>(index));
}

}  // namespace screen
