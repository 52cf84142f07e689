#include "records/screens/date_fields.h"

#include "platform/text/utf16.h"

namespace records {

void convertDates(screen::Screen& screen, std::span<const screen::ControlRef> fields,
                  const frame::EraDates& dates, const DateConversion& conversion) {
  for (const screen::ControlRef& field : fields) {
    const QString before = screen.text(field);
    if (before.isEmpty()) continue;
    const QString after = (dates.*conversion.convert)(before);
    if (after != before) screen.setText(field, after);
  }
}

void sayDates(screen::Screen& screen, std::span<const screen::ControlRef> fields,
              const DateConversion& conversion) {
  QStringList spoken{text::utf16(conversion.done)};
  for (const screen::ControlRef& field : fields) spoken += screen.text(field);
  screen.say(spoken);
}

}  // namespace records
