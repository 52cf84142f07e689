#include "claims/screens/claim_form_lists.h"

#include "claims/core/form_lists.h"
#include "platform/store/sources.h"
#include "platform/store/connection.h"

namespace claims {

namespace {

/// The form has always kept at most this many rows of a register.
constexpr int kMostRows = 1000;

/// Calls `take` for each row of the statement; a fault is added to the list.
template <class Take>
void eachRow(const QString& path, const QString& statement, QStringList& faults, Take take) {
  store::Connection connection;
  if (const auto opened = connection.open(store::connectionString(path)); !opened) {
    faults << opened.fault().message;
    return;
  }
  auto cursor = store::Cursor::open(connection, statement);
  if (!cursor) {
    faults << cursor.fault().message;
    return;
  }
  for (int row = 0; row < kMostRows && !cursor->eof(); ++row, cursor->moveNext()) take(*cursor);
}

template <class Row>
QStringList texts(const QVector<Row>& rows, QString Row::*member, const char16_t* whenEmpty) {
  QStringList list;
  for (const Row& row : rows) list << row.*member;
  if (rows.isEmpty() && whenEmpty != nullptr) list << QString::fromUtf16(whenEmpty);
  return list;
}

template <class Row>
const Row* at(const QVector<Row>& rows, int position) {
  return position >= 0 && position < rows.size() ? &rows[position] : nullptr;
}

}  // namespace

ClaimFormLists ClaimFormLists::read(const frame::DataFolders& folders) {
  ClaimFormLists lists;
  eachRow(folders[frame::folder::kDoctors], QString::fromUtf16(store::source::kDoctors),
          lists.faults, [&](const store::Cursor& row) {
            lists.doctors.append({row.value(QStringLiteral("氏名")), row.value(QStringLiteral("フリガナ")),
                                  row.value(QStringLiteral("住所")), row.value(QStringLiteral("TEL")),
                                  row.value(QStringLiteral("病院名"))});
          });
  eachRow(folders[frame::folder::kInsurers], QString::fromUtf16(store::source::kInsurers), lists.faults,
          [&](const store::Cursor& row) {
            lists.insurers.append({row.value(QStringLiteral("名称")), row.value(QStringLiteral("番号")),
                                   row.value(QStringLiteral("所在地"))});
          });
  return lists;
}

QStringList ClaimFormLists::doctorNames() const { return texts(doctors, &DoctorRow::name, list::kNoDoctors); }
QStringList ClaimFormLists::hospitals() const {
  return texts(doctors, &DoctorRow::hospital, list::kNoDoctors);
}
QStringList ClaimFormLists::insurerNames() const {
  return texts(insurers, &InsurerRow::name, list::kNoInsurerNames);
}
QStringList ClaimFormLists::insurerNumbers() const {
  return texts(insurers, &InsurerRow::number, list::kNoInsurerNumbers);
}
QStringList ClaimFormLists::insurerAddresses() const {
  return texts(insurers, &InsurerRow::address, nullptr);
}

const DoctorRow* ClaimFormLists::doctor(int position) const { return at(doctors, position); }
const InsurerRow* ClaimFormLists::insurer(int position) const { return at(insurers, position); }

}  // namespace claims
