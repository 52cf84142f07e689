#include "frame/screens/web_pages.h"

#include <string_view>

namespace frame {

namespace {
constexpr WebPage kPages[] = {
    {u"Men_HHPQVTOP", u"https://daicho.example.invalid/"},
    {u"Men_HHPQVVUP", u"https://daicho.example.invalid/koshin/"},
    {u"Men_HHPQVE", u"https://daicho.example.invalid/error/"},
    {u"Men_HHPN", u"https://association.example.invalid/"},
};
}  // namespace

std::span<const WebPage> webPages() { return kPages; }

const char16_t* addressOf(const char16_t* entry) {
  for (const WebPage& page : kPages)
    if (std::u16string_view(page.entry) == entry) return page.address;
  return kPages[0].address;
}

}  // namespace frame
