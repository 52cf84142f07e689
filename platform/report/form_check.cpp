#include "platform/report/form_check.h"

#include <algorithm>

#include "platform/report/cairo_handles.h"

namespace report {

namespace {

constexpr double kTolerance = 0.05;  // mm

class Checker {
 public:
  explicit Checker(const Form& form) : m_form(form) {}

  QStringList check() {
    if (m_form.files.last() != m_form.name + QStringLiteral(".PRP"))
      m_faults << QStringLiteral("%1: the form is named %2").arg(m_form.files.last(), m_form.name);
    for (const Item& item : m_form.items) {
      checkPlace(item, item.rect);
      for (const Placement& placement : item.placements) checkPlace(item, placement.rect);
      checkType(item);
      checkName(item);
    }
    return m_faults;
  }

 private:
  void tell(const Item& item, const QString& what) {
    m_faults << QStringLiteral("%1:%2: %3 %4").arg(item.file).arg(item.sourceLine).arg(item.name, what);
  }

  void checkPlace(const Item& item, const Rect& rect) {
    const double left = std::min(rect.x, rect.x + rect.w), top = std::min(rect.y, rect.y + rect.h);
    const double right = std::max(rect.x, rect.x + rect.w), bottom = std::max(rect.y, rect.y + rect.h);
    if (left < 0 || top < 0 || right > m_form.width() + kTolerance || bottom > m_form.height() + kTolerance)
      tell(item, QStringLiteral("is off the page"));
  }

  void checkType(const Item& item) {
    if (item.kind != Kind::Label && item.kind != Kind::Text && item.kind != Kind::Digit) return;
    const double type = item.pt * kMmPerPoint * item.lines;
    const double room = item.vertical ? item.rect.w : item.rect.h;
    if (type > room + kTolerance)
      tell(item, QStringLiteral("is %1 mm for type of %2 mm").arg(room).arg(type, 0, 'f', 2));
  }

  // A label, box or line by another name would stay on preprinted paper, a mark by one of these names
  // would vanish from it. Texts may have either: some labels carry data.
  void checkName(const Item& item) {
    const bool frame = item.kind == Kind::Label || item.kind == Kind::Box || item.kind == Kind::Line;
    if (frame && !isFrameName(item.name))
      tell(item, QStringLiteral("is part of the frame but not named Text, Box, Line or waku_"));
    if (!frame && item.kind != Kind::Text && isFrameName(item.name))
      tell(item, QStringLiteral("is a data item with a name of the frame"));
  }

  const Form& m_form;
  QStringList m_faults;
};

}  // namespace

QStringList checkForm(const Form& form) { return Checker(form).check(); }

}  // namespace report
