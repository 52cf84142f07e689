#include "platform/text/sjis.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>

#include <QList>
#include <memory>

namespace text {
namespace {

struct Closer {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, Closer>;

/// Bytes that are no character become U+FFFD each; the library would put a control character for some.
void replaceBrokenBytes(const void*, UConverterToUnicodeArgs* arguments, const char*, int32_t,
                        UConverterCallbackReason reason, UErrorCode* status) {
  if (reason > UCNV_IRREGULAR) return;
  constexpr UChar kReplacement = 0xFFFD;
  *status = U_ZERO_ERROR;
  ucnv_cbToUWriteUChars(arguments, &kReplacement, 1, 0, status);
}

/// A converter that stops at what it cannot map instead of replacing it.
Converter openConverter() {
  UErrorCode status = U_ZERO_ERROR;
  Converter converter(ucnv_open("windows-31j", &status));
  if (!converter) return nullptr;
  ucnv_setFromUCallBack(converter.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  ucnv_setToUCallBack(converter.get(), replaceBrokenBytes, nullptr, nullptr, nullptr, &status);
  return converter;
}

/// Opening costs more than a conversion, so a thread keeps its converter.
UConverter* converter() {
  thread_local const Converter kept = openConverter();
  return kept.get();
}

const UChar* units(QStringView text) { return reinterpret_cast<const UChar*>(text.utf16()); }

QString decode(const QByteArray& bytes) {
  QString result(bytes.size() + 1, Qt::Uninitialized);
  UErrorCode status = U_ZERO_ERROR;
  const int length =
      ucnv_toUChars(converter(), reinterpret_cast<UChar*>(result.data()), static_cast<int32_t>(result.size()),
                    bytes.constData(), static_cast<int32_t>(bytes.size()), &status);
  result.truncate(U_FAILURE(status) ? 0 : length);
  return result;
}

/// The bytes, or nothing if the code page lacks a character. Reading back is part of it: the library drops
/// invisible characters without a word and knows a few one-way neighbours.
std::optional<QByteArray> encode(QStringView text) {
  QByteArray bytes(2 * text.size() + 4, Qt::Uninitialized);
  UErrorCode status = U_ZERO_ERROR;
  const int length = ucnv_fromUChars(converter(), bytes.data(), static_cast<int32_t>(bytes.size()),
                                     units(text), static_cast<int32_t>(text.size()), &status);
  if (U_FAILURE(status)) return std::nullopt;
  bytes.truncate(length);
  if (decode(bytes) != text) return std::nullopt;
  return bytes;
}

/// The text's characters, a pair of surrogates together.
QList<QStringView> characters(QStringView text) {
  QList<QStringView> result;
  for (qsizetype at = 0; at < text.size();) {
    const bool pair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
    result.append(text.mid(at, pair ? 2 : 1));
    at += pair ? 2 : 1;
  }
  return result;
}

char32_t codePoint(QStringView character) {
  return character.size() == 2 ? QChar::surrogateToUcs4(character[0], character[1]) : character[0].unicode();
}

/// The character of the reference that begins at `at`, and the end of the reference.
std::optional<std::pair<QString, qsizetype>> referenceAt(const QString& text, qsizetype at) {
  if (!QStringView(text).mid(at).startsWith(u"&#x")) return std::nullopt;
  const qsizetype end = text.indexOf(u';', at);
  if (end < 0 || end - at > 9) return std::nullopt;
  bool isHex = false;
  const char32_t code = QStringView(text).mid(at + 3, end - at - 3).toUInt(&isHex, 16);
  if (!isHex || code > 0x10FFFF) return std::nullopt;
  const QString character = QString::fromUcs4(&code, 1);
  if (encode(character)) return std::nullopt;
  return std::pair(character, end + 1);
}

}  // namespace

QString notInSjis(const QString& text) {
  QString lacking;
  if (encode(text)) return lacking;
  for (const QStringView character : characters(text))
    if (!encode(character) && !lacking.contains(character)) lacking += character;
  return lacking;
}

Result<QByteArray> toSjis(const QString& text) {
  if (auto bytes = encode(text)) return *bytes;
  return Fault{QStringLiteral("Shift-JISで表せない文字があります: ") + notInSjis(text)};
}

QByteArray toSjisKeepingAll(const QString& text) {
  if (auto bytes = encode(text)) return *bytes;
  QByteArray bytes;
  for (const QStringView character : characters(text)) {
    if (auto one = encode(character))
      bytes += *one;
    else
      bytes += "&#x" + QByteArray::number(static_cast<uint>(codePoint(character)), 16).toUpper() + ";";
  }
  return bytes;
}

QString fromSjis(const QByteArray& bytes) { return decode(bytes); }

QString fromSjisKeepingAll(const QByteArray& bytes) {
  const QString text = fromSjis(bytes);
  if (!text.contains(u"&#x")) return text;
  QString result;
  for (qsizetype at = 0; at < text.size();) {
    if (const auto reference = referenceAt(text, at)) {
      result += reference->first;
      at = reference->second;
    } else {
      result += text[at++];
    }
  }
  return result;
}

}  // namespace text
