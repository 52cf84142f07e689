#pragma once

#include <QDate>

#include "platform/screen/control.h"

class QCalendarWidget;
class QLineEdit;

namespace screen {

/// A date cursor: a field that holds the day as a text, which a screen reader follows like any field, above a
/// month sheet for the eye and the mouse. Its text is the day as the row's dayText words it.
class CalendarControl : public Control {
 public:
  CalendarControl(Screen& screen, const Calendar& row, QWidget* parent, voice::VoiceGuide& voice);

  QWidget* widget() const override { return m_box; }
  QList<QWidget*> focusWidgets() const override;
  QWidget* namedWidget() const override;
  QString text() const override;
  bool enter() override;
  bool key(int key) override;

  QDate day() const { return m_day; }
  void setDay(const QDate& day);

 private:
  static QCalendarWidget* makeSheet(QWidget* parent);
  void moveTo(const QDate& day);
  DayText m_dayText;
  QWidget* m_box;
  QLineEdit* m_field;
  QCalendarWidget* m_sheet;
  voice::VoiceGuide& m_voice;
  QDate m_day;
};

}  // namespace screen
