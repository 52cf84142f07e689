#include <QFileInfo>

#include "claims/core/kinds.h"
#include "claims/screens/claim_form_screen.h"
#include "claims/screens/claim_form_texts.h"
#include "platform/store/tables/claims.h"

// The screens that open from the claim form.

namespace claims {

namespace {

/// A command that does nothing but open another screen on the claim.
struct Beside {
  const char16_t* command;
  const char16_t* screen;
  bool prints;  ///< stopped by the dirty marks, as all printing is
};

constexpr Beside kBeside[] = {
    {u"Command22", u"領収証選択", true},
    {u"Command30", u"頻回の理由と計画書", true},
    {u"Command34", u"新摘要欄", false},
    {u"Command33", u"メモデータ変換", false},
    {u"Command8", u"往療時の住所代入", false},
    {u"Command19", u"往療時の日付代入", false},
    {u"Command25", u"往療起点への住所代入", false},
    {u"Command26", u"往療起点の登録の表示", false},
    {u"Command20", u"往療行程の記入の仕方", false},
    {u"Command14", u"登録3", false},
    {u"Command12", u"登録2", false},
};

}  // namespace

void ClaimFormScreen::showHelp() {
  applyMonth();
  navigator().show(m_flags.isAfter202410   ? QStringLiteral("記入の仕方2024")
                   : m_flags.isAfter202012 ? QStringLiteral("記入の仕方2018")
                                           : QStringLiteral("記入の仕方"));
}

void ClaimFormScreen::openSingle(const QString& name, bool since201810) {
  if (m_id == 0) return;
  applyMonth();
  if (dirty()) return;
  if (since201810 && m_flags.month && !m_flags.isAfter201810)
    return messages().tell(QString::fromUtf16(says::kClosedBefore2018));
  const QStringList open = openWindows();
  if (open.contains(name))
    return messages().tell(openWindowMessage({name}) + QString::fromUtf16(says::kTwice));
  if (const QString message = openWindowMessage(open); !message.isNull()) {
    m_state.claimCheck = QStringLiteral("break");
    return messages().tell(message);
  }
  navigator().show(name, {{QStringLiteral("ID"), m_id}});
}

void ClaimFormScreen::openBeside() {
  if (m_id == 0) return;
  for (const Beside& row : kBeside) {
    if (runningCommand() != QString::fromUtf16(row.command)) continue;
    if (row.prints && dirty()) return;
    navigator().show(QString::fromUtf16(row.screen), {{QStringLiteral("ID"), m_id}});
  }
}

void ClaimFormScreen::openReport() { openSingle(QStringLiteral("施術報告書"), true); }
void ClaimFormScreen::openVisitTable() { openSingle(QStringLiteral("往療内訳表"), true); }
void ClaimFormScreen::openReasons() {
  const bool massage = kindOf(m_read.get(claim::treatmentKind)) == Kind::Massage;
  openSingle(massage ? QStringLiteral("frm1年16回以上印刷マ") : QStringLiteral("frm1年16回以上印刷は"),
             false);
}

void ClaimFormScreen::openPictureChart() {
  if (m_id == 0) return;
  const QString serial = m_read.get(claim::patientSerial);
  const screen::Request patient = {{QStringLiteral("テキスト5"), serial}};
  navigator().show(QStringLiteral("治療台帳4"), patient);
  const QString picture =
      m_run.folders[frame::folder::kPictures] + QLatin1Char('/') + serial + QStringLiteral("01.bmp");
  if (QFileInfo::exists(picture)) return;
  if (messages().ask(QString::fromUtf16(says::kNewPictureQuestion)))
    navigator().show(QStringLiteral("GEDIT"), patient);
}

void ClaimFormScreen::speakPrintGuide() {
  QStringList texts;
  for (const char16_t* note : {u"LabelGuide(0)", u"LabelGuide(1)", u"LabelGuide(2)"})
    if (isControlShown(QString::fromUtf16(note))) texts << caption(QString::fromUtf16(note));
  if (isControlShown(QStringLiteral("LabelClosed"))) texts << caption(QStringLiteral("LabelClosed"));
  voice().speakHeading(texts);
}

}  // namespace claims
