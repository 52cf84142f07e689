#include "records/screens/find_patient.h"

#include "platform/screen/screen.h"

namespace records {

bool settlePatientRow(screen::Screen& patients) {
  screen::DataSource& source = patients.source();
  if (source.rows().adding()) {
    source.drop();
    return true;
  }
  return !source.pending() || source.write();
}

bool findPatient(screen::Screen& patients, const QString& criteria) {
  store::RecordSet& rows = patients.source().rows();
  const store::Bookmark seen = rows.bookmark();
  text::Done found = rows.findNext(criteria);
  if (found && rows.noMatch()) found = rows.findFirst(criteria);
  const bool hit = found && !rows.noMatch();
  if (!hit) {
    if (!found)
      patients.messages().tellDataFault(found.fault().message);
    else
      patients.messages().tell(QString::fromUtf16(screen::kNotFoundText),
                               QString::fromUtf16(screen::kNotFoundTitle), screen::Icon::Exclamation);
    rows.setBookmark(seen);
  }
  patients.source().show();
  return hit;
}

}  // namespace records
