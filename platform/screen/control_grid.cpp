#include "platform/screen/control_grid.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/captions.h"
#include "platform/screen/data_source.h"
#include "platform/screen/grid_model.h"
#include "platform/screen/grid_view.h"
#include "platform/voice/voice_guide.h"

namespace screen {

GridControl::GridControl(Screen& screen, const Grid& row, DataSource& source, QWidget* parent,
                         voice::VoiceGuide& voice)
    : Control(screen, row.name, QString::fromUtf16(row.caption.get())),
      m_source(source),
      m_number(row.source),
      m_view(new GridView(parent)),
      m_model(new GridModel(source.rows(), row.columns, m_view)),
      m_voice(voice) {
  m_view->setObjectName(m_name);
  m_view->setModel(m_model);
  m_onEnter = row.onActivate;
  m_onEdit = row.onMove;
  say(row.say);
  nameWidgets();
  QObject::connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, m_view,
                   [this](const QModelIndex& now, const QModelIndex& before) {
                     if (!isQuiet() && now.isValid()) cellReached(now.row(), before.row());
                   });
  QObject::connect(m_view, &QTableView::doubleClicked, m_view, [this] { enter(); });
}

QWidget* GridControl::widget() const { return m_view; }

void GridControl::speak(voice::VoiceGuide& voice, QWidget*) const {
  const QString heading = m_say.isEmpty() ? spokenCaption(m_caption) : m_say;
  voice.speakFocus(heading + voice::kSpeechSeparator + cellSpeech(), true);
}

bool GridControl::enter() { return m_view->currentIndex().isValid() && fire(m_onEnter); }

QString GridControl::text() const {
  const QModelIndex index = m_view->currentIndex();
  return m_model->cell(index.row(), index.column());
}

void GridControl::follow() {
  quietly([this] {
    const int column = std::max(0, m_view->currentIndex().column());
    m_model->follow();
    if (m_model->rowCount() == 0) return;
    if (!std::exchange(m_fitted, true)) m_view->fitColumns();
    const int row = m_source.rows().absolutePosition();
    if (row >= 0) m_view->setCurrentIndex(m_model->index(row, column));
  });
}

void GridControl::cellReached(int row, int rowBefore) {
  if (row != rowBefore) {
    if (!m_source.moveTo(row)) return follow();
    edited();
  }
  if (m_view->hasFocus()) m_voice.speakFocus(cellSpeech(), true);
}

QString GridControl::cellSpeech() const {
  const QModelIndex index = m_view->currentIndex();
  if (!index.isValid()) return {};
  return spokenCaption(m_model->columnCaption(index.column())) + voice::kSpeechSeparator + text();
}

}  // namespace screen
