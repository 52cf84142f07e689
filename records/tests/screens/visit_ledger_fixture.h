#pragma once

#include "claims/core/claim_file.h"
#include "platform/screen/testing/screen_probe.h"
#include "records/core/previous_visit.h"
#include "records/tests/screens/records_fixture.h"

namespace records::test {

/// The visit ledger: fresh files of visits and claims, a patient P1.
class VisitLedgerFixture : public RecordsFixture {
 protected:
  void SetUp() override;

  /// Opens the ledger as the patient master does.
  screen::Screen& open(const QString& key = QStringLiteral("P1"),
                       const QString& name = QStringLiteral("見本　太郎"));
  screen::Screen& ledger() const { return *navigator.loaded(QStringLiteral("治療台帳3")); }
  /// Lets the window come to the front, as the user has it before him.
  void activate();
  void press(const char16_t* command) { ledger().trigger(QString::fromUtf16(command)); }
  QString value(const char16_t* control) const { return ledger().text(QString::fromUtf16(control)); }
  void type(const char16_t* control, const QString& text) {
    ledger().setText(QString::fromUtf16(control), text);
  }
  QString label(const char16_t* control) const { return ledger().caption(QString::fromUtf16(control)); }
  /// The last result that was said.
  bool heard(const QString& part) const { return channel.said().join(u'|').contains(part); }

  store::RecordSet visits() const;
  void addVisit(const QHash<QString, QString>& columns, const QString& key = QStringLiteral("P1"));
  /// A visit of P1 on the era date.
  void addOn(const QString& date, const QString& shadow, const QString& summary = {});
  /// What another computer does to the visits meanwhile: a process of its own.
  void elsewhere(const char* statement) const;
  /// All values of a column of the visits as they are in the file.
  QStringList visitsStored(const QString& column) const;
  /// The column of the rows on view, top to bottom.
  QStringList onView(const QString& column) const;

  /// A day and its code.
  using Day = std::pair<int, const char16_t*>;
  /// A claim of P1 that passes the form's checks.
  qint64 addClaim(const char16_t* month, const char16_t* kind, std::initializer_list<Day> codes = {});
  claims::ClaimRecord claim(qint64 id) const;
  /// Ticks 療養費の日付の記入 as a user does.
  void tickGrid();
  QStringList told();

  const QString kVisitFile = QStringLiteral("カルテ2データ2000.mdb");
};

}  // namespace records::test
