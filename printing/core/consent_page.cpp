#include "printing/core/consent_page.h"

#include <algorithm>

namespace printing {
namespace {

// Type sizes are tenths of a millimetre, places millimetres from the margins.
constexpr int kBody = 50;
constexpr int kHeading = 80;
constexpr int kSmallest = 20;
constexpr float kFirstRow = 22.0F;
constexpr float kRowStep = 6.5F;  // the 36th row ends 12 mm above the edge of an A4 page

struct ColumnPlace {
  float x;
  float room;  ///< up to the next column, less a gap
};
constexpr ColumnPlace kName{0.0F, 57.0F};
constexpr ColumnPlace kInsurance{60.0F, 43.0F};
constexpr ColumnPlace kEnd{105.0F, 43.0F};
constexpr ColumnPlace kTreatment{150.0F, 20.0F};

// From 18 mm on in full-width characters of 5 mm, so that each word stands above its column.
constexpr char16_t kColumnLine[] = u"氏名　　　　　　　保険の種類　　　　　同意期限　　　施術内容";

/// Width in full-width characters: half-width kana are half, the type's digits and letters somewhat more.
double widthOf(const QString& text) {
  double width = 0;
  for (const QChar c : text) {
    if (c.isLowSurrogate()) continue;
    const bool halfKana = c.unicode() >= 0xFF61 && c.unicode() <= 0xFF9F;
    width += halfKana ? 0.5 : c.unicode() < 0x100 ? 0.65 : 1.0;
  }
  return width;
}

/// The text as far as it fits into so many full-width characters.
QString cut(QString text, double characters) {
  if (widthOf(text) <= characters) return text;
  while (!text.isEmpty() && widthOf(text) > characters - 1) text.chop(1);
  return text + QChar(u'…');
}

void cell(report::ReportOperations& engine, const ColumnPlace& place, float y, const QString& text) {
  if (text.isEmpty()) return;
  const int fitting = static_cast<int>(place.room * 10 / widthOf(text));
  if (fitting >= kBody) return engine.PR_Output(place.x, y, text);
  const int size = std::max(kSmallest, fitting);
  engine.PR_SetFontSize(size);
  const float lowered = static_cast<float>(kBody - size) / 10 / 2;  // in the middle of its line
  engine.PR_Output(place.x, y + lowered, cut(text, place.room * 10 / size));
  engine.PR_SetFontSize(kBody);
}

void head(report::ReportOperations& engine, QDate today) {
  engine.PR_SetFont(QStringLiteral("ＭＳ 明朝"));
  engine.PR_SetFontSize(kBody);
  engine.PR_Output(135.0F, -20.0F, QStringLiteral("印刷日:") + today.toString(QStringLiteral("yyyy/M/d")));
  engine.PR_SetFontSize(kHeading);
  engine.PR_Output(37.0F, -5.0F, QStringLiteral("同意期限一ヶ月データ一覧"));
  engine.PR_SetFontSize(kBody);
  engine.PR_Output(18.0F, 15.0F, QString::fromUtf16(kColumnLine));
  engine.PR_SetPen(3);
  engine.PR_Line(0.0F, 20.0F, 170.0F, 20.0F);
}

}  // namespace

int consentPages(qsizetype rows) {
  return std::max(1, static_cast<int>((rows + kConsentRowsOnPage - 1) / kConsentRowsOnPage));
}

void drawConsentPage(report::ReportOperations& engine, std::span<const claims::ConsentEnd> rows, QDate today,
                     int page) {
  if (page == 0) {
    engine.PR_SetMargin(240, 300);
    engine.PR_SetScale();
  }
  head(engine, today);
  const size_t first = static_cast<size_t>(page) * kConsentRowsOnPage;
  const size_t end = std::min(rows.size(), first + kConsentRowsOnPage);
  for (size_t i = first; i < end; ++i) {
    const float y = kFirstRow + kRowStep * static_cast<float>(i - first);
    cell(engine, kName, y, rows[i].name);
    cell(engine, kInsurance, y, rows[i].insurance);
    cell(engine, kEnd, y, claims::consentEndText(rows[i].end));
    cell(engine, kTreatment, y, rows[i].treatment);
  }
}

}  // namespace printing
