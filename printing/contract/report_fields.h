#pragma once

#include <QString>
#include <QStringView>
#include <span>

#include "platform/report/report_operations.h"

namespace printing {

/// One size of a place: takes texts of up to this many characters.
struct Variant {
  int upTo;  ///< inclusive; kAnyLength for the size that takes all the rest
  const char16_t* item;
};
inline constexpr int kAnyLength = 1 << 20;

/// Writes values into the items of the loaded template by the rules that all forms share: an item is set
/// visible and then given its text, and an empty value leaves its item as the template stores it, so that
/// nothing prints.
class ReportFields {
 public:
  explicit ReportFields(report::ReportOperations& engine) : m_engine(engine) {}

  /// Shows the item with the text; nothing for an empty text. Serves choice marks too, whose text is the
  /// word to be circled.
  void show(QStringView item, const QString& text);
  /// Shows an item without text: a circle, an ellipse, a stored label.
  void mark(QStringView item);
  void markIf(bool wanted, QStringView item);
  void hide(QStringView item);
  /// One character a box: `<stem><i>`, i counted from 1 at the left. A blank leaves its box alone, and what
  /// is longer than the row of boxes is not printed.
  void digits(QStringView stem, const QString& text, int boxes, int firstBox = 1);
  /// Shows the text in the first size that takes its length. Returns false for an empty text and for one
  /// that no size takes.
  bool variant(std::span<const Variant> sizes, const QString& text);
  /// Hides the printed frame for paper that is printed already: `waku_<n>`, `Box<n>`, `Line<n>`, `Text<n>`,
  /// n from 1 to 1000. Most of these names are in no template, which is expected.
  void hideFrame();

 private:
  report::ReportOperations& m_engine;
};

}  // namespace printing
