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

text::Result<bool> seekRow(DataSource& source, const QString& criteria) {
  store::RecordSet& rows = source.rows();
  const store::Bookmark seen = rows.bookmark();
  text::Done found = rows.findNext(criteria);
  if (found && rows.noMatch()) found = rows.findFirst(criteria);
  const bool hit = found && !rows.noMatch();
  if (!hit) rows.setBookmark(seen);
  source.show();
  if (!found) return found.fault();
  return hit;
}

bool findRow(Screen& screen, const QString& criteria, int source) {
  const text::Result<bool> found = seekRow(screen.source(source), criteria);
  if (!found)
    screen.messages().tellDataFault(found.fault().message);
  else if (!*found)
    tellNotFound(screen);
  return found && *found;
}

}  // namespace screen
