#pragma once

#include <QByteArray>
#include <QStringView>

namespace store {

/// Japanese order: kana in the order of the syllabary, kanji in that of the national character set.
/// 本人 comes behind 長男, 妻 and 家族, so that a descending order begins with it.
int compareJapanese(QStringView a, QStringView b);
/// Bytes that compare as the texts do.
QByteArray japaneseSortKey(QStringView text);
/// The same with the numbers in the texts by their value: 2020/1/8 before 2020/1/20, 令和6年9月 before 10月.
int compareByNumbers(QStringView a, QStringView b);
/// Bytes that compare so, for columns of dates.
QByteArray dateSortKey(QStringView text);
/// Bytes that compare as the numbers do.
QByteArray numberSortKey(qint64 number);

}  // namespace store
