#pragma once

#include "platform/screen/screen.h"

namespace screen {

/// What a record screen says of its acts. A screen gives its own texts if it has some.
struct RecordWords {
  const char16_t* stored = u"登録しました";
  const char16_t* deleted = u"削除しました";
  const char16_t* nothingToDelete = u"削除するデータがありません。";
  const char16_t* deleteQuestion = nullptr;   ///< asked before a row is deleted
  const char16_t* deleteTitle = nullptr;      ///< title of that question; with one it has OK and Cancel
  const char16_t* discardQuestion = nullptr;  ///< asked before typed text is lost; starts on the refusal
};

/// Base of the screens that show one row of source 1 at a time and let it be changed: moves by the record
/// keys, storing, deleting, and the question before typed text is lost. Each act is answered in the same way:
/// what was done, then the row on view in words.
class RecordScreen : public Screen {
 public:
  RecordScreen(const ScreenRow& declaration, Services& services, const RecordWords& words);

  void goFirst() override { step(&DataSource::moveFirst); }
  void goPrevious() override { step(&DataSource::movePrevious); }
  void goNext() override { step(&DataSource::moveNext); }
  void goLast() override { step(&DataSource::moveLast); }

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
  /// Another row came on view by a record key.
  virtual void rowReached() {}
  /// What is done with the row that is deleted, and where the screen goes then. False: reported.
  virtual bool removeOnView();

  /// True when nothing typed would be lost, or the user agrees to lose it.
  bool mayDiscard();
  /// Writes the row on view, or what was typed into a table without rows as its first. False: reported.
  bool writeOnView();
  /// Says what was done and the row on view.
  void sayDone(const char16_t* done);
  const RecordWords& words() const { return m_words; }

 private:
  void step(void (DataSource::*move)());
  bool confirmRemoval();
  const RecordWords& m_words;
};

}  // namespace screen
