#include "records/screens/patient_list_screen.h"

#include <cmath>

#include "frame/core/routes.h"
#include "printing/contract/hand_print.h"
#include "records/screens/patient_list_rows.h"

namespace records {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kLabelQuestion =
    u"現在、表示の患者を全てタック印刷を行います。シートをプリンタにセットして下さい。"_s;
const QString kLabelTitle = u"タック印刷"_s;
const QString kNotPrinted = u"タック印刷を開始できませんでした。プリンタを確認して下さい。"_s;

constexpr double kTenths = 10;  // type sizes go to the engine as tenths of a millimetre

}  // namespace

PatientListScreen::PatientListScreen(screen::Services& services, frame::RunState& run,
                                     report::ReportOperations& engine)
    : ListScreen(kPatientListDeclaration, services), m_run(run), m_engine(engine) {}

void PatientListScreen::onLoad() {
  setShown(u"Text1"_s, false);
  openWhole();
}

QStringList PatientListScreen::openingTexts() const { return QStringList{windowTitle()} + countOnView(); }

QStringList PatientListScreen::countOnView() const { return {caption(u"Text2"_s), text(u"Text2"_s)}; }

bool PatientListScreen::openWhole() { return source().open(m_run.folders[frame::folder::kPatients]); }

QString PatientListScreen::noRowsToSortText() const {
  return QString::fromUtf16(screen::kNoRowsOfMembersText);
}

void PatientListScreen::rowShown(int) {
  setText(u"Text2"_s, QString::number(source().isOpen() ? source().rows().recordCount() : 0));
  setText(u"Text3"_s, source().positionText());
}

QStringList PatientListScreen::rowOnView() const {
  if (!holdsRows()) return countOnView();
  return {text(u"Text3"_s), source().rows().value(u"氏名"_s)};
}

void PatientListScreen::showAll() {
  if (openWhole() && !emptySet()) tellResult(u"全患者を表示しました"_s);
}

void PatientListScreen::handOver() {
  if (emptySet()) return;
  const store::RecordSet& rows = source().rows();
  const QString name = rows.value(u"氏名"_s);
  if (Screen* dialog = navigator().loaded(routes::PatientSearch::screen)) dialog->opened({{u"氏名"_s, name}});
  navigator().show(u"治療台帳4"_s, {{u"ID"_s, rows.value(u"ID"_s)}, {u"氏名"_s, name}});
}

// ---- Labels ----

LabelAddress PatientListScreen::addressAt(int position) const {
  const store::RecordSet& rows = source().rows();
  const auto value = [&](const QString& column) { return rows.valueAt(position, column); };
  return {value(u"郵便番号"_s), {value(u"住所1"_s), value(u"住所2"_s), value(u"住所3"_s)}, value(u"氏名"_s)};
}

void PatientListScreen::drawSheet(report::ReportOperations& paper, int sheet) const {
  paper.PR_SetMargin(0, 0);
  paper.PR_SetScale();
  paper.PR_SetFont(QString::fromUtf16(label::kFont));
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
  const printing::RunEnd end = printing::runHandPrint(
      m_engine, {.prompt = [this] { return messages().ask(kLabelQuestion); },
                 .window = static_cast<quintptr>(winId()),
                 .title = kLabelTitle,
                 .pages = labelSheets(labels),
                 .draw = [this](report::ReportOperations& paper, int sheet) { drawSheet(paper, sheet); }});
  if (end == printing::RunEnd::NotStarted) messages().tell(kNotPrinted);
  if (end == printing::RunEnd::Printed)
    voice().speakText(u"タック印刷をしました"_s + voice::kSpeechSeparator + QString::number(labels) +
                      u"枚"_s);
}

}  // namespace records
