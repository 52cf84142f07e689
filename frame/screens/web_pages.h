#pragma once

#include <span>

namespace frame {

/// A page that the menu opens in the browser.
struct WebPage {
  const char16_t* entry;  ///< objectName of the menu entry
  const char16_t* address;
};

/// The pages of the association and of the product. The addresses are neutral placeholders: the place that
/// hands the program out puts its own here.
std::span<const WebPage> webPages();
/// The page of an entry; the start page where the entry has none.
const char16_t* addressOf(const char16_t* entry);

}  // namespace frame
