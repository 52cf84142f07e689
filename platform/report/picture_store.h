#pragma once

#include <QString>
#include <map>

#include "platform/report/cairo_handles.h"

namespace report {

/// Pictures of picture items, read once. A picture item's text is "#BMP=" and the path of the file; a
/// backslash of the path is a folder mark. A path that is not absolute lies in the program folder.
class PictureStore {
 public:
  explicit PictureStore(const QString& folder) : m_folder(folder) {}

  /// nullptr if the text names no picture that can be read: nothing is drawn then.
  cairo_surface_t* find(const QString& itemText);

 private:
  QString m_folder;
  std::map<QString, Surface> m_pictures;
};

/// A Windows bitmap (uncompressed, 1, 4, 8, 24 or 32 bits a point); nullptr if the bytes are none.
Surface readBitmap(const QByteArray& bytes);

}  // namespace report
