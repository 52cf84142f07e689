#pragma once

#include <QString>

namespace frame {

/// The pages of the product and of the association that the menu opens in the browser. The update page is
/// also stored in the settings file.
enum class WebPage { Product, Update, Trouble, Association };

/// The address of a page. The addresses are neutral placeholders: whoever distributes the program puts his
/// own here.
QString webAddress(WebPage page);

}  // namespace frame
