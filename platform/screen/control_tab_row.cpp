#include "platform/screen/control_tab_row.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/captions.h"

namespace screen {

TabRowControl::TabRowControl(Screen& screen, const TabRow& row, QWidget* parent)
    : Control(screen, row.name, QString::fromUtf16(row.caption.get())), m_bar(new QTabBar(parent)) {
  m_bar->setObjectName(m_name);
  m_bar->setFocusPolicy(Qt::StrongFocus);
  m_bar->setExpanding(false);
  for (const char16_t* tab : row.tabs) m_bar->addTab(shownCaption(QString::fromUtf16(tab)));
  m_onEnter = row.onChoose;
  m_onEdit = row.onChoose;
  QObject::connect(m_bar, &QTabBar::currentChanged, m_bar, [this] { edited(); });
}

QWidget* TabRowControl::widget() const { return m_bar; }

QString TabRowControl::text() const { return items().value(m_bar->currentIndex()); }

QStringList TabRowControl::items() const {
  QStringList captions;
  for (int i = 0; i < m_bar->count(); ++i) captions += spokenCaption(m_bar->tabText(i));
  return captions;
}

int TabRowControl::chosenItem() const { return m_bar->currentIndex(); }

void TabRowControl::showText(const QString& caption) {
  const qsizetype index = items().indexOf(caption);
  if (index >= 0) m_bar->setCurrentIndex(static_cast<int>(index));
}

}  // namespace screen
