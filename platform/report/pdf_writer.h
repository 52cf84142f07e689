#pragma once

#include <QByteArray>
#include <vector>

namespace report {

/// "12 0 R"
QByteArray reference(int number);

/// A compressed stream with its dictionary's entries, ready to be written into any document.
struct PackedStream {
  QByteArray data;
  QByteArray entries;

  static PackedStream of(const QByteArray& plain, const QByteArray& entries = {});
};

/// The objects of a PDF file (version 1.5: small objects compressed together, and the cross reference, too).
class PdfWriter {
 public:
  PdfWriter();

  /// A number for an object that is put later.
  int reserve();
  void put(int number, const QByteArray& body);
  int add(const QByteArray& body);
  int stream(const PackedStream& stream);
  QByteArray finish(int catalog, int info);

 private:
  /// What a number in the cross reference says.
  struct Entry {
    int kind = 0;  ///< 1: place in the file, 2: number of an object stream
    quint32 place = 0;
    int position = 0;  ///< in the object stream
  };
  void writeStream(int number, const QByteArray& entries, const QByteArray& data);
  void writeSmallObjects();
  QByteArray referenceRows() const;

  QByteArray m_out;
  std::vector<Entry> m_entries;
  std::vector<std::pair<int, QByteArray>> m_small;
};

}  // namespace report
