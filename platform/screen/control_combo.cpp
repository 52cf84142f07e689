#include "platform/screen/control_combo.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/captions.h"
#include "platform/screen/text_limit.h"
#include "platform/voice/voice_guide.h"

namespace screen {

ComboControl::ComboControl(Screen& screen, const Combo& row, QWidget* parent, voice::VoiceGuide& voice)
    : Control(screen, row.name, QString::fromUtf16(row.caption.get())),
      m_combo(new QComboBox(parent)),
      m_voice(voice) {
  m_combo->setObjectName(m_name);
  m_combo->setEditable(row.editable);
  m_combo->setInsertPolicy(QComboBox::NoInsert);
  m_combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_combo->setMinimumContentsLength(std::clamp(row.width, 2, 40));
  if (row.editable) {
    holdToLimit(m_combo->lineEdit(), row.limit);
    m_combo->setCompleter(nullptr);  // typed text is stored as typed, never completed to an item
  }
  QStringList items;
  for (const char16_t* item : row.items) items += QString::fromUtf16(item);
  m_combo->addItems(items);
  if (!row.items.empty() && !row.editable) m_combo->setCurrentIndex(-1);
  if (row.editable) m_combo->setEditText(QString());
  QObject::connect(m_combo, &QComboBox::currentTextChanged, m_combo, [this] {
    m_editedItem = m_combo->currentIndex();
    edited();
  });
  // Two items of one text are two choices, but the text of an editable list does not change between them.
  if (row.editable) {
    QObject::connect(m_combo, &QComboBox::currentIndexChanged, m_combo, [this](int index) {
      if (std::exchange(m_editedItem, index) != index && index >= 0) edited();
    });
  }
  // The focus stays while the arrow keys choose, so the list says each choice itself.
  QObject::connect(m_combo, &QComboBox::highlighted, m_combo,
                   [this](int index) { speakChoice(m_combo->itemText(index)); });
  QObject::connect(m_combo, &QComboBox::activated, m_combo,
                   [this](int index) { speakChoice(m_combo->itemText(index)); });
}

QWidget* ComboControl::widget() const { return m_combo; }

void ComboControl::speak(voice::VoiceGuide& voice, QWidget*) const {
  voice.speakFocus(m_say.isEmpty() ? spokenCaption(m_caption) + voice::kSpeechSeparator + text() : m_say,
                   true);
}

QString ComboControl::text() const {
  return m_combo->isEditable() || m_combo->currentIndex() >= 0 ? m_combo->currentText() : QString();
}

QStringList ComboControl::items() const {
  QStringList items;
  for (int i = 0; i < m_combo->count() - (m_foreign ? 1 : 0); ++i) items += m_combo->itemText(i);
  return items;
}

int ComboControl::chosenItem() const {
  // The toolkit keeps the index of the last choice while another text is typed.
  const QStringList all = items();
  const int index = m_combo->currentIndex();
  return index >= 0 && index < all.size() && all[index] == text() ? index
                                                                  : static_cast<int>(all.indexOf(text()));
}

void ComboControl::setItems(const QStringList& items) {
  quietly([&] {
    const QString kept = text();
    m_combo->clear();
    m_foreign = false;
    m_combo->addItems(items);
    showText(kept);
  });
}

void ComboControl::showText(const QString& text) {
  if (m_combo->isEditable()) {
    m_combo->setCurrentIndex(m_combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    showWhole(m_combo->lineEdit(), text);
    return;
  }
  if (std::exchange(m_foreign, false)) m_combo->removeItem(m_combo->count() - 1);
  int index = m_combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (index < 0 && !text.isEmpty()) {
    m_combo->addItem(text);
    m_foreign = true;
    index = m_combo->count() - 1;
  }
  m_combo->setCurrentIndex(index);
}

void ComboControl::nameWidgets() {
  Control::nameWidgets();
  // The field inside an editable list is an object of its own for a screen reader.
  if (QLineEdit* field = m_combo->lineEdit()) field->setAccessibleName(accessibleName());
}

void ComboControl::setTip(const QString& tip) {
  Control::setTip(tip);
  if (QLineEdit* field = m_combo->lineEdit()) field->setAccessibleDescription(tip);
}

void ComboControl::speakChoice(const QString& item) {
  if (!isQuiet()) m_voice.speakFocus(item, true);
}

}  // namespace screen
