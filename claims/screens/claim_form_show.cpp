#include <array>

#include "claims/core/carry_forward.h"
#include "claims/core/form_lists.h"
#include "claims/core/insurance.h"
#include "claims/core/kinds.h"
#include "claims/core/print_settings.h"
#include "claims/core/share_ticks.h"
#include "claims/screens/claim_form_applicant_rows.h"
#include "claims/screens/claim_form_consent_rows.h"
#include "claims/screens/claim_form_head_rows.h"
#include "claims/screens/claim_form_insurance_rows.h"
#include "claims/screens/claim_form_prints_rows.h"
#include "claims/screens/claim_form_settings_rows.h"
#include "claims/screens/claim_form_texts.h"
#include "claims/screens/claim_form_treatment_rows.h"
#include "platform/screen/bound_values.h"
#include "platform/screen/control_book.h"
#include "platform/screen/control_check.h"
#include "platform/text/utf16.h"

// What the form shows of a claim: the pair, the defaults on show, and what depends on kind and month.

namespace claims {

using namespace Qt::StringLiterals;
using form::on;
using screen::ref;
using text::utf16;

namespace {

constexpr std::initializer_list<int> kHalves = {1, 2};  // numbers of the sources
constexpr screen::ControlRef kMonth = on(form::kHead, claim::month);
constexpr screen::ControlRef kVisitRow = ref(form::kTreatment, u"Label9");
constexpr screen::FamilyRef kVisits = screen::family(form::kTreatment, u"Text6");
constexpr screen::FamilyRef kStarts = screen::family(form::kVisitTable, u"TextStart");
constexpr screen::FamilyRef kSameHouse = screen::family(form::kVisitTable, u"TextSame");
constexpr screen::ControlRef kShowTable = on(form::kVisitTable, claim::showVisitTable);
constexpr screen::ControlRef kAddressee = on(form::kInsurance, claim::addressee);
constexpr screen::ControlRef kFreeVisits = ref(form::kTreatment, u"Check8");
constexpr screen::ControlRef kClosedNote = ref(form::kTreatment, u"LabelClosed");
constexpr screen::ControlRef kDelegated = on(form::kPrintPage, claim::delegated);

/// Shown and hidden by the kind of treatment.
constexpr screen::ControlRef kOfAcupuncture[] = {ref(form::kHead, u"Command5"),
                                                 on(form::kTreatment, claim::electricNeedle),
                                                 on(form::kTreatment, claim::electricMoxa)};
constexpr screen::ControlRef kOfMassage[] = {ref(form::kHead, u"Command6"),
                                             on(form::kTreatment, claim::areaCount),
                                             on(form::kTreatment, claim::limbCount)};
/// Shown from 2024/10 on.
constexpr screen::ControlRef kNoTableNotes[] = {ref(form::kVisitTable, u"LabelNoTable"),
                                                ref(form::kPrints, u"LabelGuide", 2)};
/// Closed before 2018/10, with the rows of 往療内訳.
constexpr screen::ControlRef kReportFields[] = {
    kShowTable,
    on(form::kTreatment, claim::report),
    on(form::kTreatment, claim::reportTwice),
    on(form::kTreatment, claim::reportThrice),
    on(form::kVisitTable, claim::printInMargin),
    ref(form::kTreatment, u"Check17"),
    on(form::kTreatment, claim::reportDate),
    on(form::kTreatment, claim::lastReportMonth),
};
constexpr screen::ControlRef kTableFrames[] = {ref(form::kVisitTable, u"FrameStarts"),
                                               ref(form::kVisitTable, u"FrameSameHouse")};

template <std::size_t N>
QStringList toList(const std::array<const char16_t*, N>& items) {
  QStringList list;
  for (const char16_t* item : items) list << utf16(item);
  return list;
}

QStringList insuranceNames() {
  QStringList names;
  for (const InsuranceRow& row : insuranceRows()) names << utf16(row.name);
  return names;
}

}  // namespace

bool ClaimFormScreen::openSources() {
  source(1).writesOnMove = false;
  source(2).writesOnMove = false;
  if (!source(1).open(m_run.folders[frame::folder::kClaims1])) return false;
  if (!source(2).open(m_run.folders[frame::folder::kClaims2])) return false;
  auto file = ClaimFile::open(m_run.folders);
  if (!file) {
    messages().tellDataFault(file.fault().message);
    return false;
  }
  m_file.emplace(std::move(file.value()));
  auto second = store::RecordSet::open(source(2).rows().database(), utf16(claim::secondHalf.name()));
  if (!second) {
    messages().tellDataFault(second.fault().message);
    return false;
  }
  m_secondAll = std::move(second.value());
  return true;
}

void ClaimFormScreen::fillLists() {
  m_lists = ClaimFormLists::read(m_run.folders);
  for (const QString& fault : m_lists.faults) messages().tellDataFault(fault);
  const bool regional = m_run.prefectureCode == u"26";
  const std::pair<screen::ControlRef, QStringList> lists[] = {
      {on(form::kInsurance, claim::insuranceKind), insuranceNames()},
      {on(form::kInsurance, claim::printedInsurance), toList(list::kPrintedInsurance)},
      {on(form::kInsurance, claim::shareRate), toList(list::kShare)},
      {on(form::kInsurance, claim::insurerName), m_lists.insurerNames()},
      {on(form::kInsurance, claim::insurerNumber), m_lists.insurerNumbers()},
      {on(form::kInsurance, claim::insurerAddress), m_lists.insurerAddresses()},
      {on(form::kInsurance, claim::addressee), toList(list::kAddressee)},
      {on(form::kInsurance, claim::insuredSex), toList(list::kSex)},
      {on(form::kInsurance, claim::treatedSex), toList(list::kSex)},
      {on(form::kConsent, claim::workRelated), toList(list::kCause)},
      {on(form::kConsent, claim::thirdParty), toList(list::kThirdParty)},
      {on(form::kConsent, claim::hospitalised), toList(list::kHospital)},
      {on(form::kConsent, claim::consentSymptom), toList(list::kConsentSymptom)},
      {on(form::kConsent, claim::doctorName), m_lists.doctorNames()},
      {on(form::kConsent, claim::hospital), m_lists.hospitals()},
      {on(form::kConsent, claim::remark[2]), regional ? toList(list::kRegionalInsurance) : QStringList()},
      {on(form::kConsent, claim::remark[3]), regional ? toList(list::kRegionalWelfare) : QStringList()},
      {on(form::kTreatment, claim::requestKind), toList(list::kRequestKind)},
      {on(form::kTreatment, claim::outcome), toList(list::kOutcome)},
      {on(form::kTreatment, claim::visitReason), toList(list::kVisitReason)},
      {on(form::kApplicant, claim::payment), toList(list::kPayment)},
      {on(form::kApplicant, claim::deposit), toList(list::kDeposit)},
      {on(form::kApplicant, claim::bankKind), toList(list::kBankKind)},
      {on(form::kApplicant, claim::branchKind), toList(list::kBranchKind)},
      {on(form::kApplicant, claim::agentDeposit), toList(list::kDeposit)},
      {on(form::kApplicant, claim::agentBankKind), toList(list::kBankKind)},
      {on(form::kApplicant, claim::agentBranchKind), toList(list::kBranchKind)},
  };
  for (const auto& [list, items] : lists) setItems(list, items);
}

bool ClaimFormScreen::showClaim(qint64 id) {
  if (!m_file) return false;
  store::RecordSet& rows = source(1).rows();
  rows.setBookmark(id);
  if (rows.bookmark() != id) {  // made since the form was loaded
    if (const text::Done done = rows.refresh(); !done) messages().tellDataFault(done.fault().message);
    rows.setBookmark(id);
  }
  if (rows.bookmark() != id) {
    messages().tell(utf16(screen::kNotFoundText), utf16(screen::kNotFoundTitle));
    return false;
  }
  if (showPair()) return true;
  showNothing();
  return false;
}

bool ClaimFormScreen::showPair() {
  const qint64 id = source(1).rows().bookmark();
  auto second = secondHalf(id);
  if (!second) return false;
  auto read = m_file->read(id);
  if (!read) {
    messages().tellDataFault(read.fault().message);
    return false;
  }
  if (id != m_id) markCut({});  // red captions stay over a store of the claim that they belong to
  m_id = id;
  source(2).assign(std::move(*second));
  m_read = read.value();
  source(1).show();
  screen::showValues(*this, m_read.columns(), kHalves);
  setText(ref(form::kHead, u"Text9", 0), QString::number(id));
  setText(ref(form::kHead, u"Text9", 1), source(2).rows().value(claim::secondId));
  applyDefaultsOnShow();
  clearCheckChanged();
  m_treatmentChanged = false;
  m_state.display = &m_display;
  return true;
}

std::optional<store::RecordSet> ClaimFormScreen::secondHalf(qint64 id) {
  m_secondAll.setFilter(u"Id = %1"_s.arg(id));
  auto half = m_secondAll.openRecordset();
  if (half && half->recordCount() == 0) {  // a first half whose second half is missing
    text::Done repaired = m_file->repairSecond(id);
    if (repaired) repaired = m_secondAll.refresh();
    half = repaired ? m_secondAll.openRecordset() : text::Result<store::RecordSet>(repaired.fault());
  }
  if (half) return std::move(*half);
  messages().tellDataFault(half.fault().message);
  return std::nullopt;
}

void ClaimFormScreen::showNothing() {
  m_id = 0;
  m_read = ClaimRecord();
  m_state.display = nullptr;
  clearCheckChanged();
  m_treatmentChanged = false;
  screen::showValues(*this, m_read.columns(), kHalves);
}

void ClaimFormScreen::applyDefaultsOnShow() {
  const QString joined = m_read.get(claim::shareTicks);
  if (!joined.isEmpty()) {
    const ShareTicks ticks = shareTicksOf(joined);
    for (size_t i = 0; i < ticks.size(); ++i) put(kShareTicks[i].column, ticks[i] ? u"-1"_s : u"0"_s);
  }
  applyKind();
  if (text(kAddressee).isEmpty()) setText(kAddressee, defaultAddressee(m_read.get(claim::insuranceKind)));
  setText(ref(form::kApplicant, u"TextClinic"), clinicBoxText(m_read.get(claim::clinicName)));
  applyPrintDefaults();
  applyMonth();
  applyVisitTable();
  applyAreaWarning(false);
}

void ClaimFormScreen::applyKind() {
  const bool massage = kindOf(m_read.get(claim::treatmentKind)) == Kind::Massage;
  for (const screen::ControlRef& control : kOfAcupuncture) setShown(control, !massage);
  for (const screen::ControlRef& control : kOfMassage) setShown(control, massage);
  const QString insurance = m_read.get(claim::insuranceKind);
  const bool aged = insurance == u"後期高齢" || insurance == u"老人";
  setTip(on(form::kConsent, claim::onset), massage ? u"（記入例）令和2年1月上旬"_s
                                           : aged  ? u"（記入例）平成16/1/上旬"_s
                                                   : u"（記入例）平成16年1月上旬"_s);
}

void ClaimFormScreen::applyPrintDefaults() {
  for (const PrintSetting& row : kPrintSettings)
    if (screen::Control* group = screen::controlOf(*this, row.column, kHalves);
        group && group->text().isEmpty())
      group->putText(utf16(row.stored[claims::chosen(m_read, row.setting, m_run.profile)]));
}

void ClaimFormScreen::applyMonth() {
  m_flags = monthFlags(text(kMonth), m_run.eraDates());
  const bool persons = m_flags.isAfter202410;
  const QString row = persons ? u"往療人数"_s : u"往療距離"_s;
  const QString rule = utf16(persons ? says::kFreeVisitPersons : says::kFreeVisitDistance);
  if (caption(kVisitRow) != row) {
    setCaption(kVisitRow, row);
    for (int day = 1; day <= 31; ++day) setCaption(kVisits[day], u"%1日 %2"_s.arg(day).arg(row));
  }
  setTip(kVisitRow, rule);
  setCaption(kFreeVisits, rule);
  for (const screen::ControlRef& note : kNoTableNotes) setShown(note, persons);

  const bool open = !m_flags.month || m_flags.isAfter201810;
  setShown(kClosedNote, !open);
  for (const screen::ControlRef& control : kReportFields) setEnabledControl(control, open);
  for (int day = 1; day <= 31; ++day)
    for (const screen::ControlRef& cell : {kStarts[day], kSameHouse[day]}) setEnabledControl(cell, open);
}

void ClaimFormScreen::applyVisitTable() {
  for (const screen::ControlRef& frame : kTableFrames) setShown(frame, checked(kShowTable));
}

void ClaimFormScreen::monthLeft() { applyMonth(); }
void ClaimFormScreen::visitTableToggled() { applyVisitTable(); }

ClaimRecord ClaimFormScreen::record() const {
  ClaimRecord claim = m_read;
  const QHash<QString, store::Value> changed = screen::changedValues(*this, kHalves);
  for (auto it = changed.cbegin(); it != changed.cend(); ++it) claim.setNamed(it.key(), it.value());
  return claim;
}

FormTicks ClaimFormScreen::checks() const {
  FormTicks ticks;
  for (const TickName<FormTicks>& row : kFormTicks)
    if (onClaimForm(row)) ticks.*row.tick = checked(utf16(row.control));
  return ticks;
}

void ClaimFormScreen::put(const store::Column& column, const QString& value) {
  if (screen::Control* control = screen::controlOf(*this, column, kHalves)) control->putText(value);
}

}  // namespace claims
