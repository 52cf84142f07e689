#include "platform/screen/find_row.h"

#include "platform/screen/screen.h"

namespace screen {

bool commitOrDiscardRow(DataSource& source) {
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
  text::Done found;
  bool hit = false;
  const text::Done read = source.rows().moveAndRead([&](store::RecordSet& rows) {
    const store::Bookmark seen = rows.bookmark();
    found = rows.findNext(criteria);
    if (found && rows.noMatch()) found = rows.findFirst(criteria);
    hit = found && !rows.noMatch();
    if (!hit) rows.setBookmark(seen);
  });
  if (!read) return read.fault();
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
