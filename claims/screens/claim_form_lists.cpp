#include "claims/screens/claim_form_lists.h"

#include "claims/core/form_lists.h"
#include "platform/text/utf16.h"

namespace claims {

namespace {

/// A column's values in the order of the rows; an empty register says so where it has a sentence.
QStringList listed(const Register& list, const RegisterRows& rows, const store::Column& column,
                   const char16_t* whenEmpty) {
  QStringList items;
  for (const QStringList& row : rows) items << row[list.fieldOf(column)];
  if (items.isEmpty() && whenEmpty != nullptr) items << text::utf16(whenEmpty);
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
  return listed(kDoctorRegister, doctors, ::doctors::name, list::kNoDoctors);
}
QStringList ClaimFormLists::hospitals() const {
  return listed(kDoctorRegister, doctors, ::doctors::hospital, list::kNoDoctors);
}
QStringList ClaimFormLists::insurerNames() const {
  return listed(kInsurerRegister, insurers, ::insurers::name, list::kNoInsurerNames);
}
QStringList ClaimFormLists::insurerNumbers() const {
  return listed(kInsurerRegister, insurers, ::insurers::number, list::kNoInsurerNumbers);
}
QStringList ClaimFormLists::insurerAddresses() const {
  return listed(kInsurerRegister, insurers, ::insurers::address, nullptr);
}

}  // namespace claims
