#include "platform/screen/shown_record.h"

#include "platform/screen/control_book.h"
#include "platform/screen/screen.h"

namespace screen {

QString shownText(const Screen& screen, const store::Column& column) {
  const int source = screen.declaration().sources.numberOf(&column.table());
  for (const Control* control : screen.controls().boundTo(source))
    if (control->column() == column.text()) return control->text();
  qCritical("no control is bound to %s on this screen", qUtf8Printable(column.text()));
  return {};
}

}  // namespace screen
