#pragma once

#include "platform/screen/control.h"

class QGroupBox;
class QTabWidget;

namespace screen {

/// A text on the screen.
class NoteControl : public Control {
 public:
  NoteControl(Screen& screen, const Note& row, QWidget* parent);
  QWidget* widget() const override;
  void setCaption(const QString& caption) override;
  /// Longer than the column of a label.
  bool isLong() const;
  bool isSpoken() const { return m_spoken; }

 private:
  QLabel* m_text;
  bool m_spoken;
};

/// A titled group of controls.
class GroupControl : public Control {
 public:
  GroupControl(Screen& screen, const Group& row, QWidget* parent);
  QWidget* widget() const override;
  void setCaption(const QString& caption) override;

 private:
  QGroupBox* m_frame;
};

/// The strip of pages. Its tab bar takes the focus and says the page; the arrow keys and Ctrl+PageUp and
/// Ctrl+PageDown change pages.
class TabsControl : public Control {
 public:
  TabsControl(Screen& screen, QWidget* parent, voice::VoiceGuide& voice);
  QWidget* widget() const override;
  QList<QWidget*> focusWidgets() const override;
  QWidget* namedWidget() const override;
  void speak(voice::VoiceGuide& voice, QWidget* focus) const override;
  QString text() const override;  ///< caption of the page that shows
  QString accessibleName() const override;

  QWidget* addPage(const QString& caption);
  void step(int by);
  /// Brings the page that holds the widget to the front.
  void showPageOf(const QWidget* widget);

 protected:
  void showText(const QString& caption) override;

 private:
  QTabWidget* m_tabs;
  QStringList m_captions;
};

}  // namespace screen
