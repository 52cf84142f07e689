#include "platform/screen/control_calendar.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/accessibility.h"
#include "platform/screen/layout.h"
#include "platform/voice/voice_guide.h"

namespace screen {
namespace {

/// Where a key leads to; an invalid day if it leads nowhere.
QDate dayOfKey(int key, const QDate& day) {
  constexpr int kWeek = 7;
  switch (key) {
    case Qt::Key_Left:
      return day.addDays(-1);
    case Qt::Key_Right:
      return day.addDays(1);
    case Qt::Key_Up:
      return day.addDays(-kWeek);
    case Qt::Key_Down:
      return day.addDays(kWeek);
    case Qt::Key_PageUp:
      return day.addMonths(-1);
    case Qt::Key_PageDown:
      return day.addMonths(1);
    case Qt::Key_Home:
      return QDate(day.year(), day.month(), 1);
    case Qt::Key_End:
      return QDate(day.year(), day.month(), day.daysInMonth());
    default:
      return {};
  }
}

}  // namespace

CalendarControl::CalendarControl(Screen& screen, const Calendar& row, QWidget* parent,
                                 voice::VoiceGuide& voice)
    : Control(screen, row.name, QString::fromUtf16(row.caption.get())),
      m_dayText(row.dayText),
      m_box(new QWidget(parent)),
      m_field(new QLineEdit(m_box)),
      m_sheet(makeSheet(m_box)),
      m_voice(voice) {
  m_field->setObjectName(m_name);
  m_field->setReadOnly(true);
  constexpr int kLongestDay = 16;
  fitWidth(m_field, kLongestDay);
  auto* column = new QVBoxLayout(m_box);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(m_field);
  column->addWidget(m_sheet);
  QObject::connect(m_sheet, &QCalendarWidget::selectionChanged, m_box, [this] {
    if (!isQuiet()) moveTo(m_sheet->selectedDate());
  });
}

// The sheet is looked at and clicked; the keyboard and the ear stay in the field.
QCalendarWidget* CalendarControl::makeSheet(QWidget* parent) {
  const UntoldChange untold;
  auto* sheet = new QCalendarWidget(parent);
  sheet->setLocale(QLocale(QLocale::Japanese, QLocale::Japan));
  sheet->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  sheet->setGridVisible(true);
  const QList<QWidget*> parts = sheet->findChildren<QWidget*>();
  for (QWidget* part : parts) part->setFocusPolicy(Qt::NoFocus);
  sheet->setFocusPolicy(Qt::NoFocus);
  sheet->setAccessibleName(QStringLiteral("月の暦"));
  constexpr std::pair<const char*, const char16_t*> kNames[] = {
      {"qt_calendar_prevmonth", u"前の月"},     {"qt_calendar_nextmonth", u"次の月"},
      {"qt_calendar_monthbutton", u"月の選択"}, {"qt_calendar_yearbutton", u"年の選択"},
      {"qt_calendar_yearedit", u"年"},          {"qt_calendar_calendarview", u"月の暦"}};
  for (const auto& [part, name] : kNames)
    if (auto* widget = sheet->findChild<QWidget*>(QLatin1String(part)))
      widget->setAccessibleName(QString::fromUtf16(name));
  return sheet;
}

QList<QWidget*> CalendarControl::focusWidgets() const { return {m_field}; }

QWidget* CalendarControl::namedWidget() const { return m_field; }

QString CalendarControl::text() const { return m_field->text(); }

void CalendarControl::setDay(const QDate& day) {
  const QDate within = std::clamp(day, m_sheet->minimumDate(), m_sheet->maximumDate());
  m_day = within;
  m_field->setText(m_dayText(m_screen, within));
  m_field->setCursorPosition(0);
  // Its cell would be reported as the new focus, and screen readers would leave the field.
  const UntoldChange untold;
  quietly([&] { m_sheet->setSelectedDate(within); });
}

void CalendarControl::moveTo(const QDate& day) {
  setDay(day);
  m_voice.speakFocus(text(), true);
}

bool CalendarControl::enter() {
  m_voice.speakFocus(text(), true);
  return true;
}

bool CalendarControl::key(int key) {
  const QDate day = dayOfKey(key, m_day);
  if (day.isValid()) moveTo(day);
  return day.isValid();
}

}  // namespace screen
