#include "platform/store/criteria.h"

#include <algorithm>

#include "platform/store/collation.h"
#include "platform/store/scanner.h"
#include "platform/text/fold.h"

namespace store {
namespace {

constexpr char16_t kAnyRun = u'\uFFFF';
constexpr char16_t kAnyOne = u'\uFFFE';

struct ComparisonMark {
  QStringView mark;
  Comparison comparison;
};
// The longer marks first.
constexpr ComparisonMark kComparisons[] = {
    {u"<>", Comparison::NotEqual}, {u"<=", Comparison::LessOrEqual}, {u">=", Comparison::GreaterOrEqual},
    {u"=", Comparison::Equal},     {u"<", Comparison::Less},         {u">", Comparison::Greater}};

std::optional<Comparison> takeComparison(Scanner& scanner) {
  if (scanner.takeWord(u"like")) return Comparison::Like;
  for (const ComparisonMark& known : kComparisons)
    if (scanner.takeMark(known.mark)) return known.comparison;
  return std::nullopt;
}

/// A column and its comparison; a name with a space in it ("txt dummy14") runs up to the comparison.
Result<Term> takeTerm(Scanner& scanner, Wildcard wildcard) {
  Term term;
  for (;;) {
    const QString part = scanner.takeName();
    if (part.isEmpty()) return scanner.fault();
    term.column += term.column.isEmpty() ? part : QLatin1Char(' ') + part;
    if (const std::optional<Comparison> comparison = takeComparison(scanner)) {
      term.comparison = *comparison;
      break;
    }
  }
  Result<QString> value = scanner.takeValue();
  if (!value) return value.fault();
  term.value = *value;
  if (term.comparison == Comparison::Like) term.pattern = LikePattern(term.value, wildcard);
  return term;
}

Result<Order> takeOrder(Scanner& scanner) {
  Order order;
  do {
    SortKey key{scanner.takeName(), false};
    while (!key.column.isEmpty() && !scanner.atEnd()) {
      if (scanner.takeWord(u"desc")) {
        key.descending = true;
        break;
      }
      if (scanner.takeWord(u"asc")) break;
      const QString more = scanner.takeName();
      if (more.isEmpty()) break;
      key.column += QLatin1Char(' ') + more;
    }
    if (key.column.isEmpty()) return scanner.fault();
    order.push_back(key);
  } while (scanner.takeMark(u","));
  if (!scanner.atEnd()) return scanner.fault();
  return order;
}

std::u16string folded(const QString& text) {
  std::u16string out;
  text::foldForComparison(text, out);
  return out;
}

bool holds(Comparison comparison, int order) {
  switch (comparison) {
    case Comparison::Less:
      return order < 0;
    case Comparison::LessOrEqual:
      return order <= 0;
    case Comparison::Greater:
      return order > 0;
    case Comparison::GreaterOrEqual:
      return order >= 0;
    case Comparison::NotEqual:
      return order != 0;
    default:
      return order == 0;
  }
}

/// Order of a text against the searched value: as numbers where the value is one (a text that is none fits
/// nothing), else in Japanese order with the numbers in them by value, as dates need it.
bool holdsInOrder(Comparison comparison, std::u16string_view text, const QString& value) {
  const QStringView seen(text.data(), static_cast<qsizetype>(text.size()));
  bool valueIsNumber = false;
  const double number = value.toDouble(&valueIsNumber);
  if (!valueIsNumber) return holds(comparison, compareByNumbers(seen, text::foldForComparison(value)));
  bool textIsNumber = false;
  const double left = seen.trimmed().toDouble(&textIsNumber);
  return textIsNumber && holds(comparison, left < number ? -1 : left > number ? 1 : 0);
}

/// The value as a column of numbers or of yes/no shows it.
Term forNumbers(Term term, ColumnType type) {
  const QString word = term.value.trimmed().toLower();
  if (word == u"true" || word == u"yes" || (type == ColumnType::YesNo && word == u"1"))
    term.value = QStringLiteral("-1");
  else if (word == u"false" || word == u"no")
    term.value = QStringLiteral("0");
  bool whole = false;
  if (const qint64 number = term.value.trimmed().toLongLong(&whole); whole)
    term.value = QString::number(number);
  return term;
}

/// One term over a memory copy: which texts of its column fit, or which IDs.
struct TermHits {
  std::shared_ptr<const TextColumn::Numbers> numbers;  ///< null: the hits are by row
  std::vector<char> hits;

