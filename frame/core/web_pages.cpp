#include "frame/core/web_pages.h"

#include <array>

namespace frame {

QString webAddress(WebPage page) {
  // In the order of WebPage.
  constexpr std::array kAddresses = {
      u"https://daicho.example.invalid/",
      u"https://daicho.example.invalid/koshin/",
      u"https://daicho.example.invalid/error/",
      u"https://association.example.invalid/",
  };
  return QString::fromUtf16(kAddresses.at(static_cast<size_t>(page)));
}

}  // namespace frame
