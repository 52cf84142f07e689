#pragma once

#include <QMainWindow>
#include <QString>
#include <memory>
#include <vector>

#include "platform/screen/data_source.h"
#include "platform/screen/message_door.h"
#include "platform/screen/navigator.h"
#include "platform/screen/rows.h"
#include "platform/voice/voice_guide.h"

namespace shell {
class Desktop;
}

namespace screen {

class ControlBook;

/// What every screen is handed: voice, messages, the way to other screens, the desktop around the program.
struct Services {
  voice::VoiceGuide& voice;
  MessageDoor& messages;
  Navigator& navigator;
  shell::Desktop* desktop = nullptr;  ///< viewer, pickers, clipboard
};

/// Base of all screens. The constructor builds the widgets from the declared rows; nothing else makes
/// widgets. Controls are addressed by their objectName ("txtFields(4)").
class Screen : public QMainWindow {
  Q_OBJECT

 public:
  Screen(const ScreenRow& declaration, Services& services);
  ~Screen() override;

  const ScreenRow& declaration() const { return m_declaration; }

  // Life. The navigator calls these.
  virtual void onLoad() {}                    ///< once after building, before the first show: sources, lists
  virtual void opened(const Request&) {}      ///< at every show() through the navigator
  virtual void onActivate() {}                ///< each time the window becomes the active one
  virtual bool onCloseBox() { return true; }  ///< the window's own close box; false: stays open
  virtual void onClosed() {}                  ///< after it closed
  /// Closes without asking onCloseBox(); leave handlers do not run any more.
  void closeNow();

  // Values of controls.
  QString text(const QString& control) const;
  /// Sets a text as the program does (no onEdit, no dirty mark).
  void setText(const QString& control, const QString& text);
  bool checked(const QString& control) const;
  void setChecked(const QString& control, bool on);
  /// The stored value of the chosen option of a group ("" if none is chosen), and choosing by value.
  QString chosen(const QString& group) const;
  void choose(const QString& group, const QString& value);
  QStringList items(const QString& combo) const;
  void setItems(const QString& combo, const QStringList& items);
  /// Position of the item that the list shows (of like items the one chosen); -1: its text is none of them.
  int chosenItem(const QString& combo) const;
  /// Puts rows into a table, texts in the order of its columns; the first becomes current, and chosenItem()
  /// is the current one.
  void setRows(const QString& table, const QList<QStringList>& rows);
  /// The day of a date cursor.
  QDate day(const QString& calendar) const;
  void setDay(const QString& calendar, const QDate& day);

  // Looks.
  void setShown(const QString& control, bool shown);  ///< with its label
  bool isControlShown(const QString& control) const;  ///< as set, whether or not the window shows
  void setEnabledControl(const QString& control, bool enabled);
  void setCaption(const QString& control, const QString& caption);  ///< label, accessible name and speech
  QString caption(const QString& control) const;
  void setTip(const QString& control, const QString& tip);
  void setCaptionRed(const QString& control, bool red);
  bool isCaptionRed(const QString& control) const;
  void focusOn(const QString& control);
  QString focused() const;  ///< objectName of the control with the focus
  void showPage(const QString& caption);
  /// Says what came of a command; blank parts are left out.
  void say(const QStringList& parts) { voice().speakParts(parts); }
  /// The same, heard to its end: what the focus says next waits for it.
  void sayResult(const QStringList& parts);
  /// Sends the focus to a field that a command needs filled. Where the focus is there already the field is
  /// named all the same: a command that does nothing must not be silent.
  void askFor(const QString& control);
  /// In an onLeave handler: the focus goes back to the control being left.
  void keepFocus();

  /// Moves the focus to the next control in tab order.
  void focusNext() { focusNextPrevChild(true); }

  /// Does what the button or the menu entry does; nothing if it is disabled.
  void trigger(const QString& command);
  /// Runs a command's action (the builder's buttons and entries come here).
  void runCommand(const QString& name, Handler action, int index);
  /// objectName of the command whose action is running, "" outside of one.
  QString runningCommand() const;

  // Dirty mark of checks and options declared with marksDirty (checkChanged).
  bool checkChanged() const { return m_checkChanged; }
  void clearCheckChanged() { m_checkChanged = false; }
  void markCheckChanged() { m_checkChanged = true; }

  DataSource& source(int number = 1) { return *m_sources.at(static_cast<size_t>(number - 1)); }
  const DataSource& source(int number = 1) const { return *m_sources.at(static_cast<size_t>(number - 1)); }

  /// All controls, for what walks a screen (tests, the data source).
  const ControlBook& controls() const;

  Services& services() { return m_services; }
  voice::VoiceGuide& voice() { return m_services.voice; }
  MessageDoor& messages() { return m_services.messages; }
  Navigator& navigator() { return m_services.navigator; }

  /// Speaks heading and spoken notes, once a load, at the first show; the first focus waits for it. What
  /// onLoad() and opened() say through the navigator is heard before it.
  void speakOpening();
  /// Before loading: the speech of the screen before is cut, what is said from now on waits its turn.
  void prepareOpening();
  /// Shown, and no key was pressed since: the window manager may still move the keyboard focus to and fro
  /// before it stays here.
  bool awaitsKeyboard() const;
  /// What speakOpening() says: the heading (the caption if none is declared) and the spoken notes.
  /// Screens with their own sentence override it; an empty list says nothing.
  virtual QStringList openingTexts() const;
  /// Moves of the record buttons; screens with checks before a move override them.
  virtual void goFirst() { source().moveFirst(); }
  virtual void goPrevious() { source().movePrevious(); }
  virtual void goNext() { source().moveNext(); }
  virtual void goLast() { source().moveLast(); }
  /// After a source showed another row (position captions, month-dependent captions ...).
  virtual void rowShown(int /*sourceNumber*/) {}

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool event(QEvent* event) override;

 private:
  friend class Builder;
  friend class DataSource;
  void fitToDisplay();
  void focusFirst();
  void finishClosing();
  struct Parts;
  const ScreenRow& m_declaration;
  Services& m_services;
  std::vector<std::unique_ptr<DataSource>> m_sources;
  std::unique_ptr<Parts> m_parts;
  bool m_checkChanged = false;
};

}  // namespace screen