  bool operator()(uint32_t row) const { return hits[numbers ? (*numbers)[row] : row]; }
};

std::vector<char> fittingIds(const Term& term, const std::vector<qint64>& ids) {
  std::vector<char> hits(ids.size(), 0);
  bool whole = false;
  const qint64 id = term.value.trimmed().toLongLong(&whole);
  if (whole && term.comparison == Comparison::Equal) {
    const auto place = std::lower_bound(ids.begin(), ids.end(), id);
    if (place != ids.end() && *place == id) hits[static_cast<size_t>(place - ids.begin())] = 1;
    return hits;
  }
  for (size_t row = 0; row < ids.size(); ++row)
    hits[row] = fits(term, QString::number(ids[row]).toStdU16String(), false);
  return hits;
}

std::vector<char> fittingTexts(const Term& term, ColumnTexts& texts) {
  std::vector<char> hits(texts.count(), 0);
  if (const std::u16string* text = term.comparison == Comparison::Like ? term.pattern.contained() : nullptr) {
    texts.markContaining(*text, hits);
    return hits;
  }
  const bool equal = term.comparison == Comparison::Equal;
  const std::u16string value = folded(term.value);
  for (uint32_t number = ColumnTexts::kNull + 1; number < hits.size(); ++number)
    hits[number] = equal ? texts.folded(number) == value : fits(term, texts.folded(number), false);
  return hits;
}

TermHits hitsOf(const Term& written, const TableCopy& copy) {
  const int column = copy.schema().find(written.column);
  const ColumnType type = copy.schema().type(column);
  const bool number = type != ColumnType::Text255 && type != ColumnType::LongText;
  const Term term = number && written.comparison != Comparison::Like ? forNumbers(written, type) : written;
  if (type == ColumnType::Counter) return {nullptr, fittingIds(term, copy.ids())};
  const TextColumn& texts = copy.column(column);
  return {texts.numbers(), fittingTexts(term, *texts.texts())};
}

template <class Fits>
std::vector<uint32_t> rowsWhere(const TableCopy& copy, const std::vector<uint32_t>* among, const Fits& fits) {
  std::vector<uint32_t> rows;
  if (among) {
    std::copy_if(among->begin(), among->end(), std::back_inserter(rows), fits);
    return rows;
  }
  const auto count = static_cast<uint32_t>(copy.ids().size());
  for (uint32_t row = 0; row < count; ++row)
    if (fits(row)) rows.push_back(row);
  return rows;
}

}  // namespace

LikePattern::LikePattern(const QString& pattern, Wildcard wildcard) {
  QString literal;
  const auto flush = [&] {
    text::foldForComparison(literal, m_units);
    literal.clear();
  };
  for (const QChar letter : pattern) {
    const bool run = letter == QChar(static_cast<char16_t>(wildcard));
    if (!run && letter != u'?') {
      literal += letter;
      continue;
    }
    flush();
    m_units += run ? kAnyRun : kAnyOne;
  }
  flush();
  const std::u16string_view units(m_units);
  if (units.size() < 3 || units.front() != kAnyRun || units.back() != kAnyRun) return;
  m_literal = units.substr(1, units.size() - 2);
  m_contained =
      m_literal.find_first_of(u"\uFFFF\uFFFE") == m_literal.npos && m_literal.find(u'\0') == m_literal.npos;
}

bool LikePattern::matches(std::u16string_view text) const {
  size_t at = 0, unit = 0, runUnit = m_units.npos, runAt = 0;
  while (at < text.size()) {
    if (unit < m_units.size() && m_units[unit] == kAnyRun) {
      runUnit = unit++;
      runAt = at;
    } else if (unit < m_units.size() && (m_units[unit] == text[at] || m_units[unit] == kAnyOne)) {
      const bool pair = m_units[unit] == kAnyOne && QChar::isHighSurrogate(text[at]) && at + 1 < text.size();
      at += pair ? 2 : 1;
      ++unit;
    } else if (runUnit != m_units.npos) {
      unit = runUnit + 1;
      at = ++runAt;
    } else {
      return false;
    }
  }
  while (unit < m_units.size() && m_units[unit] == kAnyRun) ++unit;
  return unit == m_units.size();
}

bool fits(const Term& term, std::u16string_view text, bool null) {
  if (null) return false;
  if (term.comparison == Comparison::Like) return term.pattern.matches(text);
  if (term.comparison == Comparison::Equal) return text == folded(term.value);
  if (term.comparison == Comparison::NotEqual) return text != folded(term.value);
  return holdsInOrder(term.comparison, text, term.value);
}

Result<Criteria> parseCriteria(const QString& text, Wildcard wildcard) {
  Criteria criteria;
  Scanner scanner(text);
  for (bool first = true; !scanner.atEnd(); first = false) {
    if (scanner.takeWord(u"order")) {
      if (!scanner.takeWord(u"by")) return scanner.fault();
      Result<Order> order = takeOrder(scanner);
      if (!order) return order.fault();
      criteria.order = *order;
      return criteria;
    }
    const bool newGroup = first || scanner.takeWord(u"or");
    if (!newGroup && !scanner.takeWord(u"and")) return scanner.fault();
    Result<Term> term = takeTerm(scanner, wildcard);
    if (!term) return term.fault();
    if (newGroup) criteria.anyOf.emplace_back();
    criteria.anyOf.back().push_back(*term);
  }
  return criteria;
}

Result<Order> parseOrder(const QString& text) {
  Scanner scanner(text);
  if (scanner.atEnd()) return Order{};
  return takeOrder(scanner);
}

Result<QVector<int>> searchedColumns(const Criteria& criteria, const TableSchema& schema) {
  QVector<int> columns;
  for (const std::vector<Term>& group : criteria.anyOf) {
    for (const Term& term : group) {
      const int column = schema.find(term.column);
      if (column < 0) return unknownColumn(term.column, schema.table());
      if (schema.type(column) != ColumnType::Counter) columns += column;
    }
  }
  return columns;
}

std::vector<uint32_t> fittingRows(const Criteria& criteria, const TableCopy& copy,
                                  const std::vector<uint32_t>* among) {
  std::vector<std::vector<TermHits>> anyOf;
  for (const std::vector<Term>& group : criteria.anyOf) {
    anyOf.emplace_back();
    for (const Term& term : group) anyOf.back().push_back(hitsOf(term, copy));
  }
  if (anyOf.size() == 1 && anyOf[0].size() == 1 && anyOf[0][0].numbers) {
    const uint32_t* const numbers = anyOf[0][0].numbers->data();
    const char* const hits = anyOf[0][0].hits.data();
    return rowsWhere(copy, among, [=](uint32_t row) { return hits[numbers[row]]; });
  }
  return rowsWhere(copy, among, [&](uint32_t row) {
    return std::any_of(anyOf.begin(), anyOf.end(), [row](const std::vector<TermHits>& group) {
      return std::all_of(group.begin(), group.end(), [row](const TermHits& term) { return term(row); });
    });
  });
}

}  // namespace store
