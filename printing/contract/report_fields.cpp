#include "printing/contract/report_fields.h"

namespace printing {

namespace {

constexpr int kFrameNumbers = 1000;
constexpr const char16_t* kFrameFamilies[] = {u"waku_", u"Box", u"Line", u"Text"};

}  // namespace

void ReportFields::show(QStringView item, const QString& text) {
  if (text.isEmpty()) return;
  m_engine.PR_RepSetVisible(item.toString(), report::kShown);
  m_engine.PR_RepSetText(item.toString(), text);
}

void ReportFields::mark(QStringView item) { m_engine.PR_RepSetVisible(item.toString(), report::kShown); }

void ReportFields::markIf(bool wanted, QStringView item) {
  if (wanted) mark(item);
}

void ReportFields::hide(QStringView item) { m_engine.PR_RepSetVisible(item.toString(), report::kHidden); }

void ReportFields::digits(QStringView stem, const QString& text, int boxes, int firstBox) {
  for (int i = 0; i < text.size() && firstBox + i <= boxes; ++i)
    if (!text.at(i).isSpace()) show(stem.toString() + QString::number(firstBox + i), text.mid(i, 1));
}

bool ReportFields::variant(std::span<const Variant> sizes, const QString& text) {
  if (text.isEmpty()) return false;
  for (const Variant& size : sizes) {
    if (text.size() > size.upTo) continue;
    show(size.item, text);
    return true;
  }
  return false;
}

void ReportFields::hideFrame() {
  for (int n = 1; n <= kFrameNumbers; ++n)
    for (const char16_t* family : kFrameFamilies) hide(QString::fromUtf16(family) + QString::number(n));
}

}  // namespace printing
