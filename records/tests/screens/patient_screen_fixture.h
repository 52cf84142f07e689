#pragma once

#include "records/tests/screens/records_fixture.h"

namespace records::test {

/// The patient screen.
class PatientScreenTest : public RecordsFixture {
 protected:
  screen::Screen& patients() { return shown(u"治療台帳4"); }
  static QString name(screen::Screen& screen) { return screen.text(QStringLiteral("txtFields(4)")); }
};

}  // namespace records::test
