#include <array>

#include "claims/core/carry_forward.h"
#include "claims/core/form_lists.h"
#include "claims/core/kinds.h"
#include "claims/core/print_settings.h"
#include "claims/core/share_ticks.h"
#include "claims/screens/claim_form_rows.h"
#include "claims/screens/claim_form_screen.h"
#include "claims/screens/claim_form_texts.h"
#include "platform/store/tables/claims.h"

// What the form shows of a claim: the pair, the values taken on show, and what depends on kind and month.

namespace claims {

namespace {

constexpr char16_t kTable[] = u"保険申請";

template <std::size_t N>
QStringList toList(const std::array<const char16_t*, N>& items) {
  QStringList list;
  for (const char16_t* item : items) list << QString::fromUtf16(item);
  return list;
}

QStringList insuranceNames() {
  QStringList names;
  for (const InsuranceRow& row : insuranceRows()) names << QString::fromUtf16(row.name);
  return names;
}

QString member(const char16_t* family, int index) {
  return QStringLiteral("%1(%2)").arg(QString::fromUtf16(family)).arg(index);
}

}  // namespace

bool ClaimFormScreen::openSources() {
  source(1).writesOnMove = false;
  source(2).writesOnMove = false;
  const QString table = QString::fromUtf16(kTable);
  if (!source(1).open(m_run.folders[frame::folder::kClaims1])) return false;
  if (!source(2).open(m_run.folders[frame::folder::kClaims2])) return false;
  auto file = ClaimFile::open(m_run.folders);
  if (!file) {
    messages().tellDataFault(file.fault().message);
    return false;
  }
  m_file.emplace(std::move(file.value()));
  auto second = store::RecordSet::open(source(2).rows().database(), table);
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
  const std::pair<int, QStringList> lists[] = {
      {0, insuranceNames()},
      {1, toList(list::kPrintedInsurance)},
      {2, toList(list::kShare)},
      {3, m_lists.insurerNames()},
      {4, m_lists.insurerNumbers()},
      {5, m_lists.insurerAddresses()},
      {6, toList(list::kAddressee)},
      {7, toList(list::kSex)},
      {8, toList(list::kSex)},
      {20, toList(list::kCause)},
      {21, toList(list::kThirdParty)},
      {22, toList(list::kHospital)},
      {23, toList(list::kConsentSymptom)},
      {24, m_lists.doctorNames()},
      {25, m_lists.hospitals()},
      {26, regional ? toList(list::kRegionalInsurance) : QStringList()},
      {27, regional ? toList(list::kRegionalWelfare) : QStringList()},
      {40, toList(list::kRequestKind)},
      {41, toList(list::kOutcome)},
      {42, toList(list::kVisitReason)},
      {60, toList(list::kPayment)},
      {61, toList(list::kDeposit)},
      {62, toList(list::kBankKind)},
      {63, toList(list::kBranchKind)},
      {64, toList(list::kDeposit)},
      {65, toList(list::kBankKind)},
      {66, toList(list::kBranchKind)},
  };
  for (const auto& [index, items] : lists) setItems(member(u"Combo1", index), items);
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
    messages().tell(QString::fromUtf16(screen::kNotFoundText), QString::fromUtf16(screen::kNotFoundTitle));
    return false;
  }
  showPair();
  return m_id == id;
}

void ClaimFormScreen::showPair() {
  const qint64 id = source(1).rows().bookmark();
  if (id != m_id) markCut({});  // red captions stay over a store of the claim that they belong to
  m_id = id;
  if (!showSecond()) return showNothing();
  auto read = m_file->read(id);
  if (!read) {
    messages().tellDataFault(read.fault().message);
    return showNothing();
  }
  m_read = read.value();
  source(1).show();
  showRecord(*this, m_controls, m_read);
  setText(QStringLiteral("Text9(0)"), QString::number(id));
  setText(QStringLiteral("Text9(1)"), source(2).rows().value(QStringLiteral("ID")));
  takeValuesOfShow();
  clearCheckChanged();
  m_treatmentChanged = false;
  m_state.display = &m_display;
}

bool ClaimFormScreen::showSecond() {
  m_secondAll.setFilter(QStringLiteral("Id = %1").arg(m_id));
  auto half = m_secondAll.openRecordset();
  if (half && half->recordCount() == 0) {  // a first half whose second half is missing
    if (const text::Done repaired = m_file->repairSecond(m_id); !repaired) {
      messages().tellDataFault(repaired.fault().message);
      return false;
    }
    if (const text::Done done = m_secondAll.refresh(); !done) messages().tellDataFault(done.fault().message);
    half = m_secondAll.openRecordset();
  }
  if (!half) {
    messages().tellDataFault(half.fault().message);
    return false;
  }
  source(2).assign(std::move(half.value()));
  return true;
}

