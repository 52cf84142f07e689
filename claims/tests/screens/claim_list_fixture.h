#pragma once

#include "claims/screens/claim_list_screen.h"
#include "claims/tests/screens/claim_form_fixture.h"

namespace claims {

/// The claim list over fresh files. Claims are made in the files without its knowledge, as other screens do.
class ClaimListTest : public ClaimFormTest {
 protected:
  /// Opens the list as the main menu does.
  ClaimListScreen& openList(const screen::Request& request = routes::ClaimList{.criteria = {},
                                                                               .order = qs(u"ID DESC")});
  /// A claim with the texts in the columns.
  qint64 addClaim(const QList<std::pair<const char16_t*, const char16_t*>>& columns);
  qint64 addNamed(const char16_t* name) { return addClaim({{u"氏名", name}}); }
  /// The column of all rows of the list, top to bottom.
  QStringList shown(const char16_t* column = u"ID") const;
  void search(const char16_t* key, const QString& word);
  void press(const char16_t* command) { m_list->trigger(qs(command)); }
  /// Makes the list the active window, as the user has it before him.
  void activate();

  std::unique_ptr<ClaimListScreen> m_list;
};

}  // namespace claims
