#include "platform/screen/text_limit.h"

#include <QtWidgets/QtWidgets>

namespace screen {
namespace {

/// Removes the last `surplus` characters before `cursor`, whole pairs only.
void cutBefore(QString& text, int& cursor, int surplus) {
  for (; surplus > 0 && cursor > 0; --surplus) {
    const int units = cursor > 1 && text.at(cursor - 1).isLowSurrogate() ? 2 : 1;
    text.remove(cursor - units, units);
    cursor -= units;
  }
}

/// Holds a field to its limit in characters. What is typed or pasted beyond it is not taken; a stored text
/// that is longer already is shown whole and may only get shorter.
class LimitValidator : public QValidator {
 public:
  LimitValidator(QLineEdit* edit, int limit) : QValidator(edit), m_limit(limit) {
    connect(edit, &QLineEdit::textChanged, this, [this, edit] { m_before = characterCount(edit->text()); });
  }
  State validate(QString& text, int& cursor) const override {
    if (!m_free) cutBefore(text, cursor, characterCount(text) - std::max(m_limit, m_before));
    return Acceptable;
  }
  void setFree(bool free) { m_free = free; }

 private:
  int m_limit;
  int m_before = 0;
  bool m_free = false;
};

}  // namespace

int characterCount(const QString& text) {
  return static_cast<int>(
      std::count_if(text.begin(), text.end(), [](QChar c) { return !c.isLowSurrogate(); }));
}

void holdToLimit(QLineEdit* edit, int limit) {
  edit->setMaxLength(1 << 20);  // the toolkit would count the halves of surrogate pairs
  edit->setValidator(new LimitValidator(edit, limit));
}

void showWhole(QLineEdit* edit, const QString& text) {
  auto* limit = dynamic_cast<LimitValidator*>(const_cast<QValidator*>(edit->validator()));
  if (limit) limit->setFree(true);
  edit->setText(text);
  if (limit) limit->setFree(false);
}

}  // namespace screen