void ClaimFormScreen::showNothing() {
  m_id = 0;
  m_read = ClaimRecord();
  m_state.display = nullptr;
  clearCheckChanged();
  m_treatmentChanged = false;
  showRecord(*this, m_controls, m_read);
}

void ClaimFormScreen::takeValuesOfShow() {
  const QString joined = m_read.get(claim::shareTicks);
  if (!joined.isEmpty()) {
    const ShareTicks ticks = shareTicksOf(joined);
    for (int i = 0; i < int(ticks.size()); ++i) setChecked(member(u"Check9", i), ticks[size_t(i)]);
  }
  applyKind();
  const QString addressee = member(u"Combo1", 6);
  if (text(addressee).isEmpty()) setText(addressee, defaultAddressee(m_read.get(claim::insuranceKind)));
  setText(QStringLiteral("TextClinic"), clinicBoxText(m_read.get(claim::clinicName)));
  applyPrintDefaults();
  applyMonth();
  applyVisitTable();
  applyAreaWarning(false);
}

void ClaimFormScreen::applyKind() {
  const Kind kind = kindOf(m_read.get(claim::treatmentKind));
  const bool massage = kind == Kind::Massage;
  setShown(QStringLiteral("Command5"), !massage);
  setShown(QStringLiteral("Command6"), massage);
  for (const int tick : {6, 7}) setShown(member(u"chkFields", tick), !massage);
  for (const int field : {100, 101}) setShown(member(u"txtFields", field), massage);
  const QString insurance = m_read.get(claim::insuranceKind);
  const bool aged = insurance == u"後期高齢" || insurance == u"老人";
  setTip(member(u"txtFields", 63), massage ? QStringLiteral("（記入例）令和2年1月上旬")
                                   : aged  ? QStringLiteral("（記入例）平成16/1/上旬")
                                           : QStringLiteral("（記入例）平成16年1月上旬"));
}

void ClaimFormScreen::applyPrintDefaults() {
  QHash<QString, QString> defaults;
  for (const NewClaimDefault& row : hiddenPrintDefaults())
    defaults.insert(QString::fromUtf16(row.column), QString::fromUtf16(row.value));
  for (const PrintSetting& setting : printSettings())
    defaults.insert(QString::fromUtf16(setting.column),
                    QString::number(claims::chosen(m_read, setting, m_run.profile)));
  for (const BoundControl& bound : m_controls)
    if (bound.kind == BoundControl::Kind::Choice && chosen(bound.control).isEmpty())
      choose(bound.control, defaults.value(bound.column));
}

void ClaimFormScreen::applyMonth() {
  m_flags = monthFlags(text(QStringLiteral("txtFields(1)")), m_run.eraDates());
  const bool persons = m_flags.isAfter202410;
  const QString row = persons ? QStringLiteral("往療人数") : QStringLiteral("往療距離");
  const QString rule = QString::fromUtf16(persons ? says::kFreeVisitPersons : says::kFreeVisitDistance);
  if (caption(QStringLiteral("Label9")) != row) {
    setCaption(QStringLiteral("Label9"), row);
    for (int day = 1; day <= 31; ++day)
      setCaption(member(u"Text6", day), QStringLiteral("%1日 %2").arg(day).arg(row));
  }
  setTip(QStringLiteral("Label9"), rule);
  setCaption(QStringLiteral("Check8"), rule);
  setShown(QStringLiteral("LabelNoTable"), persons);
  setShown(QStringLiteral("LabelGuide(2)"), persons);

  const bool open = !m_flags.month || m_flags.isAfter201810;
  setShown(QStringLiteral("LabelClosed"), !open);
  for (const char16_t* control : {u"Check10", u"Check11", u"Check12", u"Check14", u"Check15", u"Check17",
                                  u"txtFields(107)", u"txtFields(108)"})
    setEnabledControl(QString::fromUtf16(control), open);
  for (int day = 1; day <= 31; ++day)
    for (const char16_t* family : {u"TextStart", u"TextSame"}) setEnabledControl(member(family, day), open);
}

void ClaimFormScreen::applyVisitTable() {
  const bool shown = checked(QStringLiteral("Check10"));
  for (const char16_t* frame : {u"FrameStarts", u"FrameSameHouse"})
    setShown(QString::fromUtf16(frame), shown);
}

void ClaimFormScreen::monthLeft() { applyMonth(); }
void ClaimFormScreen::visitTableToggled() { applyVisitTable(); }

ClaimRecord ClaimFormScreen::record() const { return recordOf(*this, m_controls, m_read); }

QSet<QString> ClaimFormScreen::checks() const {
  static const QStringList names = unboundTicks(claimFormDeclaration().rows) << QStringLiteral("Check50");
  QSet<QString> set;
  for (const QString& name : names)
    if (checked(name)) set.insert(name);
  return set;
}

void ClaimFormScreen::put(const QString& column, const QString& value) {
  ClaimRecord claim;
  claim.set(column, value);
  showRecord(*this, m_controls, claim, {column});
}

}  // namespace claims
