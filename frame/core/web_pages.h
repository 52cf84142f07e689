#pragma once

#include <QString>

namespace frame {

/// The pages of the product and of the association that the menu opens in the browser. The update page also
/// stands in the settings file.
enum class WebPage { Product, Update, Trouble, Association };

/// The address of a page. The addresses are neutral placeholders: the place that hands the program out puts
/// its own here.
QString webAddress(WebPage page);

}  // namespace frame
