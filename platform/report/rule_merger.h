#pragma once

#include <map>
#include <vector>

#include "platform/report/canvas.h"
#include "platform/report/form.h"

namespace report {

/// Rules of a frame, gathered so that an edge that two boxes share is drawn once, and edges that follow one
/// another become one line.
class RuleMerger {
 public:
  void addBox(const Rect& rect, double rule);
  /// A slanting line is passed on unchanged.
  void addLine(const Rect& ends, double rule);
  void draw(Canvas& canvas) const;

 private:
  struct Span {
    int from;
    int to;
  };
  /// One direction of one width of rule: where the rule lies, and its spans, in tenths of a point.
  using Rules = std::map<int, std::vector<Span>>;
  struct Width {
    Rules across;
    Rules down;
    std::vector<Rect> slanting;
  };

  static std::vector<Span> joined(std::vector<Span> spans);

  std::map<double, Width> m_widths;
};

}  // namespace report
