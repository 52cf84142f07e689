#include "platform/store/text_column.h"

#include <QHashFunctions>
#include <algorithm>

#include "platform/store/collation.h"
#include "platform/text/fold.h"

namespace store {
namespace {

QStringView viewOf(std::u16string_view text) { return {text.data(), static_cast<qsizetype>(text.size())}; }

}  // namespace

QStringView ColumnTexts::text(uint32_t number) const { return viewOf(m_texts.at(number)); }

size_t ColumnTexts::placeOf(QStringView text) const {
  const size_t mask = m_known.size() - 1;
  size_t place = qHash(text, size_t(0)) & mask;
  while (m_known[place] != kNull && this->text(m_known[place]) != text) place = (place + 1) & mask;
  return place;
}

void ColumnTexts::remember(uint32_t number) {
  if (++m_remembered * 2 > m_known.size()) {
    std::vector<uint32_t> old(m_known.size() * 2, kNull);
    old.swap(m_known);
    for (const uint32_t known : old)
      if (known != kNull) m_known[placeOf(text(known))] = known;
  }
  m_known[placeOf(text(number))] = number;
}

uint32_t ColumnTexts::number(QStringView text) {
  if (text.isNull()) return kNull;
  constexpr size_t kEnoughToJudge = 65536;
  const bool mostDiffer = ++m_asked > kEnoughToJudge && count() > m_asked / 8 * 7;
  if (!mostDiffer)
    if (const uint32_t known = m_known[placeOf(text)]; known != kNull) return known;
  const uint32_t made = static_cast<uint32_t>(count());
  m_texts.units.append(text.utf16(), static_cast<size_t>(text.size()));
  m_texts.close();
  if (!mostDiffer) remember(made);
  return made;
}

void ColumnTexts::foldNew() {
  while (m_folded.count() < m_texts.count()) {
    text::foldForComparison(text(static_cast<uint32_t>(m_folded.count())), m_folded.units);
    m_folded.close();
  }
}

std::u16string_view ColumnTexts::folded(uint32_t number) {
  foldNew();
  return m_folded.at(number);
}

void ColumnTexts::markContaining(std::u16string_view needle, std::vector<char>& marks) {
  foldNew();
  const std::u16string_view all(m_folded.units);
  const std::vector<size_t>& starts = m_folded.starts;
  auto next = starts.begin();
  for (size_t hit = all.find(needle); hit != all.npos; hit = all.find(needle, *next)) {
    next = std::upper_bound(next, starts.end(), hit);
    if (next == starts.end()) return;
    const auto number = static_cast<size_t>(next - starts.begin()) - 1;
    if (number != kNull) marks[number] = 1;
  }
}

const QByteArray& ColumnTexts::key(uint32_t number, SortedAs kind) {
  if (m_keys.size() < count()) m_keys.resize(count());
  QByteArray& key = m_keys[number];
  if (key.isNull())
    key = kind == SortedAs::Number ? numberSortKey(text(number).toLongLong())
          : kind == SortedAs::Date ? dateSortKey(text(number))
                                   : japaneseSortKey(text(number));
  return key;
}

}  // namespace store
