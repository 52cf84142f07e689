#include "claims/screens/claim_form_columns.h"

#include <variant>

#include "platform/screen/screen.h"

namespace claims {

using namespace screen;

namespace {

QString nameOf(const ControlName& name, int offset = 0) {
  const QString family = QString::fromUtf16(name.family());
  return name.index() < 0 ? family : QStringLiteral("%1(%2)").arg(family).arg(name.index() + offset);
}

/// Collects what the rows bind; rows of other kinds bind nothing.
class Collector {
 public:
  explicit Collector(QVector<BoundControl>& controls) : m_controls(controls) {}

  void operator()(const TextField& row) { add(nameOf(row.name), row.bind, BoundControl::Kind::Text); }
  void operator()(const Combo& row) { add(nameOf(row.name), row.bind, BoundControl::Kind::Text); }
  void operator()(const Options& row) { add(nameOf(row.name), row.bind, BoundControl::Kind::Choice); }
  void operator()(const TextRun& row) {
    for (int i = 0; i < row.count; ++i) {
      add(nameOf(row.name, i), row.bind, BoundControl::Kind::Text);
      if (row.bind.bound())
        m_controls.last().column.replace(QStringLiteral("%1"), QString::number(row.number + i));
    }
  }
  void operator()(const Check& row) {
    add(nameOf(row.name), row.bind, BoundControl::Kind::Tick);
    if (!row.bind.bound()) return;
    m_controls.last().on = QString::fromUtf16(row.on);
    m_controls.last().off = QString::fromUtf16(row.off);
  }
  template <class Other>
  void operator()(const Other&) {}

 private:
  void add(const QString& control, const Binding& bind, BoundControl::Kind kind) {
    if (bind.bound())
      m_controls.append({control, QString::fromUtf16(bind.column()), bind.source(), kind, {}, {}});
  }
  QVector<BoundControl>& m_controls;
};

/// What the control shows, as it would be stored; null where it still shows what was read.
QString changedValue(const Screen& form, const BoundControl& bound, const ClaimRecord& read) {
  switch (bound.kind) {
    case BoundControl::Kind::Tick: {
      const bool ticked = form.checked(bound.control);
      return ticked == read.ticked(bound.column) ? QString() : ticked ? bound.on : bound.off;
    }
    case BoundControl::Kind::Choice: {
      const QString value = form.chosen(bound.control);
      return value.isEmpty() || value == read.get(bound.column) ? QString() : value;
    }
    case BoundControl::Kind::Text:
      break;
  }
  const QString text = form.text(bound.control);
  if (text == read.get(bound.column)) return QString();
  return text.isNull() ? QStringLiteral("") : text;
}

}  // namespace

QVector<BoundControl> boundControls(Rows rows) {
  QVector<BoundControl> controls;
  Collector collector(controls);
  for (const Row& row : rows) std::visit(collector, row);
  return controls;
}

ClaimRecord recordOf(const Screen& form, const QVector<BoundControl>& controls, const ClaimRecord& read) {
  ClaimRecord claim = read;
  for (const BoundControl& bound : controls) {
    const QString value = changedValue(form, bound, read);
    if (!value.isNull()) claim.set(bound.column, value);
  }
  return claim;
}

void showRecord(Screen& form, const QVector<BoundControl>& controls, const ClaimRecord& claim,
                const QSet<QString>& columns) {
  for (const BoundControl& bound : controls) {
    if (!columns.isEmpty() && !columns.contains(bound.column)) continue;
    switch (bound.kind) {
      case BoundControl::Kind::Text:
        form.setText(bound.control, claim.get(bound.column));
        break;
      case BoundControl::Kind::Tick:
        form.setChecked(bound.control, claim.ticked(bound.column));
        break;
      case BoundControl::Kind::Choice:
        form.choose(bound.control, claim.get(bound.column));
        break;
    }
  }
}

}  // namespace claims
