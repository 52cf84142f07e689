#include <QDir>

#include "platform/report/tests/engine_fixture.h"

namespace report::testing {
namespace {

void append(QByteArray& bytes, quint32 value, int count) {
  for (int i = 0; i < count; ++i) bytes += char(value >> (8 * i));
}

/// Two rows of two points, bottom row first: blue, green / red, white.
QByteArray bitmap() {
  QByteArray bytes = "BM";
  append(bytes, 54 + 16, 4);
  append(bytes, 0, 4);
  append(bytes, 54, 4);
  append(bytes, 40, 4);
  append(bytes, 2, 4);
  append(bytes, 2, 4);
  append(bytes, 1, 2);
  append(bytes, 24, 2);
  bytes += QByteArray(24, '\0');
  bytes += QByteArray("\xFF\0\0\0\xFF\0\0\0", 8);
  bytes += QByteArray("\0\0\xFF\xFF\xFF\xFF\0\0", 8);
  return bytes;
}

quint32 pointAt(cairo_surface_t* image, int x, int y) {
  const uchar* row = cairo_image_surface_get_data(image) + y * cairo_image_surface_get_stride(image);
  return reinterpret_cast<const quint32*>(row)[x] & 0xFFFFFF;
}

TEST(Bitmap, isReadFromTheBottomUp) {
  const Surface image = readBitmap(bitmap());
  ASSERT_TRUE(image);
  EXPECT_EQ(pointAt(image.get(), 0, 0), 0xFF0000u);
  EXPECT_EQ(pointAt(image.get(), 1, 0), 0xFFFFFFu);
  EXPECT_EQ(pointAt(image.get(), 0, 1), 0x0000FFu);
  EXPECT_EQ(pointAt(image.get(), 1, 1), 0x00FF00u);
}

TEST(Bitmap, damageIsNoPicture) {
  const QByteArray good = bitmap();
  for (qsizetype length = 0; length < good.size() - 2; ++length)
    EXPECT_FALSE(readBitmap(good.left(length))) << length;
  for (const auto& [place, value] : {std::pair(18, -1), {22, 0}, {28, 7}, {30, 1}, {10, 127}}) {
    QByteArray bad = good;
    bad[place] = char(value);
    if (value == -1) bad.replace(18, 4, QByteArray(4, '\xFF'));
    EXPECT_FALSE(readBitmap(bad)) << place;
  }
}

class PictureItem : public EngineTest {};

TEST_F(PictureItem, drawsTheFileThatTheTextNames) {
  if (!canReadPdf()) GTEST_SKIP() << "pdfimages is not installed";
  ASSERT_TRUE(QDir(m_folder.path()).mkdir("GDATA"));
  QFile file(m_folder.filePath("GDATA/in.bmp"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bitmap());
  file.close();
  writeTemplate("F.PRP", "form F\npicture stamp 10 10 20 20\n");
  const auto images = [](const QByteArray& pdf) {
    return runOnPdf("pdfimages", {"-list"}, pdf).count(" rgb ");
  };
  EXPECT_EQ(images(printed("F.PRP", {{"stamp", "#BMP=GDATA\\in.bmp"}})), 1);
  EXPECT_EQ(images(printed("F.PRP", {{"stamp", "#BMP=" + m_folder.filePath("GDATA/in.bmp")}})), 1);
  EXPECT_EQ(images(printed("F.PRP", {{"stamp", "#BMP=GDATA/none.bmp"}})), 0);
  EXPECT_EQ(images(printed("F.PRP", {{"stamp", "GDATA/in.bmp"}})), 0);
}

}  // namespace
}  // namespace report::testing
