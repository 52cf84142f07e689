#include "claims/core/checks.h"
#include "frame/core/routes_unbuilt.h"
#include "platform/text/utf16.h"

namespace claims {

namespace unbuilt = routes::unbuilt;

namespace {

constexpr char16_t kReport[] =
    u"施術報告書の印刷の窓が開いています。そちらの窓の「閉じる」を押して、閉じてください。"
    u"（後ろに隠れている可能性があります。）";
constexpr char16_t kRoute[] =
    u"往療内訳表印刷の窓が開いています。そちらの窓の「閉じる」を押して、閉じてください。"
    u"（後ろに隠れている可能性があります。）";
constexpr char16_t kReason[] =
    u"１年・月１６回以上の理由書印刷の窓が開いています。そちらの窓の「閉じる」を押して、閉じてください。"
    u"（後ろに隠れている可能性があります。）";
constexpr char16_t kCopy[] =
    u"施術報告書のコピーの窓が開いています。そちらの窓の「閉じる」を押して、閉じてください。"
    u"（後ろに隠れている可能性があります。）";

constexpr SingleWindow kWindows[] = {
    {unbuilt::TreatmentReport::screen.get(), kReport, true},
    {unbuilt::VisitBreakdown::screen.get(), kRoute, true},
    {unbuilt::ReasonSheetAcupuncture::screen.get(), kReason, true},
    {unbuilt::ReasonSheetMassage::screen.get(), kReason, true},
    {unbuilt::ReportCopy::screen.get(), kCopy, false},
};

}  // namespace

std::span<const SingleWindow> singleWindows() { return kWindows; }

QString openWindowMessage(const QStringList& openWindows, bool withCopy) {
  for (const SingleWindow& window : kWindows)
    if ((window.stopsFastCheck || withCopy) && openWindows.contains(QStringView(window.screen)))
      return text::utf16(window.message);
  return {};
}

}  // namespace claims
