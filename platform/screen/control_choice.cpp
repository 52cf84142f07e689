#include "platform/screen/control_choice.h"

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
    m_combo->lineEdit()->setMaxLength(row.limit);
    m_combo->setCompleter(nullptr);  // typed text is stored as typed, never completed to an item
  }
  QStringList items;
  for (const char16_t* item : row.items) items += QString::fromUtf16(item);
  m_combo->addItems(items);
  if (!row.items.empty() && !row.editable) m_combo->setCurrentIndex(-1);
  if (row.editable) m_combo->setEditText(QString());
  QObject::connect(m_combo, &QComboBox::currentTextChanged, m_combo, [this] { edited(); });
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
    m_combo->setEditText(text);
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

void ComboControl::speakChoice(const QString& item) {
  if (!isQuiet()) m_voice.speakFocus(item, true);
}

CheckControl::CheckControl(Screen& screen, const Check& row, QWidget* parent)
    : Control(screen, row.name, QString::fromUtf16(row.caption.get())),
      m_box(new QCheckBox(shownCaption(m_caption), parent)),
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
  m_box->setText(shownCaption(caption));
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

OptionsControl::OptionsControl(Screen& screen, const Options& row, QWidget* parent)
    : Control(screen, row.name, QString::fromUtf16(row.caption.get())),
      m_choices(row.choices),
      m_frame(new QGroupBox(shownCaption(accessibleCaption(m_caption)), parent)),
      m_buttons(new QButtonGroup(m_frame)),
      m_marksDirty(row.marksDirty) {
  m_frame->setObjectName(m_name);
  Flow flow(m_frame);
  for (const Choice& choice : m_choices) {
    auto* button = new QRadioButton(shownCaption(QString::fromUtf16(choice.caption.get())), m_frame);
    button->setObjectName(objectName(choice.name));
    m_buttons->addButton(button, m_buttons->buttons().size());
    flow.add(button);
  }
  nameButtons();
  chooseTabStop();
  QObject::connect(m_buttons, &QButtonGroup::idToggled, m_frame, [this](int, bool on) {
    if (!on || isQuiet()) return;
    if (m_marksDirty) m_screen.markCheckChanged();
    edited();
  });
}

QWidget* OptionsControl::widget() const { return m_frame; }

QList<QWidget*> OptionsControl::focusWidgets() const {
  QList<QWidget*> widgets;
  for (QAbstractButton* button : m_buttons->buttons()) widgets += button;
  return widgets;
}

void OptionsControl::speak(voice::VoiceGuide& voice, QWidget* focus) const {
  const int id = m_buttons->id(qobject_cast<QAbstractButton*>(focus));
  if (id >= 0)
    voice.speakFocus(spokenCaption(QString::fromUtf16(m_choices[static_cast<size_t>(id)].caption.get())));
}

QString OptionsControl::text() const {
  const int id = m_buttons->checkedId();
  return id < 0 ? QString() : QString::fromUtf16(m_choices[static_cast<size_t>(id)].value);
}

void OptionsControl::setCaption(const QString& caption) {
  m_frame->setTitle(shownCaption(accessibleCaption(caption)));
  Control::setCaption(caption);
  nameButtons();
}

void OptionsControl::setPrefix(const QString& prefix) {
  Control::setPrefix(prefix);
  nameButtons();
}

bool OptionsControl::key(int key) {
  const bool forward = key == Qt::Key_Down || key == Qt::Key_Right;
  if (!forward && key != Qt::Key_Up && key != Qt::Key_Left) return false;
  const QList<QAbstractButton*> buttons = m_buttons->buttons();
  const qsizetype count = buttons.size();
  qsizetype at = 0;
  while (at < count && !buttons[at]->hasFocus()) ++at;
  for (qsizetype step = 1; step < count; ++step) {
    QAbstractButton* next = buttons[(at + (forward ? step : count - step)) % count];
    if (!next->isEnabled() || next->isHidden()) continue;
    next->setFocus(Qt::TabFocusReason);
    next->click();
    break;
  }
  chooseTabStop();
  return true;
}

void OptionsControl::showText(const QString& text) {
  m_buttons->setExclusive(false);
  for (QAbstractButton* button : m_buttons->buttons()) {
    const QString value = QString::fromUtf16(m_choices[static_cast<size_t>(m_buttons->id(button))].value);
    button->setChecked(!text.isEmpty() && value == text);
  }
  m_buttons->setExclusive(true);
  chooseTabStop();
}

void OptionsControl::chooseTabStop() {
  // Tab stops once at a group: at the chosen button, or at the first where none is chosen.
  const QList<QAbstractButton*> buttons = m_buttons->buttons();
  const QAbstractButton* stop = m_buttons->checkedButton() ? m_buttons->checkedButton() : buttons.value(0);
  for (QAbstractButton* button : buttons)
    button->setFocusPolicy(button == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

void OptionsControl::nameButtons() {
  nameWidgets();
  for (QAbstractButton* button : m_buttons->buttons()) {
    const QString own =
        QString::fromUtf16(m_choices[static_cast<size_t>(m_buttons->id(button))].caption.get());
    button->setAccessibleName(accessibleName() + u' ' + accessibleCaption(own));
  }
}

}  // namespace screen
