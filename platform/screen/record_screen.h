#pragma once

#include "platform/screen/screen.h"
#include "platform/text/utf16.h"

namespace screen {

/// What a record screen says of its acts. A screen gives its own texts if it has some.
struct RecordWords {
  const char16_t* stored = u"登録しました";
  const char16_t* deleted = u"削除しました";
  const char16_t* dropped = u"削除しました";  ///< of a new row that was never stored
  /// Message where there is no row to delete; nullptr: what is on view is said instead.
  const char16_t* nothingToDelete = u"削除するデータがありません。";
  const char16_t* deleteQuestion = nullptr;   ///< asked before a row is deleted
  const char16_t* deleteTitle = nullptr;      ///< title of that question; with one it has OK and Cancel
  const char16_t* discardQuestion = nullptr;  ///< asked before typed text is lost; starts on the refusal
};

/// A move by a record key: of the source, with what belongs to leaving a row, and of its rows alone.
struct RowMove {
  void (DataSource::*bySource)();
  void (store::RecordSet::*byRows)();
};

/// Base of the screens that show one row of source 1 at a time and let it be changed: moves by the record
/// keys, storing, deleting, and the question before typed text is lost. Each act is answered in the same way:
/// what was done, then the row on view in words.
class RecordScreen : public Screen {
 public:
  RecordScreen(const ScreenRow& declaration, Services& services, const RecordWords& words);

  void goFirst() override { step({&DataSource::moveFirst, &store::RecordSet::moveFirst}); }
  void goPrevious() override { step({&DataSource::movePrevious, &store::RecordSet::movePrevious}); }
  void goNext() override { step({&DataSource::moveNext, &store::RecordSet::moveNext}); }
  void goLast() override { step({&DataSource::moveLast, &store::RecordSet::moveLast}); }

  /// Stores what was typed, of a table without rows as its first row; says so.
  virtual void storeRow();
  /// Deletes the row on view after the question; a new row that was never stored only leaves the screen.
  virtual void removeRow();

 protected:
  /// The row on view as it is said after a move or another act.
  virtual QStringList rowInWords() const = 0;
  /// Before storing: blanks to be filled, values to be computed. False: reported, nothing is stored.
  virtual bool readyToStore() { return true; }
  /// Before another row comes on view, by any way: settles what was typed. False: reported, the row stays.
  virtual bool mayLeaveRow();
  /// After the row was stored.
  virtual void sayStored() { sayDone(text::utf16(m_words.stored)); }
  /// Before a move by a record key. False: reported, nothing moves.
  virtual bool readyToMove() { return true; }
  /// Makes another row current.
  virtual void moveRow(const RowMove& move) { (source().*move.bySource)(); }
  /// Another row came on view by a record key.
  virtual void rowReached() {}
  /// What is done with the row that is deleted, and where the screen goes then. False: reported.
  virtual bool removeOnView();

  /// True when nothing typed would be lost, or the user agrees to lose it.
  bool mayDiscard();
  /// Before the screen closes: settles what was typed. What the file refuses is given up if the user agrees,
  /// so that it never locks the user in. False: the screen stays.
  bool mayClose();
  /// Writes the row on view, or what was typed into a table without rows as its first. False: reported.
  bool writeOnView();
  /// Asks whether the row on view is to be deleted.
  bool confirmRemoval();
  /// Says what was done and the row on view.
  virtual void sayDone(const QString& done);
  const RecordWords& words() const { return m_words; }

 private:
  void step(const RowMove& move);
  const RecordWords& m_words;
};

}  // namespace screen
