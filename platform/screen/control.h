#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <utility>

#include "platform/screen/rows.h"
#include "platform/store/record_set.h"

class QLabel;
class QWidget;

namespace voice {
class VoiceGuide;
}

namespace screen {

/// A built row: one control of a screen with what every kind has in common. Kinds add how a value is shown,
/// stored and spoken.
class Control {
 public:
  Control(Screen& screen, const ControlName& name, const QString& caption, int offset = 0);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const QString& name() const { return m_name; }
  int index() const { return m_index; }
  const QString& caption() const { return m_caption; }
  const QString& tip() const { return m_tip; }
  QLabel* label() const { return m_label; }

  /// The widget on the screen; nullptr for a menu entry without a button.
  virtual QWidget* widget() const = 0;
  /// The widgets that take the focus, in tab order.
  virtual QList<QWidget*> focusWidgets() const { return {}; }
  /// The widget that carries the accessible name.
  virtual QWidget* namedWidget() const { return widget(); }

  /// What the focus on the control says.
  virtual void speak(voice::VoiceGuide& voice, QWidget* focus) const;
  /// Enter was pressed in it: true if the control took the key.
  virtual bool enter() { return fire(m_onEnter); }
  /// Another key was pressed in it: true if the control took it.
  virtual bool key(int) { return false; }
  /// Enter belongs to the text (a memo's new line).
  virtual bool keepsEnter() const { return false; }
  /// The focus moved on to another control of the screen.
  void leave() { fire(m_onLeave); }

  // Value. putText() is what the program does: no handler runs.
  virtual QString text() const { return m_caption; }
  void putText(const QString& text);
  virtual QStringList items() const { return {}; }
  virtual void setItems(const QStringList&) {}
  virtual int chosenItem() const { return -1; }
  virtual void setRows(const QList<QStringList>&) {}

  // Looks.
  virtual void setCaption(const QString& caption);
  void setLabel(QLabel* label);
  virtual void setTip(const QString& tip);
  virtual void setShown(bool shown);
  bool isShown() const { return m_shown; }
  virtual void setEnabled(bool enabled);
  void setRed(bool red);
  bool isRed() const { return m_red; }
  /// The word before the accessible name of a control whose caption alone occurs twice in the window.
  virtual void setPrefix(const QString& prefix);
  /// Captions of the parts of a control that has several (option buttons).
  virtual QStringList partCaptions() const { return {}; }
  /// Parts whose caption no other name of the window has: they need no word of their group before it.
  virtual void namePartsAlone(const QSet<QString>& /*captions*/) {}
  /// A number after the accessible name if no word around the control distinguishes it.
  void setNumber(int number);
  virtual QString accessibleName() const;

  // Binding to a column of a source.
  void bind(const QString& column, int source);
  bool isBound() const { return m_source > 0; }
  const QString& column() const { return m_column; }
  int source() const { return m_source; }
  /// Shows a stored value (null: blank) and takes what is then shown as the unchanged state.
  void load(const store::Value& value);
  /// Whether the control shows something else than load() put there. A blank field that was NULL in the
  /// file is unchanged, so it stays NULL.
  bool changed() const { return stored() != m_loaded; }
  void settle() { m_loaded = stored(); }
  /// What storing the control writes.
  virtual store::Value stored() const { return text(); }

  void onEnter(Handler handler) { m_onEnter = handler; }
  void onLeave(Handler handler) { m_onLeave = handler; }
  void onEdit(Handler handler) { m_onEdit = handler; }
  void say(const char16_t* sentence) { m_say = QString::fromUtf16(sentence ? sentence : u""); }

 protected:
  virtual void showText(const QString& text) { setCaption(text); }
  virtual void showStored(const store::Value& value) { showText(value); }
  /// The user changed the value.
  void edited() { fire(m_onEdit); }
  bool fire(Handler handler);
  /// Runs `work` as the program does it: without handlers.
  template <class Work>
  void quietly(Work work) {
    const bool before = std::exchange(m_quiet, true);
    work();
    m_quiet = before;
  }
  bool isQuiet() const { return m_quiet; }
  virtual void nameWidgets();

  Screen& m_screen;
  QString m_name;
  int m_index;
  QString m_caption, m_prefix, m_tip, m_say;
  Handler m_onEnter = nullptr, m_onLeave = nullptr, m_onEdit = nullptr;

 private:
  QLabel* m_label = nullptr;
  QString m_column;
  int m_source = 0;
  store::Value m_loaded;
  int m_number = 0;
  bool m_quiet = false, m_shown = true, m_red = false;
};

/// objectName of a row: "txtFields(4)", "cmdUpdate".
QString objectName(const ControlName& name, int offset = 0);

}  // namespace screen
