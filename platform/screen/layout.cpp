#include "platform/screen/layout.h"

#include <QtWidgets/QtWidgets>

namespace screen {
namespace {

constexpr int kGap = 6;
/// Up to so many fields in a line follow their labels, more of them are placed below.
constexpr int kBesideAtMost = 3;

QGridLayout* gridOf(QWidget* host, int margin) {
  auto* grid = new QGridLayout(host);
  grid->setContentsMargins(margin, margin, margin, margin);
  grid->setHorizontalSpacing(kGap);
  grid->setVerticalSpacing(kGap);
  return grid;
}

/// Width in pixels of the display, without the panels of the desktop.
int displayWidth() {
  const QScreen* display = QGuiApplication::primaryScreen();
  return display ? display->availableGeometry().width() : 1280;
}

}  // namespace

int fittingColumns(int declared, int character, int display) {
  constexpr double kDefaultCharactersInARow = 1280.0 / 13;
  const double share = static_cast<double>(display) / character / kDefaultCharactersInARow;
  return std::clamp(static_cast<int>(std::ceil(declared * share - 0.5)), 1, declared);
}

int fittingColumns(int declared) {
  return fittingColumns(declared, QFontMetrics(QApplication::font()).horizontalAdvance(u'あ'),
                        displayWidth());
}

QString wrapped(const QString& text, int charactersInALine) {
  QString lines;
  for (qsizetype at = 0; at < text.size(); at += charactersInALine)
    lines += (at > 0 ? QStringLiteral("\n") : QString()) + text.mid(at, charactersInALine);
  return lines;
}

QString wrapped(const QString& text) {
  constexpr double kShareOfDisplay = 0.85;
  const int character = QFontMetrics(QApplication::font()).horizontalAdvance(u'あ');
  return wrapped(text, static_cast<int>(kShareOfDisplay * displayWidth() / character));
}

void fitWidth(QWidget* field, int characters) {
  const int character = field->fontMetrics().horizontalAdvance(u'あ');
  const int shown = std::clamp(characters, 2, 40);
  // A field declared wider than any text of a person holds paths and lists, half-width for the most part: it
  // is seen whole.
  const int whole = characters > shown ? characters / 2 : std::min(shown, 8);
  field->setMinimumWidth(whole * character + character);
  if (characters < 12) field->setMaximumWidth(std::max(4, 2 * characters) * character + 2 * character);
}

void fitMemo(QWidget* field, int characters, int lines) {
  const QFontMetrics metrics = field->fontMetrics();
  field->setMinimumWidth(std::clamp(characters, 12, 40) * metrics.horizontalAdvance(u'あ'));
  field->setMinimumHeight(lines * metrics.lineSpacing() + 2 * kGap);
  field->setMaximumHeight((lines + 2) * metrics.lineSpacing() + 2 * kGap);
}

Shelf::Shelf(QWidget* host, int columns)
    : m_host(host), m_grid(gridOf(host, kGap)), m_columns(fittingColumns(std::max(1, columns))) {
  for (int i = 0; i < m_columns; ++i) m_grid->setColumnStretch(2 * i + 1, 1);
}

void Shelf::addField(QLabel* label, QWidget* field) {
  if (m_at == m_columns) newLine();
  m_grid->addWidget(label, m_line, 2 * m_at, Qt::AlignRight | Qt::AlignVCenter);
  m_grid->addWidget(field, m_line, 2 * m_at + 1);
  ++m_at;
}

void Shelf::addSingle(QWidget* widget) {
  if (m_at == m_columns) newLine();
  m_grid->addWidget(widget, m_line, 2 * m_at, 1, 2);
  ++m_at;
}

void Shelf::addWideField(QLabel* label, QWidget* field) {
  if (m_at > 0) newLine();
  m_grid->addWidget(label, m_line, 0, Qt::AlignRight | Qt::AlignTop);
  m_grid->addWidget(field, m_line, 1, 1, 2 * m_columns - 1);
  m_at = m_columns;
}

void Shelf::addWide(QWidget* widget, bool grows) {
  if (m_at > 0) newLine();
  m_grid->addWidget(widget, m_line, 0, 1, 2 * m_columns);
  m_grid->setRowStretch(m_line, grows ? 1 : 0);
  m_grows = m_grows || grows;
  m_at = m_columns;
}

void Shelf::close() {
  newLine();
  if (!m_grows) m_grid->setRowStretch(m_line, 1);
}

void Shelf::newLine() {
  ++m_line;
  m_at = 0;
}

Flow::Flow(QWidget* host) : m_host(host), m_lines(new QVBoxLayout(host)), m_width(displayWidth() - 80) {
  m_lines->setContentsMargins(kGap, 0, kGap, 0);
  m_lines->setSpacing(kGap);
}

void Flow::add(QWidget* widget) {
  const int wanted = widget->sizeHint().width() + kGap;
  if (!m_line || m_used + wanted > m_width) {
    m_line = new QHBoxLayout;
    m_line->setSpacing(kGap);
    m_line->addStretch(1);
    m_lines->addLayout(m_line);
    m_used = m_at = 0;
  }
  m_line->insertWidget(m_at++, widget);
  m_used += wanted;
}

Family::Family(QWidget* host, int perLine)
    : m_grid(gridOf(host, 0)),
      m_perLine(fittingColumns(std::max(1, perLine))),
      m_labelsBeside(perLine <= kBesideAtMost) {
  // A field that has the line for itself takes what is left of it.
  m_grid->setColumnStretch(perLine <= 1 ? 1 : m_labelsBeside ? 2 * m_perLine : m_perLine, 1);
}

void Family::add(QLabel* label, QWidget* field) {
  const int line = m_count / m_perLine, column = m_count % m_perLine;
  ++m_count;
  if (m_labelsBeside) {
    m_grid->addWidget(label, line, 2 * column, Qt::AlignRight | Qt::AlignVCenter);
    const bool bounded = field->maximumWidth() < QWIDGETSIZE_MAX;
    m_grid->addWidget(field, line, 2 * column + 1, bounded ? Qt::AlignLeft : Qt::Alignment());
    return;
  }
  m_grid->addWidget(label, 2 * line, column, Qt::AlignLeft | Qt::AlignBottom);
  m_grid->addWidget(field, 2 * line + 1, column, Qt::AlignLeft);
}

}  // namespace screen
