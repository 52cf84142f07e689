#include "platform/screen/control_text.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/layout.h"
#include "platform/screen/text_limit.h"

namespace screen {
LineControl::LineControl(Screen& screen, const ControlName& name, const QString& caption, int offset,
                         QWidget* parent)
    : Control(screen, name, caption, offset), m_edit(new QLineEdit(parent)) {
  m_edit->setObjectName(m_name);
  QObject::connect(m_edit, &QLineEdit::textChanged, m_edit, [this] { edited(); });
}

QWidget* LineControl::widget() const { return m_edit; }

QString LineControl::text() const { return m_edit->text(); }

void LineControl::setLook(int limit, int width, bool readOnly) {
  holdToLimit(m_edit, limit);
  m_edit->setReadOnly(readOnly);
  fitWidth(m_edit, std::min(width, limit));
}

void LineControl::showText(const QString& text) {
  showWhole(m_edit, text);
  m_edit->setCursorPosition(0);
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
