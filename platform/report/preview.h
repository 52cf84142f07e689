#pragma once

#include <map>

#include "platform/report/cairo_handles.h"
#include "platform/report/form.h"

namespace report {

struct PreviewOptions {
  double dpi = 150;
  bool names = false;  ///< frames each data item and writes its name there
  QString folder;      ///< of pictures
  /// Items to show, with their texts.
  std::map<QString, QString> values;
};

/// The form as an image.
Surface previewForm(const FormPtr& form, const PreviewOptions& options);
bool writePng(cairo_surface_t* image, const QString& path);

}  // namespace report
