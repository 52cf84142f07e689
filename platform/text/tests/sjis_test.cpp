#include "platform/text/sjis.h"

#include <gtest/gtest.h>

using namespace text;

namespace {

struct Pair {
  const char16_t* text;
  const char* bytes;  // hex, from the published tables of code page 932
};

const Pair kPairs[] = {
    {u"A\\~", "415c7e"}, {u"ｱﾞ", "b1de"},       {u"あア亜", "82a08341889f"}, {u"～", "8160"}, {u"－", "817c"},
    {u"∥", "8161"},      {u"①⑳", "87408753"},   {u"㈱℡", "878a8784"},        {u"髙", "fbfc"}, {u"﨑", "fab1"},
    {u"※", "81a6"},      {u"Ⅲ", "8756"},        {u"ソ表", "835c955c"},       {u"　", "8140"}, {u"￥", "818f"},
    {u"", ""},           {u"\r\n\t", "0d0a09"},
};

}  // namespace

TEST(Sjis, CharactersHaveTheBytesOfTheCodePageBothWays) {
  for (const Pair& pair : kPairs) {
    const QString text = QString::fromUtf16(pair.text);
    const auto bytes = toSjis(text);
    ASSERT_TRUE(bytes) << text.toStdString();
    EXPECT_EQ(bytes->toHex().toStdString(), pair.bytes) << text.toStdString();
    EXPECT_EQ(fromSjis(*bytes), text);
  }
}

TEST(Sjis, WhatTheCodePageLacksIsNamedAndNeverReplaced) {
  const auto bytes = toSjis(QStringLiteral("𠮷田𠮷þ"));
  ASSERT_FALSE(bytes);
  EXPECT_TRUE(bytes.fault().message.contains(QStringLiteral("𠮷þ")));
  EXPECT_EQ(notInSjis(QStringLiteral("𠮷田𠮷þ")), QStringLiteral("𠮷þ"));
  EXPECT_EQ(notInSjis(QStringLiteral("髙﨑①～")), QString());
}

TEST(Sjis, ARareNameSurvivesAFileOfThisEncoding) {
  const QString name = QStringLiteral("見本𠮷男 &#x41; &#xZZ; &#x20BB7");
  const QByteArray bytes = toSjisKeepingAll(name);
  EXPECT_TRUE(bytes.contains("&#x20BB7;"));
  EXPECT_EQ(fromSjisKeepingAll(bytes), name);
}

TEST(Sjis, EveryCharacterOfThePageReadsBackAsItself) {
  for (int code = 0x20; code < 0x10000; ++code) {
    if (QChar::isSurrogate(static_cast<char32_t>(code)) || QChar::isNonCharacter(static_cast<char32_t>(code)))
      continue;
    const QString text{QChar(code)};
    const auto bytes = toSjis(text);
    if (bytes) {
      EXPECT_EQ(fromSjis(*bytes), text) << code;
    }
  }
}

TEST(Sjis, BrokenBytesAreShownAsReplacements) {
  const QString text = fromSjis(QByteArray::fromHex("82a08d0582a2"));
  EXPECT_TRUE(text.startsWith(QStringLiteral("あ")));
  EXPECT_GE(text.size(), 2);
  EXPECT_TRUE(text.contains(QChar(QChar::ReplacementCharacter)));
}
