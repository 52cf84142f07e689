#include "frame/core/prefecture.h"

#include <algorithm>
#include <array>

#include "platform/text/whole_file.h"
#include "platform/text/width.h"

namespace frame {
namespace {

constexpr std::array kEditions = {
    u"北海道版", u"青森県版", u"岩手県版", u"宮城県版", u"秋田県版", u"山形県版",   u"福島県版", u"茨城県版",
    u"栃木県版", u"群馬県版", u"埼玉県版", u"千葉県版", u"東京都版", u"神奈川県版", u"新潟県版", u"富山県版",
    u"石川県版", u"福井県版", u"山梨県版", u"長野県版", u"岐阜県版", u"静岡県版",   u"愛知県版", u"三重県版",
    u"滋賀県版", u"京都府版", u"大阪府版", u"兵庫県版", u"奈良県版", u"和歌山県版", u"鳥取県版", u"島根県版",
    u"岡山県版", u"広島県版", u"山口県版", u"徳島県版", u"香川県版", u"愛媛県版",   u"高知県版", u"福岡県版",
    u"佐賀県版", u"長崎県版", u"熊本県版", u"大分県版", u"宮崎県版", u"鹿児島県版", u"沖縄県版"};
static_assert(kEditions.size() == static_cast<size_t>(Prefecture::Okinawa));

bool isDigits(const QString& text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

}  // namespace

Prefecture prefectureOf(const QString& code) {
  if (code.size() != 2 || !isDigits(code)) return Prefecture::None;
  const uint number = code.toUInt();
  return number <= kEditions.size() ? static_cast<Prefecture>(number) : Prefecture::None;
}

std::optional<QString> prefectureEdition(const QString& code) {
  const Prefecture prefecture = prefectureOf(code);
  if (prefecture == Prefecture::None) return std::nullopt;
  return QString::fromUtf16(kEditions[static_cast<size_t>(prefecture) - 1]);
}

QString readPrefectureCode(const QString& programFolder) {
  const auto bytes = text::readWholeFile(programFolder + u'/' + QString::fromUtf16(kPrefectureFile));
  if (!bytes) return QString();
  const QString code = text::asciiDigits(QString::fromUtf8(*bytes)).trimmed();
  return isDigits(code) && code.size() <= 2 ? twoDigitPrefecture(code) : QString();
}

QString twoDigitPrefecture(const QString& text) { return text.size() == 1 ? u'0' + text : text; }

}  // namespace frame
