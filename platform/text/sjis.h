#pragma once

#include <QByteArray>
#include <QString>

#include "platform/text/result.h"

namespace text {

/// Shift-JIS as the desktop computers of this trade have always written it: code page 932 with the NEC and
/// IBM characters (①, ～ as U+FF5E, 髙, 﨑). Bytes and text map to each other one to one.

/// The bytes of a text. A character that the code page lacks makes a fault that names it; nothing is
/// replaced or dropped.
Result<QByteArray> toSjis(const QString& text);

/// The characters of a text that the code page lacks, each once, in order; empty when all fit.
QString notInSjis(const QString& text);

/// The bytes of a text in which each character outside the code page stands as "&#x20BB7;", so that a
/// rare name survives a file of this encoding. fromSjisKeepingAll() turns it back.
QByteArray toSjisKeepingAll(const QString& text);

/// The text of bytes. Bytes that are no character of the code page become U+FFFD.
QString fromSjis(const QByteArray& bytes);

/// fromSjis(), with the references of toSjisKeepingAll() turned back. A reference to a character that the
/// code page holds was typed by somebody and stays as it is.
QString fromSjisKeepingAll(const QByteArray& bytes);

}  // namespace text
