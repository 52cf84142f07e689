#include "claims/core/area_boxes.h"
#include "claims/core/day_codes.h"
#include "claims/core/new_claim.h"
#include "claims/screens/claim_form_screen.h"
#include "claims/screens/claim_form_texts.h"
#include "frame/core/routes.h"
#include "platform/store/tables/claims.h"

// Fields of the form: checks on leaving, siblings of the lists, ticks with a word of their own.

namespace claims {

namespace {

QString member(const char16_t* family, int index) {
  return QStringLiteral("%1(%2)").arg(QString::fromUtf16(family)).arg(index);
}

/// Dates that 西暦 and 和暦 turn. 生年月日 of the patient register stays: it joins the claim to the patient.
constexpr const char16_t* kDates[] = {u"被保険者の生年月日", u"療養を受ける者の生年月日", u"初療年月日",
                                      u"同意の年月日", u"実際の同意の年月日"};

/// Whether the days of the month hold more than one number of massage areas.
bool areasDiffer(const ClaimRecord& claim) {
  QSet<int> numbers;
  for (int number = 1; number <= 5; ++number)
    for (int each = 1; each <= 31; ++each) {
      const DayCode code(claim.code(each));
      if (code.has(u'g', number) || code.has(u'i', number) || code.has(u'j', number)) numbers.insert(number);
    }
  return numbers.size() > 1;
}

}  // namespace

void ClaimFormScreen::codeLeft(int index) {
  const QString message =
      codeEntryMessage(text(member(u"Text5", index)), kindOf(m_read.get(claim::treatmentKind)));
  if (message.isNull()) return;
  keepFocus();
  messages().tell(message);
}

void ClaimFormScreen::visitLeft(int index) {
  const QString message = visitEntryMessage(text(member(u"Text6", index)), m_flags.isAfter202410);
  if (message.isNull()) return;
  keepFocus();
  messages().tell(message);
}

void ClaimFormScreen::gridEdited() {
  m_treatmentChanged = true;
  refillBoxes();
}

void ClaimFormScreen::refillBoxes() {
  if (kindOf(m_read.get(claim::treatmentKind)) != Kind::Massage) return;
  const AreaBoxes boxes = areaBoxes(record());
  for (int i = 0; i < int(boxes.areas.size()); ++i) setText(member(u"Text31", i), boxes.areas[size_t(i)]);
  for (int i = 0; i < int(boxes.limbs.size()); ++i) setText(member(u"Text41", i), boxes.limbs[size_t(i)]);
  applyAreaWarning(true);
}

void ClaimFormScreen::applyAreaWarning(bool spoken) {
  const QString label = QStringLiteral("LabelAreas");
  const ClaimRecord claim = record();
  const bool holds = kindOf(claim.get(claim::treatmentKind)) == Kind::Massage && areasDiffer(claim);
  if (holds && spoken && !isControlShown(label)) voice().speakText(caption(label));
  setShown(label, holds);
}

void ClaimFormScreen::insurerNumberLeft() {
  const QString message =
      insurerNumberMessage(text(QStringLiteral("Combo1(1)")), text(QStringLiteral("Combo1(4)")));
  if (!message.isNull()) messages().tell(message);
}

void ClaimFormScreen::insurerNameChosen() {
  fillSiblings(3, u"保険者名称", kInsurerRegister, m_lists.insurers);
}

void ClaimFormScreen::insurerNumberChosen() {
  fillSiblings(4, u"保険者番号", kInsurerRegister, m_lists.insurers);
}

void ClaimFormScreen::doctorChosen() { fillSiblings(24, u"同意医師氏名", kDoctorRegister, m_lists.doctors); }

// The list position decides: two entries of one name are two rows of the register.
void ClaimFormScreen::fillSiblings(int combo, const char16_t* column, const Register& list,
                                   const RegisterRows& rows) {
  const int position = chosenItem(member(u"Combo1", combo));
  if (position < 0 || position >= rows.size()) return;  // typed, or the sentence of an empty register
  QStringList brought;
  for (size_t field = 0; field < list.fields.size(); ++field) {
    const QString sibling = QString::fromUtf16(list.fields[field].claimColumn);
    if (sibling == QStringView(column)) continue;
    const QString value = rows[position][qsizetype(field)];
    put(sibling, value);
    if (!value.isEmpty()) brought << value;
  }
  // Heard after the list has said the entry itself: it tells two entries of one name apart.
  const auto tell = [this, brought] { voice().speakText(brought.join(voice::kSpeechSeparator)); };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void ClaimFormScreen::consentReceiverToggled() {
  if (!checked(QStringLiteral("chkFields(20)")) && !checked(QStringLiteral("chkFields(21)")))
    messages().tell(QString::fromUtf16(kConsentTicksMessage));
}

void ClaimFormScreen::reportToggled() {
  if (checked(QStringLiteral("Check11"))) messages().tell(QString::fromUtf16(kReportTickMessage));
}

void ClaimFormScreen::itemsOnlyToggled() {
  if (checked(QStringLiteral("Check13")) && !m_run.itemsOnlyNoteSilenced)
    navigator().show(routes::ItemsOnlyNote{});
}

void ClaimFormScreen::datesToWestern() {
  convertDates(&frame::EraDates::seireki);
  voice().speakText(QString::fromUtf16(says::kWesternDone));
}

void ClaimFormScreen::datesToEra() {
  convertDates(&frame::EraDates::wareki);
  voice().speakText(QString::fromUtf16(says::kEraDone));
}

void ClaimFormScreen::convertDates(QString (frame::EraDates::*conversion)(const QString&) const) {
  const frame::EraDates era = m_run.eraDates();
  const ClaimRecord claim = record();
  for (const char16_t* date : kDates) {
    const QString column = QString::fromUtf16(date);
    if (!claim.blank(column)) put(column, (era.*conversion)(claim.get(column)));
  }
}

void ClaimFormScreen::clearAgent() {
  if (!messages().ask(QString::fromUtf16(says::kClearAgentQuestion))) return;
  for (const char16_t* column : representativeColumns()) put(QString::fromUtf16(column), QString());
}

}  // namespace claims
