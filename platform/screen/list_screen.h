#pragma once

#include <array>
#include <optional>

#include "platform/screen/screen.h"

namespace screen {

/// What an empty list says to a search; to sorting, some speak of 全会員 (kept: the words differ).
inline constexpr char16_t kNoRowsText[] =
    u"検索データが０件です。「全患者表示及び再表示」をクリックして下さい。";
inline constexpr char16_t kNoRowsOfMembersText[] =
    u"検索データが０件です。「全会員表示及び再表示」をクリックして下さい。";

/// Base of the screens that list the rows of source 1 and narrow and sort them.
///
/// A search narrows the set on view, so that a second one searches in the hits of the first; without a hit
/// the list stays as it is. Sorting puts the set on view in another order. Dialogs reach both through their
/// list's name: SortDialog, ExtractDialog.
class ListScreen : public Screen {
 public:
  using Screen::Screen;

  /// Puts the rows of the set on view that meet the criteria in its place. False: an empty set, no hit or
  /// criteria that the database refuses, each reported; the list is as it was.
  virtual bool narrowBy(const QString& criteria);
  /// Puts the set on view in the order ("<column> ASC"). False: reported, the list is as it was.
  virtual bool sortBy(const QString& order);

  bool holdsRows() const { return source().isOpen() && source().rows().recordCount() > 0; }

  // The record keys say where they led to.
  void goFirst() override;
  void goPrevious() override;
  void goNext() override;
  void goLast() override;

 protected:
  /// Opens the table and shows it as the list begins: whole, in its own order. False: a fault was reported.
  virtual bool openWhole() = 0;
  /// What an empty set says to a search, and to sorting.
  virtual QString noRowsText() const { return QString::fromUtf16(kNoRowsText); }
  virtual QString noRowsToSortText() const { return noRowsText(); }
  /// What is said of the row that the record keys led to; nothing: they are silent.
  virtual QStringList rowOnView() const { return {}; }
  /// How many rows are on view, as the list says it.
  virtual QStringList countOnView() const { return {}; }
  /// After narrowBy() or sortBy() changed the set, with what was done in words.
  virtual void setChanged(const QString& done) { tellResult(done); }
  /// Says what came of a command and how many rows are on view. The keyboard goes to the list, whose row is
  /// heard next.
  void tellResult(const QString& done);

  /// narrowBy() with its own words for what was done.
  bool narrow(const QString& criteria, const QString& done);
  /// Tells the text where the set is empty; true where it was. A file that could not be opened is tried again
  /// and reported by name instead.
  bool emptySet(const QString& text);
  bool emptySet() { return emptySet(noRowsText()); }
  /// The narrowed or sorted copy of the set on view. What the database refuses is reported in its words.
  std::optional<store::RecordSet> setOf(const QString& criteria, const QString& order);
  /// Puts that copy in the list's place, also without rows; false where it was refused.
  bool put(const QString& criteria, const QString& order);

 private:
  void step(void (DataSource::*move)());
};

/// The list that a dialog works for, loaded where it is not yet. A name that is no list's is a mistake of the
/// program, reported as critical.
ListScreen* listOf(Screen& dialog, const Words& list);

/// A column that a dialog offers.
class ColumnChoice {
 public:
  /// Under its own name; a yes/no column takes "Yes" or "yes" for the true value, "No" or "no" for the false
  /// one.
  consteval ColumnChoice(const store::Column& column) : ColumnChoice(column.name(), column) {}
  /// Under another caption.
  consteval ColumnChoice(const char16_t* caption, const store::Column& column)
      : m_caption(caption), m_column(column.name()), m_yesNo(column.type() == store::ColumnType::YesNo) {}
  /// A name that no column of the list has: the engine says so when it is chosen.
  static consteval ColumnChoice missing(const char16_t* name) { return ColumnChoice(name); }

  constexpr const char16_t* caption() const { return m_caption; }
  constexpr const char16_t* column() const { return m_column; }
  constexpr bool yesNo() const { return m_yesNo; }

 private:
  consteval explicit ColumnChoice(const char16_t* name) : m_caption(name), m_column(name) {}
  const char16_t* m_caption;
  const char16_t* m_column;
  bool m_yesNo = false;
};

/// Columns that are offered under their own names.
template <std::size_t N>
consteval auto choicesOf(const std::array<store::Column, N>& columns) {
  return [&columns]<std::size_t... At>(std::index_sequence<At...>) consteval {
    return std::array<ColumnChoice, N>{ColumnChoice(columns[At])...};
  }
  (std::make_index_sequence<N>());
}
/// Their captions, for the list of a combo box.
template <std::size_t N>
consteval std::array<const char16_t*, N> captionsOf(const ColumnChoice (&choices)[N]) {
  std::array<const char16_t*, N> captions{};
  for (std::size_t i = 0; i < N; ++i) captions[i] = choices[i].caption();
  return captions;
}
/// Their names, for the list of a combo box.
template <std::size_t N>
consteval std::array<const char16_t*, N> namesOf(const std::array<store::Column, N>& columns) {
  std::array<const char16_t*, N> names{};
  for (std::size_t i = 0; i < N; ++i) names[i] = columns[i].name();
  return names;
}

}  // namespace screen
