#include "platform/screen/bound_values.h"

#include "platform/screen/control_book.h"
#include "platform/screen/control_options.h"
#include "platform/screen/screen.h"

namespace screen {

using namespace Qt::StringLiterals;

namespace {

bool lacksChoice(const Control& control) {
  return control.stored().isEmpty() && dynamic_cast<const OptionsControl*>(&control) != nullptr;
}

}  // namespace

void showValues(Screen& screen, const QHash<QString, store::Value>& values,
                std::initializer_list<int> sources) {
  for (const int source : sources)
    for (Control* control : screen.controls().boundTo(source)) control->load(values.value(control->column()));
}

QHash<QString, store::Value> changedValues(const Screen& screen, std::initializer_list<int> sources) {
  QHash<QString, store::Value> values;
  for (const int source : sources) {
    for (const Control* control : screen.controls().boundTo(source)) {
      if (!control->changed() || lacksChoice(*control)) continue;
      const store::Value value = control->stored();
      values.insert(control->column(), value.isNull() ? u""_s : value);
    }
  }
  return values;
}

Control* controlOf(const Screen& screen, const QString& column, std::initializer_list<int> sources) {
  for (const int source : sources)
    for (Control* control : screen.controls().boundTo(source))
      if (control->column() == column) return control;
  return nullptr;
}

}  // namespace screen
