#include "records/screens/patient_list_screen.h"

#include <cmath>

#include "frame/core/routes.h"
#include "platform/text/utf16.h"
#include "printing/contract/hand_print.h"
#include "records/screens/patient_list_rows.h"

namespace records {

using namespace Qt::Literals::StringLiterals;
using namespace patient_list_rows;

namespace {

constexpr double kTenths = 10;  // type sizes go to the engine as tenths of a millimetre

}  // namespace

PatientListScreen::PatientListScreen(screen::Services& services, frame::RunState& run,
                                     report::ReportOperations& engine)
    : ListScreen(kDeclaration, services), m_run(run), m_engine(engine) {}

void PatientListScreen::onLoad() {
  setShown(kSerial, false);
  openWhole();
}

QStringList PatientListScreen::openingTexts() const { return QStringList{windowTitle()} + countOnView(); }

QStringList PatientListScreen::countOnView() const { return {caption(kCount), text(kCount)}; }

bool PatientListScreen::openWhole() { return source().open(m_run.folders[frame::folder::kPatients]); }

QString PatientListScreen::noRowsToSortText() const { return text::utf16(screen::kNoRowsOfMembersText); }

void PatientListScreen::rowShown(int) {
  setText(kCount, QString::number(source().isOpen() ? source().rows().recordCount() : 0));
  setText(kPosition, source().positionText());
}

QStringList PatientListScreen::rowOnView() const {
  if (!holdsRows()) return countOnView();
  return {text(kPosition), source().rows().value(patients::name)};
}

void PatientListScreen::showAll() {
  if (openWhole() && !emptySet()) tellResult(u"全患者を表示しました"_s);
}

void PatientListScreen::handOver() {
  if (emptySet()) return;
  const store::RecordSet& rows = source().rows();
  const QString name = rows.value(patients::name);
  if (Screen* dialog = navigator().loaded(routes::PatientSearch::screen))
    dialog->opened(routes::PatientSearch{.name = name});
  const qint64 id = rows.value(patients::id).toLongLong();
  navigator().show(routes::PatientRegister{routes::PatientRegister::Listed{.id = id, .name = name}});
}

// ---- Labels ----

LabelAddress PatientListScreen::addressAt(int position) const {
  const store::RecordSet& rows = source().rows();
  const auto value = [&](const store::Column& column) { return rows.valueAt(position, column); };
  return {value(patients::zip),
          {value(patients::address[1]), value(patients::address[2]), value(patients::address[3])},
          value(patients::name)};
}

void PatientListScreen::drawSheet(report::ReportOperations& paper, int sheet) const {
  paper.PR_SetMargin(0, 0);
  paper.PR_SetScale();
  paper.PR_SetFont(text::utf16(label::kFont));
  const int first = sheet * label::kPerSheet;
  const int last = std::min(first + label::kPerSheet, source().rows().recordCount());
  for (int position = first; position < last; ++position) {
    for (const LabelLine& line : labelLines(addressAt(position), position - first)) {
      paper.PR_SetFontSize(static_cast<int>(std::floor(line.size * kTenths)));
      paper.PR_Output(static_cast<float>(line.x), static_cast<float>(line.y), line.text);
    }
  }
}

void PatientListScreen::printLabels() {
  if (emptySet()) return;
  const int labels = source().rows().recordCount();
  const auto ask = [this] {
    return messages().ask(
        u"現在、表示の患者を全てタック印刷を行います。シートをプリンタにセットして下さい。"_s);
  };
  const printing::RunEnd end = printing::runHandPrint(
      m_engine, {.prompt = ask,
                 .window = static_cast<quintptr>(winId()),
                 .title = u"タック印刷"_s,
                 .pages = labelSheets(labels),
                 .draw = [this](report::ReportOperations& paper, int sheet) { drawSheet(paper, sheet); }});
  if (end == printing::RunEnd::NotStarted)
    messages().tell(u"タック印刷を開始できませんでした。プリンタを確認して下さい。"_s);
  if (end == printing::RunEnd::Printed)
    voice().speakText(u"タック印刷をしました"_s + voice::kSpeechSeparator + QString::number(labels) +
                      u"枚"_s);
}

}  // namespace records
