#pragma once

#include <QByteArray>

#include "platform/report/text_shaper.h"

namespace report {

/// Number of a paragraph that is no part of the text: rules.
inline constexpr int kArtifact = -1;

/// A page, or the frame of pages, measured in points from the upper left corner. All ink is black.
class Canvas {
 public:
  virtual ~Canvas() = default;

  /// A run whose baseline starts at x, y (a vertical one: the middle of its upper edge).
  virtual void text(const Run& run, double x, double y, double pt) = 0;
  virtual void moveTo(double x, double y) = 0;
  virtual void lineTo(double x, double y) = 0;
  virtual void ellipse(double cx, double cy, double rx, double ry) = 0;
  /// Draws what was gathered since the last stroke.
  virtual void stroke(double width) = 0;
  /// An RGB24 image surface, stretched to the rectangle.
  virtual void picture(cairo_surface_t* image, double x, double y, double w, double h) = 0;
  /// What is drawn in between is one paragraph of the document, identified by its number on the page.
  virtual void openParagraph(int number) = 0;
  virtual void closeParagraph() = 0;
};

}  // namespace report
