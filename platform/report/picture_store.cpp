#include "platform/report/picture_store.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace report {

namespace {

struct Header {
  quint32 pixels = 0;  // place of the first row
  quint32 palette = 0;
  int width = 0;
  int height = 0;
  bool topDown = false;
  int bits = 0;
  qsizetype rowBytes = 0;
};

bool readHeader(const QByteArray& bytes, Header& header) {
  if (bytes.size() < 54 || !bytes.startsWith("BM")) return false;
  const char* b = bytes.constData();
  header.pixels = qFromLittleEndian<quint32>(b + 10);
  header.palette = 14 + qFromLittleEndian<quint32>(b + 14);
  header.width = qFromLittleEndian<qint32>(b + 18);
  header.height = qFromLittleEndian<qint32>(b + 22);
  header.bits = qFromLittleEndian<quint16>(b + 28);
  const quint32 compression = qFromLittleEndian<quint32>(b + 30);
  header.topDown = header.height < 0;
  header.height = std::abs(header.height);
  constexpr int kMaxPixels = 20000;
  if (header.width < 1 || header.width > kMaxPixels || header.height < 1 || header.height > kMaxPixels)
    return false;
  const bool known =
      header.bits == 1 || header.bits == 4 || header.bits == 8 || header.bits == 24 || header.bits == 32;
  if (!known || (compression != 0 && !(compression == 3 && header.bits == 32))) return false;
  header.rowBytes = (qsizetype(header.width) * header.bits + 31) / 32 * 4;
  return bytes.size() >= qsizetype(header.pixels) + header.rowBytes * header.height;
}

quint32 colourAt(const QByteArray& bytes, const Header& header, const uchar* row, int x) {
  const auto rgb = [](const uchar* p) { return quint32(p[2]) << 16 | quint32(p[1]) << 8 | p[0]; };
  if (header.bits >= 24) return rgb(row + x * (header.bits / 8));
  const int perByte = 8 / header.bits;
  const int shift = (perByte - 1 - x % perByte) * header.bits;
  const int entry = (row[x / perByte] >> shift) & ((1 << header.bits) - 1);
  const qsizetype at = header.palette + 4 * entry;
  return at + 3 <= bytes.size() ? rgb(reinterpret_cast<const uchar*>(bytes.constData()) + at) : 0;
}

}  // namespace

Surface readBitmap(const QByteArray& bytes) {
  Header header;
  if (!readHeader(bytes, header)) return nullptr;
  Surface picture(cairo_image_surface_create(CAIRO_FORMAT_RGB24, header.width, header.height));
  uchar* out = cairo_image_surface_get_data(picture.get());
  const int stride = cairo_image_surface_get_stride(picture.get());
  for (int y = 0; y < header.height; ++y) {
    const int from = header.topDown ? y : header.height - 1 - y;
    const auto* row =
        reinterpret_cast<const uchar*>(bytes.constData()) + header.pixels + header.rowBytes * from;
    auto* to = reinterpret_cast<quint32*>(out + qsizetype(stride) * y);
    for (int x = 0; x < header.width; ++x) to[x] = colourAt(bytes, header, row, x);
  }
  cairo_surface_mark_dirty(picture.get());
  return picture;
}

cairo_surface_t* PictureStore::find(const QString& itemText) {
  static const QString mark = QStringLiteral("#BMP=");
  if (!itemText.startsWith(mark)) return nullptr;
  const QString path = QDir(m_folder).filePath(itemText.mid(mark.size()).replace(u'\\', u'/'));
  // A drawing may be changed and printed again in the same run.
  const QString key = path + u'\n' + QFileInfo(path).lastModified().toString(Qt::ISODateWithMs);
  const auto known = m_pictures.find(key);
  if (known != m_pictures.end()) return known->second.get();
  QFile file(path);
  Surface picture;
  if (file.open(QIODevice::ReadOnly)) picture = readBitmap(file.readAll());
  if (!picture) {
    picture.reset(cairo_image_surface_create_from_png(QFile::encodeName(path).constData()));
    if (cairo_surface_status(picture.get()) != CAIRO_STATUS_SUCCESS) picture.reset();
  }
  return (m_pictures[key] = std::move(picture)).get();
}

}  // namespace report
