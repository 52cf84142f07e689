#include "platform/store/collation.h"

#include <unicode/ucol.h>

#include <algorithm>
#include <memory>

namespace store {
namespace {

const UCollator* japanese() {
  static const std::unique_ptr<UCollator, decltype(&ucol_close)> collator = [] {
    UErrorCode status = U_ZERO_ERROR;
    return std::unique_ptr<UCollator, decltype(&ucol_close)>(ucol_open("ja", &status), &ucol_close);
  }();
  return collator.get();
}

/// The text with every number in it, of twelve digits at most, filled up with zeros in front to one length.
QString withEvenNumbers(QStringView text) {
  constexpr qsizetype kDigits = 12;
  QString even;
  for (qsizetype at = 0; at < text.size();) {
    qsizetype end = at;
    while (end < text.size() && text[end] >= u'0' && text[end] <= u'9') ++end;
    if (end == at) {
      even += text[at++];
      continue;
    }
    even += QString(std::max<qsizetype>(0, kDigits - (end - at)), u'0');
    even += text.mid(at, end - at);
    at = end;
  }
  return even;
}

}  // namespace

int compareJapanese(QStringView a, QStringView b) {
  return ucol_strcoll(japanese(), a.utf16(), static_cast<int32_t>(a.size()), b.utf16(),
                      static_cast<int32_t>(b.size()));
}

QByteArray japaneseSortKey(QStringView text) {
  QByteArray key(32 + static_cast<int>(text.size()) * 6, Qt::Uninitialized);
  const auto fill = [&] {
    return ucol_getSortKey(japanese(), text.utf16(), static_cast<int32_t>(text.size()),
                           reinterpret_cast<uint8_t*>(key.data()), static_cast<int32_t>(key.size()));
  };
  const int32_t needed = fill();
  if (needed > key.size()) {
    key.resize(needed);
    fill();
  }
  key.truncate(needed);
  key.squeeze();
  return key;
}

QByteArray dateSortKey(QStringView text) {
  const QString even = withEvenNumbers(text);
  // Nearly all are western dates: their letters need no Japanese order, and stand before all other texts.
  const auto western = [](QChar letter) { return letter == u'/' || (letter >= u'0' && letter <= u'9'); };
  if (std::all_of(text.begin(), text.end(), western)) return '\x01' + even.toLatin1();
  return '\x02' + japaneseSortKey(even);
}

int compareByNumbers(QStringView a, QStringView b) {
  return compareJapanese(withEvenNumbers(a), withEvenNumbers(b));
}

QByteArray numberSortKey(qint64 number) {
  const quint64 shifted = static_cast<quint64>(number) ^ (quint64(1) << 63);
  QByteArray key(8, '\0');
  for (int place = 0; place < 8; ++place) key[place] = static_cast<char>(shifted >> (56 - 8 * place));
  return key;
}

}  // namespace store
