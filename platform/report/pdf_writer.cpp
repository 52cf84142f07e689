#include "platform/report/pdf_writer.h"

namespace report {

namespace {

constexpr size_t kObjectsOfStream = 200;
constexpr int kColumns = 7;  // of an entry of the cross reference: kind, place (4), position (2)

QByteArray deflated(const QByteArray& bytes) { return qCompress(bytes, 6).mid(4); }

}  // namespace

QByteArray reference(int number) { return QByteArray::number(number) + " 0 R"; }

PackedStream PackedStream::of(const QByteArray& plain, const QByteArray& entries) {
  return {deflated(plain), entries};
}

PdfWriter::PdfWriter() : m_out("%PDF-1.5\n%\xE3\x81\x82\n"), m_entries(1) {}

int PdfWriter::reserve() {
  m_entries.emplace_back();
  return int(m_entries.size()) - 1;
}

void PdfWriter::put(int number, const QByteArray& body) { m_small.push_back({number, body}); }

int PdfWriter::add(const QByteArray& body) {
  const int number = reserve();
  put(number, body);
  return number;
}

int PdfWriter::stream(const PackedStream& stream) {
  const int number = reserve();
  writeStream(number, stream.entries + "/Filter/FlateDecode", stream.data);
  return number;
}

void PdfWriter::writeStream(int number, const QByteArray& entries, const QByteArray& data) {
  m_entries[size_t(number)] = {1, quint32(m_out.size()), 0};
  m_out += QByteArray::number(number) + " 0 obj\n<<" + entries + "/Length " +
           QByteArray::number(data.size()) + ">>\nstream\n" + data + "\nendstream\nendobj\n";
}

void PdfWriter::writeSmallObjects() {
  for (size_t from = 0; from < m_small.size(); from += kObjectsOfStream) {
    const int holder = reserve();
    const size_t to = std::min(m_small.size(), from + kObjectsOfStream);
    QByteArray places, bodies;
    for (size_t i = from; i < to; ++i) {
      m_entries[size_t(m_small[i].first)] = {2, quint32(holder), int(i - from)};
      places += QByteArray::number(m_small[i].first) + ' ' + QByteArray::number(bodies.size()) + ' ';
      bodies += m_small[i].second + '\n';
    }
    writeStream(holder,
                "/Type/ObjStm/N " + QByteArray::number(qlonglong(to - from)) + "/First " +
                    QByteArray::number(places.size()) + "/Filter/FlateDecode",
                deflated(places + bodies));
  }
}

// Each row is stored as its difference from the one above, which compresses to next to nothing.
QByteArray PdfWriter::referenceRows() const {
  QByteArray rows, above(kColumns, 0);
  for (const Entry& entry : m_entries) {
    QByteArray row(kColumns, 0);
    row[0] = char(entry.kind);
    for (int i = 0; i < 4; ++i) row[1 + i] = char(entry.place >> (24 - 8 * i));
    row[5] = char(entry.position >> 8);
    row[6] = char(entry.position);
    rows += '\2';
    for (int i = 0; i < kColumns; ++i) rows += char(row[i] - above[i]);
    above = row;
  }
  return rows;
}

QByteArray PdfWriter::finish(int catalog, int info) {
  writeSmallObjects();
  const int number = reserve();
  const qsizetype place = m_out.size();
  m_entries[size_t(number)] = {1, quint32(place), 0};
  writeStream(number,
              "/Type/XRef/Size " + QByteArray::number(qlonglong(m_entries.size())) + "/W[1 4 2]/Root " +
                  reference(catalog) + "/Info " + reference(info) +
                  "/Filter/FlateDecode/DecodeParms<</Predictor 12/Columns " + QByteArray::number(kColumns) +
                  ">>",
              deflated(referenceRows()));
  m_out += "startxref\n" + QByteArray::number(place) + "\n%%EOF\n";
  return std::move(m_out);
}

}  // namespace report
