#include "platform/report/font_program.h"

#include "platform/report/font_file.h"
#include "platform/report/slim_outline.h"

namespace report {

namespace {

constexpr int kMaxBlockEntries = 100;  // entries that one block of a text table may have

QByteArray hex4(unsigned number) { return QByteArray::number(number, 16).rightJustified(4, '0'); }

QByteArray codesOf(const QString& text) {
  QByteArray codes;
  for (const QChar c : text) codes += hex4(c.unicode());
  return codes.isEmpty() ? hex4(0xFFFD) : codes;
}

/// A range of numbers may not reach beyond a multiple of 256, nor may it be longer than 100.
bool follows(unsigned first, unsigned number, qsizetype distance) {
  return number == first + unsigned(distance) && number / 256 == first / 256 && distance < kMaxBlockEntries;
}

QByteArray textTable(const Font& font, const std::set<unsigned>& numbers) {
  QByteArray table =
      "/CIDInit /ProcSet findresource begin\n12 dict begin\nbegincmap\n/CMapType 2 def\n/CMapName /T def\n"
      "1 begincodespacerange\n<0000><ffff>\nendcodespacerange\n";
  std::vector<QByteArray> ranges;
  for (auto first = numbers.begin(); first != numbers.end();) {
    QByteArray texts;
    auto last = first;
    for (auto next = first; next != numbers.end() && follows(*first, *next, std::distance(first, next));
         ++next)
      texts += '<' + codesOf(font.glyph(*(last = next)).text) + '>';
    ranges.push_back('<' + hex4(*first) + "><" + hex4(*last) + ">[" + texts + "]\n");
    first = std::next(last);
  }
  for (size_t i = 0; i < ranges.size(); i += kMaxBlockEntries) {
    const size_t end = std::min(ranges.size(), i + kMaxBlockEntries);
    table += QByteArray::number(qlonglong(end - i)) + " beginbfrange\n";
    for (size_t k = i; k < end; ++k) table += ranges[k];
    table += "endbfrange\n";
  }
  return table + "endcmap\nCMapName currentdict /CMap defineresource pop\nend\nend\n";
}

/// Kanji are an em wide, which is the default.
QByteArray widthTable(const Font& font, const std::set<unsigned>& numbers) {
  QByteArray table = "[";
  for (const unsigned number : numbers) {
    if (font.glyph(number).advance == kSlimEm) continue;
    table += QByteArray::number(number) + '[';
    appendNumber(table, font.advance(number) * 1000);
    table += ']';
  }
  return table + ']';
}

QByteArray subsetMark(const std::set<unsigned>& numbers) {
  size_t hash = qHashRange(numbers.begin(), numbers.end());
  QByteArray mark;
  for (int i = 0; i < 6; ++i, hash /= 26) mark += char('A' + hash % 26);
  return mark + '+';
}

}  // namespace

FontProgram makeProgram(const Font& font, const std::set<unsigned>& numbers) {
  const QByteArray file = trueTypeFile(font, numbers);
  FontProgram program;
  program.name = subsetMark(numbers) + font.name();
  program.file = PackedStream::of(file, "/Length1 " + QByteArray::number(file.size()));
  program.texts = PackedStream::of(textTable(font, numbers));
  program.widths = widthTable(font, numbers);
  return program;
}

int FontProgram::write(PdfWriter& writer) const {
  const int fileNumber = writer.stream(file);
  const int textsNumber = writer.stream(texts);
  const int descriptor =
      writer.add("<</Type/FontDescriptor/FontName/" + name +
                 "/Flags 4/FontBBox[-300 -300 1100 1000]/ItalicAngle 0/Ascent 880/Descent -120"
                 "/CapHeight 760/StemV 80/FontFile2 " +
                 reference(fileNumber) + ">>");
  const int descendant =
      writer.add("<</Type/Font/Subtype/CIDFontType2/BaseFont/" + name +
                 "/CIDSystemInfo<</Registry(Adobe)/Ordering(Identity)/Supplement 0>>/FontDescriptor " +
                 reference(descriptor) + "/CIDToGIDMap/Identity/DW 1000/W" + widths + ">>");
  return writer.add("<</Type/Font/Subtype/Type0/BaseFont/" + name + "/Encoding/Identity-H/DescendantFonts[" +
                    reference(descendant) + "]/ToUnicode " + reference(textsNumber) + ">>");
}

}  // namespace report
