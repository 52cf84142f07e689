#pragma once

#include "claims/core/register.h"
#include "claims/screens/register_screen.h"
#include "claims/tests/screens/claim_form_fixture.h"

namespace claims {

/// The claim form's fixture with rows in the registers, and the register screens over them.
class RegisterTest : public ClaimFormTest {
 protected:
  store::RecordSet rowsOf(const Register& list) const {
    auto database = store::Database::open(m_run.folders[size_t(list.folder)]);
    return std::move(store::RecordSet::open(database.value(), qs(list.table.name())).value());
  }
  /// Adds a row; values in the order of the register's fields.
  void add(const Register& list, const QStringList& values) {
    store::RecordSet rows = rowsOf(list);
    ASSERT_TRUE(rows.addNew());
    for (size_t i = 0; i < list.fields.size(); ++i)
      ASSERT_TRUE(rows.setValue(list.fields[i].column, values.value(qsizetype(i))));
    ASSERT_TRUE(rows.update());
  }
  /// All rows as the file holds them.
  QList<QStringList> stored(const Register& list) const {
    const store::RecordSet rows = rowsOf(list);
    QList<QStringList> all;
    for (int row = 0; row < rows.recordCount(); ++row) {
      QStringList values;
      for (const RegisterField& field : list.fields) values << rows.valueAt(row, field.column);
      all << values;
    }
    return all;
  }
  using ClaimFormTest::add;
  using ClaimFormTest::stored;

  RegisterScreen& openRegister(const Register& list, const screen::Request& request = {}) {
    const bool doctors = &list == &kDoctorRegister;
    m_register = std::make_unique<RegisterScreen>(doctors ? kDoctorRegisterForm : kInsurerRegisterForm,
                                                  m_services, m_run, m_state);
    m_register->onLoad();
    m_register->opened(request);
    return *m_register;
  }
  RegisterScreen& doctors(const screen::Request& request = {}) {
    return openRegister(kDoctorRegister, request);
  }
  RegisterScreen& insurers(const screen::Request& request = {}) {
    return openRegister(kInsurerRegister, request);
  }
  void enter(const QStringList& values) {
    for (qsizetype i = 0; i < values.size(); ++i)
      m_register->setText(QStringLiteral("txtFields(%1)").arg(i), values[i]);
  }
  QStringList fields() const {
    QStringList texts;
    for (size_t i = 0; i < (isDoctors() ? kDoctorRegister : kInsurerRegister).fields.size(); ++i)
      texts << m_register->text(QStringLiteral("txtFields(%1)").arg(i));
    return texts;
  }
  bool isDoctors() const { return m_register->objectName() == u"登録2"; }
  void push(const char16_t* command) { m_register->trigger(qs(command)); }
  /// Column 1 of the rows that the grid lists.
  QStringList listed() const {
    const store::RecordSet& rows = m_register->source().rows();
    QStringList names;
    for (int row = 0; row < rows.recordCount(); ++row)
      names << rows.valueAt(row, isDoctors() ? QStringLiteral("氏名") : QStringLiteral("名称"));
    return names;
  }
  void searchFor(const char16_t* key, const char16_t* text) {
    m_register->setText(QStringLiteral("Combo1"), qs(key));
    m_register->setText(QStringLiteral("Text1"), qs(text));
    push(u"Command1");
  }

  const QStringList kDoctor{qs(u"架空 医師"), qs(u"ｶｸｳ ｲｼ"), qs(u"架空病院"), qs(u"架空市1"),
                            qs(u"000-0001")};
  const QStringList kNamesake{qs(u"架空 医師"), qs(u"ｶｸｳ ｲｼ"), qs(u"例示医院"), qs(u"例示町2"),
                              qs(u"000-0002")};
  const QStringList kInsurer{qs(u"架空市"), qs(u"123456"), qs(u"架空市1-1")};
  std::unique_ptr<RegisterScreen> m_register;
};

}  // namespace claims
