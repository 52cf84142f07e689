#include "platform/screen/control_text.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/layout.h"

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

LineControl::LineControl(Screen& screen, const ControlName& name, const QString& caption, int offset,
                         QWidget* parent)
    : Control(screen, name, caption, offset), m_edit(new QLineEdit(parent)) {
  m_edit->setObjectName(m_name);
  QObject::connect(m_edit, &QLineEdit::textChanged, m_edit, [this] { edited(); });
}

QWidget* LineControl::widget() const { return m_edit; }

QString LineControl::text() const { return m_edit->text(); }

void LineControl::setLook(int limit, int width, bool readOnly) {
  m_edit->setMaxLength(1 << 20);  // the validator counts characters, the toolkit would count halves of pairs
  m_edit->setValidator(new LimitValidator(m_edit, limit));
  m_edit->setReadOnly(readOnly);
  fitWidth(m_edit, std::min(width, limit));
}

void LineControl::showText(const QString& text) {
  auto* validator = static_cast<LimitValidator*>(const_cast<QValidator*>(m_edit->validator()));
  if (validator) validator->setFree(true);
  m_edit->setText(text);
  m_edit->setCursorPosition(0);
  if (validator) validator->setFree(false);
}

MemoControl::MemoControl(Screen& screen, const ControlName& name, const QString& caption, QWidget* parent)
    : Control(screen, name, caption), m_edit(new QPlainTextEdit(parent)) {
  m_edit->setObjectName(m_name);
  m_edit->setTabChangesFocus(true);
  QObject::connect(m_edit, &QPlainTextEdit::textChanged, m_edit, [this] { changedByUser(); });
}

QWidget* MemoControl::widget() const { return m_edit; }

QString MemoControl::text() const {
  // Not toPlainText(): it turns the no-break space into a blank.
  QString text = m_edit->document()->toRawText();
  text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
  return m_carriageReturns ? text.replace(QLatin1String("\n"), QLatin1String("\r\n")) : text;
}

void MemoControl::setLook(int limit, int width, int lines, bool readOnly) {
  m_limit = limit;
  m_edit->setReadOnly(readOnly);
  fitMemo(m_edit, width, lines);
}

void MemoControl::showText(const QString& text) {
  m_carriageReturns = text.contains(QLatin1String("\r\n"));
  QString shown = text;
  m_edit->setPlainText(shown.replace(QLatin1String("\r\n"), QLatin1String("\n")));
  m_countBefore = characterCount(this->text());
}

void MemoControl::changedByUser() {
  if (isQuiet()) return;
  quietly([this] { cutToLimit(); });
  m_countBefore = characterCount(text());
  edited();
}

void MemoControl::cutToLimit() {
  for (int surplus = characterCount(text()) - std::max(m_limit, m_countBefore); surplus > 0; --surplus) {
    QTextCursor cursor = m_edit->textCursor();
    if (cursor.atStart()) return;
    cursor.deletePreviousChar();
  }
}

}  // namespace screen
