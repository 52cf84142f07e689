#pragma once

#include <QByteArray>
#include <QStringView>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace store {

/// What the texts of a column are sorted as.
enum class SortedAs { Text, Number, Date };

/// The different texts of a column, by number, with what searching and sorting compare them by. Only ever
/// grows, so that whoever sorts by it may keep it. Number 0 is NULL. A column of which nearly every row
/// differs is not looked through for equal texts: two numbers may then stand for one text.
class ColumnTexts {
 public:
  static constexpr uint32_t kNull = 0;

  uint32_t number(QStringView text);
  size_t count() const { return m_texts.count(); }
  QStringView text(uint32_t number) const;
  /// The text as searches compare it.
  std::u16string_view folded(uint32_t number);
  /// Marks, by number, the texts whose folded form holds the folded needle: one pass over all of them.
  void markContaining(std::u16string_view needle, std::vector<char>& marks);
  /// Bytes that compare as the texts do, made when first compared: in Japanese order, by value, by date.
  const QByteArray& key(uint32_t number, SortedAs kind);

 private:
  /// Texts end to end, each with a NUL behind it.
  struct Joined {
    std::u16string units = std::u16string(1, u'\0');
    std::vector<size_t> starts{0, 1};
    size_t count() const { return starts.size() - 1; }
    std::u16string_view at(size_t number) const {
      return std::u16string_view(units).substr(starts[number], starts[number + 1] - starts[number] - 1);
    }
    void close() {
      units.push_back(u'\0');
      starts.push_back(units.size());
    }
  };
  void foldNew();
  /// The place of the text among the known ones, or the free place for it.
  size_t placeOf(QStringView text) const;
  void remember(uint32_t number);

  Joined m_texts, m_folded;
  std::vector<QByteArray> m_keys;
  std::vector<uint32_t> m_known = std::vector<uint32_t>(64, kNull);  ///< numbers by the hash of their text
  size_t m_remembered = 0;
  size_t m_asked = 0;
};

/// One column of a table in memory: the number of its text for each row.
class TextColumn {
 public:
  using Numbers = std::vector<uint32_t>;

  void append(QStringView text) { own().push_back(m_texts->number(text)); }
  void replace(size_t row, QStringView text) { own()[row] = m_texts->number(text); }
  void erase(size_t row) { own().erase(m_numbers->begin() + static_cast<std::ptrdiff_t>(row)); }

  /// As they stand now: later changes make another list where somebody holds this one.
  std::shared_ptr<const Numbers> numbers() const { return m_numbers; }
  const std::shared_ptr<ColumnTexts>& texts() const { return m_texts; }

 private:
  Numbers& own() {
    if (m_numbers.use_count() > 1) m_numbers = std::make_shared<Numbers>(*m_numbers);
    return *m_numbers;
  }
  std::shared_ptr<Numbers> m_numbers = std::make_shared<Numbers>();
  std::shared_ptr<ColumnTexts> m_texts = std::make_shared<ColumnTexts>();
};

}  // namespace store
