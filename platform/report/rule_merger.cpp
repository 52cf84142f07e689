#include "platform/report/rule_merger.h"

#include <algorithm>
#include <cmath>

namespace report {

namespace {

constexpr double kGrid = 10;  // tenths of a point: 1/28 mm, less than a printer's dot

int onGrid(double mm) { return int(std::lround(mm * kPointsPerMm * kGrid)); }

/// The spans of a rule at this place, or at one that differs by the rounding of the drawing only.
template <class Rules>
auto& spansAt(Rules& rules, int place) {
  for (const int near : {place, place - 1, place + 1})
    if (const auto known = rules.find(near); known != rules.end()) return known->second;
  return rules[place];
}

}  // namespace

void RuleMerger::addBox(const Rect& rect, double rule) {
  addLine({rect.x, rect.y, rect.w, 0}, rule);
  addLine({rect.x, rect.y + rect.h, rect.w, 0}, rule);
  addLine({rect.x, rect.y, 0, rect.h}, rule);
  addLine({rect.x + rect.w, rect.y, 0, rect.h}, rule);
}

void RuleMerger::addLine(const Rect& ends, double rule) {
  Width& width = m_widths[rule];
  const auto span = [](double a, double b) { return Span{onGrid(std::min(a, b)), onGrid(std::max(a, b))}; };
  if (ends.h == 0)
    spansAt(width.across, onGrid(ends.y)).push_back(span(ends.x, ends.x + ends.w));
  else if (ends.w == 0)
    spansAt(width.down, onGrid(ends.x)).push_back(span(ends.y, ends.y + ends.h));
  else
    width.slanting.push_back(ends);
}

std::vector<RuleMerger::Span> RuleMerger::joined(std::vector<Span> spans) {
  std::sort(spans.begin(), spans.end(), [](const Span& a, const Span& b) { return a.from < b.from; });
  std::vector<Span> result;
  for (const Span& span : spans) {
    // Edges of neighbouring boxes may miss each other by the rounding of the drawing.
    if (!result.empty() && span.from <= result.back().to + 1)
      result.back().to = std::max(result.back().to, span.to);
    else
      result.push_back(span);
  }
  return result;
}

void RuleMerger::draw(Canvas& canvas) const {
  for (const auto& [rule, width] : m_widths) {
    // Half a rule more at both ends, so that corners are closed.
    const double more = rule * kPointsPerMm / 2;
    for (const auto& [y, spans] : width.across)
      for (const Span& span : joined(spans)) {
        canvas.moveTo(span.from / kGrid - more, y / kGrid);
        canvas.lineTo(span.to / kGrid + more, y / kGrid);
      }
    for (const auto& [x, spans] : width.down)
      for (const Span& span : joined(spans)) {
        canvas.moveTo(x / kGrid, span.from / kGrid);
        canvas.lineTo(x / kGrid, span.to / kGrid);
      }
    for (const Rect& line : width.slanting) {
      canvas.moveTo(line.x * kPointsPerMm, line.y * kPointsPerMm);
      canvas.lineTo((line.x + line.w) * kPointsPerMm, (line.y + line.h) * kPointsPerMm);
    }
    canvas.stroke(rule * kPointsPerMm);
  }
}

}  // namespace report
