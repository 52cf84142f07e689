#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "platform/store/record_set.h"
#include "platform/store/table_copy.h"

namespace store {

/// Which letters stand for any run of letters: '*' in the criteria of row sets, '%' in statements on a
/// connection. '?' stands for one letter in both.
enum class Wildcard : char16_t { RowSet = u'*', Statement = u'%' };

/// A like-pattern, folded: texts between wildcards.
class LikePattern {
 public:
  LikePattern() = default;
  LikePattern(const QString& pattern, Wildcard wildcard);

  /// Whether the whole folded text fits.
  bool matches(std::u16string_view folded) const;
  /// The text of a pattern of the form "*text*" without other wildcards, to be sought in one pass.
  const std::u16string* contained() const { return m_contained ? &m_literal : nullptr; }

 private:
  std::u16string m_units;  ///< folded letters; wildcards as kAnyRun and kAnyOne
  std::u16string m_literal;
  bool m_contained = false;
};

enum class Comparison { Equal, NotEqual, Less, LessOrEqual, Greater, GreaterOrEqual, Like };

/// One term "<column> <comparison> <value>".
struct Term {
  QString column;
  Comparison comparison;
  QString value;
  LikePattern pattern;
};

/// One key of an order.
struct SortKey {
  QString column;
  bool descending = false;
};
using Order = std::vector<SortKey>;

/// Criteria of the closed query subset: terms joined by "or" and "and", where "and" binds closer, and an
/// order behind them. No terms: every row.
struct Criteria {
  std::vector<std::vector<Term>> anyOf;  ///< any of these groups, of which all terms must hold
  Order order;
};

/// Reads criteria as "氏名 like '*text*' order by ID". A value between quotes is not escaped: a quote inside
/// it ends it early, and what follows gives the engine's text for a wrong query.
Result<Criteria> parseCriteria(const QString& text, Wildcard wildcard = Wildcard::RowSet);
/// Reads "<column> ASC", "<column> DESC" or a comma-separated list of such.
Result<Order> parseOrder(const QString& text);

/// The columns that criteria need in memory; an unknown one is a fault.
Result<QVector<int>> searchedColumns(const Criteria& criteria, const TableSchema& schema);

/// Numbers, in ID order, of the rows of the memory copy that fit; among these rows where some are given.
std::vector<uint32_t> fittingRows(const Criteria& criteria, const TableCopy& copy,
                                  const std::vector<uint32_t>* among);

/// Whether one text fits one term of criteria, as a column of texts.
bool fits(const Term& term, std::u16string_view folded, bool null);

}  // namespace store
