#include "claims/core/checks.h"

namespace claims {
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
    {u"施術報告書", kReport, true},           {u"往療内訳表", kRoute, true},
    {u"frm1年16回以上印刷は", kReason, true}, {u"frm1年16回以上印刷マ", kReason, true},
    {u"施術報告書コピー", kCopy, false},
};

}  // namespace

std::span<const SingleWindow> singleWindows() { return kWindows; }

QString openWindowMessage(const QStringList& openWindows, bool withCopy) {
  for (const SingleWindow& window : kWindows)
    if ((window.stopsFastCheck || withCopy) && openWindows.contains(QStringView(window.screen)))
      return QString::fromUtf16(window.message);
  return {};
}

}  // namespace claims
