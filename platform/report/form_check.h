#pragma once

#include "platform/report/form.h"

namespace report {

/// What is wrong with a form that can be read: items off the page, type that is taller than its place, names
/// that 項目のみ印刷 would treat wrongly. Each fault names file and line.
QStringList checkForm(const Form& form);

}  // namespace report
