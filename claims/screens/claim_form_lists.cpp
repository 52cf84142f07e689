#include "claims/screens/claim_form_lists.h"

#include "claims/core/form_lists.h"

namespace claims {

namespace {

/// The column's values in the order of the rows; an empty register says so where it has a sentence.
QStringList listed(const Register& list, const RegisterRows& rows, const char16_t* column,
                   const char16_t* whenEmpty) {
  QStringList items;
  for (size_t field = 0; field < list.fields.size(); ++field)
    if (QStringView(list.fields[field].column) == QStringView(column))
      for (const QStringList& row : rows) items << row[qsizetype(field)];
  if (items.isEmpty() && whenEmpty != nullptr) items << QString::fromUtf16(whenEmpty);
  return items;
}

}  // namespace

ClaimFormLists ClaimFormLists::read(const frame::DataFolders& folders) {
  ClaimFormLists lists;
  const auto take = [&](const Register& list, RegisterRows& rows) {
    auto read = readRegister(list, folders);
    if (read)
      rows = std::move(*read);
    else
      lists.faults << read.fault().message;
  };
  take(kDoctorRegister, lists.doctors);
  take(kInsurerRegister, lists.insurers);
  return lists;
}

QStringList ClaimFormLists::doctorNames() const {
  return listed(kDoctorRegister, doctors, u"氏名", list::kNoDoctors);
}
QStringList ClaimFormLists::hospitals() const {
  return listed(kDoctorRegister, doctors, u"病院名", list::kNoDoctors);
}
QStringList ClaimFormLists::insurerNames() const {
  return listed(kInsurerRegister, insurers, u"名称", list::kNoInsurerNames);
}
QStringList ClaimFormLists::insurerNumbers() const {
  return listed(kInsurerRegister, insurers, u"番号", list::kNoInsurerNumbers);
}
QStringList ClaimFormLists::insurerAddresses() const {
  return listed(kInsurerRegister, insurers, u"所在地", nullptr);
}

}  // namespace claims
