#include "platform/screen/bound_values.h"

#include "platform/screen/control_book.h"
#include "platform/screen/screen.h"

namespace screen {

QHash<QString, store::Value> changedValues(const Screen& screen, std::initializer_list<int> sources) {
  QHash<QString, store::Value> values;
  for (const int source : sources)
    for (const Control* control : screen.controls().boundTo(source))
      if (control->changed()) values.insert(control->column(), control->stored());
  return values;
}

void showValues(Screen& screen, const QHash<QString, store::Value>& values,
                std::initializer_list<int> sources) {
  for (const int source : sources)
    for (Control* control : screen.controls().boundTo(source)) control->load(values.value(control->column()));
}

}  // namespace screen
