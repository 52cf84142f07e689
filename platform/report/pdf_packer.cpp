#include "platform/report/pdf_packer.h"

#include <QByteArrayView>
#include <algorithm>
#include <optional>
#include <vector>

namespace report {

namespace {

constexpr int kObjectsOfStream = 200;
constexpr int kColumns = 7;  // of an entry of the cross reference: kind, place (4), number in its stream (2)

struct Object {
  QByteArray body;     // of a stream: its dictionary
  QByteArrayView data;
  bool stream = false;
  bool used = false;
};

/// What a number in the cross reference says.
struct Entry {
  int kind = 0;
  quint32 place = 0;
  int position = 0;
};

QByteArray deflated(const QByteArray& bytes) { return qCompress(bytes, 9).mid(4); }

/// The number behind a key, e.g. of "/Root 12 0 R"; -1 if there is none.
int numberAfter(QByteArrayView text, QByteArrayView key) {
  qsizetype at = text.indexOf(key);
  if (at < 0) return -1;
  at += key.size();
  while (at < text.size() && (text[at] == ' ' || text[at] == '\n')) ++at;
  qsizetype end = at;
  while (end < text.size() && text[end] >= '0' && text[end] <= '9') ++end;
  return end > at ? text.sliced(at, end - at).toInt() : -1;
}

QByteArray reference(int number) { return QByteArray::number(number) + " 0 R"; }

class Packer {
 public:
  explicit Packer(const QByteArray& pdf) : m_pdf(pdf) {}

  std::optional<QByteArray> pack() {
    if (!readObjects() || !inlineLengths()) return std::nullopt;
    describe();
    m_out = "%PDF-1.5\n%\xE3\x81\x82\n";
    m_entries.resize(m_objects.size());
    writeStreams();
    writePacked();
    writeReference();
    return m_out;
  }

 private:
  bool readObjects() {
    const qsizetype start = m_pdf.lastIndexOf("startxref");
    if (start < 0) return false;
    const qsizetype table = numberAfter(QByteArrayView(m_pdf).sliced(start), "startxref");
    const qsizetype trailer = m_pdf.lastIndexOf("trailer");
    if (table < 0 || trailer < table || !m_pdf.mid(table).startsWith("xref\n0 ")) return false;
    const int count = numberAfter(QByteArrayView(m_pdf).sliced(table + 5), "0 ");
    m_root = numberAfter(QByteArrayView(m_pdf).sliced(trailer), "/Root");
    m_info = numberAfter(QByteArrayView(m_pdf).sliced(trailer), "/Info");
    const qsizetype first = m_pdf.indexOf('\n', table + 5) + 1;
    if (count < 1 || m_root < 0 || m_root >= count || first + qsizetype(count) * 20 > m_pdf.size()) return false;
    std::vector<std::pair<qsizetype, int>> places;
    for (int n = 1; n < count; ++n) {
      const QByteArrayView entry = QByteArrayView(m_pdf).sliced(first + qsizetype(n) * 20, 20);
      if (entry[17] == 'n') places.push_back({entry.first(10).toLongLong(), n});
    }
    std::sort(places.begin(), places.end());
    m_objects.resize(size_t(count));
    for (size_t i = 0; i < places.size(); ++i)
      if (!readObject(places[i].second, places[i].first, i + 1 < places.size() ? places[i + 1].first : table)) return false;
    return true;
  }

  bool readObject(int number, qsizetype from, qsizetype to) {
    const QByteArray head = QByteArray::number(number) + " 0 obj\n";
    if (from < 0 || to > m_pdf.size() || from >= to) return false;
    const QByteArrayView text = QByteArrayView(m_pdf).sliced(from, to - from);
    const qsizetype end = text.lastIndexOf(QByteArrayView("endobj"));
    if (!text.startsWith(head) || end < 0) return false;
    Object& object = m_objects[size_t(number)];
    const QByteArrayView body = text.sliced(head.size(), end - head.size());
    const qsizetype data = body.startsWith("<<") ? body.indexOf(QByteArrayView(">>\nstream\n")) : -1;
    object.used = true;
    object.stream = data >= 0;
    // Line ends stay in small objects: the page library ends a comment with one.
    object.body = object.stream ? body.first(data + 2).toByteArray().simplified() : body.toByteArray().trimmed();
    if (object.stream) object.data = body.sliced(data + 10);
    return true;
  }

  // "/Length 12 0 R" and an object 12 that holds the number become "/Length" and the number.
  bool inlineLengths() {
    for (Object& object : m_objects) {
      if (!object.stream) continue;
      const int holder = numberAfter(object.body, "/Length");
      const QByteArray indirect = "/Length " + reference(holder);
      qsizetype length = holder;
      if (object.body.contains(indirect)) {
        if (holder < 1 || holder >= int(m_objects.size())) return false;
        length = m_objects[size_t(holder)].body.toLongLong();
        object.body.replace(indirect, "/Length " + QByteArray::number(length));
        m_objects[size_t(holder)].used = false;
      }
      if (length < 0 || length > object.data.size()) return false;
      object.data = object.data.first(length);
    }
    return true;
  }

