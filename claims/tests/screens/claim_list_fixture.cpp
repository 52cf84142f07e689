#include "claims/tests/screens/claim_list_fixture.h"

namespace claims {

ClaimListScreen& ClaimListTest::openList(const screen::Request& request) {
  m_list = std::make_unique<ClaimListScreen>(m_services, m_run, m_state);
  m_list->onLoad();
  m_list->opened(request);
  return *m_list;
}

qint64 ClaimListTest::addClaim(const QList<std::pair<const char16_t*, const char16_t*>>& columns) {
  ClaimRecord claim;
  for (const auto& [column, value] : columns) claim.setNamed(qs(column), qs(value));
  return add(claim);
}

QStringList ClaimListTest::shown(const char16_t* column) const {
  QStringList values;
  const store::RecordSet& rows = m_list->source().rows();
  for (int row = 0; row < rows.recordCount(); ++row) values << rows.valueAt(row, qs(column));
  return values;
}

void ClaimListTest::search(const char16_t* key, const QString& word) {
  m_list->setText(qs(u"Combo1"), qs(key));
  m_list->setText(qs(u"Text1"), word);
  press(u"Command7");
}

void ClaimListTest::activate() {
  m_list->show();
  QApplication::setActiveWindow(m_list.get());
  QCoreApplication::processEvents();
}

}  // namespace claims
