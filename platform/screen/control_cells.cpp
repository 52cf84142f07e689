#include "platform/screen/control_cells.h"

#include <QtWidgets/QtWidgets>

#include "platform/screen/captions.h"
#include "platform/screen/cell_model.h"
#include "platform/screen/grid_view.h"
#include "platform/voice/voice_guide.h"

namespace screen {

CellsControl::CellsControl(Screen& screen, const ControlName& name, const Words& caption, QWidget* parent,
                           voice::VoiceGuide& voice)
    : Control(screen, name, QString::fromUtf16(caption.get())), m_view(new GridView(parent)), m_voice(voice) {
  m_view->setObjectName(m_name);
}

void CellsControl::show(CellModel& model) {
  m_model = &model;
  m_view->setModel(m_model);
  nameWidgets();
  QObject::connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, m_view,
                   [this](const QModelIndex& now, const QModelIndex& before) {
                     if (!isQuiet() && now.isValid()) cellReached(now.row(), before.row());
                   });
  QObject::connect(m_view, &QTableView::doubleClicked, m_view, [this] { enter(); });
}

QWidget* CellsControl::widget() const { return m_view; }

void CellsControl::speak(voice::VoiceGuide& voice, QWidget*) const {
  const QString heading = m_say.isEmpty() ? spokenCaption(m_caption) : m_say;
  voice.speakFocus(heading + voice::kSpeechSeparator + cellSpeech(), true);
}

bool CellsControl::enter() { return m_view->currentIndex().isValid() && fire(m_onEnter); }

QString CellsControl::text() const {
  const QModelIndex index = m_view->currentIndex();
  return m_model->cell(index.row(), index.column());
}

void CellsControl::standOn(int row) {
  const int column = std::max(0, m_view->currentIndex().column());
  if (m_model->rowCount() == 0) return;
  if (!std::exchange(m_fitted, true)) m_view->fitColumns();
  if (row >= 0) quietly([&] { m_view->setCurrentIndex(m_model->index(row, column)); });
}

void CellsControl::cellReached(int row, int rowBefore) {
  if (row != rowBefore) {
    if (!rowReached(row)) return follow();
    edited();
  }
  if (m_view->hasFocus()) m_voice.speakFocus(cellSpeech(), true);
}

QString CellsControl::cellSpeech() const {
  const QModelIndex index = m_view->currentIndex();
  if (!index.isValid()) return {};
  return spokenCaption(m_model->columnCaption(index.column())) + voice::kSpeechSeparator + text();
}

}  // namespace screen
