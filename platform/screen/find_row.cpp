#include "platform/screen/find_row.h"

#include "platform/screen/screen.h"

namespace screen {

bool settleRow(DataSource& source) {
  if (source.rows().adding()) {
    source.drop();
    return true;
  }
  return !source.pending() || source.write();
}

void tellNotFound(Screen& screen) {
  screen.messages().tell(QString::fromUtf16(kNotFoundText), QString::fromUtf16(kNotFoundTitle),
                         Icon::Exclamation);
}

bool findRow(Screen& screen, const QString& criteria, int source) {
  DataSource& searched = screen.source(source);
  store::RecordSet& rows = searched.rows();
  const store::Bookmark seen = rows.bookmark();
  text::Done found = rows.findNext(criteria);
  if (found && rows.noMatch()) found = rows.findFirst(criteria);
  const bool hit = found && !rows.noMatch();
  if (!hit) {
    if (!found)
      screen.messages().tellDataFault(found.fault().message);
    else
      tellNotFound(screen);
    rows.setBookmark(seen);
  }
  searched.show();
  return hit;
}

}  // namespace screen
