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
  if (emptySet() || !source().ensureRead()) return;
  const store::RecordSet& rows = source().rows();
  const QString name = rows.value(patients::name);
  if (Screen* dialog = navigator().loaded(routes::PatientSearch::screen))
    dialog->opened(routes::PatientSearch{.name = name});
  const qint64 id = rows.value(patients::id).toLongLong();
  navigator().show(routes::PatientRegister{routes::PatientRegister::Listed{.id = id, .name = name}});
}

// ---- Labels ----

text::Result<QList<LabelAddress>> PatientListScreen::addresses() const {
  const store::RecordSet& rows = source().rows();
  std::optional<text::Fault> fault;
  QList<LabelAddress> all;
  for (int position = 0; position < rows.recordCount() && !fault; ++position) {
    const auto value = [&](const store::Column& column) {
      const text::Result<QString> read = rows.readAt(position, column);
      if (!read) fault = read.fault();
      return read ? *read : QString();
    };
    all += {value(patients::zip),
            {value(patients::address[1]), value(patients::address[2]), value(patients::address[3])},
            value(patients::name)};
  }
  if (fault) return *fault;
  return all;
}

void PatientListScreen::drawSheet(report::ReportOperations& paper, const QList<LabelAddress>& all,
                                  int sheet) {
  paper.PR_SetMargin(0, 0);
  paper.PR_SetScale();
  paper.PR_SetFont(text::utf16(label::kFont));
  const int first = sheet * label::kPerSheet;
  const int last = std::min(first + label::kPerSheet, static_cast<int>(all.size()));
  for (int position = first; position < last; ++position) {
    for (const LabelLine& line : labelLines(all[position], position - first)) {
      paper.PR_SetFontSize(static_cast<int>(std::floor(line.size * kTenths)));
      paper.PR_Output(static_cast<float>(line.x), static_cast<float>(line.y), line.text);
    }
  }
}

void PatientListScreen::printLabels() {
  if (emptySet()) return;
  const int labels = source().rows().recordCount();
  QList<LabelAddress> all;
  // All are read before the first sheet: a sheet must not go out with a blank label.
  const auto askAndRead = [&] {
    if (!messages().ask(
            u"現在、表示の患者を全てタック印刷を行います。シートをプリンタにセットして下さい。"_s))
      return false;
    auto read = addresses();
    if (!read) messages().tellDataFault(read.fault().message);
    if (read) all = std::move(*read);
    return read.ok();
  };
  const printing::RunEnd end = printing::runHandPrint(
      m_engine, {.prompt = askAndRead,
                 .window = static_cast<quintptr>(winId()),
                 .title = u"タック印刷"_s,
                 .pages = labelSheets(labels),
                 .draw = [&](report::ReportOperations& paper, int sheet) { drawSheet(paper, all, sheet); }});
  if (end == printing::RunEnd::NotStarted)
    messages().tell(u"タック印刷を開始できませんでした。プリンタを確認して下さい。"_s);
  if (end == printing::RunEnd::NotTaken) messages().tell(m_engine.lastDocument().fault().message);
  if (end == printing::RunEnd::Printed)
    voice().speakText(u"タック印刷をしました"_s + voice::kSpeechSeparator + QString::number(labels) +
                      u"枚"_s);
}

}  // namespace records
