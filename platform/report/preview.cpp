#include "platform/report/preview.h"

#include <QFile>
#include <algorithm>

#include "platform/report/cairo_canvas.h"
#include "platform/report/loaded_form.h"

namespace report {

namespace {

constexpr double kNamePt = 3.5;

void outline(cairo_t* page, const Rect& rect) {
  cairo_rectangle(page, rect.x * kPointsPerMm, rect.y * kPointsPerMm, rect.w * kPointsPerMm,
                  rect.h * kPointsPerMm);
}

void drawNames(CairoCanvas& canvas, const Form& form, TextShaper& shaper) {
  cairo_t* page = canvas.context();
  for (const Item& item : form.items) {
    if (isFrameName(item.name) && item.kind != Kind::Text) continue;
    cairo_set_source_rgb(page, 0.1, 0.3, 0.9);
    cairo_set_line_width(page, 0.2);
    outline(page, item.rect);
    for (const Placement& placement : item.placements) outline(page, placement.rect);
    cairo_stroke(page);
    cairo_set_source_rgb(page, 0.8, 0, 0);
    Item label = item;
    label.vertical = false;
    label.lines = 1;
    label.pt = std::min(kNamePt, item.pt);
    for (const PlacedLine& line : fitText(shaper, label, item.name, Align::Left))
      for (const Run& run : line.text->runs) canvas.text(run, line.x, line.y, line.pt);
  }
  cairo_set_source_rgb(page, 0, 0, 0);
}

}  // namespace

Surface previewForm(const FormPtr& form, const PreviewOptions& options) {
  FontStore fonts;
  TextShaper shaper(fonts);
  PictureStore pictures(options.folder);
  PagePainter painter(shaper, pictures);
  LoadedForm loaded(std::make_shared<FrameStore>(form));
  for (const auto& [name, text] : options.values)
    if (ItemState* state = loaded.change(name))
      *state = {true, state->align, text.isNull() ? state->text : text};
  CairoCanvas canvas(form->width(), form->height(), options.dpi);
  loaded.paint(canvas, painter);
  if (options.names) drawNames(canvas, *form, shaper);
  return Surface(cairo_surface_reference(canvas.image()));
}

bool writePng(cairo_surface_t* image, const QString& path) {
  return cairo_surface_write_to_png(image, QFile::encodeName(path).constData()) == CAIRO_STATUS_SUCCESS;
}

}  // namespace report
