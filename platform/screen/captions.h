#pragma once

#include <QString>

namespace screen {

// A caption is declared once, as the screen shows it: "氏名:", "登録(&S)". These give its other forms.

/// For the toolkit: an ampersand that marks no access key is doubled, so that it shows as itself.
QString shownCaption(const QString& caption);
/// As it is spoken: without the access key, colon included.
QString spokenCaption(const QString& caption);
/// As a screen reader compares it: without access key, colon and outer blanks.
QString accessibleCaption(const QString& caption);
/// The caption of member `number` of a family: every "%1" becomes the number.
QString numbered(const char16_t* pattern, int number);

}  // namespace screen