  void describe() {
    QByteArray catalog = m_objects[size_t(m_root)].body;
    const int tree = numberAfter(catalog, "/StructTreeRoot");
    QByteArray more = " /Lang (ja-JP) /ViewerPreferences << /DisplayDocTitle true >>";
    if (tree > 0 && tree < int(m_objects.size()) && !catalog.contains("/MarkInfo")) {
      more += " /MarkInfo << /Marked true >>";
      gather(tree);
    }
    catalog.insert(catalog.lastIndexOf(">>"), more + ' ');
    m_objects[size_t(m_root)].body = catalog;
  }

  // The elements of all pages become children of one Document element.
  void gather(int tree) {
    QByteArray& root = m_objects[size_t(tree)].body;
    const qsizetype from = root.indexOf("/K ["), to = root.indexOf(']', from);
    if (from < 0 || to < 0) return;
    const int number = int(m_objects.size());
    const QByteArray children = root.mid(from, to + 1 - from);
    root.replace(from, to + 1 - from, "/K " + reference(number));
    const QByteArray oldParent = "/P " + reference(tree), newParent = "/P " + reference(number);
    for (Object& object : m_objects)
      if (object.body.startsWith("<< /Type /StructElem")) object.body.replace(oldParent, newParent);
    Object document;
    document.body = "<< /Type /StructElem /S /Document " + oldParent + ' ' + children + " >>";
    document.used = true;
    m_objects.push_back(document);
  }

  void writeStreams() {
    for (int n = 1; n < int(m_objects.size()); ++n)
      if (m_objects[size_t(n)].stream) writeStream(n, m_objects[size_t(n)].body, m_objects[size_t(n)].data);
  }

  void writeStream(int number, const QByteArray& dictionary, QByteArrayView data) {
    if (number >= int(m_entries.size())) m_entries.resize(size_t(number) + 1);
    m_entries[size_t(number)] = {1, quint32(m_out.size()), 0};
    m_out += QByteArray::number(number) + " 0 obj\n" + dictionary + "\nstream\n";
    m_out.append(data.data(), data.size());
    m_out += "\nendstream\nendobj\n";
  }

  void writePacked() {
    QByteArray places, bodies;
    int count = 0;
    int number = int(m_objects.size());
    const auto flush = [&] {
      if (count == 0) return;
      const QByteArray data = deflated(places + bodies);
      writeStream(number++,
                  "<< /Type /ObjStm /N " + QByteArray::number(count) + " /First " + QByteArray::number(places.size()) +
                      " /Filter /FlateDecode /Length " + QByteArray::number(data.size()) + " >>",
                  data);
      places.clear(), bodies.clear(), count = 0;
    };
    for (int n = 1; n < int(m_objects.size()); ++n) {
      const Object& object = m_objects[size_t(n)];
      if (!object.used || object.stream) continue;
      m_entries[size_t(n)] = {2, quint32(number), count++};
      places += QByteArray::number(n) + ' ' + QByteArray::number(bodies.size()) + ' ';
      bodies += object.body + '\n';
      if (count == kObjectsOfStream) flush();
    }
    flush();
  }

  // Each row is stored as its difference from the one above, which compresses to next to nothing.
  QByteArray referenceRows() const {
    QByteArray rows;
    QByteArray above(kColumns, 0);
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

  void writeReference() {
    const int number = int(m_entries.size());
    const qsizetype at = m_out.size();
    m_entries.push_back({1, quint32(at), 0});
    const QByteArray data = deflated(referenceRows());
    QByteArray dictionary = "<< /Type /XRef /Size " + QByteArray::number(number + 1) + " /W [1 4 2] /Root " + reference(m_root);
    if (m_info > 0) dictionary += " /Info " + reference(m_info);
    dictionary += " /Filter /FlateDecode /DecodeParms << /Predictor 12 /Columns " + QByteArray::number(kColumns) +
                  " >> /Length " + QByteArray::number(data.size()) + " >>";
    m_out += QByteArray::number(number) + " 0 obj\n" + dictionary + "\nstream\n" + data + "\nendstream\nendobj\n";
    m_out += "startxref\n" + QByteArray::number(at) + "\n%%EOF\n";
  }

  const QByteArray& m_pdf;
  int m_root = -1;
  int m_info = -1;
  std::vector<Object> m_objects;
  std::vector<Entry> m_entries;
  QByteArray m_out;
};

}  // namespace

QByteArray packPdf(const QByteArray& pdf) { return Packer(pdf).pack().value_or(pdf); }

}  // namespace report
